// What records name, and which file answers it.

#include "test_support.h"
#include "tools/asset_files.h"
#include "tools/references.h"
#include "weapons/weapon_files.h"

#include <array>
#include <set>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

/// "path: written > name" a line, with the file that answers it.
template <typename Record>
std::string referencesOf(const Record& record, AssetFiles& files) {
    std::string text;
    forEachReference(record, [&](const Reference& reference) {
        if (reference.kind != ReferenceKind::Nationality) {
            const AssetFile* file = files.find(reference);
            text += reference.path.text() + ": " + std::string(reference.written);
            text += reference.written == reference.name ? "" : " > " + std::string(reference.name);
            text += file == nullptr ? "" : (file->isOfMod ? " = mod " : " = game ") + file->below();
            text += '\n';
        }
    });
    return text;
}

TEST(References, AreFoundAsTheGamesSystemFindsThem) {
    const TemporaryFolder folder;
    for (const std::string_view file :
         {"Game\\Images\\Units\\Vehicles\\Hulls\\Tiger.png",
          "Mod\\Images\\Units\\Vehicles\\Turrets\\TIGER.PNG",
          "Game\\Images\\Units\\Vehicles\\Turrets\\Tiger.png", "Game\\Images\\Units\\Wreck.png",
          "Game\\Images\\Uniforms\\uniform_game_german_tank_crew.png",
          "Game\\Images\\Flags\\Static\\german.png", "Game\\Data\\Weapons\\88mm.txt",
          "Mod\\Sounds\\Deep\\Roar.wav"}) {
        folder.write(file, "");
    }
    AssetFiles files({folder.path() + "Game\\", folder.path() + "Mod\\"});
    files.nameWeapon("WEAPON_KWK36", "88mm");
    const SquadRecord tank = readUnitText(
        "<squad><description><nationality>NATIONALITY_GERMAN</nationality><uniform_game>default.PNG"
        "</uniform_game><uniform_ranks>mine.png</uniform_ranks></"
        "description><vehicle><hull><image_view>tiger.png"
        "</image_view><image_destroyed>wreck</image_destroyed></hull><turret><image_view>tiger</image_view>"
        "<weapon><type>weapon_kwk36</type></weapon><ammo><for>88MM</for></ammo><man><weapon><type>A</type>"
        "</weapon><weapon><type>B</type></weapon></man></turret></vehicle></squad>");
    EXPECT_EQ(referencesOf(tank, files),
              "nationality: NATIONALITY_GERMAN > german = game Images\\Flags\\Static\\german.png\n"
              "nationality: NATIONALITY_GERMAN > german\n"
              "uniform_profile:  > uniform_german_vehicle_crew\n"
              "uniform_game: Default > uniform_game_german_tank_crew"
              " = game Images\\Uniforms\\uniform_game_german_tank_crew.png\n"
              "uniform_ranks: mine\n"
              "vehicle.hull[1].image_view: tiger = game Images\\Units\\Vehicles\\Hulls\\Tiger.png\n"
              "vehicle.hull[1].image_destroyed: wreck = game Images\\Units\\Wreck.png\n"
              "vehicle.turret[1].image_view: tiger = mod Images\\Units\\Vehicles\\Turrets\\TIGER.PNG\n"
              "vehicle.turret[1].weapon[1].type: weapon_kwk36 = game Data\\Weapons\\88mm.txt\n"
              "vehicle.turret[1].ammo[1].for: 88MM = game Data\\Weapons\\88mm.txt\n"
              "vehicle.turret[1].man[1].weapon[1]: A\nvehicle.turret[1].man[1].weapon[2]: B\n");
    EXPECT_EQ(referencesOf(readWeaponText("<weapon><sound_shoot>deep\\roar</sound_shoot></weapon>"), files),
              "");
    const auto& turrets = files.list(image_folder::Turrets, ".png");
    ASSERT_EQ(turrets.size(), 2U) << "the hidden one behind the mod's";
    EXPECT_FALSE(turrets[1].isOfMod);
}

TEST(References, OfTheSampleAreAllThere) {
    AssetFiles files({.program = SampleBase});
    std::set<std::string> missing;
    std::array<int, 6> found{};
    const auto visit = [&](const Reference& reference) {
        if (files.find(reference) != nullptr) {
            ++found.at(static_cast<std::size_t>(reference.kind));
        } else if (reference.kind != ReferenceKind::Nationality) {
            missing.insert(std::string(reference.name));
        }
    };
    for (const SampleFile& file : sampleFiles()) {
        if (file.category == Category::Weapons) {
            forEachReference(readWeaponText(file.content), visit);
        } else {
            forEachReference(readUnitText(file.content), visit);
        }
    }
    EXPECT_EQ(missing, std::set<std::string>());
    for (const ReferenceKind kind : {ReferenceKind::Weapon, ReferenceKind::Picture, ReferenceKind::Uniform,
                                     ReferenceKind::Sound, ReferenceKind::Flag}) {
        EXPECT_GT(found.at(static_cast<std::size_t>(kind)), 50) << static_cast<int>(kind);
    }
    for (const std::string_view folder : pictureFolders()) {
        EXPECT_FALSE(files.list(folder, ".png").empty()) << folder;
    }
}

} // namespace
} // namespace varrocade::tests
