#pragma once

#include <QString>

/// Path of a special folder by its CSIDL number, such as 0 or 16 for the desktop and 5 for the documents. Empty for a
/// folder that this system does not know.
QString SpezialOrdner(int csidl);

inline constexpr int kCsidlDesktop = 0;
inline constexpr int kCsidlDokumente = 5;
