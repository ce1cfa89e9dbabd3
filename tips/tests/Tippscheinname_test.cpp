#include "testhilfen/Pruefordner.h"
#include "testhilfen/Schreibhindernisse.h"
#include "tips/logic/Tippscheinname.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Tippscheinname, NenntSpielartUndSpielwoche)
{
    EXPECT_EQ(tippscheinName(0, "202418"), "S_202418.dat");
    EXPECT_EQ(tippscheinName(1, "202418"), "S_202418.dat");
    EXPECT_EQ(tippscheinName(2, "202418"), "M_202418.dat");
    EXPECT_EQ(tippscheinName(3, "202418"), "M_202418.dat");
    EXPECT_EQ(tippscheinName(1, "000012"), "S_000012.dat");
    EXPECT_EQ(tippscheinName(1, "Tipp12"), "S_Tipp12.dat");
}

TEST(Tippscheinname, PasstOhneGrossUndKlein)
{
    for (const char* name : {"S_202418.dat", "s_202418.DAT", "s_.dat", "S_1999al.Dat"}) {
        EXPECT_TRUE(istTippscheinName(1, name)) << name;
        EXPECT_FALSE(istTippscheinName(2, name)) << name;
    }
    EXPECT_TRUE(istTippscheinName(2, "m_202418.dat"));
    EXPECT_TRUE(istTippscheinName(3, "M_202418.dat"));
    for (const char* name : {"", "s_", ".dat", "s.dat", "s_202418.dat.bak", "xs_202418.dat", "s_202418.txt"})
        EXPECT_FALSE(istTippscheinName(1, name)) << name;
}

TEST(Tippscheinname, EineJahresdateiHatALAnSiebterStelle)
{
    for (const char* name : {"S_1999al.dat", "s_1999AL.DAT", "M_2001Al.dat", "m_2001aLes.dat"})
        EXPECT_TRUE(istJahresTippschein(name)) << name;
    for (const char* name : {"S_199901.dat", "S_al1999.dat", "S_1999.dat", "S_1999a.dat", ""})
        EXPECT_FALSE(istJahresTippschein(name)) << name;
}

TEST(Tippscheinname, KeinTrennerUndKeinSteuerzeichenImDateinamen)
{
    for (const char* text : {"202418", "..2018", "a b 12", "Grüß12", ""})
        EXPECT_TRUE(taugtAlsDateiname(text)) << text;
    for (const char* text :
         {"../412", "a\\b412", "C:2412", "2024*12", "20?412", "20\n412", "20\t412", "\x7f", "a<12", "|"})
        EXPECT_FALSE(taugtAlsDateiname(text)) << text;
    EXPECT_FALSE(taugtAlsDateiname(std::string_view("2\0 412", 6)));
}

TEST(Tippscheinname, DieListeZeigtNurDateienDerSpielartInDerReihenfolgeDesAlphabets)
{
    const Pruefordner ordner;
    for (const char* name :
         {"s_202502.dat", "S_202501.DAT", "S_1999al.dat", "M_202501.dat", "S_202501.dat.bak", "x.dat"})
        ordner.lege(name, "");
    std::filesystem::create_directory(ordner / "S_202503.dat");
    EXPECT_THAT(tippscheinNamen(ordner.pfad(), 1), ElementsAre("S_1999al.dat", "S_202501.DAT", "s_202502.dat"));
    EXPECT_THAT(tippscheinNamen(ordner.pfad(), 2), ElementsAre("M_202501.dat"));
    EXPECT_THAT(tippscheinNamen(ordner.pfad(), 3), ElementsAre("M_202501.dat"));
}

TEST(Tippscheinname, EinOrdnerDenEsNichtGibtHatKeine)
{
    const Pruefordner ordner;
    EXPECT_THAT(tippscheinNamen(ordner / "fehlt", 1), IsEmpty());
    EXPECT_THAT(tippscheinNamen(ordner.lege("datei", ""), 1), IsEmpty());
}

} // namespace
