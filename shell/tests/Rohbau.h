#pragma once

#include "shell/elements/Bildschirm.h"
#include "testhilfen/Buehnentest.h"

/// A screen that a test furnishes.
class Rohbau final : public Bildschirm {
public:
    using Einrichtung = std::function<QLayout*(Rohbau&)>;

    Rohbau(Umgebung& umgebung, const Einrichtung& einrichtung) : Bildschirm(umgebung, "frmProbe", "Probe")
    {
        setzeInhalt(einrichtung(*this));
    }

    using Bildschirm::befehl;
    using Bildschirm::bei;
    using Bildschirm::bezeichnung;
    using Bildschirm::clipBefehl;
    using Bildschirm::enterDrueckt;
    using Bildschirm::hauptaktionen;
    using Bildschirm::kombi;
    using Bildschirm::kontroll;
    using Bildschirm::liste;
    using Bildschirm::option;
    using Bildschirm::rahmen;
    using Bildschirm::stoppknopf;
    using Bildschirm::textfeld;
    using Bildschirm::zeigeGelaufen;
};

class Rohbautest : public Buehnentest {
protected:
    Bildschirm& zeige(const Rohbau::Einrichtung& einrichtung)
    {
        buehne.bildschirme.registriere("frmProbe",
                                       [einrichtung](Umgebung& u) { return std::make_unique<Rohbau>(u, einrichtung); });
        oeffne("frmProbe");
        return *buehne.bildschirme.geladen("frmProbe");
    }

    bool istOffen() const { return buehne.bildschirme.geladen("frmProbe") != nullptr; }
};
