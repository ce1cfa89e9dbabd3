#include "tools/buehne/Buehne.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/PdfSeiten.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QThread>

#include <utility>

namespace {
constexpr unsigned long kBedenkzeit = 20; ///< milliseconds before a box that comes back at once is answered again
constexpr auto kDruckername = "PDF-Drucker";
} // namespace

QString AufgezeichneteBoxen::antwort(const QStringList& passende, const QString& sonst)
{
    if (antworten_.empty())
        return sonst;
    const QString naechste = antworten_.front();
    for (const QString& anfang : passende) {
        if (naechste == anfang || (anfang.endsWith(':') && naechste.startsWith(anfang))) {
            antworten_.pop_front();
            return naechste;
        }
    }
    return sonst;
}

void AufgezeichneteBoxen::info(const QString& titel, const QString& text)
{
    const bool wiederholt = !gezeigt_.empty() && gezeigt_.back().titel == titel && gezeigt_.back().text == text;
    if (wiederholt)
        QThread::msleep(kBedenkzeit);
    gezeigt_.push_back({"info", titel, text, antwort({"ok", "cancel"}, "ok")});
    if (beiInfo)
        beiInfo();
}

bool AufgezeichneteBoxen::frage(const QString& titel, const QString& text)
{
    const QString gegeben = antwort({"yes", "no", "ok", "cancel"}, "no");
    gezeigt_.push_back({"question", titel, text, gegeben});
    return gegeben == "yes" || gegeben == "ok";
}

std::optional<QString> AufgezeichneteBoxen::eingabe(const QString& titel, const QString& text, const QString& vorgabe)
{
    const QString gegeben = antwort({"text:", "ok", "cancel"}, "cancel");
    gezeigt_.push_back({"input", titel, text, gegeben});
    if (gegeben == "cancel")
        return std::nullopt;
    return gegeben == "ok" ? vorgabe : gegeben.mid(5);
}

std::optional<QString> AufgezeichneteBoxen::datei(const DateiFrage& frage)
{
    const QString gegeben = antwort({"file:", "cancel"}, "cancel");
    gezeigt_.push_back({"file", frage.titel, frage.pfad, gegeben});
    if (gegeben == "cancel")
        return std::nullopt;
    return gegeben.mid(5);
}

std::vector<GezeigteBox> AufgezeichneteBoxen::entnehme()
{
    return std::exchange(gezeigt_, {});
}

QStringList PdfDrucker::namen() const
{
    return datei_.isEmpty() ? QStringList() : QStringList(kDruckername);
}

bool PdfDrucker::druckeAuf(const QString& name, const QString& titel, const Maler& male)
{
    return name == kDruckername && drucke(titel, male);
}

bool PdfDrucker::drucke(const QString& titel, const Maler& male)
{
    QFile datei(datei_);
    return !datei_.isEmpty() && datei.open(QIODevice::WriteOnly) && schreibePdf(datei, titel, male);
}

bool GemerkterOeffner::oeffne(const QString& dateiOderAdresse)
{
    if (!scheitert)
        geoeffnet_.push_back(dateiOderAdresse);
    return !scheitert;
}

QStringList GemerkterOeffner::entnehme()
{
    return std::exchange(geoeffnet_, {});
}

bool BeobachtetePumpe::verarbeite()
{
    QCoreApplication::processEvents();
    if (beiZug)
        beiZug();
    return !beendet;
}

Buehne::Buehne(const QString& verzeichnis)
{
    archiv.ProgrammVerzeichnis = (QDir(verzeichnis).absolutePath() + QDir::separator()).toStdString();
    umgebung.animationsdauer = {};
    umgebung.desktopordner = QDir(verzeichnis).absoluteFilePath("Desktop");
    if (QGuiApplication::platformName() == "offscreen") // whose screen is smaller than any desktop
        umgebung.schreibtisch = QRect(0, 0, 1280, 800);
}

Buehne::~Buehne()
{
    pumpe.beendet = true;
    bildschirme.entladeAlle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
