#pragma once

/// The longer texts of frmAnzeige.
namespace AnzeigeTexte {

inline constexpr auto kHilfe =
    "Die Befehlschaltfläche \"Neu Laden\" muß nur betätigt werden, wenn eine Ziehungsdatei (Sa- oder Malotto.dat) mit "
    "Notepad oder einen anderen externen Editor verändert wurde, wenn also mit einem Editor Ziehungen hinzugefügt oder "
    "korrigiert wurden. \n\n"
    " *** Wichtig *** \n"
    "Beim Speichern der letzten Ziehung am Jahresende auf richtige Spielwoche achten! \n"
    "Es gibt Spieljahre mit 52 oder 53 Spielwochen.";

inline constexpr auto kAblauf =
    "Ablauf der Aktualisierung: \n"
    "Step 1: Die Spielart Samstag oder Mittwoch auswählen.\n"
    "Step 2: Die 6 Gewinnzahlen einer neuen Ziehung im Tippfeld auswählen.\n"
    "Step 3: Die Superzahl der neuen Ziehung auswählen (Komboliste unterhalb des Tippfeldes).\n"
    "Step 4: Das angezeigte Spieljahr und die Spielwoche überprüfen und eventuell korrigieren.\n"
    "Step 5: Die neue Ziehung mit dem Button Gewinnzahlen speichern in der Ziehungsdatei speichern.\n"
    "Falsch erfasste Ziehungen können mit einem Editor (z.B. Notepad) korrigiert werden.\n"
    "Die Superzahl wurde im Samstagslotto erst am 07.12.1991 eingeführt. Im Mittwochslotto erfolgte die Einführung am "
    "06.12.1995. \n"
    "Seit dem 04.05.2013 hat die Superzahl für alle Gewinnklassen eine Bedeutung. Vorher gab es nur den Sechser mit "
    "Superzahl. \n"
    "Die früher noch ermittelte Zusatzzahl wurde ab der 37. Auspielung '6 aus 49' eingeführt (25. Spielwoche 1956).\n"
    "Seit dem 04.05.2013 wird die Zusatzzahl nicht mehr ausgespielt. Für statistische Berechnungen, z.B. für die "
    "Ermittlung der Ziehungshäufigkeit \n"
    "der Gewinnzahlen in der Vergangenheit, bleibt die Zusatzzahl im Programm weiter gespeichert. Sie kann optional in "
    "die verschiedenen Berechnungen einbezogen werden. \n"
    "Die 1. Ziehung überhaupt fand am 9. Oktober 1955 (an einem Sonntag) statt. Die 1. gezogene Gewinnzahl war die "
    "13. \n"
    "Bis zum 29.01.1974 fanden die Ziehungen haupsächlich an Sonntagen statt. \n"
    "In der Zeit vom 26.12.1955 bis zum 07.06.1965 gab es aber auch 19 mal Ziehungen an Montagen. \n"
    "Das waren Ostermontage, Pfingstmontage oder der 2. Weihnachtsfeiertag. \n"
    "Die erste öffentliche Ziehung des Samstagslotto fand am 4. September 1965 im Studio 3 \n"
    "des Hessischen Rundfunks statt.\n"
    "Die erste Ziehung im Mittwochslotto 6 aus 49 (vorher  Spielart 7 aus 38) fand \n"
    "am 04.06.1986 statt.";

inline constexpr auto kSchreibfehler =
    "Fehler beim Schreiben! Mögliche Ursachen:\n"
    "1. Die Ziehungsdateien befinden sich auf einen schreibgeschützten Datenträger.\n"
    "2. Sie besitzen nicht die erforderlichen Rechte um in diesen Ordner zu schreiben.";

inline constexpr auto kBesetzt =
    "Die Ziehungsdatei %1 wird gerade von einem anderen Programm geändert. Es wurde nichts gespeichert.\n"
    "Bitte versuchen Sie es noch einmal.";

inline constexpr auto kUnlesbar =
    "Die Ziehungsdatei %1 kann nicht ganz gelesen werden (lesbare Ziehungen: %2). Es wurde nichts gespeichert.\n"
    "Korrigieren Sie die Datei mit einem Editor. Die Strukturprüfung nennt die fehlerhaften Datensätze.";

inline constexpr auto kNichtBestaetigt =
    "Die Ziehungsdatei %1 enthält nach dem Speichern nicht, was gespeichert wurde. Bitte prüfen Sie die Datei und den "
    "Datenträger.";

} // namespace AnzeigeTexte
