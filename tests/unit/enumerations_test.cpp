#include "data/enumerations.h"

#include "data/engine_table.h"
#include "data/fixed_string.h"
#include "data/image_names.h"
#include "data/unit_record.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace varrocade::tests {

TEST(Enumerations, HoldTheGamesNames) {
    struct Case {
        std::string_view prefix;
        std::span<const std::string_view> names;
        std::size_t count;
    };
    for (const Case& c : {Case{"TYPE_", unitTypeNames(), 18}, Case{"QUALITY_", qualityNames(), 6},
                          Case{"RELIABILITY_", reliabilityNames(), 7}, Case{"STEERING_", steeringNames(), 9},
                          Case{"JOB_", jobNames(), 10}, Case{"MOUNT_", mountNames(), 3},
                          Case{NationalityPrefix, nationalityNames(), 39}}) {
        EXPECT_EQ(c.names.size(), c.count) << c.prefix;
        EXPECT_EQ(std::set<std::string_view>(c.names.begin(), c.names.end()).size(), c.count) << c.prefix;
        for (const std::string_view name : c.names) {
            EXPECT_TRUE(name.starts_with(c.prefix)) << name;
        }
    }
    EXPECT_EQ(reliabilityNames().front(), "RELIABILITY_TERRIBLE") << "worst first";
    // Old files have these spellings.
    for (const char* name : {"NATIONALITY_KUWATI", "NATIONALITY_FINLAND", "NATIONALITY_ARMENIA"}) {
        EXPECT_EQ(std::count(nationalityNames().begin(), nationalityNames().end(), name), 1) << name;
    }
}

TEST(Enumerations, KnowNationalUniforms) {
    std::size_t withUniform = 0;
    for (const std::string_view nationality : nationalityNames()) {
        const NationalUniform* uniform = findNationalUniform(nationality);
        withUniform += uniform != nullptr ? 1 : 0;
        if (uniform != nullptr) {
            // "NATIONALITY_GERMAN" has "uniform_german_vehicle_crew".
            std::string nation(nationality.substr(NationalityPrefix.size()));
            std::transform(nation.begin(), nation.end(), nation.begin(),
                           [](char c) { return static_cast<char>(c - 'A' + 'a'); });
            EXPECT_EQ(uniform->profile, "uniform_" + nation + "_vehicle_crew");
            EXPECT_EQ(uniform->ranks, "uniform_ranks_" + nation);
            const bool hasGame = uniform->game == "uniform_game_" + nation + "_tank_crew";
            EXPECT_TRUE(hasGame || uniform->game == "uniform_" + nation + "_tank_crew") << uniform->game;
            const bool isWithoutGame =
                nation == "chinese" || nation == "finnish" || nation == "hungarian" || nation == "romanian";
            EXPECT_NE(hasGame, isWithoutGame) << nation;
        }
    }
    EXPECT_EQ(withUniform, 13U);
    EXPECT_EQ(findNationalUniform("NATIONALITY_DUTCH"), nullptr);
    EXPECT_EQ(findNationalUniform(""), nullptr);
}

TEST(Enumerations, KnowDefaultFlavours) {
    struct Case {
        std::string_view weapon;
        std::string_view flavour;
        bool isDefault;
    };
    const std::vector<Case> cases = {
        {"WEAPON_PISTOL_P38", "FLAVOUR_BALL", true},
        {"WEAPON_HMG_MG34", "FLAVOUR_PELLETS", false},
        {"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_BALL_AT_RIFLE", true},
        {"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_AT_RIFLE_AP", true},
        {"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_AT_RIFLE_HE", false},
        // A grenade's row stands before the smoke grenade's, which never decides.
        {"WEAPON_GRENADE_SMOKE_M18", "FLAVOUR_GRENADE_SMOKE", false},
        {"WEAPON_GRENADE_SMOKE", "FLAVOUR_GRENADE_HE", true},
        {"WEAPON_BOMB_FAB100", "FLAVOUR_BOMB_HE", true},
        {"WEAPON_CANNON_75_PAK40_L46", "FLAVOUR_HE", false},
        {"WEAPON_CANNON_75_PAK40_L46", "", true},
        {"WEAPON_RIFLE", "FLAVOUR_BALL", false},
        {"", "FLAVOUR_BALL", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(isDefaultFlavour(c.weapon, c.flavour), c.isDefault) << c.weapon << ' ' << c.flavour;
    }
}

TEST(Enumerations, AreShownToPeople) {
    EXPECT_EQ(displayName("NATIONALITY_NORTH_KOREAN", NationalityPrefix), "North Korean");
    EXPECT_EQ(displayName("German", NationalityPrefix), "German");
    EXPECT_EQ(displayName("", NationalityPrefix), "");
}

TEST(EngineTable, NamesEveryEngineOnce) {
    std::set<std::string_view> identifiers;
    for (const EngineRow& row : engineTable()) {
        EXPECT_TRUE(row.identifier.starts_with(EnginePrefix)) << row.identifier;
        EXPECT_TRUE(identifiers.insert(row.identifier).second) << row.identifier;
        EXPECT_FALSE(row.name.empty()) << row.identifier;
        EXPECT_LE(row.name.size(), Text::MaxLength);
        EXPECT_GE(row.horsepower, 10) << row.identifier;
        EXPECT_LE(row.horsepower, 2000) << row.identifier;
        EXPECT_EQ(findEngine(row.identifier), &row);
    }
    EXPECT_EQ(identifiers.size(), 250U);
    const EngineRow* buick = findEngine("ENGINE_BUICK_SERIES_60");
    ASSERT_NE(buick, nullptr);
    EXPECT_EQ(buick->name, "Buick Series 60");
    EXPECT_EQ(buick->horsepower, 330);
    EXPECT_EQ(findEngine("ENGINE_BUICK_SERIES"), nullptr);
    EXPECT_EQ(findEngine("engine_buick_series_60"), nullptr);
    EXPECT_EQ(findEngine(""), nullptr);
}

TEST(FixedString, CutsWhatDoesNotFit) {
    const std::string longText(300, 'x');
    Text text(longText);
    EXPECT_EQ(text, std::string_view(longText).substr(0, 255));
    EXPECT_EQ(std::string_view(text.c_str()).size(), 255U);
    EXPECT_EQ(LanguageCode("deu"), "de");
    Text copy("longer than nothing");
    copy = text;
    EXPECT_EQ(copy, text);
    EXPECT_EQ(std::string_view(copy.c_str()), text.view());
    const Text shorter("short");
    copy = shorter;
    EXPECT_EQ(std::string_view(copy.c_str()), "short");
    EXPECT_NE(copy, Text("shorter"));
    EXPECT_EQ(copy, Text(std::string_view("short and more").substr(0, 5)));
    copy = copy.view().substr(2);
    EXPECT_EQ(copy, "ort");
    copy.clear();
    EXPECT_TRUE(copy.empty());
}

TEST(ImageNames, LoseTheirEndingInAnyCase) {
    struct Case {
        std::string_view text;
        std::string_view name;
        bool isDefault = false;
    };
    for (const Case& c : {Case{"hull.png", "hull"}, Case{"hull.PnG", "hull"}, Case{"hull", "hull"},
                          Case{"hull.png.png", "hull.png"}, Case{"hull.jpg", "hull.jpg"}, Case{".png", ""},
                          Case{"png", "png"}, Case{"", ""}, Case{"Default", "Default", true},
                          Case{"DEFAULT.PNG", "DEFAULT", true}, Case{"Default.jpg", "Default.jpg"},
                          Case{"Defaults", "Defaults"}}) {
        EXPECT_EQ(imageNameOf(c.text), c.name) << c.text;
        EXPECT_EQ(isDefaultImage(c.text), c.isDefault) << c.text;
    }
}

} // namespace varrocade::tests
