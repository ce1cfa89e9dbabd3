#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Selects the active Ziehungsdatei. 0 (start of the program) and 1 are treated alike everywhere.
enum Spielart : std::int16_t {
    SpielartStart = 0,
    Samstagslotto = 1,
    Mittwochslotto = 2,
    MittwochslottoB = 3,
};

/// The draws in memory: ten parallel columns, indexed by the 1-based ZiehungsNr, oldest draw first.
/// Element 0 of every column exists and holds 0 or the empty text. All ten columns are always of one length.
///
/// The values stand as the file has them: whole numbers, but of any size and order. A tool that takes a value as an
/// index checks it first.
struct ZiehungsArchiv {
    using Spalte = std::vector<std::int32_t>;

    Spalte z1{0}, z2{0}, z3{0}, z4{0}, z5{0}, z6{0}; ///< the six Gewinnzahlen 1..49, ascending
    Spalte zz{0};                                    ///< Zusatzzahl 1..49; 0 where the draw has none
    Spalte s{0};                                     ///< Superzahl 0..9; 11 marks "none" in a combined load
    Spalte jjjj{0};                                  ///< Spieljahr
    Spalte sw{0};                                    ///< Spielwoche 1..53

    std::int32_t AnzahlZiehungen = 0;       ///< number of draws; 0 after a failed load
    std::int16_t Spielart = SpielartStart;  ///< the active game, a value of the enum of that name
    std::string ProgrammVerzeichnis;        ///< directory of all data files, with a trailing separator
    std::vector<std::string> Datum{""};     ///< "So, 09.10.1955" of each ZiehungsNr; may be longer than the columns
    std::vector<std::string> DatumAlle{""}; ///< the same after a combined load, " (B)" behind the draws of that game

    /// The six Gewinnzahlen of a draw, ascending. `nr` is 0..size of the columns - 1.
    std::array<std::int32_t, 6> gewinnzahlen(std::size_t nr) const
    {
        return {z1[nr], z2[nr], z3[nr], z4[nr], z5[nr], z6[nr]};
    }

    /// The ten columns in the order in which a record of a Ziehungsdatei holds them.
    std::array<Spalte*, 10> spalten() { return {&jjjj, &sw, &z1, &z2, &z3, &z4, &z5, &z6, &zz, &s}; }
};

/// ZiehungsNr of the first draw with a Superzahl: 07.12.1991 on Saturday, 06.12.1995 on both Wednesday games.
inline constexpr std::int32_t kSuperzahlBeginnSamstag = 1887;
inline constexpr std::int32_t kSuperzahlBeginnMittwoch = 497;

/// What column `s` holds in a combined load for a draw before the Superzahl.
inline constexpr std::int32_t kOhneSuperzahl = 11;

/// ZiehungsNr of the first Saturday draw with a Zusatzzahl (17.06.1956).
inline constexpr std::int32_t kZusatzzahlBeginnSamstag = 37;

/// Most draws that one Ziehungsdatei may hold.
inline constexpr std::int32_t kMaxZiehungenJeDatei = 32767;

/// True for 0 and 1.
constexpr bool istSamstag(std::int16_t spielart)
{
    return spielart == SpielartStart || spielart == Samstagslotto;
}

/// ZiehungsNr of the first draw of a game that has a Superzahl. Over several games it is asked anew for each draw,
/// with the game of that draw.
constexpr std::int32_t superzahlBeginn(std::int16_t spielart)
{
    return istSamstag(spielart) ? kSuperzahlBeginnSamstag : kSuperzahlBeginnMittwoch;
}

/// "SALOTTO.DAT", "MALOTTO.DAT" or "MBLOTTO.DAT"; empty for a Spielart outside 0..3.
std::string_view ziehungsdateiName(std::int16_t spielart);

/// Year of the first draw of a game: "1955" or "1986".
std::string_view erstesSpieljahr(std::int16_t spielart);

/// "jjjj/sw" of a draw, such as "1955/41"; `nr` 0 and one beyond the columns give "0000/00".
std::string jahrUndWoche(const ZiehungsArchiv& archiv, std::size_t nr);

/// The date text of a draw, from `Datum` or, after a combined load, from `DatumAlle`; the empty text where there is
/// none.
const std::string& datumVon(const ZiehungsArchiv& archiv, std::size_t nr);
const std::string& datumAlleVon(const ZiehungsArchiv& archiv, std::size_t nr);

/// "Gespeicherte Ziehungen: 1955/41 bis: 2026/29    Anzahl der Ziehungen: 3693"; empty with an empty archive.
std::string gespeicherteZiehungen(const ZiehungsArchiv& archiv);
