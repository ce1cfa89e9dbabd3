#include "shell/elements/Listenhandgriffe.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/DateiDialog.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/Utf8.h"
#include "shell/elements/Zeilenansicht.h"
#include "shell/elements/Zeilensuche.h"
#include "shell/logic/Dateien.h"
#include "shell/logic/Zeichensatz.h"

#include <QKeyEvent>
#include <QMenu>

namespace {

constexpr QLatin1String kZeilenende("\r\n");
constexpr int kAufEinmal = 20'000;             ///< so many rows are handed out at once
constexpr int kHoechstensKopierte = 5'000'000; ///< what a clipboard takes

bool ruftMenue(const QKeyEvent& taste)
{
    return taste.key() == Qt::Key_Menu || (taste.key() == Qt::Key_F10 && taste.modifiers() == Qt::ShiftModifier);
}

} // namespace

Listenhandgriffe::Listenhandgriffe(Zeilenansicht& ansicht)
    : QObject(&ansicht),
      ansicht_(ansicht),
      suche_(new Zeilensuche(ansicht))
{}

Bildschirm* Listenhandgriffe::bildschirm() const
{
    return dynamic_cast<Bildschirm*>(ansicht_.window());
}

bool Listenhandgriffe::nimm(const QKeyEvent& taste)
{
    if (reichtAus_ && taste.key() == Qt::Key_Escape) {
        bildschirm()->stoppe();
        return true;
    }
    if (taste.matches(QKeySequence::Copy)) {
        kopiere(gewaehlte());
        return true;
    }
    if (taste.matches(QKeySequence::SelectAll))
        return ansicht_.waehleAlle();
    if (ruftMenue(taste)) {
        zeigeMenue();
        return true;
    }
    const bool nurZeichen = (taste.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    return nurZeichen && suche_->tippe(taste.text());
}

Listenhandgriffe::Zeilenwahl Listenhandgriffe::alle() const
{
    return {ansicht_.zeilenzahl(), {}};
}

Listenhandgriffe::Zeilenwahl Listenhandgriffe::gewaehlte() const
{
    std::vector<int> zeilen = ansicht_.gewaehlteZeilen();
    if (zeilen.empty() && ansicht_.fokuszeile() >= 0)
        zeilen = {ansicht_.fokuszeile()};
    return {static_cast<int>(zeilen.size()), std::move(zeilen)};
}

void Listenhandgriffe::kopiere(const Zeilenwahl& wahl)
{
    Bildschirm* schirm = bildschirm();
    if (!schirm || wahl.anzahl == 0)
        return;
    if (wahl.anzahl > kHoechstensKopierte) {
        schirm->umgebung().boxen.info(kProgrammtitel, "Die Liste ist mit " + zeilenangabe(wahl.anzahl) +
                                                          " zu lang für die Zwischenablage.");
        return;
    }
    QString text;
    if (!reicheAus(wahl, [&text](const QString& zeile) { text += zeile + kZeilenende; }))
        return;
    text.chop(kZeilenende.size());
    schirm->uebertrage(text);
}

void Listenhandgriffe::speichere()
{
    Bildschirm* schirm = bildschirm();
    if (!schirm)
        return;
    QString pfad = SpezialOrdner(kCsidlDokumente);
    const QString name = DateiSpeichern(schirm->umgebung(), dateinameAus(schirm->grundtitel(), "txt"), pfad,
                                        "Textdateien|*.txt|Alle Dateien|*.*", "Liste als Textdatei speichern", "txt");
    if (name.isEmpty())
        return;
    AtomareDatei datei(utf8(pfad + name));
    const Zeilenwahl wahl = alle();
    if (!reicheAus(wahl,
                   [&datei](const QString& zeile) { datei.schreibe(nachWindows1252(utf8(zeile + kZeilenende))); }))
        return;
    if (const DateiErgebnis ergebnis = datei.uebernimm(); !ergebnis)
        meldeNichtGeschrieben(schirm->umgebung(), name, ergebnis);
    else
        schirm->melde(zeilenangabe(wahl.anzahl) + " gespeichert in " + name);
}

bool Listenhandgriffe::reicheAus(const Zeilenwahl& wahl, const Abnehmer& nimm)
{
    if (wahl.anzahl <= kAufEinmal)
        return geheDurch(wahl, nimm, {});
    Bildschirm& schirm = *bildschirm();
    const QString titel = schirm.stand();
    bool ganz = false;
    {
        Lauf lauf(schirm);
        if (!lauf) {
            schirm.melde("Bitte warten, bis die Auswertung beendet ist.");
            return false;
        }
        reichtAus_ = true;
        ganz = geheDurch(wahl, nimm, lauf.fortschritt());
        reichtAus_ = false;
    }
    if (schirm.stand() == schirm.grundtitel())
        schirm.setzeTitel(titel);
    if (!ganz)
        schirm.melde("Abgebrochen: es wurde nichts übertragen.");
    return ganz;
}

bool Listenhandgriffe::geheDurch(const Zeilenwahl& wahl, const Abnehmer& nimm, const Fortschritt& weiter) const
{
    const unsigned zeilenstand = ansicht_.zeilenstand();
    for (int i = 0; i < wahl.anzahl; ++i) {
        nimm(ansicht_.kopierzeile(wahl[i]));
        const bool soll = !weiter || weiter(static_cast<std::uint64_t>(i));
        if (!soll || zeilenstand != ansicht_.zeilenstand())
            return false;
    }
    return true;
}

void Listenhandgriffe::zeigeMenueBei(QPoint ort)
{
    const int zeile = ansicht_.zeileBei(ort.y());
    if (zeile >= 0 && !ansicht_.istGewaehlt(zeile))
        ansicht_.geheZu(zeile, Qt::NoModifier);
    oeffneMenue(ort);
}

void Listenhandgriffe::zeigeMenue()
{
    const int zeile = ansicht_.fokuszeile();
    if (zeile >= 0)
        ansicht_.zeigeZeile(zeile);
    const QRect platz = zeile >= 0 ? ansicht_.zeilenrechteck(zeile) : QRect();
    oeffneMenue(QPoint(std::max(0, platz.left()), std::max(0, platz.bottom())));
}

void Listenhandgriffe::baueMenue()
{
    menue_ = new QMenu(&ansicht_);
    menue_->setObjectName(ansicht_.objectName() + "Menue");
    kopieren_ = eintrag("Kopieren", "Kopieren", [this] { kopiere(gewaehlte()); });
    kopieren_->setShortcut(QKeySequence::Copy);
    kopieren_->setShortcutContext(Qt::WidgetShortcut);
    kopieren_->setShortcutVisibleInContextMenu(true);
    allesKopieren_ = eintrag("AllesKopieren", "Alles kopieren", [this] { kopiere(alle()); });
    menue_->addSeparator();
    alsTextdatei_ = eintrag("AlsTextdatei", "Als Textdatei speichern…", [this] { speichere(); });
}

void Listenhandgriffe::oeffneMenue(QPoint ort)
{
    if (!menue_)
        baueMenue();
    kopieren_->setEnabled(gewaehlte().anzahl > 0);
    allesKopieren_->setEnabled(ansicht_.zeilenzahl() > 0);
    alsTextdatei_->setEnabled(ansicht_.zeilenzahl() > 0);
    menue_->popup(ansicht_.viewport()->mapToGlobal(ort));
}

QAction* Listenhandgriffe::eintrag(const QString& name, const QString& text, const std::function<void()>& tue)
{
    QAction* zeile = menue_->addAction(text);
    zeile->setObjectName(ansicht_.objectName() + name);
    connect(zeile, &QAction::triggered, this, tue);
    return zeile;
}
