#include "tools/drive/Menueweg.h"

#include "shell/app/Menuetafel.h"

#include <QWidget>

#include <array>

namespace {

const QString kPopupknopf = "Befehl1";

/// Name of the menu's button for a screen; empty if it has none.
QString menueknopf(const std::vector<std::vector<Menuegruppe>>& tafel, const QString& ziel)
{
    for (const auto& spalte : tafel) {
        for (const Menuegruppe& gruppe : spalte) {
            for (const Menueknopf& knopf : gruppe.knoepfe)
                if (knopf.ziel == ziel && knopf.oeffnung != Oeffnung::NurDruecken)
                    return knopf.name;
        }
    }
    return {};
}

QString popupeintrag(const QString& ziel)
{
    for (const Popupeintrag& eintrag : menueOption())
        if (eintrag.ziel == ziel)
            return eintrag.name;
    return {};
}

} // namespace

Antwort geheAusMenue(Bedienung& bedienung, const Buehne& buehne, const QString& bildschirm)
{
    static const std::array<QString, 4> kOptionen{"Option1", "Option1", "Option2", "Option3"};
    const QString knopf = menueknopf(menuewand(), bildschirm);
    const QString rolloknopf = menueknopf(menuerollo(), bildschirm);
    const QString eintrag = popupeintrag(bildschirm);
    const bool gewoehnlich = !knopf.isEmpty() || !eintrag.isEmpty();
    const bool zusammen = static_cast<QWidget*>(bedienung.finde("frameRollo"))->isVisible();

    if (gewoehnlich && zusammen) {
        bedienung.klicke(kOptionen.at(static_cast<std::size_t>(buehne.archiv.Spielart)));
        // A combined tool may leave a game behind that the other one is not made for.
        if (!static_cast<QWidget*>(bedienung.finde(knopf.isEmpty() ? kPopupknopf : knopf))->isEnabled())
            bedienung.klicke(kOptionen.front());
    } else if (!rolloknopf.isEmpty() && !zusammen)
        bedienung.klicke("Option4");

    if (!knopf.isEmpty())
        return bedienung.klicke(knopf);
    if (!rolloknopf.isEmpty())
        return bedienung.klicke(rolloknopf);
    if (eintrag.isEmpty())
        return {};
    const Antwort popup = bedienung.klicke(kPopupknopf);
    return popup.gelungen() ? bedienung.klicke(eintrag) : popup;
}
