#pragma once

/// The most weeks that a Spieljahr has; most have one less.
inline constexpr int kSpielwochen = 53;
