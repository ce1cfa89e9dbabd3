#pragma once

#include <cstdint>

struct Umgebung;

/// Loads the files of several games one after the other for a tool that goes through each by itself, and gives back
/// the game that the tool has found.
class Einzellader {
public:
    explicit Einzellader(Umgebung& umgebung);

    enum class FehlendeDatei { Nennen, Verschweigen };

    /// Loads the file of `spielart` (1..3) into the archive. If it is missing, one box names it, unless it is to be
    /// kept quiet, and the archive counts no draws.
    void lade(std::int16_t spielart, FehlendeDatei fehlende = FehlendeDatei::Nennen);

    /// Loads the game that was active at first, if another one was loaded since.
    void gibZurueck();

private:
    Umgebung& umgebung_;
    std::int16_t gefunden_;
    bool fremd_ = false; ///< the archive holds what this tool has loaded
};
