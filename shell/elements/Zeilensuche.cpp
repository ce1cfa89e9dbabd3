#include "shell/elements/Zeilensuche.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zeilenansicht.h"
#include "shell/logic/Texte.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto kBedenkzeit = 1500ms;
constexpr auto kScheibe = 12ms; ///< of searching between two turns of the event loop
constexpr int kJeBlick = 64;    ///< rows between two looks at the clock

} // namespace

Zeilensuche::Zeilensuche(Zeilenansicht& ansicht) : QObject(&ansicht), ansicht_(ansicht)
{
    bedenkzeit_.setSingleShot(true);
    bedenkzeit_.setInterval(kBedenkzeit);
    takt_.setInterval(0);
    connect(&takt_, &QTimer::timeout, this, [this] { suche(); });
}

bool Zeilensuche::tippe(const QString& text)
{
    if (!bedenkzeit_.isActive())
        getippt_.clear();
    const bool gehoertDazu =
        text.size() == 1 && (istZiffer(text[0].toLatin1()) || (!getippt_.empty() && (text == "/" || text == ".")));
    if (!gehoertDazu)
        return false;
    getippt_ += utf8(text);
    bedenkzeit_.start();
    naechste_ = 0;
    beste_ = -1;
    passung_ = Passung::Keine;
    zeilenstand_ = ansicht_.zeilenstand();
    fokus_ = ansicht_.fokuszeile();
    takt_.start();
    suche();
    return true;
}

bool Zeilensuche::istNochGefragt() const
{
    return zeilenstand_ == ansicht_.zeilenstand() && fokus_ == ansicht_.fokuszeile();
}

void Zeilensuche::suche()
{
    if (!istNochGefragt()) {
        takt_.stop();
        return;
    }
    const auto ende = std::chrono::steady_clock::now() + kScheibe;
    for (; naechste_ < ansicht_.zeilenzahl() && passung_ != Passung::ErstesFeld; ++naechste_) {
        if (naechste_ % kJeBlick == kJeBlick - 1 && std::chrono::steady_clock::now() >= ende)
            break;
        const Passung hier = passung(utf8(ansicht_.zeilentext(naechste_)), getippt_);
        if (hier < passung_) {
            passung_ = hier;
            beste_ = naechste_;
        }
    }
    if (naechste_ == ansicht_.zeilenzahl() || passung_ == Passung::ErstesFeld)
        beende();
}

void Zeilensuche::beende()
{
    takt_.stop();
    if (beste_ >= 0)
        ansicht_.geheZu(beste_, Qt::NoModifier);
    else if (auto* bildschirm = dynamic_cast<Bildschirm*>(ansicht_.window()))
        bildschirm->melde("Keine Zeile beginnt mit " + qt(getippt_));
}
