#include "test_support.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <set>
#include <tuple>

#include <gtest/gtest.h>

namespace varrocade::tests {

TEST(WeaponFile, PutsEveryValueIntoItsMember) {
    const WeaponRecord weapon = readWeaponText(goldenText("weapon.txt"));
    EXPECT_EQ(std::tie(weapon.name, weapon.type, weapon.barrelLength, weapon.calibre, weapon.numberOfBarrels,
                       weapon.range, weapon.rateOfFire, weapon.magazineCapacity),
              std::tuple("WEAPON_CANNON_X", WeaponType::Cannon, 5250, 7.92F, 6, 3000, 12, 5));
    EXPECT_EQ(
        std::tie(weapon.shootSound, weapon.tracerImage, weapon.reloadSound, weapon.ejectClipSound,
                 weapon.comments, weapon.period, weapon.countries),
        std::tuple("shot", "tracer", "reload", "eject", "Two words: never cut.", "WW2", "German, Finnish"));
    EXPECT_EQ(std::tie(weapon.muzzleFlash, weapon.singleShot, weapon.reload),
              std::tuple(false, true, ReloadMode::Automatic));
    const AmmoTypeRecord heat = {AmmoFlavour::Heat,
                                 HeatEra::Modern,
                                 450.5F,
                                 4.4F,
                                 true,
                                 GuidanceMode::TopAttack,
                                 "rocket",
                                 0.9F,
                                 3.5F,
                                 "bang",
                                 "Gr 38"};
    EXPECT_TRUE(weapon.ammoTypes == std::vector<AmmoTypeRecord>({heat, AmmoTypeRecord()}));
}

TEST(WeaponFile, WritesAWordForEveryNumber) {
    WeaponRecord weapon;
    weapon.reload = static_cast<ReloadMode>(9);
    weapon.ammoTypes = {{.flavour = AmmoFlavour::RpgHeat, .era = static_cast<HeatEra>(77)},
                        {.guided = GuidanceMode::FireAndForget},
                        {.flavour = static_cast<AmmoFlavour>(200), .guided = static_cast<GuidanceMode>(77)}};
    const std::string text = weaponFileText(weapon);
    for (const char* element :
         {"<reload>RELOAD_AUTOMATIC</reload>", "<era>HEAT_ERA_LATE</era>", "<guided>GUIDED_FAF</guided>",
          "<flavour>FLAVOUR_NONE</flavour>", "<guided>GUIDED_MANUAL</guided>"}) {
        EXPECT_NE(text.find(element), std::string::npos) << element;
    }
}

TEST(WeaponFile, StartsFromTheDefaults) {
    WeaponRecord weapon;
    weapon.fileName = "weapon";
    EXPECT_TRUE(readWeaponText("") == weapon);
    EXPECT_TRUE(readWeaponText("<gun><name>X</name></gun>") == weapon);
    EXPECT_TRUE(weapon.type == WeaponType::Rifle && weapon.muzzleFlash && weapon.numberOfBarrels == 1 &&
                weapon.magazineCapacity == 1);
    weapon.ammoTypes.resize(1);
    EXPECT_TRUE(readWeaponText("<weapon><ammo><type></type></ammo></weapon>") == weapon);
}

TEST(WeaponFile, TellsOfUnknownTypes) {
    Diagnostics diagnostics;
    const WeaponRecord weapon = readWeapon("<weapon><type>WEAPON_BOW</type><name>B</name>"
                                           "<type>WEAPON_SMG</type><type>WEAPON_NONE</type></weapon>",
                                           "weapon", diagnostics);
    EXPECT_EQ(weapon.type, WeaponType::Smg) << "keeps its type";
    const std::string line =
        "\xF0\x9F\x92\xA5 ERROR: WeaponDataList: getListEntryForWeapon() unknown <type> in '";
    EXPECT_EQ(debuggerLines(diagnostics),
              std::vector<std::string>({line + "WEAPON_BOW'", line + "WEAPON_NONE'"}));

    const TemporaryFolder folder;
    folder.write("Data\\Weapons\\W.txt",
                 "<weapon><name>WEAPON_X</name><type>WEAPON_BOW</type><type>WEAPON_LMG</type></weapon>");
    const LoadedWeapon loaded = loadWeapon(systemFiles(), folder.path(), "W");
    EXPECT_EQ(loaded.record.value_or(WeaponRecord()).type, WeaponType::Lmg);
    ASSERT_EQ(loaded.diagnostics.size(), 1U);
    EXPECT_EQ(loaded.diagnostics[0].value, "WEAPON_BOW");
    EXPECT_EQ(loaded.diagnostics[0].subject, "WEAPON_X");
    const LoadedWeapon missing = loadWeapon(systemFiles(), folder.path(), "Missing");
    EXPECT_FALSE(missing.record);
    EXPECT_EQ(missing.failure.path, folder.path() + "Data\\Weapons\\Missing.txt");
    EXPECT_NE(missing.failure.reason, "");
}

TEST(WeaponFile, LeavesOutAmmunitionThatFindsNoRoom) {
    const std::string most = "<weapon><ammo>\n" + repeated("<type><name>n</name></type>\n", 255);
    const std::string oneMore = "<type><name>LEAK</name><mass>9</mass></type>\n";
    Diagnostics diagnostics;
    EXPECT_TRUE(readWeapon(most + oneMore + "</ammo></weapon>", "weapon", diagnostics) ==
                readWeaponText(most + "</ammo></weapon>"));
    EXPECT_EQ(
        debuggerLines(diagnostics),
        std::vector<std::string>({"ERROR: weapon: line 257: more than 255 ammunition types: left out"}));
}

TEST(WeaponNames, AreOneForEachType) {
    std::set<std::string_view> names;
    for (int value = 0; value < 256; ++value) {
        const auto type = static_cast<WeaponType>(value);
        const std::string_view name = nameOf(type);
        EXPECT_EQ(weaponTypeOf(name), name == "WEAPON_NONE" ? WeaponType::None : type) << name;
        names.insert(name);
    }
    EXPECT_EQ(names.size(), 20U);
    EXPECT_EQ(static_cast<int>(weaponTypeOf("WEAPON_RIFLE")), 16);
    EXPECT_EQ(static_cast<int>(weaponTypeOf("WEAPON_RPG")), 49);
    EXPECT_EQ(static_cast<int>(weaponTypeOf("WEAPON_ARTILLERY")), 248);
    EXPECT_EQ(weaponTypeOf("weapon_rifle"), WeaponType::None);
}

} // namespace varrocade::tests
