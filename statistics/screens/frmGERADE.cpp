#include "statistics/screens/frmGERADE.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zaehlerfeld.h"
#include "shell/elements/Zeilendruck.h"
#include "shell/logic/Auswertebereich.h"
#include "shell/logic/Format.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr auto kErgebnistitel = "Gerade oder ungerade Gewinnzahlen / Zehnergruppen";
constexpr std::array kZehnergruppen{
    "Einer (1-9) :", "Zehner (10-19) :", "Zwanziger (20-29) :", "Dreißiger (30-39) :", "Vierziger (40-49) :"};
constexpr std::array kSeptiden{"(1-7)", "(8-14)", "(15-21)", "(22-28)", "(29-35)", "(36-42)", "(43-49)"};

template <std::size_t N> void zeige(const std::array<QLineEdit*, N>& felder, const std::array<std::int32_t, N>& werte)
{
    for (std::size_t i = 0; i < N; ++i)
        felder[i]->setText(QString::number(werte[i]));
}

} // namespace

frmGERADE::frmGERADE(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmGERADE", "Septiden, Zehnergruppen, gerade, ungerade")
{
    lblSpielart = bezeichnung("lblSpielart");
    lblStand = bezeichnung("lblStand");
    alsUeberschrift(lblSpielart);
    Text1 = textfeld("Text1");
    Text2 = textfeld("Text2");
    for (QLineEdit* jahr : {Text1, Text2})
        jahr->setFixedWidth(jahr->fontMetrics().horizontalAdvance("0000000"));
    setzeHinweis(Text2, "Nicht größer als aktueller Erfassungstand in xxLotto.dat wählen !");
    Befehl1 = befehl("Befehl1", "&<<");
    Befehl2 = befehl("Befehl2", qt(zzKurzbefehl(ZZModus::Ohne)));
    Befehl3 = befehl("Befehl3", qt(zzKurzbefehl(ZZModus::Mit)));
    Befehl4 = befehl("Befehl4", qt(zzKurzbefehl(ZZModus::Nur)));
    Befehl5 = befehl("Befehl5", "&Drucken");
    Befehl6 = befehl("Befehl6", "&Info");
    Befehl5->setEnabled(false);
    hauptaktionen({Befehl2, Befehl3, Befehl4});

    // clang-format off
    setzeInhalt(spalte({
        zeile({lblSpielart, luecke(), lblStand}),
        zeile({
            rahmen("Rahmen1", "Auswertebereich wählen", zeile({
                eng(zeile({bezeichnung("lblVon", "Von"), Text1})),
                eng(zeile({bezeichnung("lblBis", "Bis"), Text2})),
            })),
            rahmen("Rahmen8", "Auswertung starten", zeile({Befehl2, Befehl3, Befehl4})),
            luecke(),
        }),
        baueErgebnis(),
        luecke(),
        zeile({Befehl5, Befehl6, luecke(), Befehl1}),
    }));
    // clang-format on

    bei(Befehl1, [this] { schliesse(); });
    bei(Befehl2, [this] { werteAus(ZZModus::Ohne); });
    bei(Befehl3, [this] { werteAus(ZZModus::Mit); });
    bei(Befehl4, [this] { werteAus(ZZModus::Nur); });
    bei(Befehl5, [this] { druckeZeilen(*this, kErgebnistitel, druckauftrag(ergebnis_)); });
    bei(Befehl6, [this] { zeigeInfo(); });
}

QLayout* frmGERADE::baueErgebnis()
{
    Text3 = alsZaehler(textfeld("Text3"));
    Text4 = alsZaehler(textfeld("Text4"));
    Text5 = alsZaehler(textfeld("Text5"));
    Text6 = alsZaehler(textfeld("Text6"));
    std::vector<std::pair<Block, Block>> zehner;
    for (std::size_t i = 0; i < zehnergruppen_.size(); ++i) {
        zehnergruppen_[i] = alsZaehler(textfeld(QString("Text%1").arg(i + 7)));
        zehner.emplace_back(bezeichnung(QString("lblZehner(%1)").arg(i), kZehnergruppen[i]), zehnergruppen_[i]);
    }
    std::vector<std::pair<Block, Block>> septiden;
    for (std::size_t i = 0; i < txtSep.size(); ++i) {
        txtSep[i] = alsZaehler(textfeld(QString("txtSep(%1)").arg(i)));
        septiden.emplace_back(bezeichnung(QString("lblSep(%1)").arg(i), kSeptiden[i]), txtSep[i]);
    }
    // clang-format off
    return zeile({
        rahmen("Rahmen2", "Gewinnzahlen", formular({
            {bezeichnung("lblGesamt", "Gesamtzahl"), Text5},
            {bezeichnung("lblGerade", "davon gerade Zahlen"), Text3},
            {bezeichnung("lblUngerade", "davon ungerade Zahlen"), Text4},
            {bezeichnung("lblZiehungen", "Ausgewertete Ziehungen"), Text6},
        })),
        rahmen("Rahmen3", "Zehnergruppen", formular(zehner)),
        rahmen("Frame1", "Septiden", formular(septiden)),
        luecke(),
    });
    // clang-format on
}

void frmGERADE::beimZeigen()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    lblSpielart->setText(qt(spielartGross(archiv.Spielart)));
    lblStand->setText(qt(gespeicherteZiehungen(archiv)));
    setzeHinweis(Text1, "Anfang nicht kleiner als " + qt(erstesSpieljahr(archiv.Spielart)) + " wählen !");
    if (archiv.AnzahlZiehungen < 1)
        return;
    Text1->setText(qt(Format(archiv.jjjj[1], "0000")));
    Text2->setText(qt(Format(archiv.jjjj[static_cast<std::size_t>(archiv.AnzahlZiehungen)], "0000")));
}

void frmGERADE::werteAus(ZZModus modus)
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    const auto von = jahreszahl(utf8(Text1->text()));
    const auto bis = jahreszahl(utf8(Text2->text()));
    if (!von || !bis) {
        const Meldung meldung = falscheJahreszahl();
        umgebung().boxen.info(qt(meldung.titel), qt(meldung.text));
        return;
    }
    ergebnis_ = zaehleGruppen(umgebung().archiv, *von, *bis, modus);
    zeigeErgebnis();
}

void frmGERADE::zeigeErgebnis()
{
    lblSpielart->setText(qt(spielartGross(ergebnis_.spielart)));
    zeige(std::array{Text3, Text4, Text5, Text6},
          {ergebnis_.Gerade, ergebnis_.Ungerade, ergebnis_.gesamtzahl(), ergebnis_.Ausgewertet});
    zeige(zehnergruppen_, ergebnis_.zehnergruppen());
    zeige(txtSep, ergebnis_.Septiden);
    Befehl5->setEnabled(true);
    zeigeGelaufen(std::array{Befehl2, Befehl3, Befehl4}[zzStelle(ergebnis_.ZaehlModus)]);
    setzeTitel(kErgebnistitel);
}

void frmGERADE::zeigeInfo()
{
    umgebung().boxen.info(kInfotitel, "Anfang ->  nicht kleiner als " +
                                          qt(erstesSpieljahr(umgebung().archiv.Spielart)) +
                                          ", Ende -> nicht größer als aktueller Erfassungsstand.");
}
