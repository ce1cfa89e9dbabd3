#pragma once

#include "filters/logic/Ziehungsfund.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

class AutomatischeAnzeige;
class Bildschirm;
class Liste;
class QGroupBox;
class QPushButton;
class Tippfeld7x7View;

/// How a tool lists the draws that it has found.
struct Fundliste {
    std::function<std::string(const Ziehungsfund&)> zeile;
    int zeichen = 0; ///< of a row, to be in sight without scrolling
    int zeilen = 20;
    const char* hinweis = "Automatische Anzeige im Tippfeld  ein/aus";
};

/// The draws that a filter has found: their list `List1`, and beside it the frame `frame3` with the ticket of the
/// chosen draw and `cmdAuto`, which goes through the list by itself.
class Fundanzeige {
public:
    Fundanzeige(Bildschirm& bildschirm, const Fundliste& fundliste);

    Liste* liste() const { return List1; }
    QGroupBox* rahmen() const { return frame3; }

    /// Lists the draws and shows the first one; without any, the ticket stays as it is.
    void zeige(std::vector<Ziehungsfund> funde);
    void leere();
    /// Shows numbers of their own on the ticket, which the automatic display leaves alone until it is switched on.
    void zeigeZahlen(std::span<const std::int32_t> zahlen);

private:
    void zeigeZeile(std::size_t zeile);
    void markiere(std::span<const std::int32_t> zahlen);

    std::function<std::string(const Ziehungsfund&)> macheZeile_;
    std::vector<Ziehungsfund> funde_;
    Liste* List1;
    QPushButton* cmdAuto;
    Tippfeld7x7View* Bezeichnung6;
    QGroupBox* frame3;
    AutomatischeAnzeige* automatik_;
};
