#include "filters/screens/frmInFolge.h"

#include "archive/logic/Spielarttexte.h"
#include "filters/logic/Serienzeilen.h"
#include "filters/screens/Anzahleingabe.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kSichtbareZeilen = 24;
constexpr int kSichtbareZeichen = 86;
constexpr Serienfrage kDreiZahlen{.zahlen = 3, .mindestens = 3};

QString ergebniszeile(const Seriensuche& suche)
{
    return QString("Gefunden: %1 (%2mindestens %3 mal in Folge gezogen)")
        .arg(suche.serien.size())
        .arg(suche.frage.zahlen == 1 ? "" : "drei Zahlen zusammen, ")
        .arg(suche.frage.mindestens);
}

} // namespace

frmInFolge::frmInFolge(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmInFolge", "Wann und wie oft wurden die Gewinnzahlen maximal in Folge gezogen?")
{
    lblSart = bezeichnung("lblSart");
    lblZZ = bezeichnung("lblZZ");
    lblErgebnis = bezeichnung("lblErgebnis");
    txtWieviel = textfeld("txtWieviel", "5");
    txtWieviel->setFixedWidth(txtWieviel->fontMetrics().horizontalAdvance("0000000"));
    C2 = befehl("C2", "&ohne die ZZ", hinweis("Sucht jede Zahl, die so oft hintereinander eine Gewinnzahl war."));
    C3 = befehl("C3", "&mit ZZ",
                hinweis("Sucht jede Zahl, die so oft hintereinander eine Gewinnzahl oder die Zusatzzahl war."));
    cmdDreiZahlen =
        befehl("cmdDreiZahlen", "&Drei  Zahlen >= 3 mal in Folge",
               hinweis("Sucht drei Zahlen, die zusammen in drei oder mehr Ziehungen hintereinander kamen."));
    List1 = liste("List1");
    List1->setzeSichtbar(kSichtbareZeilen, kSichtbareZeichen);
    cmdEnd = befehl("cmdEnd", "<<");
    alsUeberschrift(lblSart);
    hauptaktionen({C2, C3, cmdDreiZahlen});

    // clang-format off
    setzeInhalt(spalte({
        zeile({lblSart, lblZZ, luecke(), lblErgebnis}),
        zeile({
            rahmen("Rahmen1", "Eine Zahl", zeile({
                bezeichnung("lblMindestens", "Mindestens"), txtWieviel,
                bezeichnung("lblInFolge", "mal in Folge gezogen"), C2, C3,
            })),
            rahmen("Rahmen2", "Drei Zahlen zusammen", zeile({cmdDreiZahlen})),
            luecke(),
        }),
        dehnbar(eng(spalte({
            listenkopf("lblKopf", " Jahr  SW  Z1 Z2 Z3 Z4 Z5 Z6  ZZ   SZ         Datum       Zieh.Nr."),
            dehnbar(List1),
        }))),
        zeile({luecke(), cmdEnd}),
    }));
    // clang-format on

    bei(C2, [this] { sucheEinzelne(false); });
    bei(C3, [this] { sucheEinzelne(true); });
    bei(cmdDreiZahlen, [this] { zeige(kDreiZahlen, cmdDreiZahlen); });
    bei(cmdEnd, [this] { schliesse(); });
}

void frmInFolge::beimZeigen()
{
    lblSart->setText(qt(spielartGross(umgebung().archiv.Spielart)));
}

void frmInFolge::sucheEinzelne(bool mitZusatzzahl)
{
    if (const auto mindestens = anzahlAus(*this, txtWieviel->text()))
        zeige({.mindestens = *mindestens, .mitZusatzzahl = mitZusatzzahl}, mitZusatzzahl ? C3 : C2);
}

void frmInFolge::zeige(const Serienfrage& frage, const QPushButton* knopf)
{
    const Lauf lauf(*this);
    if (!lauf)
        return;
    const ZiehungsArchiv& archiv = umgebung().archiv;
    const auto zeilen =
        std::make_shared<const Serienzeilen>(sucheSerien(einzelneFolge(archiv), frage), kSerienEinesSpiels);
    List1->modell().aufAnfrage(zeilen->anzahl(), [zeilen](std::size_t nr) { return zeilen->zeile(nr); });
    lblSart->setText(qt(spielartGross(archiv.Spielart)));
    lblZZ->setText(frage.mitZusatzzahl ? " - mit  Zusatzzahl -" : " - ohne  Zusatzzahl -");
    lblErgebnis->setText(ergebniszeile(zeilen->suche()));
    zeigeGelaufen(knopf);
}
