#pragma once

#include "shell/logic/OffeneDatei.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>

/// The right to change a file that several programs change. One holds it at a time, and it ends with the object or with
/// the program, however that comes to its end. Within one program it excludes too: who holds it must not take it again.
///
/// It lies on the folder, because the file may be missing, is replaced by a new one, and may change the case of its
/// name; so it counts for all files of the folder and leaves nothing there. A link counts as what it leads to. Only
/// where the system cannot lock the folder (some network drives, no right to read it) it lies on a file
/// ".tombrix-sperre" in it, which stays.
class Dateisperre {
public:
    /// Takes the lock, waiting for it up to `hoechstens`; 0 tries once. While it waits, `zwischendurch` is called every
    /// few milliseconds, and false from it gives up. Nothing if another one held it all the time, if it was given up,
    /// or if there is no such folder.
    static std::optional<Dateisperre> nimm(const std::filesystem::path& datei, std::chrono::milliseconds hoechstens,
                                           const std::function<bool()>& zwischendurch = {});

private:
    explicit Dateisperre(OffeneDatei ort) : ort_(std::move(ort)) {}

    OffeneDatei ort_;
};
