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
        std::string_view first;
        std::string_view last;
    };
    const std::vector<Case> cases = {
        {"TYPE_", unitTypeNames(), 18, "TYPE_ARMOURED_CAR", "TYPE_TANK"},
        {"QUALITY_", qualityNames(), 6, "QUALITY_ELITE", "QUALITY_RAW"},
        {"RELIABILITY_", reliabilityNames(), 7, "RELIABILITY_TERRIBLE", "RELIABILITY_EXCELLENT"},
        {"STEERING_", steeringNames(), 9, "STEERING_CLUTCH_AND_BRAKE",
         "STEERING_TWIN_TRANSMISSION_WITH_REVERSE"},
        {"JOB_", jobNames(), 10, "JOB_COMMANDER", "JOB_SQUAD_MG_ASSISTANT"},
        {"MOUNT_", mountNames(), 3, "MOUNT_FRONT", "MOUNT_REAR"},
        {NationalityPrefix, nationalityNames(), 39, "NATIONALITY_AMERICAN", "NATIONALITY_UKRAINIAN"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.names.size(), c.count) << c.prefix;
        EXPECT_EQ(c.names.front(), c.first);
        EXPECT_EQ(c.names.back(), c.last);
        EXPECT_EQ(std::set<std::string_view>(c.names.begin(), c.names.end()).size(), c.count) << c.prefix;
        for (const std::string_view name : c.names) {
            EXPECT_TRUE(name.starts_with(c.prefix)) << name;
        }
    }
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
        {"WEAPON_CARBINE_M1", "FLAVOUR_BALL", true},
        {"WEAPON_RIFLE_KAR98K", "FLAVOUR_BALL", true},
        {"WEAPON_SMG_MP40", "FLAVOUR_BALL", true},
        {"WEAPON_LMG_MG42", "FLAVOUR_BALL", true},
        {"WEAPON_HMG_MG34", "FLAVOUR_BALL", true},
        {"WEAPON_HMG_MG34", "FLAVOUR_PELLETS", false},
        {"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_BALL_AT_RIFLE", true},
        {"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_AT_RIFLE_AP", true},
        {"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_AT_RIFLE_HE", false},
        {"WEAPON_FLAMETHROWER_M2", "FLAVOUR_FLAME", true},
        {"WEAPON_GRENADE_F1", "FLAVOUR_GRENADE_HE", true},
        // A grenade's row stands before the smoke grenade's, which never decides.
        {"WEAPON_GRENADE_SMOKE_M18", "FLAVOUR_GRENADE_SMOKE", false},
        {"WEAPON_GRENADE_SMOKE_M18", "FLAVOUR_GRENADE_HE", true},
        {"WEAPON_GRENADE_SMOKE", "FLAVOUR_GRENADE_HE", true},
        {"WEAPON_RPG_PIAT", "FLAVOUR_RPG_HEAT", true},
        {"WEAPON_BOMB_FAB100", "FLAVOUR_BOMB_HE", true},
        {"WEAPON_CANNON_75_PAK40_L46", "FLAVOUR_HE", false},
        {"WEAPON_CANNON_75_PAK40_L46", "", true},
        {"WEAPON_RIFLE", "FLAVOUR_BALL", false},
        {"", "", true},
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
    const EngineRow* lafrance = findEngine("ENGINE_AMERICAN_LAFRANCE_312A_V_12");
    ASSERT_NE(lafrance, nullptr);
    EXPECT_EQ(lafrance->name, "Lafrance 312A V12");
    EXPECT_EQ(lafrance->horsepower, 244);
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
    EXPECT_EQ(text.size(), 255U);
    EXPECT_EQ(text, std::string_view(longText).substr(0, 255));
    EXPECT_EQ(std::string_view(text.c_str()).size(), 255U);
    text = "short";
    EXPECT_EQ(text, "short");
    EXPECT_EQ(std::string_view(text.c_str()), "short");
    EXPECT_NE(text, Text("shorter"));
    EXPECT_EQ(text, Text(std::string_view("short and more").substr(0, 5)));
    text = text.view().substr(2);
    EXPECT_EQ(text, "ort");
    text.clear();
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(LanguageCode("deu"), "de");
}

TEST(FixedString, CopiesTheWholeText) {
    const Text full(std::string(255, 'y'));
    Text copy("longer than nothing");
    copy = full;
    EXPECT_EQ(copy, full);
    EXPECT_EQ(std::string_view(copy.c_str()), full.view());
    const Text other("s");
    copy = other;
    EXPECT_EQ(copy, "s");
    EXPECT_EQ(std::string_view(copy.c_str()), "s");
    const Text& same = copy;
    copy = same;
    EXPECT_EQ(Text(copy), "s");
}

TEST(ImageNames, LoseTheirEndingInAnyCase) {
    struct Case {
        std::string_view text;
        std::string_view name;
        bool isDefault;
    };
    const std::vector<Case> cases = {
        {"hull.png", "hull", false},
        {"hull.PnG", "hull", false},
        {"hull", "hull", false},
        {"hull.png.png", "hull.png", false},
        {"hull.jpg", "hull.jpg", false},
        {".png", "", false},
        {"png", "png", false},
        {"", "", false},
        {"Default", "Default", true},
        {"DEFAULT.PNG", "DEFAULT", true},
        {"default.png", "default", true},
        {"Default.jpg", "Default.jpg", false},
        {"Defaults", "Defaults", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(imageNameOf(c.text), c.name) << c.text;
        EXPECT_EQ(isDefaultImage(c.text), c.isDefault) << c.text;
    }
}

} // namespace varrocade::tests
