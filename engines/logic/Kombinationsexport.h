#pragma once

#include "engines/logic/Exportauftrag.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Fortschritt.h"

#include <filesystem>

/// How an export ended.
enum class Exportende { Fertig, Gestoppt, Gescheitert };

struct Exportergebnis {
    Exportende ende = Exportende::Fertig;
    std::uint64_t kombinationen = 0; ///< lines that were written
    std::size_t fertige = 0;         ///< files that are complete and in their place
    std::string datei{};             ///< the one that failed
    DateiErgebnis fehler{};
};

/// Writes the combinations of an order without a fault to their files in `ordner`. Each file comes to its name when it
/// is complete; one that was not finished leaves nothing behind, and the finished ones stay. What an export that was
/// killed has left in the folder is removed. `fortschritt` takes the combinations so far.
Exportergebnis exportiereKombinationen(const Exportauftrag& auftrag, const std::filesystem::path& ordner,
                                       const Fortschritt& fortschritt = {});

/// The names among those of the files that exist in the folder.
std::vector<std::string> vorhandeneDateien(const std::filesystem::path& ordner,
                                           const std::vector<Exportdatei>& dateien);

/// Bytes that the folder's disk is short of for the files, the old ones of these names taken into account as each is
/// replaced; 0 if they fit or nobody knows.
std::uint64_t fehlenderPlatz(const std::filesystem::path& ordner, const std::vector<Exportdatei>& dateien);
