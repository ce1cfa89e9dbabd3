#include "engines/logic/Exportauftrag.h"

#include "shell/logic/Binomial.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <set>

namespace {

constexpr std::string_view kLaufendeNummer = "      LNr:";
constexpr std::string_view kKombinationsnummer = "      KNr:";
constexpr std::string_view kGefilterteNummer = "  [LNr:          ]";
constexpr std::string_view kNummerUnterAllen = "  [KNr:           ]";

bool zaehltUnterAllen(const Exportauftrag& auftrag)
{
    return auftrag.gefiltert() && auftrag.k == kGroessterExport;
}

std::size_t zahlenbreite(const Exportauftrag& auftrag)
{
    return static_cast<std::size_t>(auftrag.k) * 3 - 1;
}

std::size_t zeilenlaenge(const Exportauftrag& auftrag)
{
    const Nummernbreiten breiten = nummernbreiten(auftrag);
    return zahlenbreite(auftrag) + breiten.laufend + breiten.kombination + kZeilenende.size();
}

/// The name up to the number of a part.
std::string dateistamm(const Exportauftrag& auftrag)
{
    std::string stamm = std::to_string(auftrag.k) + "aus49";
    if (auftrag.bereich)
        stamm +=
            "_Bereich_von_" + std::to_string(auftrag.bereich->von) + "_bis_" + std::to_string(auftrag.bereich->bis);
    else if (!auftrag.bankzahlen.empty())
        stamm += "_Bank";
    for (const std::int32_t zahl : auftrag.bankzahlen)
        stamm += "_B" + std::to_string(zahl);
    return stamm;
}

bool hatDoppelte(const std::vector<std::int32_t>& zahlen)
{
    return std::set<std::int32_t>(zahlen.begin(), zahlen.end()).size() != zahlen.size();
}

} // namespace

std::optional<std::string> auftragsfehler(const Exportauftrag& auftrag)
{
    if (hatDoppelte(auftrag.bankzahlen))
        return "Es wurden Bankzahlen doppelt ausgewählt!";
    if (!auftrag.bereich)
        return std::nullopt;
    const std::string letzte = std::to_string(auftrag.k);
    const std::int32_t abstand = auftrag.k - 1;
    if (auftrag.bereich->von >= auftrag.bereich->bis)
        return "Der Bereichsanfang, die Zahl1, muss kleiner als Zahl" + letzte + " sein!";
    if (auftrag.bereich->bis < auftrag.bereich->von + abstand)
        return "Der gewählte Bereich ist zu klein! Z" + letzte + " muss >= Z1+" + std::to_string(abstand) + " sein ";
    return std::nullopt;
}

std::uint64_t anzahlKombinationen(const Exportauftrag& auftrag)
{
    const Zahlenbereich bereich = auftrag.bereich.value_or(Zahlenbereich{});
    const auto feste = static_cast<int>(auftrag.bankzahlen.size());
    return static_cast<std::uint64_t>(Binomial(bereich.bis - bereich.von + 1 - feste, auftrag.k - feste));
}

std::vector<Exportdatei> exportdateien(const Exportauftrag& auftrag)
{
    constexpr int kKleinsterGeteilter = 5;
    const std::uint64_t alle = anzahlKombinationen(auftrag);
    const bool geteilt = auftrag.geteilt && auftrag.k >= kKleinsterGeteilter && alle > kZeilenJeTeil;
    const std::string stamm = dateistamm(auftrag);
    const std::string endung = "." + std::string(auftrag.endung);
    const std::uint64_t jeDatei = geteilt ? kZeilenJeTeil : alle;

    std::vector<Exportdatei> dateien;
    std::uint64_t rest = alle;
    do {
        const std::string teil = geteilt ? "_Teil_" + std::to_string(dateien.size() + 1) : "";
        const std::uint64_t zeilen = std::min(rest, jeDatei);
        const std::uint64_t kopf = zeilen > 0 ? exportkopf(auftrag).size() : 0;
        dateien.push_back({stamm + teil + endung, zeilen, kopf + zeilen * zeilenlaenge(auftrag)});
        rest -= zeilen;
    } while (rest > 0);
    dateien.back().bytes += exportlegende(auftrag).size();
    return dateien;
}

Nummernbreiten nummernbreiten(const Exportauftrag& auftrag)
{
    if (!auftrag.nummeriert)
        return {};
    if (!auftrag.gefiltert())
        return {kLaufendeNummer.size(), 0};
    return {kGefilterteNummer.size(), zaehltUnterAllen(auftrag) ? kNummerUnterAllen.size() : 0};
}

std::string exportkopf(const Exportauftrag& auftrag)
{
    if (!auftrag.nummeriert)
        return {};
    std::string kopf(zahlenbreite(auftrag), ' ');
    if (!auftrag.gefiltert())
        kopf += auftrag.k == kGroessterExport ? kKombinationsnummer : kLaufendeNummer;
    else
        kopf += kGefilterteNummer;
    if (zaehltUnterAllen(auftrag))
        kopf += kNummerUnterAllen;
    return kopf += kZeilenende;
}

std::string exportlegende(const Exportauftrag& auftrag)
{
    if (!auftrag.gefiltert())
        return {};
    std::string legende;
    const auto zeile = [&legende](std::string_view text) { legende.append(text).append(kZeilenende); };
    zeile("Legende:");
    zeile("LNr = Laufende Nummer der gefilterten Kombination.");
    if (zaehltUnterAllen(auftrag)) {
        zeile("KNr = Kombinationsnummer. Die lexikographische Ordnungszahl der gefilterten ");
        zeile("      Kombination innerhalb der Auflistung aller Kombinationen 6aus49.");
    }
    zeile("Gefilterte Kombinationen: " + Format(anzahlKombinationen(auftrag), "@@@@@@@@@@"));
    return legende;
}
