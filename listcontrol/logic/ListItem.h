#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

/// A row of the result list: one text a column, and what belongs to the row. It is a handle of the size of a pointer;
/// all its texts lie behind one another in one block of memory, so that a million rows of two dozen columns fit.
/// Columns count from 0. An index out of range raises `IndexFehler`.
class ListItem {
public:
    /// `vorrat`: bytes of text that the block has room for from the start.
    explicit ListItem(int spalten, std::size_t vorrat = 0);

    /// Index of a picture, -1 for none.
    int PictureIndex() const { return kopf_->bild; }
    void setPictureIndex(int bild) { kopf_->bild = bild; }

    bool Checked() const { return kopf_->angekreuzt; }
    void setChecked(bool angekreuzt) { kopf_->angekreuzt = angekreuzt; }

    /// Valid, as is every text, until a text of the row changes.
    std::string_view Tag() const;
    void setTag(std::string_view tag) { setze(0, tag); }

    bool Selected() const { return kopf_->gewaehlt; }
    void setSelected(bool gewaehlt) { kopf_->gewaehlt = gewaehlt; }

    std::string_view Text(int spalte) const;
    void setText(int spalte, std::string_view text);

    /// Changes the count of columns; texts that still have a column stay.
    void SetSubItemCount(int spalten);

    int SubItemCount() const { return static_cast<int>(kopf_->spalten); }

    /// Bytes of all its texts together.
    std::size_t Textlaenge() const { return enden()[kopf_->spalten]; }

    /// Stays the same wherever the row is moved to.
    const void* Kennung() const { return kopf_.get(); }

private:
    /// The head of the block. Behind it stand the end of the tag and of each text, then the texts themselves.
    struct Kopf {
        std::uint32_t vorrat;
        std::uint32_t spalten;
        std::int32_t bild;
        bool angekreuzt;
        bool gewaehlt;
    };
    struct Freigabe {
        void operator()(Kopf* kopf) const;
    };
    using Block = std::unique_ptr<Kopf, Freigabe>;

    static Block block(std::size_t spalten, std::size_t vorrat);
    std::size_t pruefe(int spalte) const;
    void setze(std::size_t fach, std::string_view text);
    void zieheUm(std::size_t spalten, std::size_t vorrat);

    std::uint32_t* enden() const { return reinterpret_cast<std::uint32_t*>(kopf_.get() + 1); }
    char* texte() const { return reinterpret_cast<char*>(enden() + kopf_->spalten + 1); }

    Block kopf_;
};
