#include "archive/screens/AuswertebereichView.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Rahmen.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>

namespace {

template <class Feld> Feld* benannt(Feld* feld, const char* name)
{
    feld->setObjectName(name);
    return feld;
}

QLabel* beschriftung(QWidget* eltern, const char* name, const char* text)
{
    return benannt(new QLabel(text, eltern), name);
}

QLineEdit* jahrfeld(QWidget* eltern, const char* name)
{
    auto* feld = benannt(new QLineEdit(eltern), name);
    feld->setMaxLength(20);
    feld->setFixedWidth(feld->fontMetrics().horizontalAdvance("0000000"));
    return feld;
}

QPushButton* wechsler(QWidget* eltern, const char* name, std::string_view text, std::string_view hinweis)
{
    auto* knopf = benannt(new QPushButton(qt(text), eltern), name);
    knopf->setFixedWidth(knopf->fontMetrics().horizontalAdvance("MMMM"));
    setzeHinweis(knopf, qt(hinweis));
    return knopf;
}

QComboBox* auswahl(QWidget* eltern, const char* name, QLineEdit* feld)
{
    auto* kombi = benannt(new QComboBox(eltern), name);
    kombi->setFont(Stil::festeSchrift());
    QObject::connect(kombi, &QComboBox::activated, kombi,
                     [kombi, feld] { feld->setText(kombi->currentText().trimmed()); });
    return kombi;
}

void fuelleAuswahl(QComboBox* kombi, const std::vector<std::string>& eintraege)
{
    QStringList texte;
    texte.reserve(static_cast<qsizetype>(eintraege.size()));
    for (const std::string& eintrag : eintraege)
        texte << qt(eintrag);
    kombi->clear();
    kombi->addItems(texte);
}

QGroupBox* kasten(QWidget* eltern, const char* name, const char* titel, QLayout* inhalt)
{
    auto* rahmen = benannt(new Rahmen(titel, eltern), name);
    rahmen->setzeInhalt(inhalt);
    return rahmen;
}

Auswertebereich bereichDesArchivs(const ZiehungsArchiv& archiv)
{
    if (archiv.AnzahlZiehungen < 1)
        return {};
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    return {archiv.jjjj[1], archiv.jjjj[letzte], archiv.AnzahlZiehungen};
}

} // namespace

AuswertebereichView::AuswertebereichView(Bildschirm& bildschirm, const AuswertebereichNamen& namen)
    : QWidget(&bildschirm),
      bildschirm_(bildschirm)
{
    jahre_ = baueJahre(namen);
    ziehung_ = baueZiehung(namen);
    wechsel_ = new QStackedLayout(this);
    wechsel_->addWidget(jahre_);
    wechsel_->addWidget(ziehung_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setzeHinweis(von_, qt(hinweisVon(erstesSpieljahr(bildschirm.umgebung().archiv.Spielart))));
    fuelle();
}

QGroupBox* AuswertebereichView::baueJahre(const AuswertebereichNamen& namen)
{
    von_ = jahrfeld(this, namen.von);
    bis_ = jahrfeld(this, namen.bis);
    vonAuswahl_ = auswahl(this, namen.vonAuswahl, von_);
    bisAuswahl_ = auswahl(this, namen.bisAuswahl, bis_);
    auto* zurZiehung = wechsler(this, namen.zurZiehung, kBefehlBisZiehung, kHinweisBisZiehung);
    connect(zurZiehung, &QPushButton::clicked, this, [this] {
        modell_.zeigeBisZiehung();
        zeige();
    });
    // clang-format off
    return kasten(this, namen.rahmenJahre, "Auswertebereich wählen", zeile({
        eng(zeile({beschriftung(this, "lblVon", "Von"), von_, vonAuswahl_})),
        eng(zeile({beschriftung(this, "lblBis", "Bis"), bis_, bisAuswahl_})),
        zurZiehung,
    }));
    // clang-format on
}

QGroupBox* AuswertebereichView::baueZiehung(const AuswertebereichNamen& namen)
{
    bisZiehung_ = jahrfeld(this, namen.bisZiehung);
    bisZiehungAuswahl_ = auswahl(this, namen.bisZiehungAuswahl, bisZiehung_);
    auto* zuJahren = wechsler(this, namen.zuJahren, kBefehlJahre, kHinweisJahre);
    connect(zuJahren, &QPushButton::clicked, this, [this] {
        uebernimm();
        modell_.zeigeJahre();
        zeige();
    });
    // clang-format off
    return kasten(this, namen.rahmenZiehung, "Auswertebereich", zeile({
        eng(zeile({beschriftung(this, "lblBisZiehung", "bis Ziehung"), bisZiehung_, bisZiehungAuswahl_})),
        luecke(),
        zuJahren,
    }));
    // clang-format on
}

void AuswertebereichView::fuelle()
{
    modell_ = bereichDesArchivs(bildschirm_.umgebung().archiv);
    fuelleAuswahlen();
    zeige();
}

void AuswertebereichView::folgeArchiv()
{
    const Auswertebereich neuer = bereichDesArchivs(bildschirm_.umgebung().archiv);
    if (modell_.gleichesArchiv(neuer))
        return;
    uebernimm();
    modell_.folge(neuer);
    fuelleAuswahlen();
    zeige();
}

void AuswertebereichView::fuelleAuswahlen()
{
    fuelleAuswahl(vonAuswahl_, modell_.jahre());
    fuelleAuswahl(bisAuswahl_, modell_.jahre());
    bisAuswahl_->setCurrentIndex(bisAuswahl_->count() - 1);
    fuelleAuswahl(bisZiehungAuswahl_, modell_.ziehungsnummern());
    bisZiehungAuswahl_->setCurrentIndex(bisZiehungAuswahl_->count() - 1);
}

void AuswertebereichView::uebernimm()
{
    modell_.setzeVon(utf8(von_->text()));
    modell_.setzeBis(utf8(bis_->text()));
    modell_.setzeBisZiehung(utf8(bisZiehung_->text()));
}

void AuswertebereichView::zeige()
{
    const Bereichsangabe& angabe = modell_.angabe();
    von_->setText(qt(angabe.von));
    bis_->setText(qt(angabe.bis));
    bisZiehung_->setText(qt(angabe.bisZiehung));
    wechsel_->setCurrentWidget(angabe.form == Bereichsform::Jahre ? jahre_ : ziehung_);
}

std::optional<Ziehungsbereich> AuswertebereichView::pruefe()
{
    folgeArchiv();
    uebernimm();
    const Bereichspruefung pruefung = modell_.pruefe();
    zeige();
    if (pruefung.meldung)
        bildschirm_.umgebung().boxen.info(pruefung.meldung->titel.empty() ? QString(kProgrammtitel)
                                                                          : qt(pruefung.meldung->titel),
                                          qt(pruefung.meldung->text));
    return pruefung.bereich;
}
