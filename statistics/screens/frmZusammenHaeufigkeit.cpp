#include "statistics/screens/frmZusammenHaeufigkeit.h"

#include "archive/screens/Spielartenwahl.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zahlenblock.h"
#include "shell/logic/Zahlen.h"
#include "statistics/screens/Balkenfeld.h"
#include "statistics/screens/Legende.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr int kMittwoch = 2; ///< its bit in the mask of the games
constexpr int kVoreinstellung = 100;
constexpr std::array kAnzahlen{10, 20, 30, 40, 50, 75, 100, 150, 200, 250, 300, 400, 500, 750, 1000, 1500, 2000, 3000};

/// How many of the latest draws a text asks for; nothing for none, or for what is no number.
std::optional<std::int32_t> letzteZiehungen(const QString& text)
{
    const auto anzahl = ganzzahl(utf8(text));
    return anzahl && *anzahl > 0 ? anzahl : std::nullopt;
}

} // namespace

frmZusammenHaeufigkeit::frmZusammenHaeufigkeit(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZusammenHaeufigkeit", "Häufigkeit der gezogenen Gewinnzahlen")
{
    baueWahl();
    lblAuswertung = bezeichnung("lblAuswertung");
    alsUeberschrift(lblAuswertung);
    bezeichnung114 = new Zahlenblock("bezeichnung59", "bezeichnung114", this);
    baueGraphik();
    Command3 = befehl("Command3", ">>", hinweis("Beenden und zurück zum Auswahlmenü."));
    hauptaktionen({cmdBereich[0], cmdBereich[1]});
    enterDrueckt(cmbAnz, cmdBereich[1]);
    ordneAn();

    frmArt->beiWechsel = [this] { werteAus(); };
    for (QAbstractButton* wahl : std::initializer_list<QAbstractButton*>{optMI[0], optMI[1], chkART3, chkZusatzzahl})
        bei(wahl, [this] { werteAus(); });
    bei(cmdBereich[0], [this] { waehleBereich(false); });
    bei(cmdBereich[1], [this] { waehleBereich(true); });
    connect(cmbAnz, &QComboBox::currentTextChanged, this, [this] { waehleBereich(true); });
    bei(cmdSort4, [this] {
        nachHaeufigkeit_ = !nachHaeufigkeit_;
        zeigeGraphik();
    });
    bei(cmdZoom, [this] {
        gezoomt_ = !gezoomt_;
        zeigeGraphik();
    });
    bei(Command3, [this] { schliesse(); });
}

void frmZusammenHaeufigkeit::baueWahl()
{
    frmArt = new Spielartenwahl(
        *this, {.spielarten = {"Samstagsziehungen", "Mittwochsziehungen -->", "Die  Ziehungen des  Mittwochslotto (B)"},
                .kasten = "chkART"});
    optMI = {option("optMI(0)", "Alle"), option("optMI(1)", "Nur die Ziehungen ab 06.12.2000")};
    optMI[0]->setChecked(true);
    chkART3 = kontroll("chkART(3)", "Die alten Ziehungen der Spielart 7 aus 38");
    chkZusatzzahl = kontroll("chkZusatzzahl", "Die früher ausgespielte  Zusatzzahl berücksichtigen?");
    const Hinweis alle = hinweis("Alle Ausspielungen der ausgewählten Spielarten werden ausgewertet.");
    const Hinweis gewaehlte = hinweis("Nur die gewählte Anzahl von Ausspielungen wird ausgewertet.");
    cmdBereich = {befehl("cmdBereich(0)", "Alle", alle), befehl("cmdBereich(1)", "Nur die letzten->", gewaehlte)};
    cmbAnz = kombi("cmbAnz");
    cmbAnz->setEditable(true);
    cmbAnz->setInsertPolicy(QComboBox::NoInsert);
    cmbAnz->setCompleter(nullptr);
    cmbAnz->lineEdit()->setMaxLength(6);
    for (const int anzahl : kAnzahlen)
        cmbAnz->addItem(QString::number(anzahl));
    cmbAnz->setCurrentText(QString::number(kVoreinstellung));
    setzeHinweis(cmbAnz, gewaehlte.text);
    lblBereich = bezeichnung("lblBereich", "Ausspielungen auswerten?");
}

void frmZusammenHaeufigkeit::baueGraphik()
{
    Picture1 = new Balkenfeld(
        this, {.rahmen = "Picture1", .balken = "Balken", .richtung = Balkenrichtung::Rechts, .mitAnzahl = true});
    Picture1->setFrameShape(QFrame::NoFrame);
    bildausschnitt_ = new QScrollArea(this);
    bildausschnitt_->setObjectName("Bildausschnitt");
    bildausschnitt_->setWidgetResizable(true);
    bildausschnitt_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    bildausschnitt_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    bildausschnitt_->verticalScrollBar()->setObjectName("VScroll1");
    bildausschnitt_->setWidget(Picture1);
    bildausschnitt_->setMinimumWidth(Picture1->minimumSizeHint().width() +
                                     bildausschnitt_->verticalScrollBar()->sizeHint().width());
    cmdSort4 = befehl("cmdSort4", "Sort H", hinweis("Sortieren nach Häufigkeit oder Gewinnzahl"));
    cmdZoom = befehl("cmdZoom", "zoom-in", hinweis("Zoom verdeutlicht die Differenzen."));
}

void frmZusammenHaeufigkeit::ordneAn()
{
    auto* lblMaximum = bezeichnung("lblMaximum", "Maximum");
    auto* lblMinimum = bezeichnung("lblMinimum", "Minimum");
    alsLegende(lblMaximum, Farben::Hoechstwert, Qt::white);
    alsLegende(lblMinimum, Farben::Markiert);

    // clang-format off
    setzeInhalt(spalte({
        zeile({
            frmArt,
            rahmen("frmMittwoch", "Mittwochsziehungen:", spalte({optMI[0], optMI[1], luecke()})),
            rahmen("frmZusatz", "Außerdem:", spalte({chkART3, chkZusatzzahl, luecke()})),
            luecke(),
        }),
        zeile({cmdBereich[0], cmdBereich[1], cmbAnz, lblBereich, luecke()}),
        lblAuswertung,
        dehnbar(zeile({
            dehnbar(spalte({
                dehnbar(bezeichnung114),
                zeile({lblMaximum, lblMinimum, luecke()}),
            })),
            dehnbar(rahmen("frmGraphik", "Darstellung der Häufigkeit als Balkendiagramm:", spalte({
                dehnbar(bildausschnitt_),
                zeile({cmdSort4, cmdZoom, luecke()}),
            }))),
        })),
        zeile({luecke(), Command3}),
    }));
    // clang-format on
}

ZusammenHaeufigkeitswahl frmZusammenHaeufigkeit::wahl() const
{
    return {.maske = frmArt->maske(),
            .samstagsziehungen = fuehrendeZahl(utf8(frmArt->stand(0))),
            .letzte = nurLetzte_ ? letzteZiehungen(cmbAnz->currentText()) : std::nullopt,
            .mitZZ = chkZusatzzahl->isChecked(),
            .nurAb2000 = optMI[1]->isChecked(),
            .mit7aus38 = chkART3->isChecked()};
}

void frmZusammenHaeufigkeit::waehleBereich(bool nurLetzte)
{
    nurLetzte_ = nurLetzte;
    werteAus();
}

void frmZusammenHaeufigkeit::werteAus()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    ergebnis_ = frequencyRange(umgebung().archiv, wahl());
    for (QRadioButton* wahl : optMI)
        wahl->setEnabled((ergebnis_.wahl.maske & kMittwoch) != 0);
    zeigeGelaufen(cmdBereich[ergebnis_.wahl.letzte ? 1 : 0]);
    frmArt->zeigeAusgewertete(ergebnis_.ziehungen);
    lblAuswertung->setText(qt(ueberschrift(ergebnis_)));
    zeigeZahlen();
    zeigeGraphik();
}

void frmZusammenHaeufigkeit::zeigeZahlen()
{
    bezeichnung114->loescheFarben();
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        bezeichnung114->setzeWert(zahl, "0");
    if (ergebnis_.ziehungen == 0)
        return;
    const auto [min, max] = std::ranges::minmax(ergebnis_.anzahl);
    for (const auto& [zahl, anzahl] : balkenwerte(ergebnis_.anzahl, 1)) {
        bezeichnung114->setzeWert(zahl, QString::number(anzahl));
        if (anzahl == max)
            bezeichnung114->faerbeWert(zahl, Farben::Hoechstwert);
        if (anzahl == min)
            bezeichnung114->faerbeWert(zahl, Farben::Markiert);
    }
}

void frmZusammenHaeufigkeit::zeigeGraphik()
{
    std::vector<Balkenwert> werte;
    if (ergebnis_.ziehungen > 0)
        werte = balkenwerte(ergebnis_.anzahl, 1);
    if (nachHaeufigkeit_)
        werte = nachHaeufigkeit(werte);
    Picture1->zeige(balkengraphik(werte, gezoomt_ ? Balkenansicht::Zoom : Balkenansicht::Normal));
    cmdSort4->setText(nachHaeufigkeit_ ? "Sort GZ" : "Sort H");
    cmdZoom->setText(gezoomt_ ? "zoom-out" : "zoom-in");
}
