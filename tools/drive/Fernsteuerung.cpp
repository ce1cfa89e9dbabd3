#include "tools/drive/Fernsteuerung.h"

#include "shell/elements/Bildschirm.h"
#include "tools/drive/Menueweg.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kTakt = 2; ///< milliseconds between two looks at a wait
constexpr int kRuhewartezeit = 60000;

/// In an answer a line break is "\n".
QString einzeilig(QString text)
{
    return text.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "\\n");
}

/// The first word and the rest behind one blank; a rest keeps its own blanks.
std::pair<QString, QString> teile(const QString& zeile)
{
    const qsizetype luecke = zeile.indexOf(' ');
    return luecke < 0 ? std::pair(zeile, QString()) : std::pair(zeile.left(luecke), zeile.mid(luecke + 1));
}

/// A number of rows or milliseconds, from 0 on.
std::optional<int> zahl(const QString& text)
{
    bool istZahl = false;
    const int wert = text.toInt(&istZahl);
    return istZahl && wert >= 0 ? std::optional(wert) : std::nullopt;
}

double millisekunden(const QElapsedTimer& stoppuhr)
{
    return static_cast<double>(stoppuhr.nsecsElapsed()) / 1e6;
}

bool istAntwort(const QString& wort)
{
    return wort == "yes" || wort == "no" || wort == "ok" || wort == "cancel" || wort.startsWith("text:") ||
           wort.startsWith("file:");
}

} // namespace

Fernsteuerung::Fernsteuerung(Buehne& buehne, std::function<void(const QString&)> ausgabe)
    : buehne_(buehne),
      bedienung_(buehne),
      ausgabe_(std::move(ausgabe)),
      befehle_(befehle())
{
    bedienung_.ausMenue = [this](const QString& bildschirm) { return geheAusMenue(bedienung_, buehne_, bildschirm); };
    takt_.setInterval(kTakt);
    connect(&takt_, &QTimer::timeout, this, [this] { arbeite(); });
    buehne_.pumpe.beiZug = [this] { arbeite(); };
    takt_.start();
}

Fernsteuerung::~Fernsteuerung()
{
    buehne_.pumpe.beiZug = nullptr;
}

std::map<QString, Fernsteuerung::Befehl> Fernsteuerung::befehle()
{
    Bedienung& b = bedienung_;
    const auto mitText = [](const QString& rest, const auto& tue) {
        const auto [name, text] = teile(rest);
        return tue(name, text);
    };
    return {
        {"screens", [this](auto&) { return bildschirme(); }},
        {"open", [&b](auto& rest) { return b.oeffne(rest); }},
        {"use", [&b](auto& rest) { return b.benutze(rest); }},
        {"close", [&b](auto&) { return b.schliesse(); }},
        {"names", [&b](auto&) { return b.namen(); }},
        {"click", [&b](auto& rest) { return b.klicke(rest); }},
        {"dblclick", [&b](auto& rest) { return b.doppelklicke(rest); }},
        {"hover", [&b](auto& rest) { return b.ueberfahre(rest); }},
        {"press", [&b](auto& rest) { return b.druecke(rest); }},
        {"release", [&b](auto& rest) { return b.lasseLos(rest); }},
        {"set", [&b, mitText](auto& rest) { return mitText(rest, [&b](auto& n, auto& t) { return b.setze(n, t); }); }},
        {"key", [&b, mitText](auto& rest) { return mitText(rest, [&b](auto& n, auto& t) { return b.tippe(n, t); }); }},
        {"select", [this](auto& rest) { return waehle(rest); }},
        {"get", [&b](auto& rest) { return b.text(rest); }},
        {"state", [&b](auto& rest) { return b.zustand(rest); }},
        {"count", [&b](auto& rest) { return b.anzahl(rest); }},
        {"rows", [this](auto& rest) { return zeilen(rest); }},
        {"selected", [&b](auto& rest) { return b.gewaehlte(rest); }},
        {"colors", [this](auto& rest) { return farben(rest); }},
        {"items", [&b](auto& rest) { return b.eintraege(rest); }},
        {"title", [&b](auto&) { return b.titel(); }},
        {"boxes", [this](auto&) { return zeigeBoxen(); }},
        {"answer", [this](auto& rest) { return antworte(rest); }},
        {"clipboard",
         [this](auto&) {
             return Antwort{{buehne_.zwischenablage.text()}, {}};
         }},
        {"opened",
         [this](auto&) {
             return Antwort{buehne_.oeffner.entnehme(), {}};
         }},
        {"printer",
         [this](auto& rest) {
             buehne_.drucker.setzeDatei(rest == "none" ? QString() : rest);
             return Antwort{};
         }},
        {"clock", [this](auto& rest) { return stelleUhr(rest); }},
        {"seed", [this](auto& rest) { return stelleZufall(rest); }},
        {"tick", [&b](auto& rest) { return b.ticke(rest); }},
        {"wait", [this](auto& rest) { return warte(rest); }},
        {"wait-idle", [this](auto& rest) { return warteAufRuhe(rest); }},
        {"shot", [&b](auto& rest) { return b.bild(rest); }},
        {"time",
         [this](auto&) {
             return Antwort{{QString::number(letzteDauer_, 'f', 3)}, {}};
         }},
        {"quit",
         [this](auto&) {
             ende();
             return Antwort{};
         }},
    };
}

void Fernsteuerung::nimm(const QString& zeile)
{
    offen_.push_back(zeile);
    arbeite();
}

void Fernsteuerung::nimmEnde()
{
    eingabeZuEnde_ = true;
    arbeite();
}

bool Fernsteuerung::wartet()
{
    if (wartezeit_ < 0 || seitWarten_.elapsed() >= wartezeit_)
        return false;
    return !bisRuhe_ || !istRuhe();
}

/// True when nothing runs on the current screen and no closed one is still unwinding.
bool Fernsteuerung::istRuhe()
{
    const Bildschirm* bildschirm = bedienung_.aktuell();
    return !istSchliessen() && !(bildschirm && bildschirm->laeuft());
}

/// False while the current screen lets nobody work on it, which a user would have to wait for too.
bool Fernsteuerung::nimmtEingaben()
{
    const Bildschirm* bildschirm = bedienung_.aktuell();
    return !bildschirm || bildschirm->isEnabled();
}

bool Fernsteuerung::istSchliessen() const
{
    const std::vector<Bildschirm*> geladene = buehne_.bildschirme.geladene();
    return std::ranges::any_of(geladene, [](const Bildschirm* bildschirm) { return bildschirm->schliesst(); });
}

void Fernsteuerung::arbeite()
{
    if (endet_ || wartet() || !nimmtEingaben())
        return;
    if (wartezeit_ >= 0) {
        wartezeit_ = -1;
        letzteDauer_ = std::max(millisekunden(seitWarten_), bisRuhe_ ? letzteDauer_ : 0);
    }
    if (offen_.empty()) {
        if (eingabeZuEnde_)
            ende();
        return;
    }
    const QString zeile = offen_.front();
    offen_.pop_front();
    // The next one comes with the next turn of the event loop, as a user's next click does.
    QMetaObject::invokeMethod(
        this, [this] { arbeite(); }, Qt::QueuedConnection);
    fuehreAus(zeile);
}

void Fernsteuerung::fuehreAus(const QString& zeile)
{
    if (zeile.trimmed().isEmpty() || zeile.startsWith('#'))
        return;
    ausgabe_("> " + zeile);
    const auto [wort, rest] = teile(zeile);
    const auto befehl = befehle_.find(wort);
    QElapsedTimer stoppuhr;
    stoppuhr.start();
    const Antwort antwort = befehl == befehle_.end() ? Antwort{{}, "unbekannter Befehl " + wort} : befehl->second(rest);
    if (wort != "time" && wort != "wait-idle")
        letzteDauer_ = millisekunden(stoppuhr);
    gibAus(antwort);
    if (wartezeit_ < 0 && istSchliessen())
        warteAufRuhe({});
}

void Fernsteuerung::gibAus(const Antwort& antwort)
{
    for (const QString& zeile : antwort.zeilen)
        ausgabe_("  " + einzeilig(zeile));
    if (antwort.gelungen())
        return;
    missglueckt_ = true;
    ausgabe_("! " + antwort.grund);
}

void Fernsteuerung::ende()
{
    endet_ = true;
    buehne_.pumpe.beendet = true;
    if (beiEnde)
        beiEnde();
}

Antwort Fernsteuerung::warte(const QString& dauer)
{
    return beginneWarten(dauer, false);
}

Antwort Fernsteuerung::warteAufRuhe(const QString& dauer)
{
    return beginneWarten(dauer.isEmpty() ? QString::number(kRuhewartezeit) : dauer, true);
}

Antwort Fernsteuerung::beginneWarten(const QString& dauer, bool bisRuhe)
{
    const auto wert = zahl(dauer);
    if (!wert)
        return {{}, "keine Dauer " + dauer};
    wartezeit_ = *wert;
    bisRuhe_ = bisRuhe;
    seitWarten_.start();
    return {};
}

Antwort Fernsteuerung::bildschirme() const
{
    Antwort antwort;
    for (const QString& name : buehne_.bildschirme.namen())
        antwort.zeilen << name;
    return antwort;
}

Antwort Fernsteuerung::zeigeBoxen()
{
    Antwort antwort;
    for (const GezeigteBox& box : buehne_.boxen.entnehme())
        antwort.zeilen << box.art + "\t" + box.titel + "\t" + box.text + "\t" + box.antwort;
    return antwort;
}

Antwort Fernsteuerung::antworte(const QString& werte)
{
    QStringList antworten;
    for (const QString& wort : werte.split(' '))
        if (istAntwort(wort))
            antworten << wort;
        else if (antworten.isEmpty() || !antworten.last().contains(':'))
            return {{}, "keine Antwort " + wort};
        else
            antworten.last() += " " + wort;
    for (const QString& antwort : antworten)
        buehne_.boxen.antworte(antwort);
    return {};
}

Antwort Fernsteuerung::zeilen(const QString& rest)
{
    const QStringList worte = rest.split(' ', Qt::SkipEmptyParts);
    const auto ab = zahl(worte.value(1, "0"));
    const auto hoechstens = zahl(worte.value(2, QString::number(std::numeric_limits<int>::max())));
    if (!ab || !hoechstens)
        return {{}, "keine Zeilen " + QStringList(worte.mid(1)).join(' ')};
    return bedienung_.zeilen(worte.value(0), *ab, *hoechstens);
}

Antwort Fernsteuerung::farben(const QString& rest)
{
    const auto [name, nummer] = teile(rest);
    const auto zeile = zahl(nummer);
    return zeile ? bedienung_.farben(name, *zeile) : Antwort{{}, "keine Zeile " + nummer};
}

Antwort Fernsteuerung::waehle(const QString& rest)
{
    const auto [name, nummern] = teile(rest);
    QList<int> zeilen;
    for (const QString& nummer : nummern.split(',')) {
        const auto zeile = zahl(nummer);
        if (!zeile)
            return {{}, "keine Zeile " + nummer};
        zeilen << *zeile;
    }
    return bedienung_.waehle(name, zeilen);
}

Antwort Fernsteuerung::stelleUhr(const QString& zeit)
{
    return buehne_.uhr.stelle(zeit.toStdString()) ? Antwort{} : Antwort{{}, "keine Zeit " + zeit};
}

Antwort Fernsteuerung::stelleZufall(const QString& saat)
{
    bool istZahl = false;
    const qulonglong wert = saat.toULongLong(&istZahl);
    if (!istZahl)
        return {{}, "keine Saat " + saat};
    buehne_.zufall.stelle(wert);
    return {};
}
