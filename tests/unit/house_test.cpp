#include "tests/unit/house_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace house = unit::house;
using house::Complaints;
using house::Source;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto project = VEXLO_PROJECT_FOLDER;

// The house as it stands

std::string complaints_of(house::Rule const& rule)
{
    std::string all;
    for (Source const& source : house::sources_of(project)) {
        for (std::string const& complaint : rule(source)) {
            all += complaint + "\n";
        }
    }
    return all;
}

TEST(House, HasAllItsFloors)
{
    auto const sources = house::sources_of(project);
    for (auto const* folder :
         {"src/text/", "src/platform/", "src/controls/", "src/forms/", "src/records/",
          "src/popups/", "src/network/", "src/messaging/", "src/core/", "tests/unit/"}) {
        EXPECT_TRUE(std::ranges::any_of(sources, [folder](Source const& source) {
            return source.path.starts_with(folder) && !source.lines.empty();
        })) << folder;
    }
}

TEST(House, EveryIncludeGoesDown)
{
    EXPECT_EQ(complaints_of(house::includes_only_below), "");
}

TEST(House, QtStaysUnderTheRoof)
{
    EXPECT_EQ(complaints_of(house::keeps_qt_out), "");
}

TEST(House, ThePlatformIsAskedNeverAssumed)
{
    EXPECT_EQ(complaints_of(house::asks_the_platform), "");
}

TEST(House, NoFileIsTooLong)
{
    EXPECT_EQ(complaints_of(house::is_short), "");
}

TEST(House, EveryFunctionFitsOnAScreen)
{
    EXPECT_EQ(complaints_of(house::has_short_functions), "");
}

TEST(House, EverySourceIsPlain)
{
    EXPECT_EQ(complaints_of(house::is_plain), "");
}

TEST(House, EverySourceIsListed)
{
    auto const listed = house::listed_in(project);
    EXPECT_EQ(complaints_of([&](Source const& source) { return house::is_listed(source, listed); }),
              "");
}

// The rules themselves

Source source(std::string path, std::vector<std::string> lines)
{
    return {std::move(path), std::move(lines)};
}

Source including(std::string path, std::string const& included)
{
    return source(std::move(path), {"#pragma once", "#include " + included});
}

TEST(IncludeRule, AFolderKnowsItselfAndWhatStandsBelow)
{
    EXPECT_THAT(house::includes_only_below(including("src/forms/a.h", "\"forms/b.h\"")), IsEmpty());
    EXPECT_THAT(house::includes_only_below(including("src/forms/a.h", "\"text/b.h\"")), IsEmpty());
    EXPECT_THAT(house::includes_only_below(including("src/core/a.h", "\"network/b.h\"")),
                IsEmpty());
    EXPECT_THAT(house::includes_only_below(including("src/qt/a.cpp", "\"core/b.h\"")), IsEmpty());
    EXPECT_THAT(house::includes_only_below(including("sim/a.cpp", "\"core/b.h\"")), IsEmpty());
}

TEST(IncludeRule, AnIncludeThatGoesUpIsFound)
{
    EXPECT_THAT(house::includes_only_below(including("src/network/a.h", "\"messaging/b.h\"")),
                ElementsAre("src/network/a.h:2: network may not include messaging/b.h"));
    EXPECT_THAT(house::includes_only_below(including("src/core/a.cpp", "\"qt/b.h\"")),
                ElementsAre("src/core/a.cpp:2: core may not include qt/b.h"));
    EXPECT_THAT(house::includes_only_below(including("sim/a.cpp", "\"qt/b.h\"")),
                ElementsAre("sim/a.cpp:2: sim may not include qt/b.h"));
}

struct Sideways {
    std::string folder;
    std::string other;
};

class NeighbouringFolders : public testing::TestWithParam<Sideways> {};

TEST_P(NeighbouringFolders, DoNotKnowEachOther)
{
    auto const& [folder, other] = GetParam();
    EXPECT_EQ(
        house::includes_only_below(including("src/" + folder + "/a.h", "\"" + other + "/b.h\""))
            .size(),
        1U);
    EXPECT_EQ(
        house::includes_only_below(including("src/" + other + "/a.h", "\"" + folder + "/b.h\""))
            .size(),
        1U);
}

INSTANTIATE_TEST_SUITE_P(
    Floors, NeighbouringFolders,
    testing::Values(Sideways{"network", "popups"}, Sideways{"network", "records"},
                    Sideways{"popups", "records"}, Sideways{"messaging", "config"},
                    Sideways{"messaging", "desktop"}, Sideways{"config", "desktop"},
                    Sideways{"config", "popups"}, Sideways{"controls", "platform"},
                    Sideways{"forms", "platform"}));

TEST(IncludeRule, AnIncludeWithoutItsFolderIsFound)
{
    EXPECT_THAT(house::includes_only_below(including("src/text/a.cpp", "\"a.h\"")),
                ElementsAre("src/text/a.cpp:2: text may not include a.h"));
    EXPECT_THAT(house::includes_only_below(including("src/text/a.cpp", "\"../core/a.h\"")),
                ElementsAre("src/text/a.cpp:2: text may not include ../core/a.h"));
}

TEST(IncludeRule, AFolderOnNoFloorIsFound)
{
    EXPECT_THAT(house::includes_only_below(including("src/misc/a.h", "\"text/b.h\"")),
                ElementsAre("src/misc/a.h:1: misc stands on no floor of the house"));
}

TEST(QtRule, QtIsFoundBelowTheRoofAndInTheSimulation)
{
    for (auto const* path : {"src/forms/a.h", "src/core/a.cpp", "sim/a.h"}) {
        for (auto const* included :
             {"<QString>", "<QtCore/QString>", "<qglobal.h>", "\"qt/b.h\""}) {
            EXPECT_EQ(house::keeps_qt_out(including(path, included)).size(), 1U)
                << path << included;
        }
    }
    EXPECT_THAT(house::keeps_qt_out(including("src/forms/a.h", "<queue>")), IsEmpty());
    EXPECT_THAT(house::keeps_qt_out(including("src/qt/a.h", "<QString>")), IsEmpty());
    EXPECT_THAT(house::keeps_qt_out(including("tests/real/a.h", "<QString>")), IsEmpty());
}

TEST(PlatformRule, AFileStreamInTheLogicIsFound)
{
    EXPECT_THAT(house::asks_the_platform(including("src/core/a.cpp", "<fstream>")),
                ElementsAre("src/core/a.cpp:2: the platform is to be asked instead of <fstream>"));
    EXPECT_EQ(house::asks_the_platform(including("src/network/a.h", "<sys/socket.h>")).size(), 1U);
    EXPECT_THAT(house::asks_the_platform(including("src/network/a.h", "<string>")), IsEmpty());
    EXPECT_THAT(house::asks_the_platform(including("src/text/a.cpp", "<chrono>")), IsEmpty());
    EXPECT_THAT(house::asks_the_platform(including("src/qt/a.h", "<fstream>")), IsEmpty());
    EXPECT_THAT(house::asks_the_platform(including("sim/a.h", "<chrono>")), IsEmpty());
}

TEST(PlatformRule, ALookAtTheClockOrTheEnvironmentIsFound)
{
    EXPECT_THAT(house::asks_the_platform(
                    source("src/core/a.cpp", {"auto t = std::chrono::system_clock::now();"})),
                ElementsAre("src/core/a.cpp:1: the platform is to be asked instead of "
                            "system_clock"));
    EXPECT_EQ(house::asks_the_platform(source("src/core/a.cpp", {"std::getenv(name)"})).size(), 1U);
    EXPECT_THAT(house::asks_the_platform(source("src/qt/a.cpp", {"std::getenv(name)"})), IsEmpty());
}

TEST(LengthRule, AFileEndsWithItsFiveHundredthLine)
{
    EXPECT_THAT(house::is_short(source("tests/a.cpp", std::vector<std::string>(500))), IsEmpty());
    EXPECT_THAT(house::is_short(source("tests/a.cpp", std::vector<std::string>(501))),
                ElementsAre("tests/a.cpp:501: a file of 501 lines"));
}

Source with_function_of(std::size_t lines, std::string const& indent)
{
    Source whole{"src/text/a.cpp", {"namespace text {", indent + "void f()", indent + "{"}};
    for (std::size_t line = 2; line < lines; line += 2) {
        whole.lines.push_back(indent + "    if (true) {");
        whole.lines.push_back(indent + "    }");
    }
    whole.lines.push_back(indent + "}");
    whole.lines.emplace_back("}");
    return whole;
}

TEST(LengthRule, AFunctionEndsWithItsSixtiethLine)
{
    EXPECT_THAT(house::has_short_functions(with_function_of(60, "")), IsEmpty());
    EXPECT_THAT(house::has_short_functions(with_function_of(62, "")),
                ElementsAre("src/text/a.cpp:3: a function of 62 lines"));
    EXPECT_THAT(house::has_short_functions(with_function_of(60, "    ")), IsEmpty());
    EXPECT_THAT(house::has_short_functions(with_function_of(62, "    ")),
                ElementsAre("src/text/a.cpp:3: a function of 62 lines"));
}

TEST(LengthRule, AFunctionThatNeverEndsIsFound)
{
    auto endless = with_function_of(60, "");
    endless.lines.resize(endless.lines.size() - 2);
    endless.lines.insert(endless.lines.end(), 3, "    f();");

    EXPECT_EQ(house::has_short_functions(endless).size(), 1U);
}

TEST(PlainRule, MacrosSingletonsVagueNamesAndWhatIsLeftForLaterAreFound)
{
    EXPECT_THAT(house::is_plain(source("src/text/a.h", {"#define X 1"})),
                ElementsAre("src/text/a.h:1: a macro"));
    EXPECT_THAT(house::is_plain(source("src/text/a.h", {"", "// the Singleton"})),
                ElementsAre("src/text/a.h:2: a singleton"));
    EXPECT_THAT(house::is_plain(source("sim/a.h", {"class PeerManager;"})),
                ElementsAre("sim/a.h:1: PeerManager says nothing of what it is"));
    EXPECT_THAT(house::is_plain(source("src/text/a.h", {"// TODO"})),
                ElementsAre("src/text/a.h:1: something is left for later"));
    EXPECT_THAT(house::is_plain(source("src/qt/a.h", {"class QNetworkAccessManager;"})), IsEmpty());
    EXPECT_THAT(house::is_plain(source("src/text/a.h", {"#pragma once", "implicit(Implicit);"})),
                IsEmpty());
}

TEST(PlainRule, AHeaderThatOpensANamespaceIsFound)
{
    EXPECT_THAT(house::is_plain(source("tests/a.h", {"using namespace std;"})),
                ElementsAre("tests/a.h:1: a header opens a namespace"));
    EXPECT_THAT(house::is_plain(source("src/text/a.cpp", {"using namespace std;"})), IsEmpty());
}

TEST(ListRule, AListNamesItsSources)
{
    EXPECT_THAT(
        house::names_listed_by("add_library(x a.cpp b/c.cpp\n    HEADERS d.h\n    LINKS e)"),
        ElementsAre("a.cpp", "b/c.cpp", "d.h"));
    EXPECT_THAT(house::names_listed_by("# file(GLOB all *.cpp)"), IsEmpty());
}

TEST(ListRule, ALoopNamesASourceByAWord)
{
    auto const named = house::names_listed_by("foreach(it one two)\n    add(${it} ${it}.cpp)");

    EXPECT_THAT(named, testing::IsSupersetOf({"one.cpp", "two.cpp"}));
    EXPECT_FALSE(named.contains("three.cpp"));
}

TEST(ListRule, AnUnlistedSourceIsFound)
{
    std::set<std::string> const listed{"src/text/a.cpp", "src/text/a.h"};
    EXPECT_THAT(house::is_listed(source("src/text/a.cpp", {}), listed), IsEmpty());
    EXPECT_THAT(house::is_listed(source("src/text/a.h", {}), listed), IsEmpty());
    EXPECT_THAT(house::is_listed(source("src/core/a.cpp", {}), listed),
                ElementsAre("src/core/a.cpp:1: no CMakeLists.txt lists it"));
    EXPECT_EQ(house::is_listed(source("src/core/a.h", {}), listed).size(), 1U);
    EXPECT_EQ(house::is_listed(source("tests/unit/a.cpp", {}), listed).size(), 1U);
    EXPECT_THAT(house::is_listed(source("tests/unit/fakes.h", {}), listed), IsEmpty());
}

} // namespace
