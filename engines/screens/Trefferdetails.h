#pragma once

#include "engines/logic/Trefferliste.h"
#include "listcontrol/logic/ICustomDraw.h"
#include "shell/elements/Rahmen.h"

class Bildschirm;
class ListView;
class QLabel;
class QLayout;
class QTimer;

/// The frame `FrameDetail` with the list `ListView1` of the draws in which one combination wins, and their count
/// `lblDetail`.
class Trefferdetails final : public Rahmen, private ICustomDraw {
public:
    /// `spalten` must outlive the frame; `dazu` stands between the list and the count.
    Trefferdetails(Bildschirm& bildschirm, std::span<const Trefferspalte> spalten, QLayout* dazu = nullptr);

    /// Shows the hits of a combination in the draws. Without a chosen Superzahl only three right numbers or more win.
    void zeige(const ZiehungsArchiv& ziehungen, const Kombination& kombination,
               std::optional<std::int32_t> superzahl = {});
    /// Takes the combination away.
    void leere();

    /// The combination on show; nothing before the first one.
    const std::optional<Kombination>& kombination() const { return kombination_; }
    const std::vector<Gewinnfall>& faelle() const { return faelle_; }
    Trefferzaehler zaehler() const { return zaehle(faelle_); }

private:
    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override;
    void baueSpalten();
    void fuelleWeiter();
    void haengeAn(const Gewinnfall& fall);

    std::span<const Trefferspalte> spalten_;
    std::optional<Kombination> kombination_;
    std::vector<Gewinnfall> faelle_;
    ListView* ListView1;
    QLabel* lblDetail;
    QTimer* fuellung_; ///< goes on with a list that is too long for one go
};
