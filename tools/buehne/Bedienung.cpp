#include "tools/buehne/Bedienung.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Zeilenansicht.h"
#include "tools/buehne/Eingabe.h"
#include "tools/buehne/Feldwert.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QMenu>
#include <QTimer>

namespace {

Antwort verweigert(const QString& grund)
{
    return {{}, grund};
}

QMenu* offenesMenue(const QAction* eintrag)
{
    auto* menue = qobject_cast<QMenu*>(eintrag->parent());
    return menue && menue->isVisible() ? menue : nullptr;
}

/// Where the mouse goes for a named control: to its middle, in a list to the chosen row.
struct Mausziel {
    explicit Mausziel(QWidget* ganzes) : feld(ganzes), ort(ganzes->rect().center())
    {
        if (const auto* rollend = qobject_cast<QAbstractScrollArea*>(ganzes)) {
            feld = rollend->viewport();
            ort = feld->rect().center();
        }
        auto* liste = dynamic_cast<Zeilenansicht*>(ganzes);
        const std::vector<int> gewaehlt = liste ? liste->gewaehlteZeilen() : std::vector<int>();
        if (!gewaehlt.empty())
            ort = zeilenort(*liste, gewaehlt.front());
    }

    static QPoint zeilenort(Zeilenansicht& liste, int zeile)
    {
        constexpr int kEinzug = 4;
        liste.zeigeZeile(zeile);
        return {kEinzug, liste.zeilenrechteck(zeile).center().y()};
    }

    QWidget* feld;
    QPoint ort;
};

} // namespace

Bedienung::Bedienung(Buehne& buehne) : buehne_(buehne) {}

Bildschirm* Bedienung::aktuell()
{
    Bildschirm* bildschirm = buehne_.bildschirme.geladen(name_);
    if (bildschirm && (bildschirm->isVisible() || bildschirm->laeuft() || istVerborgenBenannt_))
        return bildschirm;
    istVerborgenBenannt_ = false;
    for (Bildschirm* anderer : buehne_.bildschirme.geladene()) {
        if (anderer->isVisible()) {
            name_ = anderer->name();
            return anderer;
        }
    }
    return bildschirm;
}

Antwort Bedienung::oeffne(const QString& bildschirm)
{
    if (!buehne_.bildschirme.kennt(bildschirm))
        return verweigert("kein Bildschirm " + bildschirm);
    Bildschirm* menue = buehne_.bildschirme.geladen("frmLSTART");
    if (menue && menue->isVisible() && bildschirm != menue->name()) {
        name_ = menue->name();
        const Antwort weg = ausMenue ? ausMenue(bildschirm) : Antwort{};
        if (!weg.gelungen())
            return weg;
        if (!ausMenue)
            menue->hide();
    }
    const Bildschirm* offen = buehne_.bildschirme.geladen(bildschirm);
    if (!offen || !offen->isVisible())
        buehne_.bildschirme.oeffne(bildschirm);
    name_ = bildschirm;
    istVerborgenBenannt_ = false;
    return {};
}

Antwort Bedienung::benutze(const QString& bildschirm)
{
    const Bildschirm* offen = buehne_.bildschirme.geladen(bildschirm);
    if (!offen)
        return verweigert("nicht offen: " + bildschirm);
    name_ = bildschirm;
    istVerborgenBenannt_ = !offen->isVisible();
    return {};
}

Antwort Bedienung::schliesse()
{
    if (Bildschirm* bildschirm = aktuell())
        bildschirm->schliesse();
    istVerborgenBenannt_ = false;
    aktuell();
    return {};
}

QObject* Bedienung::finde(const QString& name)
{
    Bildschirm* bildschirm = aktuell();
    if (!bildschirm)
        return nullptr;
    if (bildschirm->name() == name)
        return bildschirm;
    QObject* gefunden = nullptr;
    for (QObject* feld : bildschirm->findChildren<QObject*>(name)) {
        const auto* sichtbar = qobject_cast<QWidget*>(feld);
        if (!gefunden || (sichtbar && sichtbar->isVisible()))
            gefunden = feld;
    }
    return gefunden;
}

QWidget* Bedienung::bedienbar(const QString& name, Antwort& antwort)
{
    auto* feld = qobject_cast<QWidget*>(finde(name));
    if (!feld)
        antwort.grund = "kein Feld " + name;
    else if (!feld->isVisible())
        antwort.grund = name + " ist verborgen";
    else if (!feld->isEnabled())
        antwort.grund = name + " ist gesperrt";
    return antwort.gelungen() ? feld : nullptr;
}

Zeilenansicht* Bedienung::ansicht(const QString& name, Antwort& antwort, bool bedienen)
{
    auto* ansicht = dynamic_cast<Zeilenansicht*>(finde(name));
    if (!ansicht)
        antwort.grund = "keine Liste " + name;
    else if (bedienen && !bedienbar(name, antwort))
        return nullptr;
    return ansicht;
}

Antwort Bedienung::namen()
{
    Antwort antwort;
    const Bildschirm* bildschirm = aktuell();
    if (!bildschirm)
        return verweigert("kein Bildschirm");
    for (const QObject* feld : bildschirm->findChildren<QObject*>()) {
        const bool zaehlt =
            feld->isWidgetType() || qobject_cast<const QAction*>(feld) || qobject_cast<const QTimer*>(feld);
        if (zaehlt && !feld->objectName().isEmpty() && !feld->objectName().startsWith("qt_"))
            antwort.zeilen << feld->objectName() + "\t" + feld->metaObject()->className() + "\t" + liesFeld(feld);
    }
    return antwort;
}

Antwort Bedienung::mitMaus(const QString& name, const std::function<void(QWidget*, QPoint)>& tue)
{
    Antwort antwort;
    if (QWidget* feld = bedienbar(name, antwort)) {
        const Mausziel ziel(feld);
        tue(ziel.feld, ziel.ort);
    }
    return antwort;
}

Antwort Bedienung::klicke(const QString& name)
{
    if (auto* eintrag = qobject_cast<QAction*>(finde(name))) {
        QMenu* menue = offenesMenue(eintrag);
        if (!menue || !eintrag->isEnabled())
            return verweigert(name + (menue ? " ist gesperrt" : " ist verborgen"));
        Eingabe::ueberfahre(menue, menue->actionGeometry(eintrag).center());
        Eingabe::klicke(menue, menue->actionGeometry(eintrag).center());
        return {};
    }
    return mitMaus(name, [](QWidget* feld, QPoint ort) { Eingabe::klicke(feld, ort); });
}

Antwort Bedienung::doppelklicke(const QString& name)
{
    return mitMaus(name, &Eingabe::doppelklicke);
}

Antwort Bedienung::druecke(const QString& name)
{
    return mitMaus(name, [](QWidget* feld, QPoint ort) { Eingabe::druecke(feld, ort); });
}

Antwort Bedienung::lasseLos(const QString& name)
{
    return mitMaus(name, [](QWidget* feld, QPoint ort) { Eingabe::lasseLos(feld, ort); });
}

Antwort Bedienung::ueberfahre(const QString& name)
{
    auto* feld = qobject_cast<QWidget*>(finde(name));
    if (!feld || !feld->isVisible())
        return verweigert(feld ? name + " ist verborgen" : "kein Feld " + name);
    const auto* rollend = qobject_cast<QAbstractScrollArea*>(feld);
    QWidget* flaeche = rollend ? rollend->viewport() : feld;
    Eingabe::ueberfahre(flaeche, Eingabe::freieStelle(flaeche));
    return {};
}

Antwort Bedienung::setze(const QString& name, const QString& text)
{
    Antwort antwort;
    if (QWidget* feld = bedienbar(name, antwort)) {
        const QString grund = setzeFeld(feld, text);
        if (!grund.isEmpty())
            antwort.grund = name + ": " + grund;
    }
    return antwort;
}

Antwort Bedienung::tippe(const QString& name, const QString& tasten)
{
    Antwort antwort;
    if (QWidget* feld = bedienbar(name, antwort))
        Eingabe::tippe(feld, tasten);
    return antwort;
}

Antwort Bedienung::waehle(const QString& name, const QList<int>& zeilen)
{
    Antwort antwort;
    Zeilenansicht* liste = ansicht(name, antwort, true);
    for (int i = 0; liste && i < zeilen.size(); ++i) {
        const int zeile = zeilen[i];
        if (zeile < 0 || zeile >= liste->zeilenzahl())
            return verweigert(QString("%1 hat keine Zeile %2").arg(name).arg(zeile));
        Eingabe::klicke(liste->viewport(), Mausziel::zeilenort(*liste, zeile),
                        i == 0 ? Qt::NoModifier : Qt::ControlModifier);
    }
    return antwort;
}

Antwort Bedienung::ticke(const QString& name)
{
    auto* uhr = qobject_cast<QTimer*>(finde(name));
    if (!uhr)
        return verweigert("keine Uhr " + name);
    QMetaObject::invokeMethod(uhr, "timeout", Qt::DirectConnection);
    return {};
}

Antwort Bedienung::text(const QString& name)
{
    const QObject* feld = finde(name);
    return feld ? Antwort{{liesFeld(feld)}, {}} : verweigert("kein Feld " + name);
}

Antwort Bedienung::zustand(const QString& name)
{
    const QObject* feld = finde(name);
    if (const auto* eintrag = qobject_cast<const QAction*>(feld))
        return {{zustandVon(eintrag, offenesMenue(eintrag))}, {}};
    const auto* sichtbares = qobject_cast<const QWidget*>(feld);
    return sichtbares ? Antwort{{zustandVon(sichtbares)}, {}} : verweigert("kein Feld " + name);
}

Antwort Bedienung::anzahl(const QString& name)
{
    if (const auto* kombi = qobject_cast<QComboBox*>(finde(name)))
        return {{QString::number(kombi->count())}, {}};
    Antwort antwort;
    if (const Zeilenansicht* liste = ansicht(name, antwort))
        antwort.zeilen << QString::number(liste->zeilenzahl());
    return antwort;
}

Antwort Bedienung::zeilen(const QString& name, int ab, int hoechstens)
{
    Antwort antwort;
    const Zeilenansicht* liste = ansicht(name, antwort);
    if (!liste)
        return antwort;
    const int bis = static_cast<int>(std::min<qint64>(liste->zeilenzahl(), qint64{ab} + hoechstens));
    for (int zeile = std::max(0, ab); zeile < bis; ++zeile)
        antwort.zeilen << liste->zeilentext(zeile);
    return antwort;
}

Antwort Bedienung::gewaehlte(const QString& name)
{
    Antwort antwort;
    const Zeilenansicht* liste = ansicht(name, antwort);
    if (!liste)
        return antwort;
    QStringList nummern;
    for (const int zeile : liste->gewaehlteZeilen())
        nummern << QString::number(zeile);
    if (!nummern.isEmpty())
        antwort.zeilen << nummern.join(',');
    return antwort;
}

Antwort Bedienung::farben(const QString& name, int zeile)
{
    Antwort antwort;
    const Zeilenansicht* liste = ansicht(name, antwort);
    if (!liste)
        return antwort;
    if (zeile < 0 || zeile >= liste->zeilenzahl())
        return verweigert(QString("%1 hat keine Zeile %2").arg(name).arg(zeile));
    QStringList zellen;
    for (const Zellfarben& farben : liste->zellfarben(zeile))
        zellen << farben.grund.name() + "/" + farben.schrift.name();
    antwort.zeilen << zellen.join('\t');
    return antwort;
}

Antwort Bedienung::eintraege(const QString& name)
{
    const auto* kombi = qobject_cast<QComboBox*>(finde(name));
    if (!kombi)
        return verweigert("keine Auswahl " + name);
    Antwort antwort;
    for (int i = 0; i < kombi->count(); ++i)
        antwort.zeilen << kombi->itemText(i);
    return antwort;
}

Antwort Bedienung::titel()
{
    const Bildschirm* bildschirm = aktuell();
    return bildschirm ? Antwort{{bildschirm->windowTitle()}, {}} : verweigert("kein Bildschirm");
}

Antwort Bedienung::bild(const QString& datei)
{
    Bildschirm* bildschirm = aktuell();
    if (!bildschirm)
        return verweigert("kein Bildschirm");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    return bildschirm->grab().save(datei) ? Antwort{} : verweigert("nicht zu schreiben: " + datei);
}
