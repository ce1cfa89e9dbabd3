#pragma once

#include <QWidget>

#include <array>
#include <cstddef>

class QLabel;

/// Six balls in a row, `Bild1(0)` to `Bild1(5)`, each with its number `Bezeichnung1(0)` to `Bezeichnung1(5)`. A ball
/// without a number is only an outline.
class Kugelreihe final : public QWidget {
public:
    static constexpr std::size_t kKugeln = 6;

    explicit Kugelreihe(QWidget* eltern);

    /// `kugel` is 0..5.
    void zeige(std::size_t kugel, int zahl);
    void leere();

private:
    std::array<QLabel*, kKugeln> Bezeichnung1;
};
