#include "archive/logic/Downloadanzeige.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int64_t kJeEinheit = 60;
constexpr std::int64_t kMsJeSekunde = 1000;

/// Takes the share of one unit off `rest`, which then counts the next larger unit.
void teileAb(std::int64_t& rest, std::int64_t jeGroesserer, std::int64_t* ziel)
{
    const std::int64_t anteil = rest % jeGroesserer;
    rest /= jeGroesserer;
    if (ziel)
        *ziel = anteil;
    else if (anteil >= jeGroesserer / 2)
        ++rest;
}

std::string dauer(std::int64_t ms)
{
    std::int64_t stunden = 0;
    std::int64_t minuten = 0;
    std::int64_t sekunden = 0;
    std::int64_t rest = 0;
    SplitMilliseconds(ms, {&stunden, &minuten, &sekunden, &rest});
    return FormatDuration(stunden, minuten, sekunden, rest);
}

double anteil(const Downloadfiguren& figuren)
{
    return static_cast<double>(figuren.receivedBytes) / static_cast<double>(figuren.size);
}

} // namespace

void SplitMilliseconds(std::int64_t ms, const Dauerteile& teile)
{
    std::int64_t rest = ms < 0 ? -ms : ms;
    teileAb(rest, kMsJeSekunde, teile.millisekunden);
    teileAb(rest, kJeEinheit, teile.sekunden);
    teileAb(rest, kJeEinheit, teile.minuten);
    if (teile.stunden)
        *teile.stunden = rest;
}

std::string FormatDuration(std::int64_t h, std::int64_t m, std::int64_t s, std::int64_t ms)
{
    std::string text;
    if (h != 0)
        text = std::to_string(h) + " h";
    if (m != 0)
        text = std::to_string(m) + " m";
    else if (h != 0)
        text += " 0 m";
    text += (text.empty() ? "" : " ") + std::to_string(s) + " s";
    if (text == "0 s")
        return Format(static_cast<double>(ms) / static_cast<double>(kMsJeSekunde), "#0.000") + " s";
    return text;
}

std::optional<std::string> downloadStatus(const Downloadfiguren& figuren)
{
    if (figuren.errorNumber != 0)
        return "Status: Fehler " + std::to_string(figuren.errorNumber) + ", " + figuren.errorDescription;
    if (figuren.size == 0)
        return std::nullopt;
    return "Status: Download  " + Format(anteil(figuren), "0.0%") + " empfangen";
}

std::optional<Downloadanzeige> downloadanzeige(const Downloadfiguren& figuren)
{
    constexpr double kBytesJeKB = 1024;
    if (figuren.errorNumber != 0 || figuren.size == 0)
        return std::nullopt;
    const double empfangen = figuren.receivedBytes;
    const std::int64_t gesamt =
        rundeZurGeraden(figuren.downloadtime * (static_cast<double>(figuren.size) / (empfangen + 1)));
    return Downloadanzeige{{std::to_string(figuren.size) + " Bytes", std::to_string(figuren.receivedBytes) + " Bytes",
                            dauer(figuren.downloadtime), dauer(gesamt - figuren.downloadtime), dauer(gesamt),
                            Format(figuren.speed / kBytesJeKB, "#,##0.00 KB/s")},
                           Format(anteil(figuren), "0.0 %"),
                           static_cast<int>(rundeZurGeraden(empfangen * 100 / figuren.size))};
}

int fortschrittsbreite(double percent, double max, int breite)
{
    constexpr double kVoll = 100;
    constexpr int kFrei = 3; ///< pixels that stay free on the right
    if (max == 0)
        max = kVoll;
    if (percent > kVoll) {
        const double ganzes = std::trunc(max);
        percent = ganzes == 0 ? 0 : std::fmod(percent, ganzes);
    }
    if (!(percent > 0))
        return 0;
    const double gefuellt = std::trunc(percent * breite / max) - kFrei;
    return static_cast<int>(std::clamp<double>(gefuellt, 0, std::max(breite, 0)));
}
