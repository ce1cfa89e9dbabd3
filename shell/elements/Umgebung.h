#pragma once

#include "shell/logic/Uhr.h"
#include "shell/logic/Zufall.h"

#include <QRect>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

class BildschirmVerzeichnis;
class QPainter;
class QPagedPaintDevice;
struct ZiehungsArchiv;

/// What a file dialog is asked. `filter` is in Qt's form, "Text (*.txt);;Alle (*.*)".
struct DateiFrage {
    QString titel;
    QString pfad; ///< start directory, with the proposed file name behind it if there is one
    QString filter;
    QString standardendung;
    bool speichern = false;
    bool frageVorUeberschreiben = false;
    bool ordner = false; ///< a folder is wanted, not a file
};

/// Message boxes, questions and file dialogs. They hold up the caller until the user has answered.
class Boxen {
public:
    virtual ~Boxen() = default;
    virtual void info(const QString& titel, const QString& text) = 0;
    /// "Ja" is true.
    virtual bool frage(const QString& titel, const QString& text) = 0;
    /// The text entered; nothing after a cancel.
    virtual std::optional<QString> eingabe(const QString& titel, const QString& text, const QString& vorgabe) = 0;
    /// The full path chosen; nothing after a cancel.
    virtual std::optional<QString> datei(const DateiFrage& frage) = 0;
};

class Zwischenablage {
public:
    virtual ~Zwischenablage() = default;
    virtual void setze(const QString& text) = 0;
    virtual QString text() const = 0;
};

/// The printers of the system.
class Drucker {
public:
    /// Paints the pages of a job.
    using Maler = std::function<void(QPainter&, QPagedPaintDevice&)>;

    virtual ~Drucker() = default;
    /// The default printer first.
    virtual QStringList namen() const = 0;
    /// Prints one job on the default printer: `male` gets an active painter and the page device. False if there is no
    /// printer or it fails.
    virtual bool drucke(const QString& titel, const Maler& male) = 0;
    /// The same on the printer of that name.
    virtual bool druckeAuf(const QString& name, const QString& titel, const Maler& male) = 0;
};

class Klang {
public:
    virtual ~Klang() = default;
    /// Plays sound 1..3 of the program's resources without waiting; does nothing on a machine without sound.
    virtual void SpieleKlang(int nummer) = 0;
};

/// Hands files, folders and web addresses to the system.
class Oeffner {
public:
    virtual ~Oeffner() = default;
    virtual bool oeffne(const QString& dateiOderAdresse) = 0;
};

/// The event pump of long loops.
class Pumpe {
public:
    virtual ~Pumpe() = default;
    /// One turn of the event loop. False once the program is ending: the caller unwinds.
    virtual bool verarbeite() = 0;
};

/// What a tool may ask of the selection menu.
class Menue {
public:
    virtual ~Menue() = default;
    /// Presses the option of a game (1..3), which reloads the archive the menu's own way.
    virtual void waehleSpielart(std::int16_t spielart) = 0;
    /// The game (1..3) of the option that is chosen; 0 while that is "Sa + Mi zusammen", which is no game.
    virtual std::int16_t gewaehlteSpielart() const = 0;
    /// Comes back into view after a tool.
    virtual void zeigeWieder() = 0;
};

/// Everything that a screen wants of the world. The program holds one instance; a test makes its own.
struct Umgebung {
    ZiehungsArchiv& archiv;
    Boxen& boxen;
    Zwischenablage& zwischenablage;
    Drucker& drucker;
    Klang& klang;
    Oeffner& oeffner;
    Uhr& uhr;
    Zufall& zufall;
    Pumpe& pumpe;
    std::optional<QRect> schreibtisch = {};         ///< the desktop, if it is another one than the screen shows
    std::optional<QString> desktopordner = {};      ///< the user's desktop folder, if it is not the system's
    BildschirmVerzeichnis* bildschirme = nullptr;   ///< set once the screens are registered
    Menue* menue = nullptr;                         ///< set while the selection menu exists
    std::chrono::milliseconds animationsdauer{400}; ///< of one play of numbers; 0 shows none
    bool VorschlagLaeuft = false;                   ///< the tip proposals use other screens as their engines
    bool BerichtAbbruch = false;                    ///< the compact page is to end: the screens it drives stop too
};

/// The title of every box that has none of its own.
inline constexpr auto kProgrammtitel = "Tombrix";
/// The title of the box with a tool's explanation.
inline constexpr auto kInfotitel = "Lotto-Info";
