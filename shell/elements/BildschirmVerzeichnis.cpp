#include "shell/elements/BildschirmVerzeichnis.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Fensterplatz.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Formular.h"

#include <algorithm>

BildschirmVerzeichnis::BildschirmVerzeichnis(Umgebung& umgebung) : umgebung_(umgebung)
{
    umgebung_.bildschirme = this;
}

BildschirmVerzeichnis::~BildschirmVerzeichnis()
{
    umgebung_.bildschirme = nullptr;
}

void BildschirmVerzeichnis::registriere(const QString& name, Erzeuger erzeuger)
{
    if (Eintrag* eintrag = finde(name))
        eintrag->erzeuger = std::move(erzeuger);
    else
        eintraege_.push_back({name, std::move(erzeuger), nullptr});
}

std::vector<QString> BildschirmVerzeichnis::namen() const
{
    std::vector<QString> alle;
    alle.reserve(eintraege_.size());
    for (const Eintrag& eintrag : eintraege_)
        alle.push_back(eintrag.name);
    return alle;
}

const BildschirmVerzeichnis::Eintrag* BildschirmVerzeichnis::finde(const QString& name) const
{
    const auto treffer = std::find_if(eintraege_.begin(), eintraege_.end(), [&name](const Eintrag& eintrag) {
        return eintrag.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return treffer == eintraege_.end() ? nullptr : &*treffer;
}

BildschirmVerzeichnis::Eintrag* BildschirmVerzeichnis::finde(const QString& name)
{
    return const_cast<Eintrag*>(std::as_const(*this).finde(name));
}

bool BildschirmVerzeichnis::kennt(const QString& name) const
{
    return finde(name) != nullptr;
}

Bildschirm& BildschirmVerzeichnis::lade(const QString& name)
{
    Eintrag& eintrag = *finde(name);
    if (!eintrag.geladen)
        eintrag.geladen = eintrag.erzeuger(umgebung_);
    return *eintrag.geladen;
}

Bildschirm* BildschirmVerzeichnis::geladen(const QString& name) const
{
    const Eintrag* eintrag = finde(name);
    return eintrag ? eintrag->geladen.get() : nullptr;
}

std::vector<Bildschirm*> BildschirmVerzeichnis::geladene() const
{
    std::vector<Bildschirm*> alle;
    for (const Eintrag& eintrag : eintraege_)
        if (eintrag.geladen)
            alle.push_back(eintrag.geladen.get());
    return alle;
}

bool BildschirmVerzeichnis::FormGeladen(const QString& name) const
{
    std::vector<std::string> namen;
    for (const Bildschirm* bildschirm : geladene())
        namen.push_back(utf8(bildschirm->name()));
    return ::FormGeladen(namen, utf8(name));
}

Bildschirm& BildschirmVerzeichnis::oeffne(const QString& name)
{
    Bildschirm& bildschirm = lade(name);
    if (!bildschirm.isVisible()) {
        bildschirm.beimZeigen();
        Fensterplatz::richteEin(bildschirm);
    }
    bildschirm.show();
    bildschirm.activateWindow();
    return bildschirm;
}

void BildschirmVerzeichnis::entlade(Bildschirm& bildschirm)
{
    for (Eintrag& eintrag : eintraege_) {
        if (eintrag.geladen.get() == &bildschirm) {
            bildschirm.hide();
            eintrag.geladen.release()->deleteLater();
        }
    }
}

void BildschirmVerzeichnis::entladeAlle()
{
    for (int runde = 0; runde < 2; ++runde) {
        for (Bildschirm* bildschirm : geladene())
            if (geladen(bildschirm->name()) == bildschirm) // else another one has closed it
                bildschirm->close();
    }
}
