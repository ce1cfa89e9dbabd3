#include "statistics/screens/frmZuletzt.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zahlenblock.h"
#include "shell/elements/Zeilendruck.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "statistics/screens/Legende.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const QColor kNeueste{255, 255, 0};
const QColor kAelteste{255, 0, 0};
constexpr int kListenzeilen = 20;
constexpr int kListenzeichen = 30;

constexpr auto kInfo =
    "Mit dem Auswahlfeld \"Letzte Ziehung\" kann auch eine frühere Ziehung aus der Vergangenheit ausgewählt werden.\n"
    "Dann wird für diese Ziehung ermittelt, wann die Gewinnzahlen bis zum Zeitpunkt dieser Ziehung zuletzt gezogen "
    "wurden.";

} // namespace

frmZuletzt::frmZuletzt(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZuletzt", "Wann wurden die Zahlen zuletzt gezogen ?")
{
    Bezeichnung1 = new Zahlenblock("lblZahl", "Bezeichnung1", this);
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    Bezeichnung3 = bezeichnung("Bezeichnung3", "max");
    Bezeichnung4 = bezeichnung("Bezeichnung4", "min");
    Bezeichnung5 = bezeichnung("Bezeichnung5");
    lblNeueste = bezeichnung("lblNeueste", "zuletzt gezogen");
    lblAelteste = bezeichnung("lblAelteste", "am längsten nicht gezogen");
    lblText1 = bezeichnung("lblText1", " Anzahl der auszuwertenden Ziehungen ->");
    Text1 = textfeld("Text1");
    lbl99 = bezeichnung("lbl99", "Letzte Ziehung:");
    cmbZ = kombi("cmbZ");
    feld(Label2, "Label2");
    lstB114 = {liste("lstB114(0)"), liste("lstB114(1)", {.Sorted = true})};
    Befehl1 = befehl("Befehl1", "Mittwoch (A+B) zusammen",
                     hinweis("Lotto am Mittwoch, Ziehung A un B zusammen ohne Zusatzzahl. (in Wochen)"));
    Befehl2 = befehl("Befehl2", "<< &Zurück");
    Befehl3 = befehl("Befehl3", "&Drucken");
    Befehl4 = befehl("Befehl4", "vor &Wochen", hinweis("Ausbleibezeitraum in Wochen."));
    Befehl5 = befehl("Befehl5", qt(zzBefehl(ZZModus::Ohne)));
    Befehl6 = befehl("Befehl6", qt(zzBefehl(ZZModus::Mit)));
    Befehl7 = befehl("Befehl7", qt(zzBefehl(ZZModus::Nur)));
    Befehl8 = befehl("Befehl8", "Info");

    alsUeberschrift(Bezeichnung5);
    alsLegende(Bezeichnung3, kNeueste);
    alsLegende(Bezeichnung4, kAelteste, Qt::white);
    Text1->setMaxLength(20);
    Text1->setFixedWidth(Text1->fontMetrics().horizontalAdvance("0000000"));
    cmbZ->setFont(Stil::festeSchrift());
    cmbZ->setMaxVisibleItems(20);
    cmbZ->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbZ->setMinimumContentsLength(17);
    for (std::size_t i = 0; i < lstB114.size(); ++i) {
        Label2[i]->setFont(Stil::festeSchrift());
        Label2[i]->setText(qt(zuletztListenkoepfe(ansicht_)[i]));
        lstB114[i]->setzeSichtbar(kListenzeilen, kListenzeichen);
        Label2[i]->setContentsMargins(lstB114[i]->frameWidth() + Stil::kEng, 0, 0, 0);
    }
    Befehl3->setEnabled(false);
    Befehl4->setEnabled(false);
    hauptaktionen({Befehl5, Befehl6, Befehl7, Befehl1});

    // clang-format off
    setzeInhalt(spalte({
        zeile({Bezeichnung5, luecke(), Bezeichnung2}),
        zeile({
            eng(zeile({lblText1, Text1})),
            eng(zeile({lbl99, cmbZ})),
            luecke(),
        }),
        zeile({Befehl5, Befehl6, Befehl7, Befehl4, Befehl1, luecke()}),
        dehnbar(zeile({
            dehnbar(rahmen("Rahmen7", "Gewinnzahlen und ihr letztes Auftreten", spalte({
                dehnbar(Bezeichnung1),
                zeile({Bezeichnung3, lblNeueste, luecke(), Bezeichnung4, lblAelteste}),
            }))),
            rahmen("Rahmen1", "Als Liste (sortiert nach Gewinnzahl", eng(spalte({
                Label2[0], dehnbar(lstB114[0]),
            }))),
            rahmen("Rahmen2", "Als Liste (sortiert letztes Auftreten)", eng(spalte({
                Label2[1], dehnbar(lstB114[1]),
            }))),
        })),
        zeile({Befehl3, Befehl8, luecke(), Befehl2}),
    }));
    // clang-format on

    fuelleAuswahl();
    Text1->setText(QString::number(umgebung.archiv.AnzahlZiehungen));

    bei(Befehl1, [this] { werteMittwochAus(); });
    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl3, [this] { drucke(); });
    bei(Befehl4, [this] { zeigeWochen(); });
    bei(Befehl5, [this] { werteAus(ZZModus::Ohne); });
    bei(Befehl6, [this] { werteAus(ZZModus::Mit); });
    bei(Befehl7, [this] { werteAus(ZZModus::Nur); });
    bei(Befehl8, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(cmbZ, [this] { uebernimmZiehung(); });
    connect(Text1, &QLineEdit::textChanged, this, [this] { Befehl4->setEnabled(false); });
}

void frmZuletzt::beimZeigen()
{
    Bezeichnung5->setText(qt(spielartGross(umgebung().archiv.Spielart)));
    folgeArchiv();
}

/// The choice of draws and what is said of the archive; costs nothing while that is the same.
void frmZuletzt::folgeArchiv()
{
    Befehl1->setVisible(umgebung().archiv.Spielart > Samstagslotto);
    if (Bezeichnung2->text() != qt(gespeicherteZiehungenVonBis(umgebung().archiv)))
        fuelleAuswahl();
}

void frmZuletzt::fuelleAuswahl()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    QStringList eintraege;
    eintraege.reserve(archiv.AnzahlZiehungen);
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
        eintraege << qt(ziehungsauswahl(archiv, nr));
    cmbZ->clear();
    cmbZ->addItems(eintraege);
    cmbZ->setCurrentIndex(cmbZ->count() - 1);
    Bezeichnung2->setText(qt(gespeicherteZiehungenVonBis(archiv)));
}

void frmZuletzt::uebernimmZiehung()
{
    Text1->setText(qt(Format(cmbZ->currentIndex() + 1, "0000")));
    Befehl4->setEnabled(false);
}

std::int32_t frmZuletzt::grenze()
{
    const std::int32_t anzahl = umgebung().archiv.AnzahlZiehungen;
    const Ziehungsgrenze gelesen = liesGrenze(utf8(Text1->text()), anzahl);
    if (gelesen.berichtigt)
        Text1->setText(QString::number(anzahl));
    return gelesen.nr;
}

void frmZuletzt::werteAus(ZZModus modus)
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = werteZuletztAus(umgebung().archiv, grenze(), modus);
    zeigeErgebnis();
}

void frmZuletzt::werteMittwochAus()
{
    Lauf lauf(*this);
    if (!lauf || umgebung().archiv.Spielart <= Samstagslotto)
        return;
    const bool vonB = umgebung().archiv.Spielart == MittwochslottoB;
    ergebnis_ = werteZuletztAus(umgebung().archiv, grenze(), ZZModus::Ohne);
    umgebung().menue->waehleSpielart(vonB ? Mittwochslotto : MittwochslottoB);
    ergaenzeMittwoch(ergebnis_, umgebung().archiv);
    if (!vonB)
        umgebung().menue->waehleSpielart(Mittwochslotto);
    zeigeErgebnis();
    zeigeWochen();
}

void frmZuletzt::zeigeErgebnis()
{
    folgeArchiv();
    Bezeichnung5->setText(qt(spielLabel(ergebnis_)));
    const std::array modusknoepfe{Befehl5, Befehl6, Befehl7};
    zeigeGelaufen(ergebnis_.mittwochAB ? Befehl1 : modusknoepfe[zzStelle(ergebnis_.ZaehlModus)]);
    if (ergebnis_.Grenze >= 1)
        cmbZ->setCurrentIndex(ergebnis_.Grenze - 1);
    Bezeichnung1->loescheFarben();
    const ZuletztMarken marken = zuletztMarken(ergebnis_);
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        if (marken.neueste[static_cast<std::size_t>(zahl)])
            Bezeichnung1->faerbeWert(zahl, kNeueste);
        if (marken.aelteste[static_cast<std::size_t>(zahl)])
            Bezeichnung1->faerbeWert(zahl, kAelteste);
    }
    zeigeTafel(ZuletztAnsicht::JahrUndWoche);
}

void frmZuletzt::zeigeWochen()
{
    zeigeTafel(ZuletztAnsicht::Wochen);
}

void frmZuletzt::zeigeTafel(ZuletztAnsicht ansicht)
{
    ansicht_ = ansicht;
    const ZuletztTafel tafel = zuletztTafel(ergebnis_, ansicht);
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        Bezeichnung1->setzeWert(zahl, qt(tafel.zellen[static_cast<std::size_t>(zahl - 1)]));
    for (std::size_t i = 0; i < lstB114.size(); ++i) {
        Label2[i]->setText(qt(tafel.listenkoepfe[i]));
        lstB114[i]->modell().fuelle(tafel.listen[i]);
    }
    Befehl3->setEnabled(ansicht == ZuletztAnsicht::JahrUndWoche);
    Befehl4->setEnabled(ansicht == ZuletztAnsicht::JahrUndWoche);
}

void frmZuletzt::drucke()
{
    druckeZeilen(*this, grundtitel(), druckauftrag(ergebnis_, ansicht_));
}

bool frmZuletzt::kehrtZumMenueZurueck() const
{
    return !umgebung().VorschlagLaeuft;
}
