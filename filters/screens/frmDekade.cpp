#include "filters/screens/frmDekade.h"

#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Textanzeige.h"
#include "shell/elements/Utf8.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <memory>

namespace {

constexpr int kHoechsteAnzahl = 6;
constexpr int kVoreinstellung = 3;
constexpr int kDekadenzeilen = 7;
constexpr int kDekadenzeichen = 27;
constexpr int kAlleZeilen = 14;
constexpr int kAlleZeichen = 59;
constexpr int kMusterzeilen = 8;
constexpr int kUebersichtszeilen = 30;
constexpr int kUebersichtszeichen = 54;
constexpr int kBerichtzeilen = 6;
constexpr int kBerichtzeichen = 54;

constexpr auto kAnzahl = "Anzahl: ";
constexpr auto kClickHinweis = "Ein Click auf einen Listeneintrag selektiert die Ziehung in der Gesamtliste.";

} // namespace

frmDekade::frmDekade(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmDekade",
                 "Ziehungen mit einer gewünschten Anzahl von gezogenen Gewinnzahlen innerhalb einer Dekade"),
      ziehungen_(alleZiehungen(umgebung.archiv, datumVon))
{
    baueDekaden();
    baueZiehungen();
    baueUebersicht();
    cmdExit = befehl("cmdExit", "&<<");
    QLabel* lblHinweis = bezeichnung("lblHinweis", kClickHinweis);
    lblHinweis->setWordWrap(true);
    lblHinweis->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // the lists set the width of the screen
    lblMuster->setWordWrap(true);
    hauptaktionen({Command1});

    // clang-format off
    setzeInhalt(zeile({
        dehnbar(spalte({
            dehnbar(zeile({
                dehnbar(spalte({
                    rahmen("Rahmen1", "Gesuchte Anzahl in einer Dekade", zeile({Combo1, Command1, luecke()})),
                    lblHinweis,
                    luecke(),
                })),
                dehnbar(dekadenspalte(0)),
            })),
            dehnbar(zeile({dehnbar(dekadenspalte(1)), dehnbar(dekadenspalte(2))})),
            dehnbar(zeile({dehnbar(dekadenspalte(3)), dehnbar(dekadenspalte(4))})),
            Text1,
        })),
        dehnbar(spalte({
            lblAll, dehnbar(lstAll, 2),
            rahmen("Rahmen2", "Gewinnzahlen in diesen Dekaden", zeile(Bloecke(Check1.begin(), Check1.end()))),
            lblMuster, dehnbar(lstMuster),
            zeile({luecke(), cmdInfo, cmdExit}),
        })),
    }));
    // clang-format on

    bei(Command1, [this] { sucheAnzahl(); });
    for (QCheckBox* dekade : Check1)
        bei(dekade, [this] { sucheMuster(); });
    bei(cmdInfo, [this] { zeigeUebersicht(); });
    bei(cmdExit, [this] { schliesse(); });
}

void frmDekade::baueDekaden()
{
    Combo1 = kombi("Combo1");
    for (int anzahl = 0; anzahl <= kHoechsteAnzahl; ++anzahl)
        Combo1->addItem(QString::number(anzahl));
    Combo1->setCurrentIndex(kVoreinstellung);
    Command1 = befehl("Command1", "Start");
    for (std::size_t i = 0; i < kDekaden; ++i) {
        const QString name = qt(dekadenname(i));
        Liste* liste = this->liste(QString("List%1").arg(i));
        liste->setzeSichtbar(kDekadenzeilen, kDekadenzeichen);
        setzeHinweis(liste, kClickHinweis);
        dekaden_[i] = {bezeichnung(QString("lblDekade(%1)").arg(i), "Gewinnzahlen im Bereich " + name),
                       bezeichnung(QString("lblc(%1)").arg(i), kAnzahl), liste};
        Check1[i] = kontroll(QString("Check1(%1)").arg(i), name);
    }
    Text1 = new Textanzeige("Text1", kBerichtzeilen, kBerichtzeichen, this);
}

void frmDekade::baueZiehungen()
{
    lblAll = listenkopf("lblAll", qt(kDekadenkopf));
    lstAll = liste("lstAll");
    lstAll->setzeSichtbar(kAlleZeilen, kAlleZeichen);
    lstAll->modell().aufAnfrage(ziehungen_.size(), [this](std::size_t i) { return dekadenzeile(ziehungen_[i]); });
    lblMuster = bezeichnung("lblMuster", "Anzahl der Ziehungen: ");
    lstMuster = liste("lstMuster");
    lstMuster->setzeSichtbar(kMusterzeilen, kAlleZeichen);
}

void frmDekade::baueUebersicht()
{
    auto* tafel = new QWidget(this);
    lstInfo = liste("lstInfo");
    lstInfo->setzeSichtbar(kUebersichtszeilen, kUebersichtszeichen);
    tafel->setLayout(spalte({listenkopf("lblInfo", qt(kUebersichtskopf)), dehnbar(lstInfo)}));
    frmInfo = new Infotafel(this, tafel, {.rahmen = "frmInfo", .ok = "cmdWeg", .okText = "<<"});
    cmdInfo = befehl("cmdInfo", "Ü", hinweis("Übersicht aller Konstellationen"));
}

QLayout* frmDekade::dekadenspalte(std::size_t dekade)
{
    const Dekadenliste& teile = dekaden_[dekade];
    return eng(spalte({teile.kopf, dehnbar(teile.liste), teile.lblc}));
}

void frmDekade::sucheAnzahl()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    Dekadensuche suche = sucheDekaden(ziehungen_, Combo1->currentIndex());
    Text1->zeige(bericht(suche));
    for (std::size_t i = 0; i < kDekaden; ++i) {
        dekaden_[i].lblc->setText(kAnzahl + QString::number(suche.stellen[i].size()));
        fuelle(dekaden_[i].liste, std::move(suche.stellen[i]), ziehungszeile);
    }
}

void frmDekade::sucheMuster()
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    Dekadencode gesucht = 0;
    for (std::size_t i = 0; i < kDekaden; ++i)
        if (Check1[i]->isChecked())
            gesucht += gewicht(i);
    Konstellationssuche suche = sucheKonstellation(ziehungen_, gesucht);
    lblMuster->setText(qt(ergebnistext(suche)));
    fuelle(lstMuster, std::move(suche.stellen), dekadenzeile);
}

void frmDekade::zeigeUebersicht()
{
    lstInfo->modell().fuelle(uebersicht(zaehleKonstellationen(ziehungen_)));
    frmInfo->zeige();
}

void frmDekade::fuelle(Liste* liste, std::vector<std::size_t> stellen, std::string (*zeile)(const Ziehungsfund&))
{
    const auto ort = std::make_shared<const std::vector<std::size_t>>(std::move(stellen));
    liste->modell().aufAnfrage(ort->size(), [this, ort, zeile](std::size_t i) { return zeile(ziehungen_[(*ort)[i]]); });
    liste->beiAuswahl = [this, ort, liste] {
        const auto gewaehlt = liste->modell().ListIndex();
        if (gewaehlt < 0)
            return;
        const std::size_t stelle = (*ort)[static_cast<std::size_t>(gewaehlt)];
        lstAll->modell().SetListIndex(static_cast<std::ptrdiff_t>(stelle));
        lstAll->zeigeZeile(static_cast<int>(stelle));
    };
}
