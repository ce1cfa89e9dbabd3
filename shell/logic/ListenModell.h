#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// What lies behind a list box: its rows, which of them are chosen, and word to the view when something changes.
/// Rows are texts in UTF-8, or are made when someone looks at them, so that a list of millions costs nothing.
/// All indices count from 0; `kKeiner` is no row.
class ListenModell {
public:
    static constexpr std::ptrdiff_t kKeiner = -1;

    enum class Aenderung {
        Zeilen, ///< rows came, went or moved; the choice may have changed too
        Auswahl ///< only the chosen rows or the current one changed
    };
    using Meldung = std::function<void(Aenderung)>;
    using ZeilenMacher = std::function<std::string(std::size_t)>;

    struct Eigenschaften {
        bool Sorted{false};      ///< rows stand in the order of their bytes, wherever they were added
        bool MultiSelect{false}; ///< any number of rows may be chosen; else the current one is the chosen one
    };

    ListenModell() = default;
    explicit ListenModell(Eigenschaften eigenschaften) : eigenschaften_(eigenschaften) {}

    bool Sorted() const { return eigenschaften_.Sorted; }
    bool MultiSelect() const { return eigenschaften_.MultiSelect; }

    /// Called after every change, many times while a list is filled; may be empty.
    void beiAenderung(Meldung meldung) { meldung_ = std::move(meldung); }

    /// Adds a row behind the last one; in a sorted list it finds its place when the rows are next read, so that many
    /// single adds cost no more than one sort. False, and no row is added, while rows are made on request.
    bool AddItem(std::string text);

    /// Adds a row in front of row `index`; in a sorted list the index does not count. False for an index above the
    /// count of rows and while rows are made on request.
    bool AddItem(std::string text, std::size_t index);

    /// Replaces all rows. Nothing is chosen afterwards.
    void fuelle(std::vector<std::string> zeilen);

    /// Replaces all rows by `anzahl` ones that `macher` makes from their index, in the order that it gives them, also
    /// in a sorted list. Nothing is chosen afterwards.
    void aufAnfrage(std::size_t anzahl, ZeilenMacher macher);

    void Clear();

    /// False for an index past the end and while rows are made on request.
    bool RemoveItem(std::size_t index);

    std::size_t ListCount() const;

    /// The text of a row; the empty text for an index past the end.
    std::string List(std::size_t index) const;

    /// All rows that are stored as texts, in their order: none while rows are made on request. Valid until the next
    /// change.
    const std::vector<std::string>& zeilen() const;

    bool wirdAufAnfrageGemacht() const { return static_cast<bool>(macher_); }

    std::ptrdiff_t ListIndex() const;

    /// Makes a row the current one, or none with -1. False, and nothing changes, for any other index.
    bool SetListIndex(std::ptrdiff_t index);

    /// True if the row is chosen. Without `MultiSelect` that is the current row alone.
    bool Selected(std::size_t index) const;

    /// Chooses a row or takes its choice back; without `MultiSelect` this moves the current row. False for an index
    /// past the end.
    bool SetSelected(std::size_t index, bool gewaehlt);

    std::size_t SelCount() const;

    /// The chosen rows, ascending.
    std::vector<std::size_t> ausgewaehlte() const;

private:
    void melde(Aenderung aenderung) const;
    void leere();
    void ordneEin() const;
    void rueckeAuswahl() const;
    bool istGewaehlt(std::size_t index) const { return index < gewaehlte_.size() && gewaehlte_[index]; }

    Eigenschaften eigenschaften_;
    Meldung meldung_;
    ZeilenMacher macher_;
    std::size_t anzahlAufAnfrage_{0};

    // A sorted list is brought in order when it is read, so what it holds changes under const.
    mutable std::vector<std::string> zeilen_;
    mutable std::size_t geordnete_{0}; ///< in a sorted list: the rows before this one are in order, later ones are new
    mutable std::ptrdiff_t index_{kKeiner};
    mutable std::vector<bool> gewaehlte_; ///< shorter than the list: the rest is not chosen
    mutable std::size_t anzahlGewaehlte_{0};
};
