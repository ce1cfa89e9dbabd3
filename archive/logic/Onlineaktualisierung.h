#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

/// What a start button of the online update fetches; the values are the indices of the buttons.
enum class Onlineaufgabe {
    Zip = 0,      ///< all Ziehungsdateien in one archive
    Samstag = 1,  ///< "Salotto.dat"
    Mittwoch = 2, ///< "Malotto.dat"
};

enum class Onlineausgang {
    KeineNeue,   ///< nothing has taken the file's place; what came under another name or for another folder lies there
    Abgewiesen,  ///< the new file has fewer draws than the old one or none, or could not be put in place
    Besetzt,     ///< another program was changing the files all the time; nothing has changed
    Uebernommen, ///< the new file lies in its place
};

/// The Spielart of a task; 0 for the ZIP archive.
std::int16_t spielartVon(Onlineaufgabe aufgabe);

/// Keeps the user's file safe around one transfer. The new file is received in a folder of its own inside the target
/// folder and looked at there; only then it takes the old one's place, in one step. At every moment the file lies under
/// its name, with its old content or with the new one.
class Onlineaktualisierung {
public:
    /// `ordner` is the target folder, which exists.
    Onlineaktualisierung(Onlineaufgabe aufgabe, std::filesystem::path programmVerzeichnis,
                         std::filesystem::path ordner);
    Onlineaktualisierung(const Onlineaktualisierung&) = delete;
    Onlineaktualisierung& operator=(const Onlineaktualisierung&) = delete;
    /// Removes what is left of the transfer.
    ~Onlineaktualisierung();

    /// Copies the present file and makes the folder that receives. What a run has left behind that did not come to its
    /// end is removed. False if the target folder cannot be written; nothing has changed then.
    bool beginne();

    /// The folder for the transfer, with a trailing separator.
    std::string empfangsordner() const;

    /// Looks at what has come and brings the files in their final state, with the right to write to itself.
    /// `empfangeneBytes` came from the server; if the disk has not taken them all, or if there is no such number
    /// because the transfer was given up, the file counts as broken. While another program writes, `beimWarten` is
    /// called every few milliseconds, and false from it gives up.
    ///
    /// Where a Ziehungsdatei lies, whatever its name or game, a new file is accepted if it can be read, has a draw and
    /// no fewer than the old one has now; the old content then stays as "<name>.alt". Without a new file the copy goes
    /// away again, or takes the place of the file if that is missing.
    Onlineausgang schliesseAb(std::optional<std::int64_t> empfangeneBytes,
                              const std::function<bool()>& beimWarten = {});

private:
    /// Where a file that has come belongs.
    struct Platz {
        std::filesystem::path datei; ///< the file that it would replace
        bool eigener;                ///< it is the one of the task's own file
        std::int16_t spielart;       ///< whose Ziehungsdatei the program reads there; 0: of none
    };

    std::filesystem::path empfangene() const;
    std::filesystem::path kopie() const;
    Platz platzFuer(const std::filesystem::path& neue) const;
    Onlineausgang urteile(const std::filesystem::path& neue, const Platz& platz, std::optional<std::int64_t> bytes);
    Onlineausgang legeZip(const std::filesystem::path& neue, const Platz& platz) const;
    Onlineausgang legeZiehungsdatei(const std::filesystem::path& neue, const Platz& platz) const;
    void stelleHer() const;
    void verwirfEmpfang();

    Onlineaufgabe aufgabe_;
    std::filesystem::path programm_;
    std::filesystem::path ordner_;
    std::filesystem::path empfang_; ///< empty before `beginne` and after `schliesseAb`
    bool kopiert_ = false;
};

/// True if the Ziehungsdatei of that Spielart exists.
bool gibtZiehungsdatei(const std::filesystem::path& ordner, std::int16_t spielart);
