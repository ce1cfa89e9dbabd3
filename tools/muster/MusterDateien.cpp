#include "tools/muster/MusterDateien.h"

#include "archive/logic/ProgrammVerzeichnis.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "tools/muster/Muster.h"

#include <array>
#include <deque>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr std::array kSpielarten{Samstagslotto, Mittwochslotto, MittwochslottoB};

/// A sample file on its way: written under another name, renamed when all three are whole. What is not released goes.
class Musterdatei {
public:
    Musterdatei(fs::path ziel, const std::string& inhalt) : ziel_(std::move(ziel)), jetzt_(ziel_)
    {
        jetzt_ += ".neu-muster";
        std::ofstream datei(jetzt_, std::ios::binary | std::ios::trunc);
        if (!datei) {
            jetzt_.clear();
            return;
        }
        datei.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        datei.close();
        geschrieben_ = !datei.fail();
    }
    Musterdatei(const Musterdatei&) = delete;
    Musterdatei& operator=(const Musterdatei&) = delete;
    ~Musterdatei()
    {
        std::error_code fehler;
        if (!jetzt_.empty())
            fs::remove(jetzt_, fehler);
    }

    const fs::path& ziel() const { return ziel_; }
    bool geschrieben() const { return geschrieben_; }

    bool benenneUm()
    {
        std::error_code fehler;
        fs::rename(jetzt_, ziel_, fehler);
        if (!fehler)
            jetzt_ = ziel_;
        return !fehler;
    }

    void gibFrei() { jetzt_.clear(); }

private:
    fs::path ziel_;
    fs::path jetzt_;
    bool geschrieben_ = false;
};

std::string nichtGeschrieben(const fs::path& datei)
{
    return "Die Datei " + datei.string() + " kann nicht geschrieben werden.";
}

} // namespace

std::optional<std::string> schreibeMusterDateien(const std::string& ordner, std::chrono::sys_days stand)
{
    const std::string verzeichnis = programmVerzeichnis(ordner);
    for (const std::int16_t spielart : kSpielarten) {
        const fs::path vorhanden = sucheDatei(verzeichnis, ziehungsdateiName(spielart));
        std::error_code fehler;
        if (fs::symlink_status(vorhanden, fehler).type() != fs::file_type::not_found)
            return "Die Datei " + vorhanden.string() + " ist schon vorhanden und wird nicht überschrieben.";
    }
    std::error_code fehler;
    fs::create_directories(verzeichnis, fehler);

    std::deque<Musterdatei> dateien;
    for (const std::int16_t spielart : kSpielarten) {
        dateien.emplace_back(sucheDatei(verzeichnis, ziehungsdateiName(spielart)), musterDatei(spielart, stand));
        if (!dateien.back().geschrieben())
            return nichtGeschrieben(dateien.back().ziel());
    }
    for (Musterdatei& datei : dateien) {
        if (!datei.benenneUm())
            return nichtGeschrieben(datei.ziel());
    }
    for (Musterdatei& datei : dateien)
        datei.gibFrei();
    return std::nullopt;
}
