#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Fortschritt.h"
#include "tips/logic/Scheintipp.h"
#include "tips/logic/Tippscheindatei.h"
#include "tips/rules/Trefferbilanz.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The tips of saved slips held against every draw of a game by `GewinnklassenplanNeu`: the counters and the list of
/// all wins. It keeps numbers and the draws that they were computed from; a row becomes text when it is asked for.
class Scheinvergleich {
public:
    /// What a row of the list shows on the ticket.
    struct Anzeige {
        Kombination zahlen{};
        std::string text; ///< "2024/18" of a draw, "Tip 3" of a tip

        bool operator==(const Anzeige&) const = default;
    };

    Scheinvergleich() = default;
    /// `linie` is the length of the lines between slips and tips.
    Scheinvergleich(const ZiehungsArchiv& archiv, std::size_t linie);

    /// Adds the tips of a slip with that file name. False once `takt` stops it; then the slip is there in part.
    bool nimmAuf(const std::string& name, const Tippscheinzeilen& schein, Takt& takt);

    /// The counters over all tips; how often each of a tip's six numbers was drawn is not counted.
    const Trefferbilanz& bilanz() const { return bilanz_; }

    std::size_t zeilenzahl() const { return abschnitte_.empty() ? 0 : ende_; }
    std::string zeile(std::size_t nr) const;
    /// The rows of wins with four hits or more, ascending.
    const std::vector<std::size_t>& groessere() const { return groessere_; }
    /// Nothing for a row without numbers.
    std::optional<Anzeige> anzeige(std::size_t zeile) const;

private:
    static constexpr std::int32_t kKeine = -2;

    struct Gewinn {
        std::int32_t nr = 0;
        Gewinnklasse klasse = Gewinnklasse::Keine;
    };
    /// The head of a slip, or a tip with its wins.
    struct Abschnitt {
        std::size_t ersteZeile = 0;
        std::size_t ersterGewinn = 0;
        std::string text{};               ///< rows of the head, or what of a tip is text
        std::optional<Scheintipp> tipp{}; ///< nothing: the head of a slip
        bool jahresdatei = false;
    };

    static std::vector<std::int32_t> superzahlen(const ZiehungsArchiv& archiv);
    void beginneSchein(const std::string& name);
    void nimmAuf(const Scheintipp& tipp, const std::string& name, const std::string& zeile);
    void vergleiche(const Scheintipp& tipp);
    void nimmAuf(const Gewinn& gewinn);
    const Abschnitt& abschnittVon(std::size_t zeile) const;
    const Gewinn* gewinnIn(const Abschnitt& abschnitt, std::size_t zeile) const;
    std::string kopfzeile(const Abschnitt& abschnitt, std::size_t zeile) const;
    std::string gewinnzeile(const Gewinn& gewinn) const;

    ZiehungsArchiv archiv_;
    std::vector<Zahlenmenge> ziehungen_;
    std::vector<std::int32_t> superzahlen_; ///< of each draw what a tip must have to match it; kKeine matches none
    std::size_t linie_ = 0;
    std::vector<Abschnitt> abschnitte_;
    std::vector<Gewinn> gewinne_;
    std::vector<std::size_t> groessere_;
    Trefferbilanz bilanz_;
    std::size_t ende_ = 1; ///< the row behind the last one; the first row is that of the larger wins
};

/// Lengths of the lines in the list of one slip and of all slips.
inline constexpr std::size_t kLinieEinSchein = 30;
inline constexpr std::size_t kLinieAlleScheine = 28;

/// A slip that could not be read.
struct Scheinfehler {
    std::string name;
    Dateistand stand = Dateistand::Fehlt;

    bool operator==(const Scheinfehler&) const = default;
};

/// What became of a walk through slips.
struct Scheingang {
    std::vector<Scheinfehler> fehler{};
    bool vollstaendig = true; ///< false if it was stopped
};

/// Compares a slip in `ordner`.
Scheingang compareSlipFile(Scheinvergleich& vergleich, const std::filesystem::path& ordner, const std::string& name,
                           const Fortschritt& fortschritt = {});
/// Compares these slips one after the other; `fortschritt` gets the count of slips done.
Scheingang compareAllSlips(Scheinvergleich& vergleich, const std::filesystem::path& ordner,
                           const std::vector<std::string>& namen, const Fortschritt& fortschritt = {});
