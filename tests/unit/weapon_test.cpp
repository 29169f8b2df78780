#include "test_support.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <map>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

using Lines = std::vector<std::string>;

WeaponRecord readWeaponText(std::string_view content) {
    WeaponReadReport report;
    return readWeapon(content, "weapon", report);
}

WeaponRecord inWeapon(std::string_view content) {
    return readWeaponText("<weapon>" + std::string(content) + "</weapon>");
}

AmmoTypeRecord ammoType(std::string_view content) {
    return inWeapon("<ammo><type>" + std::string(content) + "</type></ammo>").ammoTypes.at(0);
}

/// Every element that the writer knows.
WeaponRecord fullWeapon() {
    WeaponRecord weapon;
    weapon.fileName = "weapon";
    weapon.name = "WEAPON_CANNON_X";
    weapon.type = WeaponType::Cannon;
    std::tie(weapon.barrelLength, weapon.calibre, weapon.numberOfBarrels, weapon.range, weapon.rateOfFire,
             weapon.magazineCapacity) = std::tuple(5250, 7.92F, 6, 3000, 12, 5);
    std::tie(weapon.shootSound, weapon.tracerImage, weapon.reloadSound, weapon.ejectClipSound) =
        std::tuple("shot", "tracer", "reload", "eject");
    std::tie(weapon.muzzleFlash, weapon.singleShot) = std::tuple(false, true);
    weapon.reload = ReloadMode::Automatic;
    std::tie(weapon.comments, weapon.period, weapon.countries) =
        std::tuple("Two words: never cut.", "WW2", "German, Finnish");
    AmmoTypeRecord& heat = weapon.ammoTypes.emplace_back();
    std::tie(heat.flavour, heat.era, heat.guided) =
        std::tuple(AmmoFlavour::Heat, HeatEra::Modern, GuidanceMode::TopAttack);
    std::tie(heat.speed, heat.mass, heat.highExplosive, heat.explodeIn) =
        std::tuple(450.5F, 4.4F, 0.9F, 3.5F);
    heat.smokeTrail = true;
    std::tie(heat.tracerImage, heat.explodeSound, heat.name) = std::tuple("rocket", "bang", "Gr 38");
    weapon.ammoTypes.emplace_back();
    return weapon;
}

} // namespace

TEST(WeaponFile, WritesAndReadsEveryElement) {
    EXPECT_EQ(weaponFileText(fullWeapon()), goldenText("weapon.txt"));
    EXPECT_TRUE(readWeaponText(goldenText("weapon.txt")) == fullWeapon());
}

TEST(WeaponFile, WritesAWordForEveryNumber) {
    WeaponRecord weapon;
    weapon.reload = static_cast<ReloadMode>(9);
    weapon.ammoTypes = {{.flavour = AmmoFlavour::RpgHeat, .era = static_cast<HeatEra>(77)},
                        {.flavour = static_cast<AmmoFlavour>(200), .guided = static_cast<GuidanceMode>(77)}};
    const std::string text = weaponFileText(weapon);
    for (const char* element : {"<reload>RELOAD_AUTOMATIC</reload>", "<era>HEAT_ERA_LATE</era>",
                                "<flavour>FLAVOUR_NONE</flavour>", "<guided>GUIDED_MANUAL</guided>"}) {
        EXPECT_NE(text.find(element), std::string::npos) << element;
    }
}

TEST(WeaponFile, StartsFromTheDefaults) {
    for (const char* content :
         {"", "<weapon></weapon>", "<weapon><calibre>5</calibre><capacity>7</capacity></weapon>",
          "<gun><name>X</name></gun>",
          "<weapon><ammo><x><flavour>FLAVOUR_AP</flavour></x></ammo></weapon>"}) {
        const WeaponRecord weapon = readWeaponText(content);
        WeaponRecord expected;
        expected.fileName = "weapon";
        EXPECT_TRUE(weapon == expected) << content;
        EXPECT_EQ(static_cast<int>(weapon.type), 16);
        EXPECT_TRUE(weapon.muzzleFlash && weapon.numberOfBarrels == 1 && weapon.magazineCapacity == 1);
    }
    EXPECT_EQ(static_cast<int>(ammoType("").flavour), 193);
}

TEST(WeaponFile, BringsNumbersIntoRange) {
    struct Case {
        const char* text;
        int capacity;
        int barrels;
        int range;
    };
    for (const Case& c : {Case{"0", 1, 0, 0}, Case{"-5", 1, 251, -5}, Case{"1", 1, 1, 1},
                          Case{"258", 258, 2, 258}, Case{"40000", 32767, 64, 32767}, Case{"x", 1, 0, 0}}) {
        const std::string text = c.text;
        const WeaponRecord weapon = inWeapon(
            "<magazine><capacity>" + text + "</capacity></magazine><shoot><range>" + text +
            "</range></shoot><dimensions><number_barrels>" + text + "</number_barrels></dimensions>");
        EXPECT_EQ(weapon.magazineCapacity, c.capacity) << text;
        EXPECT_EQ(weapon.numberOfBarrels, c.barrels) << text;
        EXPECT_EQ(weapon.range, c.range) << text;
    }
}

TEST(WeaponFile, CutsTheEndingsOfTracerImages) {
    struct Case {
        const char* text;
        const char* name;
    };
    for (const Case& c :
         {Case{"Tracer.png", "Tracer"}, Case{"Tracer.PNG", "Tracer"}, Case{"Tracer.Png", "Tracer.Png"},
          Case{"png", "png"}, Case{"abc", "abc"}, Case{"", ""}, Case{".png", ""}, Case{"a.png.bak", "a.png"},
          Case{"Tracer", "Tracer"}}) {
        const std::string element = "<tracer_image>" + std::string(c.text) + "</tracer_image>";
        EXPECT_EQ(inWeapon("<shoot>" + element + "</shoot>").tracerImage, c.name) << c.text;
        EXPECT_EQ(ammoType(element).tracerImage, c.name) << c.text;
    }
}

TEST(WeaponFile, LeavesFieldsAtUnknownWords) {
    const WeaponRecord weapon = inWeapon(
        "<shoot><muzzle_flash>no</muzzle_flash><muzzle_flash>maybe</muzzle_flash><reload>RELOAD_AUTOMATIC</"
        "reload>"
        "<reload>RELOAD_BY_HAND</reload></shoot><magazine><single_shot>yes</single_shot><single_shot>no</"
        "single_shot></magazine>"
        "<ammo><type><era>HEAT_ERA_MODERN</era><era>x</era><guided>GUIDED_FAF</guided><guided></guided>"
        "<smoke_trail>yes</smoke_trail><smoke_trail>no</smoke_trail></type></ammo>");
    EXPECT_FALSE(weapon.muzzleFlash);
    EXPECT_EQ(weapon.reload, ReloadMode::Automatic);
    EXPECT_TRUE(weapon.singleShot);
    EXPECT_EQ(weapon.ammoTypes.at(0).era, HeatEra::Modern);
    EXPECT_EQ(weapon.ammoTypes.at(0).guided, GuidanceMode::FireAndForget);
    EXPECT_TRUE(weapon.ammoTypes.at(0).smokeTrail);
    EXPECT_TRUE(inWeapon("<shoot><muzzle_flash>no</muzzle_flash><muzzle_flash>yes</muzzle_flash></shoot>")
                    .muzzleFlash);
}

TEST(WeaponFile, TellsOfUnknownTypes) {
    WeaponReadReport report;
    const WeaponRecord weapon = readWeapon("<weapon><type>WEAPON_BOW</type><name>B</name><type>WEAPON_SMG</"
                                           "type><type>WEAPON_NONE</type></weapon>",
                                           "weapon", report);
    EXPECT_EQ(weapon.type, WeaponType::Smg) << "keeps its type";
    const std::string line =
        "\xF0\x9F\x92\xA5 ERROR: WeaponDataList: getListEntryForWeapon() unknown <type> in '";
    EXPECT_EQ(report.diagnostics, Diagnostics({line + "WEAPON_BOW'", line + "WEAPON_NONE'"}));
    EXPECT_EQ(report.unknownTypes, Lines({"WEAPON_NONE"}))
        << "a box only once there is a name for its caption";

    const TemporaryFolder folder;
    folder.write("Data\\Weapons\\W.txt",
                 "<weapon><name>WEAPON_X</name><type>WEAPON_BOW</type><type>WEAPON_LMG</type></weapon>");
    const MessageRecorder messages;
    const std::optional<WeaponRecord> loaded = loadWeapon(folder.path(), "W");
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->type, WeaponType::Lmg);
    ASSERT_EQ(MessageRecorder::shown().size(), 1U);
    EXPECT_EQ(MessageRecorder::shown()[0].text, "unknown <type> 'WEAPON_BOW'");
    EXPECT_EQ(MessageRecorder::shown()[0].caption, "WEAPON_X");
    EXPECT_EQ(MessageRecorder::shown()[0].icon, MessageIcon::Error);
    EXPECT_FALSE(loadWeapon(folder.path(), "Missing"));
    EXPECT_EQ(MessageRecorder::shown().back().caption, "Couldn't load file");
}

TEST(WeaponFile, LeavesOutAmmunitionThatFindsNoRoom) {
    std::string content = "<weapon><ammo>\n";
    for (std::size_t i = 0; i < MaxAmmoTypes; ++i) {
        content += "<type><name>n</name></type>\n";
    }
    const WeaponRecord full = readWeaponText(content + "</ammo></weapon>");
    EXPECT_EQ(full.ammoTypes.size(), MaxAmmoTypes);
    WeaponReadReport report;
    const WeaponRecord tooFull = readWeapon(
        content + "<type><name>LEAK</name><mass>9</mass></type>\n</ammo></weapon>", "weapon", report);
    EXPECT_TRUE(tooFull == full);
    EXPECT_EQ(report.diagnostics,
              Diagnostics({"ERROR: weapon: line 257: more than 255 ammunition types: left out"}));
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

TEST(FlavourNames, AreTheGames) {
    std::size_t named = 0;
    std::set<int> heat;
    for (int value = 0; value < 256; ++value) {
        const auto flavour = static_cast<AmmoFlavour>(value);
        const std::string_view name = nameOf(flavour);
        if (name == "FLAVOUR_NONE") {
            EXPECT_EQ(displayNameOf(flavour), "Unknown") << value;
            continue;
        }
        ++named;
        EXPECT_EQ(flavourOf(name), value < 16 ? AmmoFlavour::None : flavour) << name;
        if (isHeat(flavour)) {
            heat.insert(value);
        }
    }
    EXPECT_EQ(named, 35U);
    EXPECT_EQ(heat, std::set<int>({34, 81, 129, 141, 142}));
    for (const auto& [older, value] : std::map<std::string_view, int>{{"FLAVOUR_AP_HE", 130},
                                                                      {"FLAVOUR_APC_HE", 132},
                                                                      {"FLAVOUR_APCBC_HE", 134},
                                                                      {"FLAVOUR_BALL_AT_RIFLE", 18},
                                                                      {"FLAVOUR_RPG", 81},
                                                                      {"FLAVOUR_XYZ", 0},
                                                                      {"", 0}}) {
        EXPECT_EQ(static_cast<int>(flavourOf(older)), value) << older;
    }
    for (const auto& [value, shown] :
         std::map<int, std::string_view>{{1, ""}, {35, "Molotov cocktail"}, {81, "HEAT"}, {193, "Bomb HE"}}) {
        EXPECT_EQ(displayNameOf(static_cast<AmmoFlavour>(value)), shown) << value;
    }
}

} // namespace varrocade::tests
