#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/BildschirmVerzeichnis.h"

#include <QStringList>

#include <deque>
#include <functional>

/// A box that was shown, and how it was answered.
struct GezeigteBox {
    QString art; ///< "info", "question", "input" or "file"
    QString titel;
    QString text;
    QString antwort;
};

/// Boxes that are answered from a queue and written down. An answer that does not fit the kind of a box stays in the
/// queue for a later one; without a fitting answer a box is answered ok, no or cancel.
class AufgezeichneteBoxen final : public Boxen {
public:
    void info(const QString& titel, const QString& text) override;
    bool frage(const QString& titel, const QString& text) override;
    std::optional<QString> eingabe(const QString& titel, const QString& text, const QString& vorgabe) override;
    std::optional<QString> datei(const DateiFrage& frage) override;

    /// `antwort` is "yes", "no", "ok", "cancel", "text:..." or "file:...".
    void antworte(const QString& antwort) { antworten_.push_back(antwort); }
    /// The boxes since the last call.
    std::vector<GezeigteBox> entnehme();

    std::function<void()> beiInfo; ///< what happens to the program while an info box stands

private:
    QString antwort(const QStringList& passende, const QString& sonst);

    std::deque<QString> antworten_;
    std::vector<GezeigteBox> gezeigt_;
};

class GemerkteZwischenablage final : public Zwischenablage {
public:
    void setze(const QString& text) override { text_ = text; }
    QString text() const override { return text_; }

private:
    QString text_;
};

/// A default printer that writes a PDF file; without a file name there is no printer.
class PdfDrucker final : public Drucker {
public:
    QStringList namen() const override;
    bool drucke(const QString& titel, const Maler& male) override;
    bool druckeAuf(const QString& name, const QString& titel, const Maler& male) override;
    void setzeDatei(const QString& datei) { datei_ = datei; }

private:
    QString datei_;
};

class GezaehlterKlang final : public Klang {
public:
    void SpieleKlang(int nummer) override { gespielt.push_back(nummer); }
    std::vector<int> gespielt;
};

class GemerkterOeffner final : public Oeffner {
public:
    bool oeffne(const QString& dateiOderAdresse) override;
    /// What was handed over since the last call.
    QStringList entnehme();
    bool scheitert = false; ///< the system finds nothing to open a file with

private:
    QStringList geoeffnet_;
};

/// The event loop's turn, with a look at whoever drives the program from outside.
class BeobachtetePumpe final : public Pumpe {
public:
    bool verarbeite() override;
    std::function<void()> beiZug;
    bool beendet = false;
};

/// A program without a desktop: its screens on an archive of their own, every service written down instead of carried
/// out. The stage of the screen tests and of the remote control.
class Buehne {
public:
    /// `verzeichnis` is the ProgrammVerzeichnis. No screen is registered and nothing is loaded yet.
    explicit Buehne(const QString& verzeichnis);
    ~Buehne();

    ZiehungsArchiv archiv;
    AufgezeichneteBoxen boxen;
    GemerkteZwischenablage zwischenablage;
    PdfDrucker drucker;
    GezaehlterKlang klang;
    GemerkterOeffner oeffner;
    GestellteUhr uhr;
    Zufall zufall;
    BeobachtetePumpe pumpe;
    Umgebung umgebung{archiv, boxen, zwischenablage, drucker, klang, oeffner, uhr, zufall, pumpe};
    BildschirmVerzeichnis bildschirme{umgebung};
};
