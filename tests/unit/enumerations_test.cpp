#include "data/unit/enumerations.h"

#include "data/format/fixed_string.h"
#include "data/unit/engine_table.h"
#include "data/unit/image_names.h"
#include "data/unit/unit_record.h"

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

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
    std::string withoutGame;
    std::size_t uniforms = 0;
    for (const std::string_view nationality : nationalityNames()) {
        if (const NationalUniform* uniform = findNationalUniform(nationality)) {
            ++uniforms;
            // "NATIONALITY_GERMAN" has "uniform_german_vehicle_crew".
            std::string nation(nationality.substr(NationalityPrefix.size()));
            std::transform(nation.begin(), nation.end(), nation.begin(),
                           [](char c) { return static_cast<char>(c - 'A' + 'a'); });
            EXPECT_EQ(uniform->profile, "uniform_" + nation + "_vehicle_crew");
            EXPECT_EQ(uniform->ranks, "uniform_ranks_" + nation);
            const bool hasGame = uniform->game == "uniform_game_" + nation + "_tank_crew";
            EXPECT_TRUE(hasGame || uniform->game == "uniform_" + nation + "_tank_crew") << uniform->game;
            withoutGame += hasGame ? "" : nation + " ";
        }
    }
    EXPECT_EQ(uniforms, 13U);
    EXPECT_EQ(withoutGame, "chinese finnish hungarian romanian ");
    EXPECT_EQ(findNationalUniform(""), nullptr);
}

TEST(Enumerations, KnowDefaultFlavours) {
    using Case = std::tuple<std::string_view, std::string_view, bool>;
    for (const auto& [weapon, flavour, isDefault] :
         {Case{"WEAPON_PISTOL_P38", "FLAVOUR_BALL", true}, Case{"WEAPON_HMG_MG34", "FLAVOUR_PELLETS", false},
          Case{"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_BALL_AT_RIFLE", true},
          Case{"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_AT_RIFLE_AP", true},
          Case{"WEAPON_AT_RIFLE_BOYS", "FLAVOUR_AT_RIFLE_HE", false},
          // A grenade's row stands before the smoke grenade's, which never decides.
          Case{"WEAPON_GRENADE_SMOKE_M18", "FLAVOUR_GRENADE_SMOKE", false},
          Case{"WEAPON_GRENADE_SMOKE", "FLAVOUR_GRENADE_HE", true},
          Case{"WEAPON_BOMB_FAB100", "FLAVOUR_BOMB_HE", true},
          Case{"WEAPON_CANNON_75_PAK40_L46", "FLAVOUR_HE", false},
          Case{"WEAPON_CANNON_75_PAK40_L46", "", true}, Case{"WEAPON_RIFLE", "FLAVOUR_BALL", false},
          Case{"", "FLAVOUR_BALL", false}}) {
        EXPECT_EQ(isDefaultFlavour(weapon, flavour), isDefault) << weapon << ' ' << flavour;
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
        EXPECT_TRUE(row.identifier.starts_with(EnginePrefix) && !row.name.empty() &&
                    row.name.size() <= Text::MaxLength && row.horsepower >= 10 && row.horsepower <= 2000)
            << row.identifier;
        EXPECT_TRUE(identifiers.insert(row.identifier).second) << row.identifier;
        EXPECT_EQ(findEngine(row.identifier), &row);
    }
    EXPECT_EQ(identifiers.size(), 250U);
    for (const char* unknown : {"ENGINE_BUICK_SERIES", "engine_buick_series_60", ""}) {
        EXPECT_EQ(findEngine(unknown), nullptr) << unknown;
    }
}

TEST(FixedString, CutsWhatDoesNotFit) {
    const std::string longText(300, 'x');
    Text text(longText);
    EXPECT_EQ(text, std::string_view(longText).substr(0, 255));
    EXPECT_EQ(std::string_view(text.c_str()).size(), 255U);
    EXPECT_EQ(LanguageCode("deu"), "de");
    text = Text("short");
    EXPECT_EQ(std::string_view(text.c_str()), "short");
    EXPECT_NE(text, Text("shorter"));
    EXPECT_EQ(text, Text(std::string_view("short and more").substr(0, 5)));
    text = text.view().substr(2);
    EXPECT_EQ(text, "ort");
    text.clear();
    EXPECT_TRUE(text.empty());
}

TEST(ImageNames, LoseTheirEndingInAnyCase) {
    using Case = std::tuple<std::string_view, std::string_view, bool>;
    for (const auto& [text, name, isDefault] :
         {Case{"hull.PnG", "hull", false}, Case{"hull", "hull", false},
          Case{"hull.png.png", "hull.png", false}, Case{"hull.jpg", "hull.jpg", false},
          Case{".png", "", false}, Case{"png", "png", false}, Case{"", "", false},
          Case{"Default", "Default", true}, Case{"DEFAULT.PNG", "DEFAULT", true},
          Case{"Default.jpg", "Default.jpg", false}, Case{"Defaults", "Defaults", false}}) {
        EXPECT_EQ(imageNameOf(text), name) << text;
        EXPECT_EQ(isDefaultImage(text), isDefault) << text;
    }
}

TEST(JobWords, TakeNobodyOnFootForALoader) {
    EXPECT_EQ(squadJobWord("JOB_LOADER"), "Soldier") << "has no job in the file";
    EXPECT_EQ(squadJobWord("JOB_SQUAD_MG_ASSISTANT"), "Squad MG Assistant");
    EXPECT_EQ(squadJobWord("JOB_GUNNER"), "Gunner");
    EXPECT_EQ(squadJobWord("JOB_COOK"), "JOB_COOK (unknown)");
}

} // namespace varrocade::tests
