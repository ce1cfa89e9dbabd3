#include "listcontrol/logic/ListItemCollection.h"

#include "listcontrol/logic/ListenFehler.h"
#include "listcontrol/logic/modShellSort.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace {

/// The start of a text as two numbers that order as the text does: 15 bytes, then how many there are, at most 16.
class Textanfang {
public:
    explicit Textanfang(std::string_view text)
    {
        const std::string klein = kleinbuchstaben(text.substr(0, kBytes));
        std::array<unsigned char, kBytes + 1> bytes{};
        std::ranges::copy(klein, bytes.begin());
        bytes.back() = static_cast<unsigned char>(std::min(text.size(), kBytes + 1));
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            std::uint64_t& haelfte = i < bytes.size() / 2 ? hoch_ : tief_;
            haelfte = haelfte << 8U | bytes[i];
        }
    }
    Textanfang() = default;

    auto operator<=>(const Textanfang&) const = default;

    /// True if there is no more text than this.
    bool istGanz() const { return (tief_ & 0xFFU) <= kBytes; }

private:
    static constexpr std::size_t kBytes = 15;

    std::uint64_t hoch_{0};
    std::uint64_t tief_{0};
};

struct Sortierposten {
    Textanfang anfang;
    ListItem* posten{nullptr};
};

/// Gives what `SortCallback` gives, but looks at the texts only if they are longer than their starts, and these equal.
struct Sortiervergleich {
    SortCallback vergleich;

    int operator()(const Sortierposten& links, const Sortierposten& rechts) const
    {
        if (links.anfang == rechts.anfang)
            return links.anfang.istGanz() ? 0 : vergleich(*links.posten, *rechts.posten);
        const bool dahinter = links.anfang > rechts.anfang;
        return dahinter == (vergleich.richtung == Sortierrichtung::Aufsteigend) ? 1 : -1;
    }
};

} // namespace

void ListItemCollection::setColumnCount(int spalten)
{
    spalten_ = spalten;
    for (ListItem& posten : posten_)
        posten.SetSubItemCount(spalten);
}

const ListItem& ListItemCollection::Item(int index) const
{
    if (index < 0 || index >= ItemCount())
        throw IndexFehler("ListItemCollection");
    return posten_[static_cast<std::size_t>(index)];
}

ListItem& ListItemCollection::Item(int index)
{
    return const_cast<ListItem&>(std::as_const(*this).Item(index));
}

void ListItemCollection::Sort(int column, Sortierrichtung order)
{
    if (column < 0 || column >= spalten_)
        throw IndexFehler("ListItemCollection");
    std::vector<Sortierposten> folge;
    folge.reserve(posten_.size());
    for (ListItem& posten : posten_)
        folge.push_back({Textanfang(posten.Text(column)), &posten});
    ShellSort(folge, Sortiervergleich{{.spalte = column, .richtung = order}});
    std::vector<ListItem> sortiert;
    sortiert.reserve(posten_.capacity());
    for (const Sortierposten& einer : folge)
        sortiert.push_back(std::move(*einer.posten));
    posten_ = std::move(sortiert);
}

void ListItemCollection::MoveItem(int from, int to)
{
    Item(from);
    Item(to);
    const auto erster = posten_.begin() + std::min(from, to);
    const auto hinterLetztem = posten_.begin() + std::max(from, to) + 1;
    std::rotate(erster, from < to ? erster + 1 : hinterLetztem - 1, hinterLetztem);
}

void ListItemCollection::RemoveItem(int index)
{
    Item(index);
    posten_.erase(posten_.begin() + index);
}

int ListItemCollection::AddItem(std::string_view text, std::string_view tag, int index)
{
    if (spalten_ == 0)
        throw ListenFehler("ListItemCollection", "Kann Items nicht hinzufügen, wenn keine Spalten definiert wurden!");
    if (index > ItemCount())
        throw IndexFehler("ListItemCollection");
    // A row is likely to become as long as the one before it.
    ListItem neuer(spalten_, posten_.empty() ? text.size() + tag.size() : posten_.back().Textlaenge());
    neuer.setText(0, text);
    neuer.setTag(tag);
    if (ItemCount() == kapazitaet_)
        PrepareForItems(std::max(kapazitaet_ + 1, static_cast<int>(std::lrint(kapazitaet_ * 1.5))));
    const int platz = index < 0 ? ItemCount() : index;
    posten_.insert(posten_.begin() + platz, std::move(neuer));
    return platz;
}

void ListItemCollection::PrepareForItems(int anzahl)
{
    kapazitaet_ = std::max(anzahl, ItemCount());
    posten_.reserve(static_cast<std::size_t>(kapazitaet_));
}
