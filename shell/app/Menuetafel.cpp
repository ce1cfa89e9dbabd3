#include "shell/app/Menuetafel.h"

namespace {

constexpr auto kZeilenSpaltenHinweis =
    "Sucht Ziehungen, bei denen sich alle Gewinnzahlen in ausgewählten Zeilen, Spalten oder gewünschten Bereichen des "
    "7 * 7 Tippscheinfeldes befinden.";

Menuegruppe zahlen()
{
    return {
        "Gewinnzahlen",
        {{"Befehl2", "H&äufigkeitsverteilung", "frmSTAT1", "Berechnet die Häufigkeit der Gewinnzahlen seit 1. Ziehung ",
          Oeffnung::Gewoehnlich, Spielbezug::MitErstemJahr},
         {"Befehl4", "Wann &zuletzt gezogen?", "frmZuletzt",
          "Wann wurden die einzelnen Gewinnzahlen zuletzt gezogen ?"},
         {"Befehl8", "Ausb&leibestatistik", "frmABSTAND",
          "Ausbleibestatistik, wieviele Wochen wurden die Gewinnzahlen nicht gezogen ?"},
         {"Befehl9", "Häufigkeit pro &Jahr u. SW", "frmSJAHR",
          "Berechnet die Häufigkeit der Gewinnzahlen pro Jahr und pro Spielwoche."},
         {"Befehl22", "&Häufigkeit pro SW", "frmSWH", "Häufigkeit der Gewinnzahlen für ausgewählte Spielwochen."},
         {"Befehl5", "Septiden Zehnergruppen", "frmGERADE",
          "Anzahl der Gewinnzahlen in den Septiden und den Zehnergruppen. Anzahl gerader und ungerader "
          "Gewinnzahlen."},
         {"Befehl20", "Sum&me", "frmLquer", "Ermittelt die Summe der Gewinnzahlen pro Ziehung."}}};
}

Menuegruppe filter()
{
    return {"Filter",
            {{"Befehl6", "Zahlen&nachbarn", "frmGROUP", "Sucht nach Zahlennachbarn (z.B. 17,18,19,20) ."},
             {"Command7", "Zeilen/Spalten Filter 1", "frmZeileSpalte", kZeilenSpaltenHinweis},
             {"cmdZeileSpalt2", "Zeilen/Spalten Filter 2", "frmZeileSpalte2", ""},
             {"cmdDec", "Dekaden Filter", "frmDekade",
              "Sucht Ziehungen mit einer gewünschten Anzahl von gezogenen Gewinnzahlen innerhalb einer Dekade.",
              Oeffnung::ErstVerbergen},
             {"cmdEndziffer", "Endziffer Filter", "frmEndziffer",
              "Sucht Ziehungen mit einer bestimmten Endzifferkonstellation."},
             {"cmdFolge", "Wann in Folge gezogen?", "frmInFolge",
              "Wie oft wurden die Gewinnzahlen maximal in Folge gezogen?"}}};
}

Menuegruppe kombinationen()
{
    return {"Kombinationen",
            {{"Befehl7", "&Wiederholungen ", "frmFÜNFW",
              "Sucht Zweier-, Dreier-, Vierer-, Fünfer- und Sechserwiederholungen."},
             {"Befehl21", "Wie&derholungen (b)", "frmHGDV",
              "Sucht Zweier-, Dreier-, Vierer-, Fünfer- und Sechserwiederholungen (brute force)."},
             {"Befehl14", "&Positionszahlen", "frmPOSKOM",
              "Positionszahlenrechner, Positionszahlenfilter. Die gezogenen Kombinationen und ihre Positionszahlen "
              "(Ordnungszahlen in einer lexikographischen Auflistung)."},
             {"cmdFeiruben", "Ziehungen zerlegen", "frmFeiruben",
              "Zerlegt Ziehungen in die enthaltenne Zweier-, Dreier-, Vierer- und Fünferkombinationen. Zählt die "
              "Kombinationen und listet diese auf.",
              Oeffnung::ErstVerbergen},
             {"cmdAScii", "Kombinationen -> Datei", "frmKombiAscii",
              "Generiert alle möglichen Kombinationen 6aus49, 5aus49, 4aus49, 3aus49 und 2aus49 und speichert diese in "
              "ASCII-Textdateien."}}};
}

Menuegruppe tipps()
{
    return {"Tipps",
            {{"Befehl10", "Lotto Zeit&reise", "frmLottoneu",
              "Durchsucht die Historischen-Gewinnzahlen nach bestimmten Zahlenkombinationen."},
             {"Befehl11", "&Vergleich", "frmSSA", "Vergleicht gespeicherte Spielscheine mit allen Ziehungen seit ",
              Oeffnung::Gewoehnlich, Spielbezug::MitErstemJahr},
             {"Befehl18", "Tipps auswerten/&speich.", "frmTA",
              "Tipschein-Auswertung. Vergleicht Tip's mit der letzten (aktuellen) Ziehung. Speichert Tip's.",
              Oeffnung::Gewoehnlich, Spielbezug::OhneMittwochB},
             {"Befehl1", "&Tippreihen erstellen", "",
              "Erstellt Tipvorschläge unter Einbeziehung der Ziehungsstatistiken oder Zufallstips.",
              Oeffnung::Gewoehnlich, Spielbezug::OhneMittwochB},
             {"Command9", "Spielscheine bedrucken", "frmTippen",
              "Für Spielscheinformulare des \"Sachsenlotto\" oder ähnliche Formulare."}}};
}

Menuegruppe systeme()
{
    return {"Systeme",
            {{"Command2", "Teilsysteme/Vollsysteme", "frmSystem",
              "Gewinnauswertung für Systemscheine der staatlichen Teilsysteme (früher VEW) und Vollsysteme."},
             {"Command12", "Garantiesysteme", "frmSystem2",
              "Erstellt 3aus, 4aus4, und 5aus5 Garantiesysteme. Gewinnauswertung für diese Systeme."},
             {"Command13", "&Gewinntabellen", "frmGewinnliste",
              "Erstellt Gewinntabellen (Garantietabellen) für Lottosysteme."}}};
}

Menuegruppe archiv()
{
    return {"Ziehungsarchiv",
            {{"Befehl3", "&Aktualisieren (manuell)", "frmAnzeige",
              "Die Gewinnzahl-Dateien (SALOTTO.DAT und MALOTTO.DAT) manuell aktualisieren.", Oeffnung::Gewoehnlich,
              Spielbezug::OhneMittwochB},
             {"Command5", "Aktualisieren (&online)", "frmOnline",
              "Die Gewinnzahl-Dateien (SALOTTO.DAT und MALOTTO.DAT) online aktualisieren. Eine Verbindung muss aktiv "
              "sein."},
             {"Befehl17", "&Check", "frmlana", "Überprüft Gewinnzahldatei xxLotto.dat."}}};
}

Menuegruppe ausgabe()
{
    return {"Ausgabe",
            {{"Command1", "Html- Kompakt", "frmLHTML",
              "Erzeugt eine Lotto-Kompaktstatistik (Häufigkeit, Rückstand, Nachbarn...) als HTML-Seite.",
              Oeffnung::ErstVerbergen},
             {"Command8", " Html - Häufigkeit", "frmHJAHR",
              "Häufigkeit der gezogenen Gewinnzahlen pro Spieljahr als Html-Datei."},
             {"Command6", "Html Tippformat", "frmTippformat",
              "Die \"Historischen - Gewinnzahlen\" im 7*7 Tippfeldformat als verlinkte HTML-Dateien."},
             {"Command10", "Excel", "frmExcel", "Die \"Historischen - Gewinnzahlen\"  als Exceldatei.",
              Oeffnung::NurDruecken},
             {"Command11", "PDF", "formConvertToPDF", "Die \"Historischen - Gewinnzahlen\"  als PDF-File.",
              Oeffnung::NurDruecken}}};
}

Menuegruppe programm()
{
    return {"Programm",
            {{"Befehl16", "&Info", "frmLOINF", ""},
             {"Befehl15", "Hil&fe", "", ""},
             {"cmdPaypal", "PayPal", "",
              "Dir gefällt das Programm? Du möchtest die Entwicklung mit einer Spende über PayPal unterstützen?"},
             {"Befehl13", "&Beenden", "", "Beendet das Programm."}}};
}

Menuegruppe zahlenZusammen()
{
    return {"Gewinnzahlen",
            {{"cmdHZusammen", "Häufigkeit ", "frmZusammenHaeufigkeit",
              "Häufigkeit der Gewinnzahlen. Die Samstags- und Mittwochsziehungen zusammen ausgewertet."},
             {"cmdZuletztZusammen", "Wann zuletzt gezogen?", "frmZusammenZuletzt",
              "Wann wurden die Gewinnzahlen zuletzt gezogen. Die Samstags- und Mittwochsziehungen zusammen "
              "ausgewertet."},
             {"cmdHSW_zusammen", "Häufigkeit pro Spielwoche", "frmZusammenHSW",
              "Häufigkeit der Gewinnzahlen zu den einzelnen Spielwochen. Die Samstags- und Mittwochsziehungen zusammen "
              "ausgewertet."},
             {"cmdHproJahrall", "Häufigkeit pro Jahr", "frmZusammenHJahr",
              "Häufigkeit der Gewinnzahlen pro Spieljahr. Die Samstags- und Mittwochsziehungen zusammen "
              "ausgewertet."}}};
}

Menuegruppe superzahlZusammen()
{
    return {"Superzahl",
            {{"Command14", "Häufigkeit der Superzahl", "frmZusammenH_SZ",
              "Ermittelt die Häufigkeit der gezogenen Superzahl für Samstags- und Mittwochslotto zusammen. Wann wurden "
              "die Superzahlen zuletzt gezogen?"},
             {"cmdHSZproWocheZusammen", "Häufigkeit SZ  pro SW", "frmZusammenH_SZ_SW",
              "Häufigkeit der Superzahlen an den einzelnen Spielwochen. Die Samstags- und Mittwochsziehungen zusammen "
              "ausgewertet."},
             {"cmdH_SZ_Jahr_all", "Häufigkeit SZ pro Jahr", "frmZusammenH_SZ_Jahr",
              "Häufigkeit der Superzahlen pro Spieljahr. Die Samstags- und Mittwochsziehungen zusammen "
              "ausgewertet."}}};
}

Menuegruppe filterZusammen()
{
    return {
        "Filter",
        {{"cmdGU", "Gerade : Ungerade", "frmZusammenGU",
          "Sucht Ziehungen mit einem bestimmten Verhältnis gerade zu ungeraden Gewinnzahlen.", Oeffnung::ErstVerbergen},
         {"Command4", "Tief : Hoch", "frmZusammenHochTief", "Verhältnis der Gewinnzahlen Tief (1-24) : Hoch (25-49)"},
         {"Command3", "Randzahlen", "frmZusammenRand",
          "Sucht Ziehungen, bei denen sich alle Gewinnzahlen am Rand des Tippscheinfeldes befinden."},
         {"cmdPrim", "Primzahlen pro Ziehung", "frmZusammenPrim",
          "Wieviele Primzahlen enthalten die einzelnen Ziehungen?"},
         {"cmdZusammenZeileSpalte", "Zeilen/Spalten Filter", "frmZusammenZeileSpalte", kZeilenSpaltenHinweis},
         {"cmdGroupZusammen", "Zahlennachbarn", "frmZusammenGROUP",
          "Sucht nach Zahlennachbarn (z.B. 17,18,19,20) für Sa + Mi + Mi(B) zusammen."},
         {"cmdFolgeziehung", "Wied. in Folgeziehung", "frmZusammenWiederholungenInFolgeziehung",
          "Suche nach Wiederholungen von Gewinnzahlen in der Folgeziehung."},
         {"cmd49", "Zahlen in 49-er Linie", "frm49",
          "Die gezogenen Gewinnzahlen der letzten Wochen übersichtlich in einer 49-spaltigen Tabelle dargestellt. "
          "Die Samstags- und Mittwochsziehungen zusammen ausgewertet."}}};
}

Menuegruppe kombinationenZusammen()
{
    return {"Kombinationen",
            {{"cmd456Zusammen", "Wiederholungen", "frmZusammenFÜNFW",
              "Sucht Zweier-, Dreier-, Vierer-, Fünfer- und Sechserwiederholungen für Sa + Mi + Mi(B) zusammen."},
             {"Command15", "Wiederholungen (B)", "frmZusammenHGDV",
              "Sucht Zweier-, Dreier-, Vierer-, Fünfer- und Sechserwiederholungen für Sa + Mi + Mi(B) zusammen (brute "
              "force)."},
             {"cmdAlleKombis", "Alle Kombinationen", "frmAlleKombis",
              "Generiert alle 13.983.816 möglichen Lottokombinationen des Lotto 6 aus 49. Vergleicht jede Kombination "
              "mit jeder bisherigen Ziehung (Sa und Mi). Ermittelt die Treffer und listet sie auf."},
             {"cmdTreffer", "Die meisten Treffer", "frmTreffer",
              "Suche nach Kombinationen, die in der Lottogeschichte die meisten oder wenigsten Treffer erbracht hätten "
              "(zusammen für Sa und Mi)"},
             {"cmdBank", "Wie oft zusammen?", "frmZusammenBank",
              "Wie oft wurden bestimmte Gewinnzahlen (z.B. Bankzahlen) zusammen mit anderen  gezogen?"}}};
}

Menuegruppe tippsZusammen()
{
    return {"Tipps und Systeme",
            {{"cmdZeitreiseZusammen", "Lotto Zeitreise", "frmZusammenLottoneu",
              "Durchsucht die Historischen-Gewinnzahlen nach bestimmten Zahlenkombinationen (für das Samstags- und "
              "Mittwochslotto zusammen)."},
             {"cmdSAuswertung", "Gewinnermittlung für  Systeme", "frmSystemAuswertung",
              "Vergleicht die Tippreihen eines Lottosystems mit den gezogenen Lottozahlen (Gewinnermittlung). Das "
              "System muss als ASCII-Textdatei vorliegen."}}};
}

Menuegruppe programmZusammen()
{
    return {"Programm", {{"cmdInfo2", "I", "", ""}, {"cmdU", "exit ", "", ""}}};
}

} // namespace

const std::vector<std::vector<Menuegruppe>>& menuewand()
{
    static const std::vector<std::vector<Menuegruppe>> wand{
        {zahlen(), archiv()}, {filter(), systeme()}, {kombinationen(), ausgabe()}, {tipps(), programm()}};
    return wand;
}

const std::vector<std::vector<Menuegruppe>>& menuerollo()
{
    static const std::vector<std::vector<Menuegruppe>> rollo{
        {zahlenZusammen(), superzahlZusammen()},
        {filterZusammen()},
        {kombinationenZusammen(), tippsZusammen(), programmZusammen()}};
    return rollo;
}

const std::vector<Popupeintrag>& menueOption()
{
    static const std::vector<Popupeintrag> eintraege{
        {"mnuStatistik", "Tippreihen mit Statistikauswertung", "frmVorschlag"},
        {"mnuSeparate", "-", ""},
        {"mnuDruck", "Tipps auf Formulare drucken (nur für Sachsenlotto)", "frmTippen"},
        {"mnuSchein", "Zufallstipps als Tippschein", "GLOTTO"},
        {"mnuAnimat", "Zufallstipps als Animation", "frmKugel1"},
        {"mnuComputer", "\"Computerlotto\"", "GLottoneu"}};
    return eintraege;
}
