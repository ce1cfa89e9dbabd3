#include "tips/logic/Zeitreiseausgabe.h"
#include "tips/logic/Zeitreisetafel.h"
#include "tips/tests/EchteGewinne.h"

#include <map>
#include <numeric>
#include <random>

namespace {

using Zellen = std::vector<std::string>; ///< of the columns of data

/// A question: six numbers and a Superzahl; the first `anzahl` of them are the combination that is searched.
struct Frage {
    std::array<int, 6> tip{};
    int sz = 0;
    std::size_t anzahl = 6;

    std::vector<int> kombination() const { return {tip.begin(), tip.begin() + static_cast<std::ptrdiff_t>(anzahl)}; }
};

std::string zweistellig(int zahl)
{
    return (zahl < 10 ? "0" : "") + std::to_string(zahl);
}

bool enthaelt(const auto& zahlen, int zahl)
{
    return std::find(zahlen.begin(), zahlen.end(), zahl) != zahlen.end();
}

/// What a list and its counters must show, counted from the raw records.
struct Erwartet {
    std::vector<Zellen> zeilen;
    std::map<std::string, int> klassen; ///< by label
    std::array<int, 7> treffer{};       ///< draws by their hits
    std::vector<int> haeufigkeit;
};

/// The games that a list is made of: one, or several one after the other.
class Roherwartung {
public:
    /// `mischt`: the list of several games, ordered by year and week.
    explicit Roherwartung(std::vector<Rohspiel> spiele, bool mischt = false)
        : spiele_(std::move(spiele)),
          mischt_(mischt)
    {}

    Erwartet tipp(const Frage& frage, bool alle, bool alt) const
    {
        Erwartet erwartet;
        erwartet.haeufigkeit.resize(6);
        const std::vector<int> tip(frage.tip.begin(), frage.tip.end());
        for (const auto& [spiel, i] : ziehungen()) {
            const std::size_t treffer = zaehle(erwartet, spiel->roh[i], tip);
            ++erwartet.treffer[treffer];
            const std::string klasse = spiel->label(i, frage.tip, frage.sz, alt);
            ++erwartet.klassen[klasse];
            if (alle || !klasse.empty())
                erwartet.zeilen.push_back(zellen(*spiel, i, tip, klasse, alt));
        }
        sortiere(erwartet.zeilen);
        return erwartet;
    }

    Erwartet suche(const Frage& frage, bool alt) const
    {
        Erwartet erwartet;
        const std::vector<int> zahlen = frage.kombination();
        erwartet.haeufigkeit.resize(zahlen.size());
        for (const auto& [spiel, i] : ziehungen())
            if (zaehle(erwartet, spiel->roh[i], zahlen) == zahlen.size())
                erwartet.zeilen.push_back(zellen(*spiel, i, zahlen, "", alt));
        sortiere(erwartet.zeilen);
        return erwartet;
    }

private:
    std::vector<std::pair<const Rohspiel*, std::size_t>> ziehungen() const
    {
        std::vector<std::pair<const Rohspiel*, std::size_t>> alle;
        for (const Rohspiel& spiel : spiele_)
            for (std::size_t i = 0; i < spiel.roh.size(); ++i)
                alle.emplace_back(&spiel, i);
        return alle;
    }

    static std::size_t zaehle(Erwartet& erwartet, const RohZiehung& ziehung, const std::vector<int>& zahlen)
    {
        std::size_t treffer = 0;
        for (std::size_t k = 0; k < zahlen.size(); ++k) {
            erwartet.haeufigkeit[k] += enthaelt(ziehung.zahlen, zahlen[k]);
            treffer += enthaelt(ziehung.zahlen, zahlen[k]);
        }
        return treffer;
    }

    Zellen zellen(const Rohspiel& spiel, std::size_t i, const std::vector<int>& gefragte, const std::string& klasse,
                  bool alt) const
    {
        const RohZiehung& ziehung = spiel.roh[i];
        const std::string& jahr = ziehung.jahrUndWoche;
        Zellen zeile{jahr.substr(0, 4), jahr.substr(5)};
        if (mischt_)
            zeile = {jahr, spiel.spielart == 1 ? "Sa" : spiel.spielart == 2 ? "Mi" : "Mi(B)"};
        zeile.push_back(daten(spiel.spielart)[i + 1]);
        for (const int zahl : ziehung.zahlen)
            zeile.push_back((enthaelt(gefragte, zahl) ? " " : "") + zweistellig(zahl));
        if (alt)
            zeile.push_back(ziehung.zz <= 0 ? "-" : (klasse.ends_with("+ZZ") ? " " : "") + zweistellig(ziehung.zz));
        zeile.push_back(!spiel.hatSuperzahl(i) ? "-"
                                               : (klasse.ends_with("+SZ") ? " " : "") + std::to_string(spiel.sz[i]));
        zeile.push_back(klasse);
        return zeile;
    }

    static const std::vector<std::string>& daten(Spielart spielart)
    {
        static const std::array<std::vector<std::string>, 4> alle{
            std::vector<std::string>{}, ladeEchte(Samstagslotto).Datum, ladeEchte(Mittwochslotto).Datum,
            ladeEchte(MittwochslottoB).Datum};
        return alle[static_cast<std::size_t>(spielart)];
    }

    /// By the first column, with gaps of ..., 13, 4, 1: rows of one week change places as in the list.
    void sortiere(std::vector<Zellen>& zeilen) const
    {
        if (!mischt_)
            return;
        std::vector<std::size_t> abstaende{1};
        while (abstaende.back() * 3 + 1 <= zeilen.size())
            abstaende.push_back(abstaende.back() * 3 + 1);
        for (; !abstaende.empty(); abstaende.pop_back()) {
            const std::size_t weite = abstaende.back();
            for (std::size_t i = weite; i < zeilen.size(); ++i)
                for (std::size_t k = i; k >= weite && zeilen[k - weite][0] > zeilen[k][0]; k -= weite)
                    std::swap(zeilen[k - weite], zeilen[k]);
        }
    }

    std::vector<Rohspiel> spiele_;
    bool mischt_;
};

/// 200 tips by chance, and 50 that are a draw of the game or differ from one in a number.
std::vector<Frage> fragen(const Rohspiel& spiel)
{
    std::mt19937 zufall(49);
    std::vector<Frage> alle;
    std::vector<int> topf(49);
    std::iota(topf.begin(), topf.end(), 1);
    for (std::size_t i = 0; i < 200; ++i) {
        std::shuffle(topf.begin(), topf.end(), zufall);
        Frage frage{{}, static_cast<int>(zufall() % 10), 1 + i % 6};
        std::copy_n(topf.begin(), 6, frage.tip.begin());
        std::sort(frage.tip.begin(), frage.tip.end());
        alle.push_back(frage);
    }
    std::vector<std::size_t> ziehungen{1885, 1886, 495, 496, 0, spiel.roh.size() - 1};
    while (ziehungen.size() < 25)
        ziehungen.push_back(zufall() % spiel.roh.size());
    for (std::size_t i : ziehungen) {
        i = std::min(i, spiel.roh.size() - 1);
        alle.push_back({spiel.roh[i].zahlen, spiel.sz[i], 6});
        Frage fast{spiel.roh[i].zahlen, spiel.sz[i], 5};
        int& zahl = fast.tip[zufall() % 6];
        // The Zusatzzahl, where there is one, makes the sixth number.
        for (zahl = std::max(1, spiel.roh[i].zz); std::count(fast.tip.begin(), fast.tip.end(), zahl) > 1;)
            zahl = zahl % 49 + 1;
        std::sort(fast.tip.begin(), fast.tip.end());
        alle.push_back(fast);
    }
    return alle;
}

class EchteZeitreise : public EchteGewinne {
protected:
    std::vector<Frage> fragen() const { return ::fragen(spiel_); }
    Erwartet erwarteTipp(const Frage& frage, bool alle, bool alt) const
    {
        return Roherwartung({spiel_}).tipp(frage, alle, alt);
    }
    Erwartet erwarteSuche(const Frage& frage, bool alt) const { return Roherwartung({spiel_}).suche(frage, alt); }
};

std::vector<Zellen> zeilenVon(const Zeitreise& zeitreise)
{
    std::vector<Zellen> zeilen;
    for (const Zeitreisezeile& zeile : zeitreise.zeilen) {
        zeilen.emplace_back();
        for (const Zeitreisespalte& spalte : zeitreisespalten(zeitreise.form))
            zeilen.back().push_back(zeitreisezelle(zeitreise, zeile, spalte));
    }
    return zeilen;
}

/// The fields of the screen beside the label that the counted draws have.
void pruefeZaehler(const Zeitreise& zeitreise, Erwartet erwartet, bool alt)
{
    const std::string zusatz = alt ? "+ZZ" : "+SZ";
    const std::array<std::string, 7> namen{"", "", "Zweier", "Dreier", "Vierer", "Fünfer", "Sechser"};
    for (int treffer = 3; treffer <= 6; ++treffer) {
        const std::string& name = namen[static_cast<std::size_t>(treffer)];
        const std::string mit = name + (treffer == 6 ? "+SZ" : zusatz);
        ASSERT_EQ(zaehlerstand(zeitreise, treffer, false), erwartet.klassen[name]) << name;
        ASSERT_EQ(zaehlerstand(zeitreise, treffer, true), erwartet.klassen[mit]) << mit;
    }
    ASSERT_EQ(zaehlerstand(zeitreise, 0, false), erwartet.treffer[0]);
    ASSERT_EQ(zaehlerstand(zeitreise, 1, false), erwartet.treffer[1]);
    ASSERT_EQ(zaehlerstand(zeitreise, 2, false), erwartet.treffer[2] - erwartet.klassen["Zweier+SZ"]);
    ASSERT_EQ(zaehlerstand(zeitreise, 2, true), erwartet.klassen["Zweier+SZ"]);
}

void pruefeHaeufigkeit(const Zeitreise& zeitreise, const std::vector<int>& erwartet)
{
    for (std::size_t i = 0; i < erwartet.size(); ++i)
        ASSERT_EQ(zeitreise.bilanz.haeufigkeit[i], erwartet[i]);
}

std::vector<std::string> teileText(const std::string& text, const std::string& trenner)
{
    std::vector<std::string> stuecke;
    std::size_t ab = 0;
    for (std::size_t bis = text.find(trenner); bis != std::string::npos; bis = text.find(trenner, ab)) {
        stuecke.push_back(text.substr(ab, bis - ab));
        ab = bis + trenner.size();
    }
    return stuecke;
}

std::string ohneMarke(const std::string& text)
{
    return text.starts_with(' ') ? text.substr(1) : text;
}

/// A line of the csv is the row without its marks and its class; the date has a comma of its own.
void pruefeCsv(const Zeitreise& zeitreise, const std::vector<Zellen>& erwartet)
{
    const auto zeilen = teileText(writeCsv(zeitreise), "\r\n");
    const bool sucht = zeitreise.art == Zeitreiseart::Suche;
    ASSERT_EQ(zeilen.size(), sucht ? std::max<std::size_t>(erwartet.size(), 10) : erwartet.size());
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        std::string soll;
        for (std::size_t k = 0; i < erwartet.size() && k + 1 < erwartet[i].size(); ++k)
            soll += ohneMarke(erwartet[i][k]) + ",";
        ASSERT_EQ(zeilen[i], soll);
    }
}

/// The cells of the page, with a blank in front where their class marks them.
std::vector<Zellen> zeilenDerSeite(const std::string& seite)
{
    std::vector<Zellen> zeilen;
    const std::size_t ab = seite.find("<tbody>");
    for (const std::string& zeile : teileText(seite.substr(ab, seite.find("</tbody>") - ab), "</tr>")) {
        zeilen.emplace_back();
        for (const std::string& zelle : teileText(zeile, "</td>")) {
            const std::string innen = zelle.substr(zelle.find("<td") + 3);
            const bool marke = innen.starts_with(R"( class="zahl_g">)") || innen.starts_with(R"( class="zahl_zg">)");
            zeilen.back().push_back((marke ? " " : "") + innen.substr(innen.find('>') + 1));
        }
    }
    return zeilen;
}

TEST_P(EchteZeitreise, NurDieGewinneInBeidenPlaenen)
{
    for (const Frage& frage : fragen()) {
        for (const bool alt : {false, true}) {
            const Erwartet erwartet = erwarteTipp(frage, false, alt);
            const Zeitreise zeitreise = evaluateGewinne(archiv_, frage.tip, frage.sz, GetParam(),
                                                        alt ? Zeitreiseform::AlterPlan : Zeitreiseform::EineSpielart);
            ASSERT_EQ(zeilenVon(zeitreise), erwartet.zeilen);
            ASSERT_NO_FATAL_FAILURE(pruefeZaehler(zeitreise, erwartet, alt));
            ASSERT_NO_FATAL_FAILURE(pruefeHaeufigkeit(zeitreise, erwartet.haeufigkeit));
            ASSERT_EQ(zeitreise.bilanz.gewinne(), static_cast<int>(erwartet.zeilen.size()));
            if (alt)
                continue;
            ASSERT_NO_FATAL_FAILURE(pruefeCsv(zeitreise, erwartet.zeilen));
            ASSERT_EQ(zeilenDerSeite(writeHtml(zeitreise)), erwartet.zeilen);
        }
    }
}

TEST_P(EchteZeitreise, AlleZiehungenMitIhrenTreffern)
{
    for (const Frage& frage : fragen()) {
        const Erwartet erwartet = erwarteTipp(frage, true, false);
        const Zeitreise zeitreise = evaluateAlle(archiv_, frage.tip, frage.sz, GetParam());
        ASSERT_EQ(zeilenVon(zeitreise), erwartet.zeilen);
        ASSERT_NO_FATAL_FAILURE(pruefeZaehler(zeitreise, erwartet, false));
        ASSERT_NO_FATAL_FAILURE(pruefeHaeufigkeit(zeitreise, erwartet.haeufigkeit));
    }
    const Frage frage = fragen().back();
    const Zeitreise zeitreise = evaluateAlle(archiv_, frage.tip, frage.sz, GetParam());
    const Erwartet erwartet = erwarteTipp(frage, true, false);
    pruefeCsv(zeitreise, erwartet.zeilen);
    EXPECT_EQ(zeilenDerSeite(writeHtml(zeitreise)), erwartet.zeilen);
}

TEST_P(EchteZeitreise, KombinationenVonEinerBisSechsZahlen)
{
    for (const Frage& frage : fragen()) {
        for (const bool alt : {false, true}) {
            const Erwartet erwartet = erwarteSuche(frage, alt);
            const Zeitreise zeitreise = searchKombination(archiv_, frage.kombination(), GetParam(),
                                                          alt ? Zeitreiseform::AlterPlan : Zeitreiseform::EineSpielart);
            ASSERT_EQ(zeilenVon(zeitreise), erwartet.zeilen);
            ASSERT_NO_FATAL_FAILURE(pruefeHaeufigkeit(zeitreise, erwartet.haeufigkeit));
            for (int treffer = 0; treffer <= 6; ++treffer) {
                const auto anzahl = static_cast<int>(erwartet.zeilen.size());
                const bool diese = treffer == static_cast<int>(frage.anzahl);
                ASSERT_EQ(zaehlerstand(zeitreise, treffer, false), diese ? anzahl : 0);
                ASSERT_EQ(zaehlerstand(zeitreise, treffer, true), 0);
            }
            if (alt)
                continue;
            ASSERT_NO_FATAL_FAILURE(pruefeCsv(zeitreise, erwartet.zeilen));
        }
    }
}

TEST_P(EchteZeitreise, DieGrenzeDerSuperzahl)
{
    const std::size_t erste = GetParam() == Samstagslotto ? 1886 : 496;
    for (const std::size_t i : {erste - 1, erste}) {
        const Kombination tip = spiel_.roh[i].zahlen;
        const Zeitreise zeitreise = evaluateGewinne(archiv_, tip, spiel_.sz[i], GetParam());
        const auto ort = std::ranges::find(zeitreise.zeilen, nummer(i), &Zeitreisezeile::ziehungsNr);
        ASSERT_NE(ort, zeitreise.zeilen.end());
        EXPECT_EQ(gewinntext(zeitreise.form, ort->klasse), i < erste ? "Sechser" : "Sechser+SZ");
    }
}

INSTANTIATE_TEST_SUITE_P(Spielarten, EchteZeitreise, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

/// The seven mixes of games, as masks of 1 Samstag, 2 Mittwoch, 4 Mittwoch (B).
class EchteMischung : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "keine echten Ziehungen";
        for (const Spielart spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB})
            if ((GetParam() >> (spielart - 1) & 1) != 0)
                spiele_.push_back(spielart);
    }

    Zeitreise werteAus(const Zeitreisefrage& frage) const
    {
        static const std::array archive{ladeEchte(Samstagslotto), ladeEchte(Mittwochslotto),
                                        ladeEchte(MittwochslottoB)};
        Zeitreise alle = ohneSpiele(frage, Zeitreiseform::Zusammen);
        for (const Spielart spielart : spiele_)
            fuegeHinzu(alle, evaluate(archive[static_cast<std::size_t>(spielart - 1)], frage, spielart,
                                      Zeitreiseform::Zusammen));
        ordneNachWoche(alle);
        return alle;
    }

    Roherwartung erwartung() const
    {
        std::vector<Rohspiel> spiele;
        for (const Spielart spielart : spiele_)
            spiele.push_back(liesRohspiel(spielart));
        return Roherwartung(std::move(spiele), true);
    }

    std::vector<Spielart> spiele_;
};

TEST_P(EchteMischung, GewinneUndKombinationen)
{
    const Roherwartung roh = erwartung();
    for (const Frage& frage : fragen(liesRohspiel(spiele_.front()))) {
        const Zeitreise gewinne = werteAus({Zeitreiseart::Gewinne, {frage.tip.begin(), frage.tip.end()}, frage.sz});
        const Erwartet erwarteteGewinne = roh.tipp(frage, false, false);
        ASSERT_EQ(zeilenVon(gewinne), erwarteteGewinne.zeilen);
        ASSERT_NO_FATAL_FAILURE(pruefeZaehler(gewinne, erwarteteGewinne, false));
        ASSERT_NO_FATAL_FAILURE(pruefeHaeufigkeit(gewinne, erwarteteGewinne.haeufigkeit));
        ASSERT_NO_FATAL_FAILURE(pruefeCsv(gewinne, erwarteteGewinne.zeilen));
        ASSERT_EQ(zeilenDerSeite(writeHtml(gewinne)), erwarteteGewinne.zeilen);

        const Zeitreise suche = werteAus({Zeitreiseart::Suche, frage.kombination(), frage.sz});
        const Erwartet erwarteteSuche = roh.suche(frage, false);
        ASSERT_EQ(zeilenVon(suche), erwarteteSuche.zeilen);
        ASSERT_NO_FATAL_FAILURE(pruefeHaeufigkeit(suche, erwarteteSuche.haeufigkeit));
        ASSERT_NO_FATAL_FAILURE(pruefeCsv(suche, erwarteteSuche.zeilen));
    }
}

INSTANTIATE_TEST_SUITE_P(Masken, EchteMischung, testing::Range(1, 8));

} // namespace
