// The forms of the "Edit Mod" dialogs.

#include "editors/mod/mod_forms.h"

#include "editors/mod/mod_units.h"

#include "fake_form_port.h"
#include "mod/starting_points.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

using Lines = std::vector<std::string>;

TEST(ModForm, RefusesAWarThatEndsBeforeItBegins) {
    FakeFormPort port;
    ModSettings settings;
    fillForm(port, modShape(), settings);
    EXPECT_EQ(port.texts[IDC_MOD_FIRST], "1939");
    port.texts[IDC_MOD_AUTHOR] = "Me";
    EXPECT_FALSE(readForm(port, modShape(), settings));
    EXPECT_EQ(settings, ModSettings{.author = "Me"});
    struct Refused {
        int control;
        const char* text;
    };
    for (const Refused& one :
         {Refused{IDC_MOD_NAME, ""}, Refused{IDC_MOD_LAST, "1938"}, Refused{IDC_MOD_FIRST_MONTH, "13"},
          Refused{IDC_MOD_FIRST, "x"}, Refused{IDC_MOD_COMMENT, "a // b"}}) {
        fillForm(port, modShape(), settings);
        port.texts[one.control] = one.text;
        const auto error = readForm(port, modShape(), settings);
        ASSERT_TRUE(error) << one.text;
        EXPECT_EQ(error->control, one.control) << error->message;
    }
    EXPECT_EQ(settings, ModSettings{.author = "Me"});
}

TEST(ModForm, EntriesWithAPeriodMayBeOpen) {
    FakeFormPort port;
    std::vector<ModAllegiance> sides = {{"SIDE_FIRST", {1940, 6, 0, 12}}};
    VectorListModel<ModAllegiance> model(sides, allegianceShape());
    EXPECT_EQ(model.line(0), "6/1940 - : First");
    model.offer(port, {});
    EXPECT_EQ(port.choices[IDC_MOD_SIDE].size(), 3U);
    model.show(0, port);
    port.texts[IDC_MOD_LAST] = "1940";
    port.texts[IDC_MOD_LAST_MONTH] = "5";
    ASSERT_TRUE(model.read(0, port));
    EXPECT_EQ(model.read(0, port)->control, IDC_MOD_LAST);
    port.texts[IDC_MOD_LAST_MONTH] = "6";
    EXPECT_FALSE(model.read(0, port));
    EXPECT_EQ(sides[0].period, (ModPeriod{1940, 6, 1940, 6}));
}

TEST(ModForm, NewNationalitiesAreOnesThatAreNotThereYet) {
    std::vector<ModNationality> nations;
    nations.reserve(4);
    for (int i = 0; i < 4; ++i) {
        nations.push_back(nextNationality(nations));
    }
    EXPECT_EQ(nations[0].id, "NATIONALITY_AMERICAN");
    EXPECT_EQ(nations[0].surnames.size(), 100U);
    EXPECT_EQ(nations[1].id, "NATIONALITY_ARMENIAN") << "and no older spelling of it";
    EXPECT_EQ(nations[2].id, "NATIONALITY_AUSTRALIAN");
    EXPECT_EQ(nationalityShape().line(3, nations[2]), "3. Australia (Australian)");

    ModNationality untouched = nations[2];
    ModNationality chosen = untouched;
    for (const char* typed : {"NATIONALITY_FINN", "NATIONALITY_FINNISH", "NATIONALITY_FINLAND"}) {
        chosen.id = typed;
        followNationality(chosen, untouched);
        EXPECT_EQ(chosen.name, typed == std::string_view("NATIONALITY_FINN") ? "Australia" : "Finland")
            << typed;
    }
    chosen.ranks[0].name = "Mine";
    chosen.id = "NATIONALITY_POLISH";
    followNationality(chosen, untouched);
    EXPECT_EQ(chosen.name, "Finland") << "what was edited stays";
}

TEST(ModForm, AnotherWarLeavesTheModItsDescription) {
    for (const char* own : {"", "The Second World War, September 1939 to September 1945", "My own war"}) {
        ModSettings settings{.name = "Mine", .comment = own};
        startAnew(settings, startingSettings(StartingPoint::FirstWorldWar));
        EXPECT_EQ(settings.comment, own == std::string_view("My own war")
                                        ? own
                                        : "The First World War, July 1914 to November 1918");
        EXPECT_EQ(settings.name, "Mine");
        EXPECT_EQ(settings.firstYear, 1914);
        EXPECT_FALSE(settings.nationalities.empty());
    }
}

TEST(ModForm, CreditsAndSurnamesAreLines) {
    EXPECT_EQ(creditsText({"", "a", "", "b"}), "\r\na\r\n\r\nb");
    EXPECT_EQ(creditLines(creditsText({"", "a", "", "b"})), (Lines{"", "a", "", "b"}));
    EXPECT_EQ(creditLines("a\nb\r\n\r\n"), (Lines{"a", "b"}));
    EXPECT_FALSE(refusalOfCredits({"", "fine / good"}));
    EXPECT_TRUE(refusalOfCredits({"ok", "see http://x"}));
    std::vector<ModSurname> surnames = surnamesOfText("  Smith \nadams\t3\r\n\n<x>\nBrown\t-5\nAdams\t3");
    EXPECT_EQ(surnames, (std::vector<ModSurname>{{"Smith", 1}, {"adams", 3}, {"Brown", 1}, {"Adams", 3}}));
    Lines leftOut;
    surnamesOfText("Ok\nNo//pe\t3\n\n<x>", &leftOut);
    EXPECT_EQ(leftOut, (Lines{"No//pe", "<x>"}));
    struct Count {
        const char* text;
        std::int32_t count;
    };
    for (const Count& one : {Count{"2,442,977", 2442977}, Count{" 12.345", 12345}, Count{"880.85", 880},
                             Count{"0.881", 1}, Count{"1 500 rest", 1500}, Count{"1,2345", 1},
                             Count{"1234,567", 1234}, Count{"99999999999", 10'000'000}, Count{"", 1}}) {
        EXPECT_EQ(surnamesOfText(std::string("A\t") + one.text).at(0).commonness, one.count) << one.text;
    }
    sortSurnames(surnames);
    EXPECT_EQ(surnames, (std::vector<ModSurname>{{"adams", 3}, {"Adams", 3}, {"Brown", 1}, {"Smith", 1}}));
    sortSurnamesByName(surnames);
    EXPECT_EQ(surnames.back().name, "Smith");
    surnames.push_back({"SMITH", 9});
    dropDoubles(surnames);
    EXPECT_EQ(surnames, (std::vector<ModSurname>{{"adams", 3}, {"Brown", 1}, {"Smith", 9}}));
    EXPECT_EQ(namedColours().size(), 10U);
}

TEST(ModForm, ListsGoBackAndForth) {
    std::vector<ModRank> ranks = {{"Private", ""}, {"General", ""}};
    VectorListModel<ModRank> model(ranks, rankShape());
    model.note();
    EXPECT_FALSE(model.canUndo() || model.canRedo());
    ranks[1].name = "Marshal";
    EXPECT_TRUE(model.canUndo()) << "also what was not noted yet";
    model.note();
    model.add();
    EXPECT_EQ(model.undo(), 2U);
    EXPECT_EQ(model.undo(), 1U) << "the entry that is another";
    EXPECT_EQ(ranks[1].name, "General");
    EXPECT_EQ(model.undo(), std::nullopt);
    EXPECT_EQ(model.redo(), 1U);
    EXPECT_EQ(model.redo(), 2U);
    FakeFormPort port;
    model.show(2, port);
    EXPECT_TRUE(model.read(2, port)) << "still new: a rank needs a name";
    EXPECT_EQ(model.undo(), 2U);
    ranks.pop_back();
    model.resized();
    model.note();
    EXPECT_FALSE(model.canRedo()) << "something else was done";
    EditHistory<int> history(0);
    for (int i = 1; i < 300; ++i) {
        history.note(i);
    }
    int steps = 0;
    for (const int* state = history.undo(299); state != nullptr; state = history.undo(*state)) {
        ++steps;
    }
    EXPECT_EQ(steps, 99) << "the oldest are forgotten";
}

TEST(ModForm, EquipmentHasTwoSides) {
    const std::vector<EquipmentSource> sources = {
        {Category::Vehicles, "Tank", "NATIONALITY_FRENCH", {{1, 1940, 5000}}},
        {Category::Vehicles, "Old Tank", "NATIONALITY_FRENCH", {{1, 1917, 3}, {1, 1919, 0}}},
        {Category::Infantry, "Men", "NATIONALITY_GERMAN", {}}};
    ModSettings war;
    const MonthRange year = monthsOf(war, {.firstYear = 1940, .lastYear = 1940});
    EXPECT_EQ(monthsOf(war, {}).first, 1939 * 12);
    std::vector<ModListedUnit> listed = {{"tank", "infantry", 2, 7}};
    using Places = std::vector<std::size_t>;
    EXPECT_EQ(unitsToOffer(sources, {}, listed), (Places{0, 1, 2})) << "the listed one is of another kind";
    EXPECT_EQ(unitsToOffer(sources, {.words = "tank old"}, listed), Places{1});
    EXPECT_EQ(unitsToOffer(sources, {.words = "", .category = Category::Infantry}, listed), Places{2});
    EXPECT_EQ(unitsToOffer(sources, {.words = "", .nationality = "NATIONALITY_FRENCH", .time = year}, listed),
              Places{0});
    listUnits(listed, sources, Places{0, 2}, year);
    EXPECT_EQ(listed[1], (ModListedUnit{"Tank", "vehicles", 5000, 0}));
    EXPECT_EQ(listed[2].share, 1);
    EXPECT_EQ(unitsToOffer(sources, {}, listed), Places{1});
    EXPECT_EQ(listedCells(sources, listed[0])[0], "tank  (!) there is no such unit");
    EXPECT_EQ(listedCells(sources, {"Gun", "atguns", 1, 0})[1], "AT Guns");
    EXPECT_EQ(shownKind("ships"), "ships");
    EXPECT_EQ(commonNumber(listed, Places{1, 2}, &ModListedUnit::share), "");
    EXPECT_EQ(commonNumber(listed, Places{1, 2}, &ModListedUnit::cost), "0");
    unlistUnits(listed, Places{0, 2});
    EXPECT_EQ(listed.size(), 1U);
    EXPECT_TRUE(isUnitThere(sources, listed[0]));
}

} // namespace
} // namespace varrocade::tests
