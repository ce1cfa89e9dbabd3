#include "archive/logic/Strukturpruefung.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

const std::array<std::string_view, 41> kStrukturfehler{
    " ",
    "Error 01: 1. Zeichen nicht numerisch, oder Datensatz enthält nur Leerz.",
    "Error 02: Datensatz hat weniger als 28 Zeichen.",
    "Error 03: Datensatz hat mehr als 28 Zeichen.",
    "Error 04: Spieljahr enthält nicht numerische Zeichen.",
    "Error 05: ",
    "Error 06: 1. Ziffer von Spielwoche ist nicht numerisch.",
    "Error 07: 2. Ziffer von Spielwoche ist nicht numerisch.",
    "Error 08: Nach Spielwoche fehlt \"Komma\" als Trennzeichen",
    "Error 09: 1. Stelle der 1. Gewinnzahl ist keine Ziffer.",
    "Error 10: 2. Stelle der 1. Gewinnzahl ist keine Ziffer.",
    "Error 11: Zwischen 1. u. 2. Gewinnzahl steht kein Komma als Trennzeichen.",
    "Error 12: 1. Stelle der 2. Gewinnzahl ist keine Ziffer.",
    "Error 13: 2. Stelle der 2. Gewinnzahl ist keine Ziffer.",
    "Error 14: Zwischen 2. u. 3. Gewinnzahl steht kein Komma als Trennzeichen.",
    "Error 15: 1. Stelle der 3. Gewinnzahl ist keine Ziffer.",
    "Error 16: 2. Stelle der 3. Gewinnzahl ist keine Ziffer.",
    "Error 17: Zwischen 3. u. 4. Gewinnzahl steht kein Komma als Trennzeichen.",
    "Error 18: 1. Stelle der 4. Gewinnzahl ist keine Ziffer.",
    "Error 19: 2. Stelle der 4. Gewinnzahl ist keine Ziffer.",
    "Error 20: Zwischen 4. u. 5. Gewinnzahl steht kein Komma als Trennzeichen.",
    "Error 21: 1. Stelle der 5. Gewinnzahl ist keine Ziffer.",
    "Error 22: 2. Stelle der 5. Gewinnzahl ist keine Ziffer.",
    "Error 23: Zwischen 5. u. 6. Gewinnzahl steht kein Komma als Trennzeichen.",
    "Error 24: 1. Stelle der 6. Gewinnzahl ist keine Ziffer.",
    "Error 25: 2. Stelle der 6. Gewinnzahl ist keine Ziffer.",
    "Error 26: Zwischen 6. Gewinnzahl und Zusatzzahl steht kein Komma.",
    "Error 27: 1. Stelle der 6. Zusatzzahl ist keine Ziffer.",
    "Error 28: 2. Stelle der 6. Zusatzzahl ist keine Ziffer.",
    "Error 29: Zwischen Spieljahr und Spielwoche steht kein Komma als Trennzeichen.",
    "Error 30: Die 1.Ziffer der Spielwoche muß im Bereich 0 - 5 liegen.",
    "Error 31: 1. Ziffer der 1. Gewinnzahl muß 0,1,2,3,4 sein.",
    "Error 32: 1. Ziffer der 2. Gewinnzahl muß 0,1,2,3,4 sein.",
    "Error 33: 1. Ziffer der 3. Gewinnzahl muß 0,1,2,3,4 sein.",
    "Error 34: 1. Ziffer der 4. Gewinnzahl muß 0,1,2,3,4 sein.",
    "Error 35: 1. Ziffer der 5. Gewinnzahl muß 0,1,2,3,4 sein.",
    "Error 36: 1. Ziffer der 6. Gewinnzahl muß 0,1,2,3,4 sein.",
    "Error 37: 1. Ziffer der Zusatztzahl muß 0,1,2,3,4 sein.",
    "Error 38: Die Spielwoche kann nicht größer als 53 sein.",
    "Error 39: Gewinnzahl doppelt vorhanden oder Zahlen nicht geordnet.",
    "Error 40: Zusatzzahl muß ungleich Zahl1-Zahl6 sein.",
};

namespace {

constexpr std::size_t kSatzlaenge = 30;
constexpr std::size_t kHoechstensGezeigt = 200;   ///< characters of a faulty record in its error line
constexpr std::size_t kLesezeichenabstand = 2048; ///< bytes from one bookmark to the next, at least
constexpr char kStrgZ = '\x1A';

/// A test of one character of the record and the fault that it stands for. Positions count from 1.
struct Zeichentest {
    std::size_t stelle;
    char von;
    char bis;
    int fehler;
};

constexpr std::array<Zeichentest, 19> kZeichentests{{
    {1, '0', '9', 4},   {2, '0', '9', 4},   {3, '0', '9', 4},   {4, '0', '9', 4},   {23, ',', ',', 23},
    {24, '0', '9', 24}, {25, '0', '9', 25}, {26, ',', ',', 26}, {27, '0', '9', 27}, {28, '0', '9', 28},
    {29, ',', ',', 26}, {30, '0', '9', 28}, {6, '0', '5', 30},  {9, '0', '4', 31},  {12, '0', '4', 32},
    {15, '0', '4', 33}, {18, '0', '4', 34}, {21, '0', '4', 35}, {24, '0', '4', 36},
}};

constexpr int kFehlerZusatzzahlZiffer = 37;
constexpr int kFehlerSpielwoche = 38;
constexpr int kFehlerReihenfolge = 39;
constexpr int kFehlerZusatzzahlGleich = 40;

/// The number in two places of the record; non-digits end it.
int zahlAb(std::string_view satz, std::size_t stelle)
{
    return fuehrendeZahl(satz.substr(stelle - 1, 2));
}

int pruefeZahlen(std::string_view satz)
{
    std::array<int, 6> zahlen{};
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        zahlen[i] = zahlAb(satz, 9 + 3 * i);
    const auto nichtAufsteigend = std::adjacent_find(zahlen.begin(), zahlen.end(), std::greater_equal<>());
    if (nichtAufsteigend != zahlen.end())
        return kFehlerReihenfolge;
    const bool doppelt = std::find(zahlen.begin(), zahlen.end(), zahlAb(satz, 27)) != zahlen.end();
    return doppelt ? kFehlerZusatzzahlGleich : 0;
}

/// The label that a correct record leaves behind: "jjjj,sw" as a German decimal number, rounded half to even. Empty
/// if these characters are no number.
std::string kennung(std::string_view satz)
{
    const bool zahl = satz[4] == ',' && istZiffer(satz[5]) && istZiffer(satz[6]);
    if (!zahl)
        return {};
    const double wert = fuehrendeZahl(satz.substr(0, 4)) + zahlAb(satz, 6) / 100.0;
    return std::to_string(rundeZurGeraden(wert));
}

/// Cuts the next line off; CR LF, CR and LF end one.
std::string_view naechsteZeile(std::string_view& rest)
{
    const std::size_t ende = std::min(rest.find_first_of("\r\n"), rest.size());
    const std::string_view zeile = rest.substr(0, ende);
    const bool beide = rest.substr(ende, 2) == "\r\n";
    rest.remove_prefix(std::min(rest.size(), ende + (beide ? 2 : 1)));
    return zeile;
}

/// Goes over the records of a file, from the first one or from a bookmark on.
class Satzgang {
public:
    explicit Satzgang(std::string_view bytes, std::size_t ab = 0, std::size_t korrekter = kKeiner)
        : bytes_(bytes),
          rest_(bytes.substr(ab)),
          korrekter_(korrekter)
    {}

    /// Steps to the next record. False behind the last one.
    bool weiter()
    {
        if (rest_.empty())
            return false;
        if (ab_ != kKeiner && fehler_ == 0)
            korrekter_ = ab_;
        ab_ = bytes_.size() - rest_.size();
        satz_ = naechsteZeile(rest_);
        fehler_ = pruefeDatensatz(satz_);
        return true;
    }

    std::string_view satz() const { return satz_; }
    int fehler() const { return fehler_; }
    std::size_t ab() const { return ab_; }
    /// Offset of the last correct record before this one.
    std::size_t VorherigeKorrekte() const { return korrekter_; }

private:
    static constexpr std::size_t kKeiner = std::string::npos;

    std::string_view bytes_;
    std::string_view rest_;
    std::string_view satz_;
    std::size_t ab_{kKeiner};
    std::size_t korrekter_;
    int fehler_{0};
};

std::string jahrUndWocheVon(std::string_view satz)
{
    const auto teil = [satz](std::size_t ab, std::size_t laenge) {
        return satz.size() > ab ? satz.substr(ab, laenge) : std::string_view();
    };
    return std::string(teil(0, 4)) + "/" + std::string(teil(5, 2));
}

void merkeFehler(Strukturbericht& bericht, const Satzgang& gang)
{
    if (bericht.lesezeichen.empty() || gang.ab() - bericht.lesezeichen.back().ab >= kLesezeichenabstand)
        bericht.lesezeichen.push_back({bericht.FalscheZiehungen, gang.ab(), gang.VorherigeKorrekte()});
    ++bericht.FalscheZiehungen;
}

/// Where what is to be judged ends.
std::size_t ende(const Dateiinhalt& inhalt)
{
    const std::size_t strgZ = inhalt.bytes.find(kStrgZ);
    if (strgZ != std::string::npos)
        return strgZ;
    return inhalt.vollstaendig ? inhalt.bytes.size() : inhalt.bytes.find_last_of("\r\n") + 1;
}

} // namespace

int pruefeDatensatz(std::string_view satz)
{
    if (satz.empty() || !istZiffer(satz[0]))
        return 1;
    if (satz.size() != kSatzlaenge)
        return satz.size() < kSatzlaenge ? 2 : 3;
    for (const Zeichentest& test : kZeichentests) {
        const char zeichen = satz[test.stelle - 1];
        if (zeichen < test.von || zeichen > test.bis)
            return test.fehler;
    }
    if (satz[26] > '4')
        return kFehlerZusatzzahlZiffer;
    if (zahlAb(satz, 6) > 53)
        return kFehlerSpielwoche;
    return pruefeZahlen(satz);
}

Strukturbericht pruefeStruktur(Dateiinhalt&& inhalt, const std::function<bool(const Strukturbericht&)>& zwischenstand)
{
    Strukturbericht bericht;
    const std::size_t laenge = ende(inhalt);
    bericht.ganzeDatei = inhalt.vollstaendig || inhalt.bytes.find(kStrgZ) == laenge;
    bericht.bytes = std::move(inhalt.bytes);
    bericht.bytes.resize(laenge);
    Satzgang gang(bericht.bytes);
    Takt takt([&](std::uint64_t) {
        bericht.letzterSatz = jahrUndWocheVon(gang.satz());
        return !zwischenstand || zwischenstand(bericht);
    });
    for (std::uint64_t nr = 1; bericht.vollstaendig && gang.weiter(); ++nr) {
        if (gang.fehler() != 0)
            merkeFehler(bericht, gang);
        else
            ++bericht.KorrekteZiehungen;
        bericht.vollstaendig = takt.schritt(nr);
    }
    bericht.letzterSatz = jahrUndWocheVon(gang.satz());
    return bericht;
}

std::string Strukturbericht::fehlerzeile(std::size_t nr) const
{
    if (nr >= FalscheZiehungen)
        return {};
    const Lesezeichen& zeichen = *std::prev(std::ranges::upper_bound(lesezeichen, nr, {}, &Lesezeichen::nr));
    Satzgang gang(bytes, zeichen.ab, zeichen.VorherigeKorrekte);
    for (std::size_t noch = nr - zeichen.nr + 1; noch > 0 && gang.weiter();)
        noch -= std::size_t{gang.fehler() != 0};
    const std::string label = gang.VorherigeKorrekte() == std::string::npos
                                  ? "1955/4X"
                                  : kennung(std::string_view(bytes).substr(gang.VorherigeKorrekte(), kSatzlaenge));
    return "Error " + Format(gang.fehler(), "00") + " nach Ziehung: " + label + " >> " +
           std::string(gang.satz().substr(0, kHoechstensGezeigt)) + " <<";
}

int fehlernummer(std::string_view fehlerzeile)
{
    constexpr std::size_t kStelle = 6;
    if (fehlerzeile.size() < kStelle + 2 || !istZiffer(fehlerzeile[kStelle]) || !istZiffer(fehlerzeile[kStelle + 1]))
        return 0;
    const int nummer = fuehrendeZahl(fehlerzeile.substr(kStelle, 2));
    return nummer >= 1 && nummer <= 40 ? nummer : 0;
}
