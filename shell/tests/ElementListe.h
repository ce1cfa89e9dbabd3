#pragma once

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "testhilfen/Buehnentest.h"
#include "tools/buehne/Eingabe.h"

#include <QCoreApplication>
#include <QImage>
#include <QScrollBar>

#include <string>
#include <vector>

/// A screen of nothing but a list.
class Listenprobe final : public Bildschirm {
public:
    Listenprobe(Umgebung& umgebung, ListenModell::Eigenschaften eigenschaften)
        : Bildschirm(umgebung, "frmProbe", "Probe"),
          Liste1(liste("Liste1", eigenschaften))
    {
        Liste1->setzeSichtbar(10, 30);
        setzeInhalt(spalte({dehnbar(Liste1)}));
    }

    Liste* Liste1;
};

/// A list on a screen; what the user does to it is written down.
class ElementListe : public Buehnentest {
protected:
    Liste& zeige(ListenModell::Eigenschaften eigenschaften = {})
    {
        buehne.bildschirme.registriere(
            "frmProbe", [eigenschaften](Umgebung& u) { return std::make_unique<Listenprobe>(u, eigenschaften); });
        oeffne("frmProbe");
        liste_ = buehne.bildschirme.lade<Listenprobe>("frmProbe").Liste1;
        liste_->beiAuswahl = [this] { ++auswahlen; };
        liste_->beiDoppelklick = [this](int zeile) { doppelklicks.push_back(zeile); };
        return *liste_;
    }

    /// A list of rows "0000", "0001" ... as it stands on the screen.
    Liste& zeigeZeilen(int anzahl, ListenModell::Eigenschaften eigenschaften = {})
    {
        Liste& liste = zeige(eigenschaften);
        for (int i = 0; i < anzahl; ++i)
            liste.modell().AddItem(Format(i, "0000"));
        QCoreApplication::processEvents();
        return liste;
    }

    /// A list of rows that are made on request; `gefragte` are those that someone wanted to see.
    Liste& zeigeAufAnfrage(std::size_t anzahl)
    {
        Liste& liste = zeige();
        fuelleAufAnfrage(anzahl);
        QCoreApplication::processEvents();
        gefragte.clear();
        return liste;
    }

    void fuelleAufAnfrage(std::size_t anzahl)
    {
        liste_->modell().aufAnfrage(anzahl, [this](std::size_t zeile) {
            gefragte.push_back(zeile);
            return std::to_string(zeile);
        });
    }

    std::vector<std::string> texte() const
    {
        std::vector<std::string> alle;
        for (int zeile = 0; zeile < liste_->zeilenzahl(); ++zeile)
            alle.push_back(utf8(liste_->zeilentext(zeile)));
        return alle;
    }

    std::vector<int> gewaehlte() const
    {
        std::vector<int> alle;
        for (int zeile = 0; zeile < liste_->zeilenzahl(); ++zeile)
            if (liste_->istGewaehlt(zeile))
                alle.push_back(zeile);
        return alle;
    }

    void druecke(const QString& tasten) { Eingabe::tippe(liste_, tasten); }

    void klickeZeile(int zeile, Qt::KeyboardModifiers tasten = {})
    {
        Eingabe::klicke(liste_->viewport(), ort(zeile), tasten);
    }

    QPoint ort(int zeile) const { return {10, liste_->zeilenrechteck(zeile).center().y()}; }
    int seite() const { return liste_->verticalScrollBar()->pageStep(); }
    int oberste() const { return liste_->obersteZeile(); }
    /// The list as it is painted at this moment, without a turn of the event loop before.
    QImage gemalt() const
    {
        QImage bild(liste_->viewport()->size(), QImage::Format_RGB32);
        liste_->viewport()->render(&bild);
        return bild;
    }

    int auswahlen = 0;
    std::vector<int> doppelklicks;
    std::vector<std::size_t> gefragte;

private:
    Liste* liste_ = nullptr;
};
