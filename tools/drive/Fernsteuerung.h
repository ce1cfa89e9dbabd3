#pragma once

#include "tools/buehne/Bedienung.h"

#include <QElapsedTimer>
#include <QTimer>

#include <deque>
#include <functional>
#include <map>

/// Obeys command lines, one after the other. A command runs whenever the event loop has a turn and nothing is waited
/// for; so the next one runs in the middle of a long search as a user's click would.
class Fernsteuerung final : public QObject {
public:
    /// `ausgabe` gets every line of an answer, without its line end.
    Fernsteuerung(Buehne& buehne, std::function<void(const QString&)> ausgabe);
    ~Fernsteuerung() override;

    void nimm(const QString& zeile);
    /// No further line will come: the program ends behind the last one.
    void nimmEnde();

    /// True once a command could not be done.
    bool missglueckt() const { return missglueckt_; }
    std::function<void()> beiEnde;

private:
    using Befehl = std::function<Antwort(const QString&)>;
    std::map<QString, Befehl> befehle();

    void arbeite();
    void fuehreAus(const QString& zeile);
    void gibAus(const Antwort& antwort);
    bool wartet();
    bool nimmtEingaben();
    bool istRuhe();
    bool istSchliessen() const;
    void ende();

    Antwort warte(const QString& dauer);
    Antwort warteAufRuhe(const QString& dauer);
    Antwort beginneWarten(const QString& dauer, bool bisRuhe);
    Antwort bildschirme() const;
    Antwort zeigeBoxen();
    Antwort antworte(const QString& werte);
    Antwort zeilen(const QString& rest);
    Antwort farben(const QString& rest);
    Antwort waehle(const QString& rest);
    Antwort stelleUhr(const QString& zeit);
    Antwort stelleZufall(const QString& saat);

    Buehne& buehne_;
    Bedienung bedienung_;
    std::function<void(const QString&)> ausgabe_;
    std::map<QString, Befehl> befehle_;
    std::deque<QString> offen_;
    QTimer takt_;
    QElapsedTimer seitWarten_;
    qint64 wartezeit_ = -1; ///< milliseconds; -1: nothing is waited for
    bool bisRuhe_ = false;
    double letzteDauer_ = 0; ///< milliseconds, of a command with the wait for its end
    bool missglueckt_ = false;
    bool endet_ = false;
    bool eingabeZuEnde_ = false;
};
