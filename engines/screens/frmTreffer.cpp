#include "engines/screens/frmTreffer.h"

#include "archive/logic/Ziehungsmengen.h"
#include "archive/screens/Spielartenwahl.h"
#include "archive/screens/Spielartlader.h"
#include "engines/screens/Trefferdetails.h"
#include "listcontrol/logic/ListBoxSort.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Pfeilknopf.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/clsTimer.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr auto kInfo =
    "Es werden alle 13.983.816 möglichen Lottokombinationen generiert. "
    "Jede dieser Kombinationen wird mit allen bisherigen Lottoziehungen verglichen. "
    "Die Kombinationen, die in der Lottogeschichte die meisten Treffer erzielt hätten, werden aufgelistet. "
    "Die früher ausgespielte Zusatzzahl wird nicht berücksichtigt. Auch die Superzahl spielt keine Rolle. \n\n"
    "Hinweis zu Sechsern: \n"
    "Da es bisher (Stand 30.09.2014) noch keine Sechserwiederholungen innerhalb einer Spielart (Sa, Mi oder Mi(B)) "
    "gab, "
    "wäre die erfolgreichste Kombination natürlich die, die einen Sechser erbracht hätte, also die Kombination die "
    "einer Ziehung entspricht. "
    "Es werden deshalb nur Sechserkombinationen aufgelistet, die auch noch mindestens einen Fünfer erzielt hätten.\n"
    "Es gab bisher zwar eine Sechserwiederholung, aber in verschiedenen Spielarten. Die Kombination 15 25 27 30 42 48 "
    "wurde einmal "
    "im Samstagslotto und einmal im Mittwochslotto gezogen. "
    "Wenn die Ziehungen Sa und Mi für die Suche ausgewählt wurden, wird diese eine Kombination dann als "
    "erfolgreichste Sechserkombination angezeigt.\n\n"
    "Clickt man auf eine gefundene Kombination in einer der 5 Ergebnislisten, zeigt die rechte Detailliste wann und "
    "in welcher Spielart diese Kombination die Gewinne erzielt hätte.";

constexpr auto kFrage = "Auch die Kombinationen suchen, die zusätzlich Gewinne in den nächst höheren Gewinnrängen "
                        "gehabt hätten?";

constexpr int kSichtbareZeilen = 11;
constexpr int kZeichenJeZeile = 46; ///< wider than a row: the headings stand in one line

} // namespace

frmTreffer::frmTreffer(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmTreffer", qt(kTreffersucheTitel)),
      spielartBeimLaden_(umgebung.archiv.Spielart)
{
    Frame1 = new Spielartenwahl(
        *this,
        {.rahmen = "Frame1", .spielarten = {"Samstagsziehungen", "Mittwochsziehungen", "Mittwochsziehungen (B)"}});
    Frame1->ladeAuchOhne = true;
    chkHoeher = kontroll("chkHoeher", kFrage);
    Command1 = befehl("Command1", "Suche starten");
    cmdAbbruch = befehl("cmdAbbruch", "Abbrechen");
    lblK = bezeichnung("lblK", "Generierte Kombinationen:  ");
    Label1 = bezeichnung("Label1");
    lblV = bezeichnung("lblV", "Kombinationsvergleiche:");
    lblVergleich = bezeichnung("lblVergleich");
    lbl8 = bezeichnung("lbl8");
    baueFeld(Rangliste::Drei, "lstDrei");
    baueFeld(Rangliste::Vier, "lstVier");
    baueFeld(Rangliste::Fuenf, "lstFuenf");
    baueFeld(Rangliste::Sechs, "lstSechs");
    baueFeld(Rangliste::Loser, "lstLoser");
    FrameDetail = new Trefferdetails(*this, kTrefferspalten);
    cmdSortAuf = new Pfeilknopf("cmdSortAuf", "5", "Listen aufsteigend sortieren", this);
    cmdSortAb = new Pfeilknopf("cmdSortAb", "6", "Listen absteigend sortieren", this);
    cmdClip = clipBefehl("cmdClip", [this] { return bericht(); });
    cmdClip->setText("Clip");
    cmdClip->setToolTip("Überträgt die Ergebnislisten in die Zwischenablage");
    cmdInfo = befehl("cmdInfo", "Info");
    cmdEnd = befehl("cmdEnd", "<<");
    frameInfo = new Infotafel(this, kInfo, {"frameInfo", "txtInfo", "cmdOK", "<<"});

    // clang-format off
    setzeInhalt(spalte({
        zeile({
            Frame1,
            dehnbar(spalte({
                chkHoeher,
                zeile({raster(3, {lblK, Label1, lbl8, lblV, lblVergleich, luecke()}), luecke()}),
                zeile({Command1, cmdAbbruch, cmdSortAuf, cmdSortAb, cmdClip, luecke()}),
            })),
        }),
        dehnbar(zeile({
            dehnbar(spalte({dehnbar(anordnung(Rangliste::Drei)), dehnbar(anordnung(Rangliste::Sechs))})),
            dehnbar(spalte({dehnbar(anordnung(Rangliste::Vier)), dehnbar(anordnung(Rangliste::Loser))})),
            dehnbar(spalte({
                dehnbar(anordnung(Rangliste::Fuenf)),
                dehnbar(spalte({dehnbar(FrameDetail), zeile({luecke(), cmdInfo, cmdEnd})})),
            })),
        })),
    }));
    // clang-format on
    hauptaktionen({Command1});
    stoppknopf(cmdAbbruch);
    verbinde();
}

void frmTreffer::baueFeld(Rangliste rangliste, const char* name)
{
    const auto nummer = static_cast<int>(rangliste);
    Feld& feld = felder_[static_cast<std::size_t>(rangliste)];
    feld.titel = bezeichnung(QString("lblTitel(%1)").arg(nummer), qt(ranglistentitel(rangliste)));
    feld.titel->setWordWrap(true);
    feld.kopf = listenkopf(QString("lblKopf(%1)").arg(nummer), qt(kRanglistenkopf));
    feld.liste = liste(name);
    feld.liste->setzeSichtbar(kSichtbareZeilen, kZeichenJeZeile);
    feld.lblCount = bezeichnung(QString("lblCount(%1)").arg(nummer), "0");
    feld.lblCount->setWordWrap(true);
}

QLayout* frmTreffer::anordnung(Rangliste liste) const
{
    const Feld& feld = feldVon(liste);
    return eng(spalte({feld.titel, feld.kopf, dehnbar(feld.liste), feld.lblCount}));
}

void frmTreffer::verbinde()
{
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        Liste* const liste = felder_[i].liste;
        liste->beiAuswahl = [this, liste, rang = static_cast<Rangliste>(i)] {
            zeigeTreffer(rang, static_cast<int>(liste->modell().ListIndex()));
        };
    }
    bei(Command1, [this] { suche(); });
    bei(cmdAbbruch, [this] { stoppe(); });
    bei(cmdSortAuf, [this] { wendeListen(false); });
    bei(cmdSortAb, [this] { wendeListen(true); });
    bei(cmdInfo, [this] { frameInfo->zeige(); });
    bei(cmdEnd, [this] { schliesse(); });
}

void frmTreffer::suche()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    const Trefferschwellen schwellen = trefferschwellen(Frame1->maske());
    beginne(schwellen);
    clsTimer zeit;
    zeit.ResetTimer();
    const std::vector<Zahlenmenge> reihen = ziehungsmengen(ziehungen_);
    ergebnis_ = sucheTreffer(reihen, schwellen, !auftrag_->auchHoehere,
                             [this, &lauf, ziehungen = reihen.size()](std::uint64_t erledigt) {
                                 zeigeStand(erledigt, ziehungen);
                                 return lauf.weiter();
                             });
    zeigeErgebnis();
    zeit.StopTimer();
    lbl8->setText(qt("Suchzeit: " + uhrtext(static_cast<std::int64_t>(zeit.Elapsed() / 1000))));
    setzeBedienbar(true);
}

void frmTreffer::beginne(const Trefferschwellen& schwellen)
{
    setzeBedienbar(false);
    lbl8->clear();
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        felder_[i].lblCount->setText("0");
        felder_[i].titel->setText(qt(ranglistentitel(static_cast<Rangliste>(i), schwellen)));
        felder_[i].liste->modell().Clear();
    }
    FrameDetail->leere();
    Frame1->zeigeAnzahl();
    ziehungen_ = umgebung().archiv;
    auftrag_ = auftrag();
}

void frmTreffer::zeigeStand(std::uint64_t erledigt, std::uint64_t ziehungen)
{
    Label1->setText(qt(kombinationenText(erledigt)));
    lblVergleich->setText(qt(vergleicheText(erledigt, ziehungen)));
}

void frmTreffer::zeigeErgebnis()
{
    zeigeStand(ergebnis_.AnzahlKombis, ergebnis_.AnzahlZiehungen);
    sortiere(false);
    for (std::size_t i = 0; i < felder_.size(); ++i)
        felder_[i].lblCount->setText(qt(anzahltext(ergebnis_, static_cast<Rangliste>(i))));
    if (!ergebnis_.gestoppt && ergebnis_.liste(Rangliste::Sechs).anzahl() == 0)
        feldVon(Rangliste::Sechs).liste->modell().fuelle({kOhneSechser.begin(), kOhneSechser.end()});
}

/// A report that is being made keeps its order.
void frmTreffer::wendeListen(bool absteigend)
{
    if (!laeuft())
        sortiere(absteigend);
}

/// The best come into sight, in the list of the worst ones these.
void frmTreffer::sortiere(bool absteigend)
{
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const Trefferrang& rang = ergebnis_.listen[i];
        ListenModell& modell = felder_[i].liste->modell();
        if (rang.anzahl() == 0)
            ListBoxSort(modell, absteigend);
        else
            modell.aufAnfrage(rang.anzahl(), [&rang, absteigend](std::size_t zeile) {
                return rang.zeile(absteigend ? rang.anzahl() - 1 - zeile : zeile);
            });
        const bool amEnde = absteigend == (static_cast<Rangliste>(i) == Rangliste::Loser);
        felder_[i].liste->zeigeZeile(amEnde ? felder_[i].liste->zeilenzahl() - 1 : 0);
    }
}

void frmTreffer::zeigeTreffer(Rangliste liste, int zeile)
{
    const std::string text = feldVon(liste).liste->modell().List(static_cast<std::size_t>(zeile));
    if (const auto kombination = liesKombination(text.substr(text.rfind('|') + 1)))
        FrameDetail->zeige(ziehungen_, *kombination);
}

/// The search that would start now.
Trefferauftrag frmTreffer::auftrag() const
{
    Trefferauftrag auftrag;
    for (std::size_t i = 0; i < auftrag.spielarten.size(); ++i) {
        auftrag.spielarten[i] = utf8(Frame1->beschriftung(static_cast<int>(i)));
        auftrag.staende[i] = utf8(Frame1->stand(static_cast<int>(i)));
    }
    auftrag.ziehungen = utf8(Frame1->anzahltext());
    auftrag.auchHoehere = chkHoeher->isChecked();
    return auftrag;
}

Trefferbericht frmTreffer::angaben() const
{
    Trefferbericht angaben;
    angaben.auftrag = auftrag_ ? *auftrag_ : auftrag();
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const ListenModell& modell = felder_[i].liste->modell();
        angaben.listen[i] = {utf8(felder_[i].titel->text()), utf8(felder_[i].lblCount->text()), modell.ListCount(),
                             [&modell](std::size_t zeile) { return modell.List(zeile); }};
    }
    angaben.frage = utf8(chkHoeher->text());
    return angaben;
}

/// Empty if it is too long, stopped, or the screen is at work.
std::string frmTreffer::bericht()
{
    std::size_t zeilen = 0;
    for (const Feld& feld : felder_)
        zeilen += feld.liste->modell().ListCount();
    if (zeilen > kHoechsteBerichtszeilen) {
        umgebung().boxen.info(kProgrammtitel, qt("Die Ergebnislisten sind mit " + Format(zeilen, "#,###,###") +
                                                 " Zeilen zu lang für die Zwischenablage."));
        return {};
    }
    Lauf lauf(*this);
    if (!lauf)
        return {};
    return treffersucheBericht(angaben(), lauf.fortschritt());
}

void frmTreffer::setzeBedienbar(bool bedienbar)
{
    for (QWidget* feld : std::initializer_list<QWidget*>{Frame1, cmdSortAuf, cmdSortAb, cmdClip})
        feld->setEnabled(bedienbar);
}

void frmTreffer::beimSchliessen()
{
    if (umgebung().archiv.Spielart != spielartBeimLaden_)
        ladeSpielart(umgebung(), spielartBeimLaden_);
}
