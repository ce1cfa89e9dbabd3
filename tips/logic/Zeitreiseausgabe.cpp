#include "tips/logic/Zeitreiseausgabe.h"

#include "shell/logic/Texte.h"
#include "tips/logic/Zeitreisetafel.h"

std::string csvDateiname(const Zeitreise& zeitreise)
{
    std::string name = "kombinationen";
    for (const std::int32_t zahl : zeitreise.zahlen)
        name += "-" + std::to_string(zahl);
    return name + ".csv";
}

std::string writeCsv(const Zeitreise& zeitreise)
{
    std::string text;
    for (const Zeitreisezeile& zeile : zeitreise.zeilen) {
        for (const Zeitreisespalte& spalte : zeitreisespalten(zeitreise.form))
            if (spalte.feld != Zeitreisespalte::Feld::Gewinn)
                text.append(trim(zeitreisezelle(zeitreise, zeile, spalte))).append(",");
        text += kZeilenende;
    }
    for (std::size_t i = leereZeilen(zeitreise); i > 0; --i)
        text += kZeilenende;
    return text;
}
