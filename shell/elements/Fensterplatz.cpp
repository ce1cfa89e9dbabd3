#include "shell/elements/Fensterplatz.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Rollinhalt.h"

#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {

/// Nobody knows the frame of a window before it is on the desktop for the first time: what common frames take.
constexpr QMargins kUeblicherRahmen{4, 32, 4, 4};

QMargins fensterrahmen(const Bildschirm& fenster)
{
    const QWindow* griff = fenster.windowHandle();
    const QMargins rahmen = griff ? griff->frameMargins() : QMargins();
    return rahmen.isNull() ? kUeblicherRahmen : rahmen;
}

QRect schreibtisch(const Bildschirm& fenster)
{
    return fenster.umgebung().schreibtisch.value_or(fenster.screen()->availableGeometry());
}

/// A screen without content is as large as it likes.
QSize wunschgroesse(const Bildschirm& fenster)
{
    const QSize platz = Fensterplatz::hoechstgroesse(fenster);
    const auto* inhalt = dynamic_cast<const Rollinhalt*>(fenster.layout());
    return inhalt ? inhalt->groesseIn(platz) : fenster.sizeHint().boundedTo(platz);
}

/// The window's place with its frame.
QRect ganzesFenster(const Bildschirm& fenster)
{
    const QMargins rahmen = fensterrahmen(fenster);
    return {fenster.pos(), fenster.size().grownBy(rahmen)};
}

} // namespace

QSize Fensterplatz::hoechstgroesse(const Bildschirm& fenster)
{
    return schreibtisch(fenster).size().shrunkBy(fensterrahmen(fenster));
}

void Fensterplatz::richteEin(Bildschirm& fenster)
{
    fenster.ensurePolished();
    if (fenster.layout())
        fenster.layout()->activate();
    fenster.resize(wunschgroesse(fenster));
    zentriere(fenster);
}

void Fensterplatz::berichtige(Bildschirm& fenster)
{
    const QSize groesse = wunschgroesse(fenster).expandedTo(fenster.size());
    if (groesse != fenster.size()) {
        fenster.resize(groesse);
        zentriere(fenster);
    }
    holeHerein(fenster);
}

void Fensterplatz::zentriere(Bildschirm& fenster)
{
    QRect ganz = ganzesFenster(fenster);
    ganz.moveCenter(schreibtisch(fenster).center());
    fenster.move(ganz.topLeft());
}

void Fensterplatz::holeHerein(Bildschirm& fenster)
{
    if (fenster.isMaximized() || fenster.isFullScreen())
        return;
    fenster.resize(fenster.size().boundedTo(hoechstgroesse(fenster)));
    const QRect tisch = schreibtisch(fenster);
    const QRect ganz = ganzesFenster(fenster);
    const QPoint ort(std::clamp(ganz.left(), tisch.left(), std::max(tisch.left(), tisch.right() - ganz.width() + 1)),
                     std::clamp(ganz.top(), tisch.top(), std::max(tisch.top(), tisch.bottom() - ganz.height() + 1)));
    if (ort != ganz.topLeft())
        fenster.move(ort);
}
