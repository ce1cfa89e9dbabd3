#pragma once

#include "shell/elements/Umgebung.h"

#include <functional>
#include <memory>
#include <vector>

class Bildschirm;

/// All screens by name: those that can be opened, and those that are loaded. A screen is loaded once at most; naming
/// it loads it, closing it unloads it.
class BildschirmVerzeichnis {
public:
    using Erzeuger = std::function<std::unique_ptr<Bildschirm>(Umgebung&)>;

    explicit BildschirmVerzeichnis(Umgebung& umgebung);
    ~BildschirmVerzeichnis();

    /// A name registered before gets a new maker; a screen that is loaded stays.
    void registriere(const QString& name, Erzeuger erzeuger);
    /// Registers `T`, which is made from an Umgebung&.
    template <class T> void registriere(const QString& name)
    {
        registriere(name, [](Umgebung& umgebung) { return std::make_unique<T>(umgebung); });
    }

    /// Names of all registered screens, in the order of their registration.
    std::vector<QString> namen() const;
    bool kennt(const QString& name) const;

    /// The loaded screen of that name, loaded now if it was not. The name must be registered.
    Bildschirm& lade(const QString& name);
    /// The same as its own class; the tools that use a screen as their engine name it so.
    template <class T> T& lade(const QString& name) { return dynamic_cast<T&>(lade(name)); }
    /// Null if the screen is not loaded.
    Bildschirm* geladen(const QString& name) const;
    std::vector<Bildschirm*> geladene() const;
    /// True if a screen of that name, in whatever case, is loaded.
    bool FormGeladen(const QString& name) const;

    /// Loads the screen, centres it and brings it to the front.
    Bildschirm& oeffne(const QString& name);

    /// Takes a screen out of the loaded ones; it is destroyed once the running event has unwound.
    void entlade(Bildschirm& bildschirm);
    /// Closes every loaded screen, in two rounds: the first round may load another one.
    void entladeAlle();

private:
    struct Eintrag {
        QString name;
        Erzeuger erzeuger;
        std::unique_ptr<Bildschirm> geladen;
    };
    Eintrag* finde(const QString& name);
    const Eintrag* finde(const QString& name) const;

    Umgebung& umgebung_;
    std::vector<Eintrag> eintraege_;
};
