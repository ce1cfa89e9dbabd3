#pragma once

#include "shell/elements/Umgebung.h"
#include "shell/logic/Dateien.h"

enum class DateiModus {
    Oeffnen = 0,           ///< the file must exist
    SpeichernMitFrage = 1, ///< asks before an existing file is overwritten
    SpeichernOhneFrage = 2,
};

/// Asks for a file. `filter` is "Text|Muster|Text|Muster". `pfad` is the start directory and, after a confirmed dialog,
/// the directory of the chosen file with its trailing separator; the result is the file name part. After a cancel the
/// result is empty and `pfad` keeps its value.
QString DateiDialog(Umgebung& umgebung, const QString& dateiname, QString& pfad, const QString& filter,
                    const QString& titel, const QString& standardendung, DateiModus modus);

inline QString DateiOeffnen(Umgebung& umgebung, const QString& dateiname, QString& pfad, const QString& filter,
                            const QString& titel, const QString& standardendung)
{
    return DateiDialog(umgebung, dateiname, pfad, filter, titel, standardendung, DateiModus::Oeffnen);
}

inline QString DateiSpeichern(Umgebung& umgebung, const QString& dateiname, QString& pfad, const QString& filter,
                              const QString& titel, const QString& standardendung)
{
    return DateiDialog(umgebung, dateiname, pfad, filter, titel, standardendung, DateiModus::SpeichernMitFrage);
}

inline QString DateiSpeichernOhneFrage(Umgebung& umgebung, const QString& dateiname, QString& pfad,
                                       const QString& filter, const QString& titel, const QString& standardendung)
{
    return DateiDialog(umgebung, dateiname, pfad, filter, titel, standardendung, DateiModus::SpeichernOhneFrage);
}

/// The name to propose for what a screen of this title saves: the title up to its first pause, without the characters
/// that some system forbids.
QString dateinameAus(const QString& titel, const QString& endung);

/// The box after a file could not be written.
void meldeNichtGeschrieben(Umgebung& umgebung, const QString& name, const DateiErgebnis& ergebnis);
