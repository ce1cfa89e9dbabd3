#pragma once

#include "tips/logic/Zeitreise.h"

#include <string>
#include <string_view>

/// "3 7 12": the numbers with one blank between.
std::string zahlenMitBlank(const Zeitreise& zeitreise);

/// The heading of the list before an evaluation.
constexpr std::string_view listentitelVorher(bool kombination)
{
    return kombination ? "Die Ziehungen mit der gesuchter Kombination" : "Die Ziehungen mit Gewinnen";
}
/// The heading of the list above a result: "Ziehungen mit Gewinnen: 37". A list of all draws without a tip names their
/// count only.
std::string listentitel(const Zeitreise& zeitreise);

/// The title of the window in either mode. `seit1955` and the result of several games fill it.
std::string zeitreisetitel(Zeitreiseform form, bool kombination, bool seit1955);
/// The title above a result of several games: from which draw to which.
std::string zeitreisetitel(const Zeitreise& zeitreise);

/// The heading of the counts of the single numbers.
std::string haeufigkeitstitel(Zeitreiseform form, bool seit1955);

/// "3693 Ziehungen, von: 1955/41 bis: 2026/29"
std::string ziehungszeile(const ZiehungsArchiv& archiv);
/// "Ausgewertete Ziehungen: 6545"
std::string ziehungszeile(const Zeitreise& zeitreise);

/// "SAMSTAGSLOTTO"; several games are joined by " + ".
std::string spielartenGross(const std::vector<std::int16_t>& spielarten);
