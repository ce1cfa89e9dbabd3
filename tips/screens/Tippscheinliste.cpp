#include "tips/screens/Tippscheinliste.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Liste.h"
#include "tips/logic/Tippscheinname.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>

Tippscheinliste::Tippscheinliste(const ZiehungsArchiv& archiv, Liste& liste)
    : QObject(&liste),
      archiv_(archiv),
      liste_(liste)
{
    liste.installEventFilter(this);
    liste.viewport()->installEventFilter(this);
}

void Tippscheinliste::frischeAuf()
{
    const std::string gewaehlt = gewaehlter();
    ListenModell& modell = liste_.modell();
    modell.fuelle(tippscheinNamen(archiv_.ProgrammVerzeichnis, archiv_.Spielart));
    const auto wieder = std::ranges::find(modell.zeilen(), gewaehlt);
    if (wieder != modell.zeilen().end())
        modell.SetListIndex(wieder - modell.zeilen().begin());
}

std::size_t Tippscheinliste::anzahl() const
{
    return liste_.modell().ListCount();
}

std::string Tippscheinliste::gewaehlter() const
{
    const std::ptrdiff_t zeile = liste_.modell().ListIndex();
    return zeile < 0 ? std::string() : liste_.modell().List(static_cast<std::size_t>(zeile));
}

std::filesystem::path Tippscheinliste::pfad(const std::string& name) const
{
    return std::filesystem::path(archiv_.ProgrammVerzeichnis) / name;
}

bool Tippscheinliste::verlangeLoeschen(int zeile)
{
    if (!beiLoeschen || zeile < 0)
        return false;
    beiLoeschen(liste_.modell().List(static_cast<std::size_t>(zeile)));
    return true;
}

bool Tippscheinliste::eventFilter(QObject* feld, QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ContextMenu && feld == liste_.viewport()) {
        const auto& menue = static_cast<const QContextMenuEvent&>(*ereignis);
        return menue.reason() == QContextMenuEvent::Mouse && verlangeLoeschen(liste_.zeileBei(menue.y()));
    }
    if (ereignis->type() == QEvent::KeyPress && feld == &liste_ &&
        static_cast<const QKeyEvent&>(*ereignis).key() == Qt::Key_Delete)
        return verlangeLoeschen(liste_.fokuszeile());
    return false;
}
