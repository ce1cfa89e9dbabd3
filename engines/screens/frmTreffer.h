#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/TreffersucheTexte.h"
#include "shell/elements/Bildschirm.h"

#include <optional>

class Infotafel;
class Spielartenwahl;
class Trefferdetails;

/// The full run: which of all combinations of 6 aus 49 would have won most often, and which least.
class frmTreffer final : public Bildschirm {
public:
    explicit frmTreffer(Umgebung& umgebung);

    /// The last search; an empty one before the first.
    const Treffersuche& ergebnis() const { return ergebnis_; }

protected:
    void beimSchliessen() override;

private:
    /// One of the five lists with what stands above and below it.
    struct Feld {
        QLabel* titel;
        QLabel* kopf;
        Liste* liste;
        QLabel* lblCount;
    };

    void baueFeld(Rangliste liste, const char* name);
    QLayout* anordnung(Rangliste liste) const;
    const Feld& feldVon(Rangliste liste) const { return felder_[static_cast<std::size_t>(liste)]; }
    void verbinde();

    void suche();
    void beginne(const Trefferschwellen& schwellen);
    void zeigeStand(std::uint64_t erledigt, std::uint64_t ziehungen);
    void zeigeErgebnis();
    void sortiere(bool absteigend);
    void wendeListen(bool absteigend);
    void zeigeTreffer(Rangliste liste, int zeile);
    Trefferauftrag auftrag() const;
    Trefferbericht angaben() const;
    std::string bericht();
    void setzeBedienbar(bool bedienbar);

    std::int16_t spielartBeimLaden_;
    Treffersuche ergebnis_;
    ZiehungsArchiv ziehungen_;              ///< those of the last search
    std::optional<Trefferauftrag> auftrag_; ///< of the last search
    std::array<Feld, kRanglisten> felder_{};
    Spielartenwahl* Frame1;
    Trefferdetails* FrameDetail;
    Infotafel* frameInfo;
    QCheckBox* chkHoeher;
    QLabel *lblK, *Label1, *lblV, *lblVergleich, *lbl8;
    QPushButton *Command1, *cmdAbbruch, *cmdEnd, *cmdInfo, *cmdSortAuf, *cmdSortAb, *cmdClip;
};
