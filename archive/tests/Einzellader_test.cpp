#include "archive/screens/Einzellader.h"
#include "archive/tests/Archivbildschirmtest.h"

#include <QFile>

namespace {

class ElementEinzellader : public Archivbildschirmtest {
protected:
    ElementEinzellader()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,13,16,23,41,00,0", "1955,42,01,02,13,16,23,42,00,0"});
        schreibe("MALOTTO.DAT", {"1986,23,01,02,27,30,35,38,49,0"});
        starte();
        boxen();
    }
};

TEST_F(ElementEinzellader, LaedtEineDateiNachDerAnderen)
{
    Einzellader lader(buehne.umgebung);
    lader.lade(Mittwochslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 1);
    EXPECT_EQ(buehne.archiv.jjjj[1], 1986);
    lader.lade(Samstagslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(ElementEinzellader, GibtDasVorgefundeneSpielZurueck)
{
    const std::int16_t vorher = buehne.archiv.Spielart;
    Einzellader lader(buehne.umgebung);
    lader.lade(Mittwochslotto);
    lader.gibZurueck();
    EXPECT_EQ(buehne.archiv.Spielart, vorher);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
}

TEST_F(ElementEinzellader, MeldetEineFehlendeDateiEinmal)
{
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    Einzellader lader(buehne.umgebung);
    lader.lade(Mittwochslotto);
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
    lader.gibZurueck();
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
}

TEST_F(ElementEinzellader, EineSchonGenannteDateiBleibtVerschwiegen)
{
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    Einzellader lader(buehne.umgebung);
    lader.lade(Mittwochslotto, Einzellader::FehlendeDatei::Verschweigen);
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
}

TEST_F(ElementEinzellader, OhneEigenesLadenBleibtDasArchivWieEsIst)
{
    buehne.archiv.AnzahlZiehungen = 1;
    Einzellader(buehne.umgebung).gibZurueck();
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 1);
}

} // namespace
