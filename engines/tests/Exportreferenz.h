#pragma once

#include "engines/logic/Exportauftrag.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <string>

/// Reads a file while a test says what must stand in it.
class Erwarteter {
public:
    explicit Erwarteter(const std::filesystem::path& datei) : strom_(datei, std::ios::binary) {}

    void zeile(const std::string& text)
    {
        if (!gleich_)
            return;
        gelesen_.resize(text.size() + 2);
        strom_.read(gelesen_.data(), static_cast<std::streamsize>(gelesen_.size()));
        gleich_ = strom_.gcount() == static_cast<std::streamsize>(gelesen_.size()) &&
                  gelesen_.compare(0, text.size(), text) == 0 && gelesen_.ends_with("\r\n");
        if (!gleich_)
            ADD_FAILURE() << "\"" << gelesen_ << "\" stands for \"" << text << "\"";
    }

    /// True if nothing else stands in it.
    bool endet() { return gleich_ && strom_.peek() == std::ifstream::traits_type::eof(); }

private:
    std::ifstream strom_;
    std::string gelesen_;
    bool gleich_ = true;
};

/// The files of an export by plain loops: every combination is made, tested and turned into text.
class Exportreferenz {
public:
    Exportreferenz(const Exportauftrag& auftrag, std::filesystem::path ordner)
        : auftrag_(auftrag),
          ordner_(std::move(ordner)),
          gefiltert_(!auftrag.bankzahlen.empty() || auftrag.bereich.has_value())
    {}

    /// Holds the files against the combinations. `stamm` is their name up to the part's number, `jeTeil` the lines of a
    /// part, 0 for one file.
    std::uint64_t vergleiche(const std::string& stamm, std::uint64_t jeTeil = 0)
    {
        stamm_ = stamm;
        jeTeil_ = jeTeil;
        beginne();
        gehe(0, 1);
        if (gefiltert_)
            legende();
        EXPECT_TRUE(datei_->endet());
        return zeilen_;
    }

private:
    void beginne()
    {
        ++teil_;
        const std::string name =
            stamm_ + (jeTeil_ > 0 ? "_Teil_" + std::to_string(teil_) : "") + "." + std::string(auftrag_.endung);
        EXPECT_TRUE(std::filesystem::exists(ordner_ / name)) << name;
        datei_.emplace(ordner_ / name);
    }

    void gehe(std::size_t tiefe, int ab)
    {
        if (tiefe == static_cast<std::size_t>(auftrag_.k)) {
            ++nummerUnterAllen_;
            if (passt())
                zeile();
            return;
        }
        for (int zahl = ab; zahl <= 49; ++zahl) {
            zahlen_[tiefe] = zahl;
            gehe(tiefe + 1, zahl + 1);
        }
    }

    bool passt() const
    {
        const auto anfang = zahlen_.begin();
        const auto ende = anfang + auftrag_.k;
        for (const int bank : auftrag_.bankzahlen)
            if (std::find(anfang, ende, bank) == ende)
                return false;
        return !auftrag_.bereich || std::all_of(anfang, ende, [this](int zahl) {
            return zahl >= auftrag_.bereich->von && zahl <= auftrag_.bereich->bis;
        });
    }

    static std::string rechts(std::uint64_t zahl, std::size_t breite)
    {
        std::string text = std::to_string(zahl);
        return text.insert(0, breite - text.size(), ' ');
    }

    void zeile()
    {
        if (jeTeil_ > 0 && zeilen_ > 0 && zeilen_ % jeTeil_ == 0) {
            EXPECT_TRUE(datei_->endet());
            beginne();
        }
        if (auftrag_.nummeriert && (jeTeil_ > 0 ? zeilen_ % jeTeil_ : zeilen_) == 0)
            kopf();
        ++zeilen_;
        std::string text;
        for (int i = 0; i < auftrag_.k; ++i) {
            if (i > 0)
                text += auftrag_.trenner;
            text += static_cast<char>('0' + zahlen_[static_cast<std::size_t>(i)] / 10);
            text += static_cast<char>('0' + zahlen_[static_cast<std::size_t>(i)] % 10);
        }
        if (auftrag_.nummeriert)
            text += rechts(zeilen_, gefiltert_ ? 18 : 10);
        if (auftrag_.nummeriert && gefiltert_ && auftrag_.k == 6)
            text += rechts(nummerUnterAllen_, 19);
        datei_->zeile(text);
    }

    void kopf()
    {
        std::string text(static_cast<std::size_t>(3 * auftrag_.k - 1), ' ');
        if (gefiltert_)
            text += auftrag_.k == 6 ? "  [LNr:          ]  [KNr:           ]" : "  [LNr:          ]";
        else
            text += auftrag_.k == 6 ? "      KNr:" : "      LNr:";
        datei_->zeile(text);
    }

    void legende()
    {
        datei_->zeile("Legende:");
        datei_->zeile("LNr = Laufende Nummer der gefilterten Kombination.");
        if (auftrag_.k == 6) {
            datei_->zeile("KNr = Kombinationsnummer. Die lexikographische Ordnungszahl der gefilterten ");
            datei_->zeile("      Kombination innerhalb der Auflistung aller Kombinationen 6aus49.");
        }
        datei_->zeile("Gefilterte Kombinationen: " + rechts(zeilen_, 10));
    }

    const Exportauftrag& auftrag_;
    std::filesystem::path ordner_;
    bool gefiltert_;
    std::string stamm_;
    std::uint64_t jeTeil_ = 0;
    int teil_ = 0;
    std::optional<Erwarteter> datei_;
    std::array<int, 6> zahlen_{};
    std::uint64_t nummerUnterAllen_ = 0;
    std::uint64_t zeilen_ = 0;
};
