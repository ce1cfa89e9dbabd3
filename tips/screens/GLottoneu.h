#pragma once

#include "shell/elements/Bildschirm.h"
#include "tips/logic/Computerlotto.h"

#include <array>

class Kugelreihe;
class Lauf;
class QLineEdit;
class Tippfeld7x7View;

/// The computer draws as often as it is told and counts how one tip fares.
class GLottoneu final : public Bildschirm {
public:
    explicit GLottoneu(Umgebung& umgebung);

private:
    QLayout* baueEingabe();
    QLayout* baueErgebnis();
    QGroupBox* baueListen();

    /// Draws as often as `Text7` says; the drawing itself is `ziehe`.
    void starte(QPushButton* knopf, void (GLottoneu::*ziehe)(Lauf&, std::int32_t));
    void zieheOhneAnimation(Lauf& lauf, std::int32_t anzahl);
    void zieheMitAnimation(Lauf& lauf, std::int32_t anzahl);
    void zeigeZaehler();
    void zeigeListen();
    void vergiss();
    void zeigeZeitspanne();
    void schalteListen();
    void geheZurueck();

    Computerlotto lotto_;
    Tippfeld7x7View* Bezeichnung6;
    Kugelreihe* kugeln_;
    QGroupBox* Rahmen4;
    Liste *Liste1, *Liste2;
    QLineEdit* Text7;
    QLineEdit *Text9, *Text12, *Text13, *Text14;
    std::array<QLabel*, 6> tippzahlen_;
    std::array<QLineEdit*, 6> haeufigkeiten_; ///< Text1 to Text6
    std::array<QLineEdit*, 6> treffer_;       ///< txtEiner to txtSechser
    QLabel *Labelvoll, *Bezeichnung14, *lblZeit;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl5, *Befehl7, *Befehl9, *Command1;
};
