#include "shell/logic/DateiFilter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DateiFilter, PaareAusTextUndMuster)
{
    EXPECT_THAT(teileDateiFilter("Textdateien (*.txt)|*.txt|Alle Dateien|*.*"),
                ElementsAre(DateiFilter{"Textdateien (*.txt)", "*.txt"}, DateiFilter{"Alle Dateien", "*.*"}));
}

TEST(DateiFilter, MehrereMusterBleibenBeisammen)
{
    EXPECT_THAT(teileDateiFilter("HTML|*.htm;*.html"), ElementsAre(DateiFilter{"HTML", "*.htm;*.html"}));
}

TEST(DateiFilter, LeerHatKeine)
{
    EXPECT_THAT(teileDateiFilter(""), IsEmpty());
    EXPECT_THAT(teileDateiFilter("|"), IsEmpty());
}

TEST(DateiFilter, TextOhneMusterFaelltWeg)
{
    EXPECT_THAT(teileDateiFilter("Text|*.txt|Rest"), ElementsAre(DateiFilter{"Text", "*.txt"}));
    EXPECT_THAT(teileDateiFilter("Text"), IsEmpty());
}

TEST(DateiFilter, LeererTextBeendetDieListe)
{
    EXPECT_THAT(teileDateiFilter("Text|*.txt||Mehr|*.m"), ElementsAre(DateiFilter{"Text", "*.txt"}));
}

} // namespace
