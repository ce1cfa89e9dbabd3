#pragma once

#include "shell/logic/Meldung.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The draws of an evaluation: those with a Spieljahr from `von` to `bis`, both included, and a ZiehungsNr from 1 to
/// `letzteZiehung`.
struct Ziehungsbereich {
    static constexpr std::int32_t kAlleZiehungen = INT32_MAX;

    std::int32_t von = 0;
    std::int32_t bis = 0;
    std::int32_t letzteZiehung = kAlleZiehungen; ///< may lie above the count of an archive; 0: no draw

    /// The last ZiehungsNr to look at in an archive of so many draws, 0..anzahlZiehungen.
    constexpr std::int32_t ende(std::int32_t anzahlZiehungen) const
    {
        return std::clamp(letzteZiehung, 0, std::max(anzahlZiehungen, 0));
    }

    bool operator==(const Ziehungsbereich&) const = default;
};

enum class Bereichsform { Jahre, BisZiehung };

/// The range as the screen shows it: the form in view and the texts as they stand in the fields.
struct Bereichsangabe {
    Bereichsform form = Bereichsform::Jahre;
    std::string von;
    std::string bis;
    std::string bisZiehung = "0";

    bool operator==(const Bereichsangabe&) const = default;
};

/// What a start button does: evaluates a range, or shows a message.
struct Bereichspruefung {
    std::optional<Ziehungsbereich> bereich;
    std::optional<Meldung> meldung;
};

/// The choice of the draws that are evaluated: by years, or by draw from the first up to a ZiehungsNr.
class Auswertebereich {
public:
    /// An empty archive: no years, 0 draws.
    Auswertebereich() = default;
    /// Prefills the fields with the first and the last Spieljahr and the number of draws of the archive. A number of
    /// draws below 1 is an empty archive.
    Auswertebereich(std::int32_t erstesJahr, std::int32_t letztesJahr, std::int32_t anzahlZiehungen);

    const Bereichsangabe& angabe() const { return angabe_; }
    void setzeVon(std::string text) { angabe_.von = std::move(text); }
    void setzeBis(std::string text) { angabe_.bis = std::move(text); }
    void setzeBisZiehung(std::string text) { angabe_.bisZiehung = std::move(text); }

    /// Entries of the drop-downs of Von and Bis: every year of the archive, "1955", "1956" ...
    std::vector<std::string> jahre() const;
    /// Entries of the drop-down of "bis Ziehung": "   1", "   2" ... up to the number of draws.
    std::vector<std::string> ziehungsnummern() const;

    /// "Z": shows the form by draw. Von and Bis go back to the first and the last Spieljahr.
    void zeigeBisZiehung();
    /// "J": shows the form by years. The texts stay.
    void zeigeJahre() { angabe_.form = Bereichsform::Jahre; }

    /// True if both were prefilled by an archive of the same years and as many draws.
    bool gleichesArchiv(const Auswertebereich& anderer) const;
    /// Goes over to another archive, `neuer` being its prefilled range. What the form in view shows stays. A field out
    /// of sight is prefilled anew, so that it restricts nothing; only a ZiehungsNr that somebody chose stays there too.
    void folge(Auswertebereich neuer);

    /// Looks at the fields, in this order: a Von or Bis that is not four digits gives a message; a Bis below Von gives
    /// another one.
    ///
    /// By draw, a number above the count of draws is set back to it, in the field too. A number below 1 or a text that
    /// is no number stays in the field and stands for no draw at all: the range is empty.
    Bereichspruefung pruefe();

private:
    std::int32_t letzteZiehung();

    Bereichsangabe angabe_;
    std::string erstesJahr_;
    std::string letztesJahr_;
    std::int32_t erstes_ = 0;
    std::int32_t letztes_ = -1; ///< below `erstes_`: no years
    std::int32_t anzahl_ = 0;
};

/// The year in a text of exactly four digits; nothing for any other text.
std::optional<std::int32_t> jahreszahl(std::string_view text);
/// What is said of a year that is none.
Meldung falscheJahreszahl();

/// Hint over Von: "Jahreszahl nicht kleiner 1955 wählen.", with the first year of the game.
std::string hinweisVon(std::string_view erstesSpieljahr);

inline constexpr std::string_view kBefehlBisZiehung = "Z";
inline constexpr std::string_view kBefehlJahre = "J";
inline constexpr std::string_view kHinweisBisZiehung = "Ermöglicht die Auswertung bis zu einer bestimmten Ziehung.";
inline constexpr std::string_view kHinweisJahre = "Zurück zur Auswertemöglichkeit \"von Jahr / bis Jahr.\"";
