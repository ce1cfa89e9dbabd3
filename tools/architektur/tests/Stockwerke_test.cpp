#include "testhilfen/Pruefordner.h"
#include "tools/architektur/Stockwerke.h"

#include <gmock/gmock.h>
#include <sstream>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A small tree of two subsystems on three floors that is in order.
class Stockwerke : public testing::Test {
protected:
    Stockwerke()
    {
        pflanze("haus/logic/Zahl.h", {});
        pflanze("haus/logic/Zahl.cpp", {"haus/logic/Zahl.h"});
        pflanze("haus/screens/Bild.h", {"haus/logic/Zahl.h"});
        pflanze("garten/logic/Beet.h", {"haus/logic/Zahl.h"});
        pflanze("garten/tests/Beet_test.cpp", {"garten/logic/Beet.h", "garten/tests/Hilfe.h", "testhilfen/Ordner.h"});
    }

    void pflanze(const std::string& datei, const std::vector<std::string>& einschluesse)
    {
        std::string text = "#pragma once\n#include <vector>\n";
        for (const std::string& einschluss : einschluesse)
            text += "#include \"" + einschluss + "\"\n";
        std::filesystem::create_directories((baum / datei).parent_path());
        baum.lege(datei, text);
    }

    std::vector<std::string> befunde() const
    {
        return pruefeStockwerke(baum.pfad(), {"haus/logic", "garten/logic", "haus/screens"});
    }

    Pruefordner baum;
};

TEST_F(Stockwerke, EinBaumInOrdnungHatKeinenBefund)
{
    EXPECT_THAT(befunde(), IsEmpty());
}

TEST_F(Stockwerke, EinPfeilNachObenWirdGenannt)
{
    pflanze("haus/logic/Steil.h", {"garten/logic/Beet.h"});
    pflanze("garten/logic/Steil.cpp", {"haus/screens/Bild.h"});
    EXPECT_THAT(befunde(), ElementsAre("garten/logic/Steil.cpp includes upwards: haus/screens/Bild.h",
                                       "haus/logic/Steil.h includes upwards: garten/logic/Beet.h"));
}

TEST_F(Stockwerke, EinKreisWirdGenannt)
{
    pflanze("haus/logic/Ei.h", {"haus/logic/Huhn.h"});
    pflanze("haus/logic/Huhn.h", {"haus/logic/Zahl.h", "haus/logic/Feder.h"});
    pflanze("haus/logic/Feder.h", {"haus/logic/Ei.h"});
    EXPECT_THAT(befunde(), ElementsAre("circle: haus/logic/Ei.h -> haus/logic/Huhn.h -> haus/logic/Feder.h -> "
                                       "haus/logic/Ei.h"));
}

TEST_F(Stockwerke, EinKreisVonStockwerkenHatEinenPfeilNachOben)
{
    pflanze("haus/logic/Hin.h", {"garten/logic/Beet.h"});
    pflanze("garten/logic/Her.h", {"haus/logic/Zahl.h"});
    EXPECT_THAT(befunde(), ElementsAre("haus/logic/Hin.h includes upwards: garten/logic/Beet.h"));
}

TEST_F(Stockwerke, WasKeinStockwerkIstTraegtKeines)
{
    pflanze("haus/screens/Fremd.h", {"testhilfen/Ordner.h"});
    pflanze("garten/logic/Fremd.h", {"haus/tests/Hilfe.h"});
    EXPECT_THAT(befunde(), ElementsAre("garten/logic/Fremd.h includes haus/tests/Hilfe.h, which is on no floor",
                                       "haus/screens/Fremd.h includes testhilfen/Ordner.h, which is on no floor"));
}

TEST_F(Stockwerke, TestsBorgenNichtVoneinander)
{
    pflanze("haus/tests/Zahl_test.cpp", {"haus/logic/Zahl.h", "garten/tests/Hilfe.h"});
    EXPECT_THAT(befunde(), ElementsAre("haus/tests/Zahl_test.cpp borrows from other tests: garten/tests/Hilfe.h"));
}

TEST(Architektur, DasProgrammStehtAufSeinenStockwerken)
{
    std::vector<std::string> stockwerke;
    std::istringstream liste(TOMBRIX_STOCKWERKE);
    for (std::string stockwerk; std::getline(liste, stockwerk, ':');)
        stockwerke.push_back(stockwerk);
    ASSERT_GT(stockwerke.size(), 10U);
    EXPECT_THAT(pruefeStockwerke(".", stockwerke), IsEmpty());
}

} // namespace
