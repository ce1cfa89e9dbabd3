#pragma once

#include "archive/screens/Spielartlader.h"
#include "shell/elements/Rahmen.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

class Bildschirm;
class QCheckBox;
class QLabel;

/// How a combined tool calls the frame and the boxes.
struct SpielartenwahlNamen {
    const char* rahmen = "frmArt";
    const char* titel = "Alle Ziehungen dieser Spielarten einbeziehen:";
    std::array<const char*, 3> spielarten{"Samstagslotto", "Mittwochslotto", "Mittwochslotto (B)"};
    const char* kasten = "chkArt"; ///< a box is named `kasten(0)` to `kasten(2)`
    const char* anzahl = "lblTipp";
};

/// The games that a combined tool takes in: a box each (`chkArt(0)` to `chkArt(2)`, all ticked at first), beside it
/// what its file holds (`lblZ(0)` to `lblZ(2)`), below them the count of all their draws. The combined archive is
/// loaded at the start and on every change of a box; while an evaluation of the screen runs, a box cannot be changed.
/// If the file of a ticked box is missing, the archive counts no draws until the boxes change.
class Spielartenwahl final : public Rahmen {
public:
    explicit Spielartenwahl(Bildschirm& bildschirm, const SpielartenwahlNamen& namen = {});

    /// Bits of the ticked boxes: 1 Samstag, 2 Mittwoch, 4 Mittwoch (B).
    int maske() const;
    /// False, after a box that asks for it, if nothing is ticked.
    bool pruefe() const;
    /// "Samstagslotto ", "Mittwochslotto " and "Mittwochslotto(B)" of the ticked boxes, joined.
    std::string namen() const;
    /// Caption of a box and what its file holds, `spielart` 0..2.
    QString beschriftung(int spielart) const;
    QString stand(int spielart) const;
    QString anzahltext() const;
    /// Writes the count of draws in the words that go with a search.
    void zeigeAnzahl();
    /// Says how many draws the result on the screen stands on.
    void zeigeAusgewertete(std::int32_t ziehungen);

    /// Without it, nothing ticked leaves the archive as it is; with it, the loader gets the empty mask too.
    bool ladeAuchOhne = false;

    /// A box was clicked; the archive is already the new one.
    std::function<void()> beiWechsel;

private:
    void lade();
    void wechsle(QCheckBox& kasten);
    void zeigeStand(const Spielartenstand& stand);
    void zeigeNichts();

    Bildschirm& bildschirm_;
    std::array<QCheckBox*, 3> chkArt;
    std::array<QLabel*, 3> lblZ;
    QLabel* lblTipp;
};
