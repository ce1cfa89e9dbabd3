#include "shell/elements/SpezialOrdner.h"

#include <QStandardPaths>

#include <array>
#include <utility>

QString SpezialOrdner(int csidl)
{
    using Ort = QStandardPaths;
    static constexpr std::array<std::pair<int, Ort::StandardLocation>, 12> kOrte{{
        {0x00, Ort::DesktopLocation},
        {0x02, Ort::ApplicationsLocation},
        {0x05, Ort::DocumentsLocation},
        {0x0d, Ort::MusicLocation},
        {0x0e, Ort::MoviesLocation},
        {0x10, Ort::DesktopLocation},
        {0x14, Ort::FontsLocation},
        {0x1a, Ort::GenericDataLocation},
        {0x1c, Ort::GenericDataLocation},
        {0x27, Ort::PicturesLocation},
        {0x28, Ort::HomeLocation},
        {0x2f, Ort::TempLocation},
    }};
    for (const auto& [nummer, ort] : kOrte)
        if (nummer == csidl)
            return Ort::writableLocation(ort);
    return {};
}
