#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungskalender.h"
#include "testhilfen/Datenordner.h"
#include "tools/muster/Spielwoche.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

void vergleiche(std::int16_t spielart)
{
    if (!gibtEchteDaten())
        GTEST_SKIP() << "no real draws";
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.ProgrammVerzeichnis = kEchteDaten.string();
    LadeZiehungsdatei(archiv, {});
    ASSERT_GE(archiv.AnzahlZiehungen, 757);
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
        const auto tag = istSamstag(spielart) ? samstagsZiehung(nr) : mittwochsZiehung(nr);
        const auto zeile = static_cast<std::size_t>(nr);
        ASSERT_EQ(spielwocheVon(tag), (Spielwoche{archiv.jjjj[zeile], archiv.sw[zeile]})) << datumText(tag);
    }
}

} // namespace

TEST(EchteSpielwochen, RegelGibtJedeSpielwocheDesSamstagslottos)
{
    vergleiche(Samstagslotto);
}

TEST(EchteSpielwochen, RegelGibtJedeSpielwocheDesMittwochslottos)
{
    vergleiche(Mittwochslotto);
}

TEST(EchteSpielwochen, RegelGibtJedeSpielwocheDesMittwochslottosB)
{
    vergleiche(MittwochslottoB);
}
