#include "statistics/screens/frmZusammenH_SZ.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"
#include "statistics/logic/SuperzahlZeilen.h"
#include "statistics/screens/Balkenfeld.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr auto kSamstag = "Die Superzahl wurde im Samstagslotto erst am 07.12.1991 (1991/49) eingefüht.";
constexpr auto kMittwoch = "Im Mittwochslotto wird sie seit dem 06.12.1995 (1995/49) ausgespielt.";
constexpr auto kNurNochEine = " Seit dem 06.12.2000 gibt es nur noch eine Mittwochsziehung.";

constexpr int kBerichtzeilen = 18;
constexpr int kBerichtzeichen = 111;
constexpr int kZuletztzeilen = 10; ///< a line for each digit
constexpr int kZuletztzeichen = 32;

} // namespace

frmZusammenH_SZ::frmZusammenH_SZ(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmZusammenH_SZ", "Häufigkeit der gezogenen Superzahl. Wann zuletzt gezogen?"),
      lader_(umgebung)
{
    check1 = kontroll("check1", "Samstagsziehungen");
    Check2 = kontroll("Check2", "Mttwochsziehungen");
    Check3 = kontroll("Check3", "alte Mittwochsziehungen (B), 1986-2000");
    for (QCheckBox* quelle : {check1, Check2, Check3})
        quelle->setChecked(true);
    optMi = {option("optMi(0)", "alle", hinweis("Alle Mittwochsziehungen berücksichtigen.")),
             option("optMi(1)", "nur ab 6.12.2000",
                    hinweis("Nur die Mittwochsziehungen ab dem 06.12.2000 berücksichtigen."))};
    optMi[0]->setChecked(true);
    lblErklaerung = bezeichnung("lblErklaerung", QString(kSamstag) + "\n" + kMittwoch + kNurNochEine);
    List1 = liste("List1");
    List1->setzeSichtbar(kBerichtzeilen, kBerichtzeichen);
    Label4 = {bezeichnung("Label4(0)", " Wann zuletzt gezogen im Samstagslotto:"),
              bezeichnung("Label4(1)", " Wann zuletzt gezogen im Mittwochslotto:"),
              bezeichnung("Label4(2)", " Wann zuletzt gezogen Sa und Mi zusammen:")};
    List2 = liste("List2");
    List3 = liste("List3");
    List4 = liste("List4");
    for (Liste* zuletzt : {List2, List3, List4})
        zuletzt->setzeSichtbar(kZuletztzeilen, kZuletztzeichen);
    Picture1 = new Balkenfeld(
        this, {.rahmen = "Picture1", .balken = "Balken", .erste = 0, .anzahl = kSuperzahlen, .mitAnzahl = true});
    Command2 = befehl("Command2", "zoom-in", hinweis("Zoom verdeutlicht die Differenzen."));
    Command3 = befehl("Command3", ">>", hinweis("Beenden und zurück zum Auswahlmenü."));
    cmdHelp = befehl("cmdHelp", "Info", hinweis("Info zum Mittwochslotto."));
    ordneAn();

    for (QAbstractButton* wahl : std::initializer_list<QAbstractButton*>{check1, Check2, Check3, optMi[0], optMi[1]})
        bei(wahl, [this] { werteAus(); });
    bei(Command2, [this] {
        gezoomt_ = !gezoomt_;
        zeigeGraphik();
    });
    bei(Command3, [this] { schliesse(); });
    bei(cmdHelp, [this] { this->umgebung().boxen.info(kInfotitel, QString(kMittwoch) + kNurNochEine); });
}

void frmZusammenH_SZ::ordneAn()
{
    // clang-format off
    setzeInhalt(zeile({
        dehnbar(spalte({
            zeile({
                rahmen("Frame1", "Diese Ziehungen in die Berechnung einbeziehen", zeile({
                    check1, Check2, optMi[0], optMi[1], Check3,
                })),
                luecke(),
            }),
            lblErklaerung,
            List1,
            dehnbar(Picture1),
            zeile({Command2, luecke()}),
        })),
        eng(spalte({
            Label4[0], dehnbar(List2),
            Label4[1], dehnbar(List3),
            Label4[2], dehnbar(List4),
            zeile({luecke(), cmdHelp, Command3}),
        })),
    }));
    // clang-format on
}

void frmZusammenH_SZ::werteAus()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    Superzahlstatistik statistik{.nurAb2000 = optMi[1]->isChecked(), .quellen = {}};
    for (const auto& [kasten, spielart] :
         {std::pair(check1, Samstagslotto), {Check2, Mittwochslotto}, {Check3, MittwochslottoB}}) {
        if (!kasten->isChecked())
            continue;
        lader_.lade(spielart);
        if (!lauf.weiter())
            return;
        superzahlCounts(statistik, umgebung().archiv);
    }
    ergebnis_ = std::move(statistik);
    for (QRadioButton* wahl : optMi)
        wahl->setEnabled(Check2->isChecked());
    zeigeListen();
    zeigeGraphik();
}

void frmZusammenH_SZ::zeigeListen()
{
    List1->modell().fuelle(superzahlBericht(ergebnis_));
    List2->modell().fuelle(zuletztZeilen(ergebnis_, Samstagslotto));
    List3->modell().fuelle(zuletztZeilen(ergebnis_, Mittwochslotto));
    List4->modell().fuelle(zuletztZeilenGemeinsam(ergebnis_));
}

void frmZusammenH_SZ::zeigeGraphik()
{
    std::vector<Balkenwert> werte;
    if (ergebnis_.mitSuperzahl() > 0)
        werte = balkenwerte(ergebnis_.anzahl(), 0);
    Picture1->zeige(balkengraphik(werte, gezoomt_ ? Balkenansicht::Zoom : Balkenansicht::Normal));
    Command2->setText(gezoomt_ ? "zoom-out" : "zoom-in");
}
