#include "archive/logic/Onlinetexte.h"

#include "shell/logic/Format.h"

Meldung erfolgsmeldung(const ZiehungsArchiv& archiv)
{
    const bool samstag = istSamstag(archiv.Spielart);
    const auto nr = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    std::string zahlen;
    for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
        zahlen += (zahlen.empty() ? "" : ", ") + Format(zahl, "@@");
    std::string text = samstag ? "Letzte eingetragene Samstags-Ziehung: " : "Letzte eingetragene Mittwochs-Ziehung: ";
    text += "\n" + archiv.Datum[nr] + "\n" + jahrUndWoche(archiv, nr) + (samstag ? " -> " : " ->  ") + zahlen +
            (samstag ? "  SZ: " : "   SZ: ") + Format(archiv.s[nr], "@@");
    return {"Lotto-Aktualisieren-Nachricht", text};
}

Meldung abweisung()
{
    return {"", "Fehler: Die vom Server geladene Datei ist fehlerhaft oder ist älter als die Ziehungsdatei auf ihrem "
                "Rechner! Ihre Ziehungsdatei wird wieder hergestellt."};
}

std::string statusZuLange()
{
    return "Status: Nach 10 Minuten abgebrochen. Die bisherige Datei bleibt unverändert.";
}

std::string statusBesetzt()
{
    return "Status: Ein anderes Programm schreibt gerade. Die bisherige Datei bleibt unverändert.";
}

Meldung downloadHilfe()
{
    return {"Download-Info",
            "Das Programm baut selbst keine Verbindung zum Internet auf. Es muss eine Verbindung ins Internet aktiv "
            "sein. Ist keine Verbindung aktiv, erscheint in der Statuszeile die Meldung \"Server nicht gefunden\".\n\n"
            "Die Ziehungsdateien stehen ca. 10 min nach jeder Ziehung aktualisiert zum Download bereit.\n\n"
            "Vor dem Download wird eine Kopie der jeweiligen Ziehungsdatei erstellt. Dies dient der Sicherheit für den "
            "Fall, dass keine Verbindung zum Server hergestellt werden kann oder Übertragungsprobleme auftreten.  Wenn "
            "die Aktualisierung erfolgreich war, werden die Kopien wieder gelöscht.\n\n"
            "Bei Verlust oder Defekt der Ziehungsdateien (Salotto.dat, Malotto.dat, Mblotto.dat) können diese zusammen "
            "als Zip-File neu geladen werden. Sie müssen dann noch mit einem Zip-Programm entpackt werden."};
}
