#include "shell/logic/ListenModell.h"

#include <algorithm>

void ListenModell::melde(Aenderung aenderung) const
{
    if (meldung_)
        meldung_(aenderung);
}

void ListenModell::leere()
{
    zeilen_.clear();
    geordnete_ = 0;
    macher_ = nullptr;
    anzahlAufAnfrage_ = 0;
    index_ = kKeiner;
    gewaehlte_.clear();
    anzahlGewaehlte_ = 0;
}

bool ListenModell::AddItem(std::string text)
{
    if (wirdAufAnfrageGemacht())
        return false;
    if (Sorted() && geordnete_ == zeilen_.size() && (zeilen_.empty() || zeilen_.back() <= text))
        ++geordnete_; // stands right already
    zeilen_.push_back(std::move(text));
    melde(Aenderung::Zeilen);
    return true;
}

bool ListenModell::AddItem(std::string text, std::size_t index)
{
    if (wirdAufAnfrageGemacht() || index > zeilen_.size())
        return false;
    if (Sorted() || index == zeilen_.size())
        return AddItem(std::move(text));
    const auto stelle = static_cast<std::ptrdiff_t>(index);
    zeilen_.insert(zeilen_.begin() + stelle, std::move(text));
    index_ += index_ >= stelle ? 1 : 0;
    if (index < gewaehlte_.size())
        gewaehlte_.insert(gewaehlte_.begin() + stelle, false);
    melde(Aenderung::Zeilen);
    return true;
}

void ListenModell::fuelle(std::vector<std::string> zeilen)
{
    leere();
    zeilen_ = std::move(zeilen);
    melde(Aenderung::Zeilen);
}

void ListenModell::aufAnfrage(std::size_t anzahl, ZeilenMacher macher)
{
    leere();
    anzahlAufAnfrage_ = anzahl;
    macher_ = std::move(macher);
    melde(Aenderung::Zeilen);
}

void ListenModell::Clear()
{
    leere();
    melde(Aenderung::Zeilen);
}

bool ListenModell::RemoveItem(std::size_t index)
{
    if (index >= zeilen_.size())
        return false;
    ordneEin();
    const auto stelle = static_cast<std::ptrdiff_t>(index);
    zeilen_.erase(zeilen_.begin() + stelle);
    geordnete_ = std::min(geordnete_, zeilen_.size());
    if (index_ == stelle)
        index_ = kKeiner;
    index_ -= index_ > stelle ? 1 : 0;
    if (index < gewaehlte_.size()) {
        anzahlGewaehlte_ -= std::size_t{gewaehlte_[index]};
        gewaehlte_.erase(gewaehlte_.begin() + stelle);
    }
    melde(Aenderung::Zeilen);
    return true;
}

std::size_t ListenModell::ListCount() const
{
    return macher_ ? anzahlAufAnfrage_ : zeilen_.size();
}

std::string ListenModell::List(std::size_t index) const
{
    if (index >= ListCount())
        return {};
    return macher_ ? macher_(index) : zeilen()[index];
}

const std::vector<std::string>& ListenModell::zeilen() const
{
    ordneEin();
    return zeilen_;
}

std::ptrdiff_t ListenModell::ListIndex() const
{
    ordneEin();
    return index_;
}

bool ListenModell::SetListIndex(std::ptrdiff_t index)
{
    if (index < kKeiner || index >= static_cast<std::ptrdiff_t>(ListCount()))
        return false;
    ordneEin();
    if (index_ != index) {
        index_ = index;
        melde(Aenderung::Auswahl);
    }
    return true;
}

bool ListenModell::Selected(std::size_t index) const
{
    ordneEin();
    return MultiSelect() ? istGewaehlt(index) : index_ >= 0 && static_cast<std::size_t>(index_) == index;
}

bool ListenModell::SetSelected(std::size_t index, bool gewaehlt)
{
    if (index >= ListCount())
        return false;
    if (Selected(index) == gewaehlt)
        return true;
    if (!MultiSelect())
        return SetListIndex(gewaehlt ? static_cast<std::ptrdiff_t>(index) : kKeiner);
    if (index >= gewaehlte_.size())
        gewaehlte_.resize(ListCount());
    gewaehlte_[index] = gewaehlt;
    anzahlGewaehlte_ = gewaehlt ? anzahlGewaehlte_ + 1 : anzahlGewaehlte_ - 1;
    melde(Aenderung::Auswahl);
    return true;
}

std::size_t ListenModell::SelCount() const
{
    return MultiSelect() ? anzahlGewaehlte_ : (index_ >= 0 ? 1 : 0);
}

std::vector<std::size_t> ListenModell::ausgewaehlte() const
{
    ordneEin();
    if (!MultiSelect())
        return index_ >= 0 ? std::vector{static_cast<std::size_t>(index_)} : std::vector<std::size_t>{};
    std::vector<std::size_t> ergebnis;
    ergebnis.reserve(anzahlGewaehlte_);
    for (std::size_t i = 0; ergebnis.size() < anzahlGewaehlte_; ++i)
        if (gewaehlte_[i])
            ergebnis.push_back(i);
    return ergebnis;
}

/// Merges the new rows of a sorted list into the rows that are in order already.
void ListenModell::ordneEin() const
{
    if (!Sorted() || geordnete_ == zeilen_.size())
        return;
    const auto neue = zeilen_.begin() + static_cast<std::ptrdiff_t>(geordnete_);
    std::sort(neue, zeilen_.end()); // equal rows look the same
    rueckeAuswahl();
    std::inplace_merge(zeilen_.begin(), neue, zeilen_.end());
    geordnete_ = zeilen_.size();
}

/// Moves the choice to where the rows in order will stand once the new ones are among them.
void ListenModell::rueckeAuswahl() const
{
    if (index_ == kKeiner && anzahlGewaehlte_ == 0)
        return;
    std::vector<bool> gerueckte(gewaehlte_.empty() ? 0 : zeilen_.size());
    std::ptrdiff_t geruecktIndex = kKeiner;
    std::size_t davor = geordnete_;
    for (std::size_t i = 0; i < geordnete_; ++i) {
        while (davor < zeilen_.size() && zeilen_[davor] < zeilen_[i])
            ++davor;
        const std::size_t ziel = i + davor - geordnete_;
        if (istGewaehlt(i))
            gerueckte[ziel] = true;
        if (index_ == static_cast<std::ptrdiff_t>(i))
            geruecktIndex = static_cast<std::ptrdiff_t>(ziel);
    }
    gewaehlte_ = std::move(gerueckte);
    index_ = geruecktIndex;
}
