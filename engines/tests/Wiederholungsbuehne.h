#pragma once

#include "engines/screens/WiederholungsBildschirm.h"
#include "engines/tests/Suchtest.h"
#include "testhilfen/WiederholungenReferenz.h"

#include <QCoreApplication>

#include <functional>
#include <sstream>
#include <utility>

/// Names of what stands on both screens for one `k`.
struct Wiederholungsfeld {
    int k;
    const char *suchen, *liste, *details, *clip;
};

inline constexpr std::array<Wiederholungsfeld, 5> kWiederholungsfelder{{
    {2, "Befehl11", "Liste7", "Befehl13", "Befehl15"},
    {3, "Befehl16", "Liste8", "Befehl17", "Befehl19"},
    {4, "Befehl12", "Liste4", "Befehl5", "Befehl4"},
    {5, "Befehl1", "Liste5", "Befehl7", "Befehl9"},
    {6, "Befehl6", "Liste6", "Befehl8", "Befehl10"},
}};

/// The stage of both screens of the repetition search.
class Wiederholungsbuehne : public Suchtest {
protected:
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 10'000'000).zeilen; }
    QString gewaehlt(const QString& liste) { return bedienung.gewaehlte(liste).zeilen.join(','); }

    WiederholungsBildschirm& schirm(const QString& name) const
    {
        return dynamic_cast<WiederholungsBildschirm&>(*buehne.bildschirme.geladen(name));
    }

    /// Clicks, and does `tue` at the first turn of the event loop that follows.
    void klickeUnd(const QString& name, const std::function<void()>& tue)
    {
        bool getan = false;
        buehne.pumpe.beiZug = [&] {
            if (!std::exchange(getan, true))
                tue();
        };
        klicke(name);
        buehne.pumpe.beiZug = nullptr;
        EXPECT_TRUE(getan);
    }

    /// The lines of a result list by the plain search, in the order of their texts.
    QStringList sollzeilen(int k, const Wiederholungsart& art) const
    {
        std::vector<std::string> alle;
        for (const auto& [schluessel, anzahl] : Referenz::suche(buehne.archiv, k).mehrfache) {
            Wiederholung wiederholung{{}, anzahl};
            std::istringstream teile(schluessel);
            std::size_t i = 0;
            for (std::string teil; std::getline(teile, teil, ',');)
                wiederholung.zahlen[i++] = std::stoi(teil);
            alle.push_back(ergebniszeile(wiederholung, k, art));
        }
        std::ranges::sort(alle);
        QStringList zeilen;
        for (const std::string& zeile : alle)
            zeilen << QString::fromStdString(zeile);
        return zeilen;
    }
};

/// What `txtH` shows before the end of a search.
inline constexpr auto kLeereZusammenfassung = "      Kombinationen\n"
                                              "--------------------------------\n"
                                              "  überhaupt mögliche: -\n"
                                              "   noch nie gezogene: -\n"
                                              "     einmal gezogene: -\n"
                                              "   mehrfach gezogene: -\n";

/// The search in one game.
class Wiederholungssuche : public Wiederholungsbuehne {
protected:
    void oeffneMit(const std::vector<std::string>& ziehungen)
    {
        schreibe("SALOTTO.DAT", ziehungen);
        starte();
        oeffne("frmFÜNFW");
    }
    void oeffneDrei()
    {
        oeffneMit(
            {"1955,41,07,19,30,31,32,33,00,0", "1955,42,01,02,03,04,05,06,00,0", "1955,43,07,18,19,47,48,49,00,0"});
    }
};
