#pragma once

#include "shell/elements/Bildschirm.h"
#include "shell/logic/Tippfeld7x7.h"
#include "shell/logic/clsTimer.h"
#include "tips/logic/Zeitreise.h"
#include "tips/screens/Zeitreiseliste.h"

#include <memory>
#include <optional>
#include <vector>

class Desktopausgabe;
class ListView;
class Markenwahl;
class Positionstafel;
class QLabel;
class QPushButton;
class Tippwahl;
class Zahlenhaeufigkeit;
class Zeitreisezaehler;

/// What the three screens of the time travel share: what a tip would have won in every draw so far, and in which draws
/// a combination came up. They differ in their draws, their plan of prize classes and their columns.
class Zeitreisebildschirm : public Bildschirm {
public:
    ~Zeitreisebildschirm() override;

    /// What the list shows, with all that it was computed from.
    const Zeitreise& ergebnis() const { return ergebnis_; }

    /// Takes over the tip of another screen as a full tip and evaluates it at once. Without a Superzahl that of this
    /// screen stays. On closing, the user is back at the other screen.
    void uebernimm(const Tippfeld7x7& tipp, std::optional<int> superzahl = {});

    bool kehrtZumMenueZurueck() const override { return !uebergeben_; }
    void beimZeigen() override;

protected:
    Zeitreisebildschirm(Umgebung& umgebung, const QString& name, Zeitreiseform form);

    /// What a derived screen adds: rows at the top, blocks below the entry of the tip, buttons at the foot.
    void ordneAn(const Bloecke& oben, const Bloecke& links, const Bloecke& knoepfe);
    /// This control is to be seen in the full tip mode only.
    void nurFuerVollenTipp(QWidget* feld) { nurVollerTipp_.push_back(feld); }

    /// Answers a complete question; the base over the archive as it is loaded.
    virtual Zeitreise werteAus(const Zeitreisefrage& frage);
    /// The games that are looked through.
    virtual std::vector<std::int16_t> spielarten() const;
    virtual std::optional<Zeitreisezeile> letzte();
    /// What the list shows in the full tip mode.
    virtual Zeitreiseart ansicht() const { return Zeitreiseart::Gewinne; }
    virtual QString info() const;

    /// Evaluates anew what is chosen, or clears what was shown.
    void erneuere();
    void zeigeUeberschriften();

    Tippwahl& tippwahl() const { return *Rahmen6; }
    Zeitreiseform form() const { return form_; }
    Desktopausgabe* ausgabe() const { return ausgabe_.get(); }

    void changeEvent(QEvent* ereignis) override;

private:
    void verbinde();
    void wechsleModus();
    void stelleModus();
    void zeige();
    void nimmLetzteZiehung();
    void leereListe();
    bool istVeraltet() const;
    QString ziehungstext() const;
    Zeitreisefrage frage() const;
    bool kombination() const;

    Zeitreiseform form_;
    Zeitreise ergebnis_;
    clsTimer uhr_;
    bool uebergeben_ = false; ///< by another screen, which the user comes back to
    std::vector<QWidget*> nurVollerTipp_;
    std::unique_ptr<Desktopausgabe> ausgabe_; ///< none with the old plan
    Zeitreiseliste liste_;
    Tippwahl* Rahmen6;
    Positionstafel* Rahmen4;
    Zahlenhaeufigkeit* Rahmen2;
    Zeitreisezaehler* Rahmen1;
    Markenwahl* modus_;
    QLabel *Bezeichnung1, *Bezeichnung8, *Bezeichnung20, *Label2;
    QPushButton *Befehl2, *Befehl13, *Befehl19;
};
