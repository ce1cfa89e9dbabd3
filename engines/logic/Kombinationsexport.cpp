#include "engines/logic/Kombinationsexport.h"

#include "engines/logic/Exportgang.h"
#include "engines/logic/Exportzeilen.h"
#include "shell/logic/Vorlaeufige.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// As much as stays in the processor's cache on its way to the system.
constexpr std::size_t kBlock = 262'144;
/// The most that one row of combinations needs.
constexpr std::size_t kLaengsteReihe = (kHoechsteZahl + 1) * Exportzeilen::kBreite;

class Export {
public:
    Export(const Exportauftrag& auftrag, const fs::path& ordner, const Fortschritt& fortschritt)
        : auftrag_(auftrag),
          ordner_(ordner),
          fortschritt_(fortschritt),
          dateien_(exportdateien(auftrag)),
          zeilen_(auftrag),
          puffer_(std::make_unique<char[]>(kBlock + kLaengsteReihe)),
          ende_(puffer_.get())
    {}

    Exportergebnis laufe()
    {
        Exportgang gang(auftrag_, [this](std::span<const std::int32_t> davor, std::int32_t von, std::int32_t bis) {
            return schreibe(davor, von, bis);
        });
        if (beginneDatei() && gang.gehe())
            schliesseAb();
        return ergebnis_;
    }

private:
    bool schreibe(std::span<const std::int32_t> davor, std::int32_t von, std::int32_t bis)
    {
        while (von <= bis) {
            if (freieZeilen_ == 0 && !(beendeDatei() && beginneDatei()))
                return false;
            const auto anzahl = std::min<std::uint64_t>(static_cast<std::uint64_t>(bis - von) + 1, freieZeilen_);
            const std::int32_t danach = von + static_cast<std::int32_t>(anzahl);
            ende_ = zeilen_.schreibe(ende_, davor, von, danach - 1);
            von = danach;
            freieZeilen_ -= anzahl;
            ergebnis_.kombinationen += anzahl;
            if (gepufferte() >= kBlock && !leere())
                return false;
        }
        return true;
    }

    bool beginneDatei()
    {
        const Exportdatei& neue = dateien_[ergebnis_.fertige];
        datei_.emplace(ordner_ / neue.name);
        freieZeilen_ = neue.zeilen;
        return neue.zeilen == 0 || schreibe(exportkopf(auftrag_));
    }

    bool schreibe(std::string_view text) { return datei_->schreibe(text) || scheitere(); }

    std::size_t gepufferte() const { return static_cast<std::size_t>(ende_ - puffer_.get()); }

    bool leere()
    {
        if (!schreibe(std::string_view(puffer_.get(), gepufferte())))
            return false;
        ende_ = puffer_.get();
        if (fortschritt_ && !fortschritt_(ergebnis_.kombinationen)) {
            ergebnis_.ende = Exportende::Gestoppt;
            return false;
        }
        return true;
    }

    bool beendeDatei()
    {
        if (!leere())
            return false;
        if (!datei_->uebernimm())
            return scheitere();
        ++ergebnis_.fertige;
        return true;
    }

    void schliesseAb()
    {
        if (leere() && schreibe(exportlegende(auftrag_)))
            beendeDatei();
    }

    bool scheitere()
    {
        ergebnis_.ende = Exportende::Gescheitert;
        ergebnis_.datei = dateien_[ergebnis_.fertige].name;
        ergebnis_.fehler = datei_->ergebnis();
        return false;
    }

    const Exportauftrag& auftrag_;
    const fs::path& ordner_;
    const Fortschritt& fortschritt_;
    std::vector<Exportdatei> dateien_;
    Exportzeilen zeilen_;
    std::unique_ptr<char[]> puffer_;
    char* ende_; ///< of the lines in the buffer
    std::optional<AtomareDatei> datei_;
    std::uint64_t freieZeilen_ = 0; ///< combinations that still go to the open file
    Exportergebnis ergebnis_;
};

/// What a file takes up on the disk.
std::uint64_t belegte(std::uint64_t bytes)
{
    constexpr std::uint64_t kEinheit = 4096;
    return (bytes + kEinheit - 1) / kEinheit * kEinheit;
}

} // namespace

Exportergebnis exportiereKombinationen(const Exportauftrag& auftrag, const fs::path& ordner,
                                       const Fortschritt& fortschritt)
{
    raeumeVorlaeufigeAuf(ordner);
    return Export(auftrag, ordner, fortschritt).laufe();
}

std::vector<std::string> vorhandeneDateien(const fs::path& ordner, const std::vector<Exportdatei>& dateien)
{
    std::vector<std::string> vorhandene;
    for (const Exportdatei& datei : dateien) {
        std::error_code fehler;
        if (fs::exists(fs::symlink_status(ordner / datei.name, fehler)))
            vorhandene.push_back(datei.name);
    }
    return vorhandene;
}

std::uint64_t fehlenderPlatz(const fs::path& ordner, const std::vector<Exportdatei>& dateien)
{
    std::error_code fehler;
    const fs::space_info platz = fs::space(ordner, fehler);
    if (fehler)
        return 0;
    auto frei = static_cast<std::int64_t>(platz.available);
    std::int64_t kleinster = frei;
    for (const Exportdatei& datei : dateien) {
        frei -= static_cast<std::int64_t>(belegte(datei.bytes));
        kleinster = std::min(kleinster, frei);
        const std::uint64_t alte =
            fs::is_regular_file(ordner / datei.name, fehler) ? fs::file_size(ordner / datei.name, fehler) : 0;
        frei += fehler ? 0 : static_cast<std::int64_t>(alte);
    }
    return static_cast<std::uint64_t>(std::max<std::int64_t>(0, -kleinster));
}
