#include "filters/screens/Anzahleingabe.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Meldung.h"
#include "shell/logic/Zahlen.h"

std::optional<std::int32_t> anzahlAus(const Bildschirm& bildschirm, const QString& eingabe)
{
    const auto anzahl = ganzzahl(utf8(eingabe));
    if (anzahl && *anzahl >= 1 && *anzahl <= kMaxZiehungenJeDatei)
        return anzahl;
    bildschirm.umgebung().boxen.info(
        qt(kLottoNachricht), QString("Bitte eine ganze Zahl von 1 bis %1 eingeben !").arg(kMaxZiehungenJeDatei));
    return {};
}
