#pragma once

#include "engines/logic/Vollsuche.h"
#include "shell/logic/Uhr.h"

#include <QWidget>

#include <span>

class QLabel;
class QLineEdit;
class Tippfeld7x7View;

/// What is seen of a search while it runs: the combination under test, the time so far and the whole time as estimated,
/// the tests done.
class Suchlaufanzeige final : public QWidget {
public:
    explicit Suchlaufanzeige(QWidget* eltern);

    /// A search of the size of `ergebnis` begins; the first combination is shown.
    void beginne(const Suchergebnis& ergebnis, Zeitpunkt jetzt);
    void zeigeKombination(std::span<const std::int32_t> zahlen);
    void zeigeZeit(const Suchergebnis& ergebnis, Zeitpunkt jetzt);
    /// It ended, or was broken off. An estimate gives way to the real time.
    void beende(const Suchergebnis& ergebnis);

private:
    QLabel* bezeichnung(const QString& name, const QString& text);

    Zeitpunkt SuchStart;
    Tippfeld7x7View* Bezeichnung6;
    QLineEdit* Text15;
    QLabel *Label4, *Label5, *lblSL, *Bezeichnung10;
};
