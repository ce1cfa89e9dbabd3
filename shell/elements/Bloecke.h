#pragma once

#include <QLayout>
#include <QWidget>

#include <initializer_list>
#include <variant>
#include <vector>

/// Declarative layout: a screen is written as nested blocks, read from the outside in.
///
///     setzeInhalt(spalte({
///         zeile({bereich, rahmen(...), luecke()}),
///         dehnbar(liste),
///     }));

struct Luecke {};

/// A control, a layout or a gap, with its stretch factor (0: as large as it needs to be).
struct Block {
    Block(QWidget* feld) : teil(feld) {}
    Block(QLayout* layout) : teil(layout) {}
    Block(Luecke) : teil(Luecke{}), dehnung(1) {}

    std::variant<QWidget*, QLayout*, Luecke> teil;
    int dehnung = 0;
};

using Bloecke = std::vector<Block>;

QLayout* spalte(const Bloecke& bloecke);
QLayout* zeile(const Bloecke& bloecke);
/// Fills rows of `spalten` blocks from the left to the right.
QLayout* raster(int spalten, const Bloecke& bloecke);
/// Two columns: a caption and its field, a row each.
QLayout* formular(const std::vector<std::pair<Block, Block>>& zeilen);
inline Block luecke()
{
    return Luecke{};
}
Block dehnbar(Block block, int faktor = 1);
/// The block with the small distance between its parts, for a label and its field.
QLayout* eng(QLayout* layout);

/// The control keeps its place while it is hidden.
void behaltePlatz(QWidget* feld);
