#include "archive/screens/frmlana.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/screens/Editor.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lesedatei.h"

#include <QLabel>
#include <QPushButton>

#include <cerrno>
#include <utility>

namespace {

constexpr std::size_t kGroessteDatei = std::size_t{16} << 20;
constexpr auto kKorrekte = "Korrekte Ziehungen:";
constexpr auto kFalsche = "Falsche Ziehungen:";

const std::vector<std::string> kFormat{
    "Das Programm prüft alle Datensätze der Gewinnzahldatei ",
    "auf richtiges Datensatzformat.",
    "Format:             jjjj,sw,z1,z2,z3,z4,z5,z6,zz,s",
    "Beispiel:           1998,13,02,08,10,12,22,35,46,3",
    "jjjj  -> Spieljahr",
    "sw    -> Spielwoche",
    "z1-z6 -> Gewinnzahlen 1-6",
    "zz    -> Zusatzzahl",
    "s     -> Superzahl (einstellig)",
    "Zwischen den Zahlen steht ein \"Komma\" als Trennungszeichen.",
    "Vor einstelligen Gewinnzahlen steht eine Vornull (ausser bei der ",
    "Superzahl). Gefundene Fehler können mit einem Editor oder einer",
    "Textverarbeitung (Write/Wordpad) korrigiert werden.",
};

QString grund(int fehler)
{
    if (fehler == EISDIR)
        return "An ihrer Stelle liegt ein Ordner.";
    if (fehler == EACCES || fehler == EPERM)
        return "Sie besitzen nicht die erforderlichen Rechte um sie zu lesen.";
    return "Sie ist keine gewöhnliche Datei, oder der Datenträger ist gestört.";
}

QString nichtGeprueft(const QString& datei, int fehler)
{
    return QString("Die Ziehungsdatei %1 kann nicht gelesen werden und wurde nicht geprüft.\n%2")
        .arg(datei, grund(fehler));
}

QString nurAnfangGeprueft(const QString& datei)
{
    return QString("Die Ziehungsdatei %1 ist länger als %2 Zeichen. Was dahinter steht, wurde nicht geprüft.")
        .arg(datei, qt(Format(kGroessteDatei, "#,###,###")));
}

} // namespace

frmlana::frmlana(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmlana", "Analyse der Gewinnzahldatei " + qt(ziehungsdateiName(umgebung.archiv.Spielart))),
      spielart_(umgebung.archiv.Spielart),
      Ziehungsdatei(qt(ziehungsdateiName(umgebung.archiv.Spielart)))
{
    auto* Bezeichnung1 =
        bezeichnung("Bezeichnung1", "Überprüfung der Datensatzstruktur von Gewinnzahldatei " + Ziehungsdatei);
    auto* Bezeichnung2 =
        listenkopf("Bezeichnung2",
                   "Fehlernummer                                                                   falscher Datensatz");
    auto* Bezeichnung3 = listenkopf("Bezeichnung3", " JJSW des vorherigen, korrekten Datensatzess");
    Bezeichnung4 = bezeichnung("Bezeichnung4", kKorrekte);
    Bezeichnung5 = bezeichnung("Bezeichnung5", kFalsche);
    auto* Label1 = bezeichnung("Label1", "Überprüft Ziehung: ");
    Bezeichnung6 = bezeichnung("Bezeichnung6");
    Liste1 = liste("Liste1");
    Liste2 = liste("Liste2");
    auto* Liste3 = liste("Liste3");
    Rahmen1 = new Infotafel(this, Liste3, {.rahmen = "Rahmen1", .ok = "Befehl7", .titel = "Info"});
    auto* Befehl1 = befehl("Befehl1", "&Zurück");
    auto* Befehl2 = befehl("Befehl2", "Struktur &prüfen");
    auto* Befehl3 = befehl("Befehl3", "&Write");
    auto* Befehl4 = befehl("Befehl4", "&Dos-Editor");
    auto* Befehl5 = befehl("Befehl5", "Word&pad");
    Befehl5->setShortcut({}); // Alt+P checks
    auto* Befehl6 = befehl("Befehl6", "&Info");
    Liste1->setzeSichtbar(12, 92);
    Liste2->modell().fuelle({kStrukturfehler.begin(), kStrukturfehler.end()});
    Liste2->setzeSichtbar(8, 84);
    Liste3->modell().fuelle(kFormat);
    Liste3->setzeSichtbar(static_cast<int>(kFormat.size()), 66);
    Liste2->hide();
    behaltePlatz(Liste2);
    alsUeberschrift(Bezeichnung1);

    // clang-format off
    setzeInhalt(spalte({
        Bezeichnung1,
        zeile({Befehl2, Label1, Bezeichnung6, luecke(), Bezeichnung3}),
        Bezeichnung2,
        dehnbar(Liste1, 2),
        zeile({Bezeichnung4, luecke(), Bezeichnung5}),
        dehnbar(Liste2),
        zeile({Befehl3, Befehl4, Befehl5, Befehl6, luecke(), Befehl1}),
    }));
    // clang-format on

    hauptaktionen({Befehl2});

    bei(Befehl1, [this] { schliesse(); });
    bei(Befehl2, [this] { pruefe(); });
    bei(Befehl3, [this] {
        oeffneEditor("MS-Write wurde nicht gefunden. Verwenden Sie einen  vorhandenen ASCII-Text-Editor um die Datei");
    });
    bei(Befehl4, [this] {
        oeffneEditor("DOS Editor EDIT.COM  wurde nicht gefunden. Verwenden Sie einen  vorhandenen ASCII-Editor um die "
                     "Datei ");
    });
    bei(Befehl5, [this] {
        oeffneEditor("WordPad wurde nicht gefunden. Verwenden Sie einen  vorhandenen ASCII-Text-Editor um die Datei ");
    });
    bei(Befehl6, [this] { Rahmen1->zeige(); });
    Liste1->beiAuswahl = [this] { zeigeFehler(); };
}

void frmlana::leereErgebnis()
{
    ergebnis_ = {};
    Liste1->modell().Clear();
    Liste2->hide();
    Bezeichnung4->setText(kKorrekte);
    Bezeichnung5->setText(kFalsche);
    Bezeichnung6->clear();
}

void frmlana::pruefe()
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    leereErgebnis();
    Dateiinhalt inhalt = leseDatei(utf8(ziehungsdatei(umgebung(), spielart_)), kGroessteDatei);
    if (inhalt.stand == Dateistand::Fehlt) {
        umgebung().boxen.info(kProgrammtitel,
                              "ERROR 53: Die Ziehungsdatei xxLOTTO.DAT wurde nicht gefunden. Die Datei xxLOTTO.DAT muß "
                              "sich im gleichen Verzeichnis wie das Programm TOMBRIX.EXE befinden.");
        return;
    }
    if (inhalt.stand == Dateistand::Unlesbar) {
        umgebung().boxen.info(kProgrammtitel, nichtGeprueft(Ziehungsdatei, inhalt.fehler));
        return;
    }
    ergebnis_ = pruefeStruktur(std::move(inhalt), [&](const Strukturbericht& stand) {
        Bezeichnung6->setText(qt(stand.letzterSatz));
        return lauf.weiter();
    });
    zeigeErgebnis();
    if (!ergebnis_.ganzeDatei)
        umgebung().boxen.info(kProgrammtitel, nurAnfangGeprueft(Ziehungsdatei));
}

void frmlana::zeigeErgebnis()
{
    const std::size_t falsche = ergebnis_.FalscheZiehungen;
    Bezeichnung6->setText(qt(ergebnis_.letzterSatz));
    Bezeichnung4->setText(kKorrekte + QString(" ") + QString::number(ergebnis_.KorrekteZiehungen));
    Bezeichnung5->setText(kFalsche + QString(" ") + QString::number(falsche) +
                          (falsche > 0 ? " >> Zur Fehlerbeschreibung -> klicke auf Fehlerlzeile <<" : ""));
    if (falsche > 0)
        Liste1->modell().aufAnfrage(falsche, [this](std::size_t nr) { return ergebnis_.fehlerzeile(nr); });
    else if (ergebnis_.allesRichtig())
        Liste1->modell().fuelle({std::string(kStrukturRichtig)});
}

void frmlana::zeigeFehler()
{
    const std::ptrdiff_t zeile = Liste1->modell().ListIndex();
    const int nummer = fehlernummer(Liste1->modell().List(static_cast<std::size_t>(zeile)));
    Liste2->show();
    Liste2->modell().SetListIndex(nummer > 0 ? nummer : ListenModell::kKeiner);
    if (nummer > 0)
        Liste2->zeigeZeile(nummer);
}

void frmlana::oeffneEditor(const QString& meldung)
{
    oeffneImEditor(umgebung(), ziehungsdatei(umgebung(), spielart_), meldung + Ziehungsdatei + " zu aktualisieren.");
}
