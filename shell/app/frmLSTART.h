#pragma once

#include "shell/app/Knopfwand.h"
#include "shell/elements/Bildschirm.h"

class QFrame;
class QMenu;
class QStackedLayout;
class Tippfeld7x7View;

/// The selection menu: the game, the wall of tools, a random Tipp. The program starts on it and ends with it.
class frmLSTART final : public Bildschirm, public Menue {
public:
    explicit frmLSTART(Umgebung& umgebung);
    ~frmLSTART() override;

    void waehleSpielart(std::int16_t spielart) override;
    std::int16_t gewaehlteSpielart() const override;
    void zeigeWieder() override;

    void mausUeber(QWidget* feld) override;
    bool kehrtZumMenueZurueck() const override { return false; }
    /// Esc leaves a tool, but not the program.
    bool schliesstMitEsc() const override { return false; }

protected:
    void beimSchliessen() override;
    void zeigeStatus(const QString& text) override;
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Knopfwand* baueWand(const std::vector<std::vector<Menuegruppe>>& spalten, const QString& gruppenname);
    QWidget* baueRollo();
    QWidget* baueFuss();
    QWidget* baueSpielnamen();
    QMenu* bauePopup();
    QGroupBox* baueTipp();

    void ladeArchiv(std::int16_t spielart);
    void zeigeZusammen();
    void zeigeLetzteZiehung();
    Knopfstand knopfstand(const Menueknopf& knopf, std::int16_t spielart) const;
    bool istEingebaut(const Menueknopf& knopf) const;

    void tippe();
    void fuehreAus(const Menueknopf& knopf);
    void oeffne(const Menueknopf& knopf);
    void oeffneAusPopup(const Popupeintrag& eintrag);
    void zeigeHilfe();
    void zeigeInfoZusammen();

    QRadioButton *Option1, *Option2, *Option3, *Option4;
    std::array<QLabel*, 2> Bezeichnung3; ///< the shadow and the text above it
    QFrame* picU;
    QLabel* Bezeichnung2;
    QWidget* frameRollo;
    QMenu* mnuOption;
    Tippfeld7x7View* Bezeichnung1;
    Knopfwand* wand_;
    QStackedLayout* wechsel_;
};
