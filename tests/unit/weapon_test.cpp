#include "test_support.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <set>

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

std::string ammoLine(const AmmoTypeRecord& ammo, WeaponType type = WeaponType::Cannon) {
    WeaponRecord weapon;
    weapon.type = type;
    weapon.ammoTypes = {ammo};
    const Lines lines = linesBetween(weaponFileText(weapon), "<ammo>", "</ammo>");
    return lines.size() == 3 ? lines[1].substr(2) : "not one line";
}

/// Every element that the writer knows.
WeaponRecord fullWeapon() {
    WeaponRecord weapon;
    weapon.fileName = "weapon";
    weapon.name = "WEAPON_CANNON_X";
    weapon.type = WeaponType::Cannon;
    weapon.barrelLength = 5250;
    weapon.calibre = 7.92F;
    weapon.numberOfBarrels = 6;
    weapon.range = 3000;
    weapon.shootSound = "shot";
    weapon.tracerImage = "tracer";
    weapon.muzzleFlash = false;
    weapon.rateOfFire = 12;
    weapon.reload = ReloadMode::Automatic;
    weapon.magazineCapacity = 5;
    weapon.singleShot = true;
    weapon.reloadSound = "reload";
    weapon.ejectClipSound = "eject";
    weapon.comments = "Two words: never cut.";
    weapon.period = "WW2";
    weapon.countries = "German, Finnish";
    AmmoTypeRecord& heat = weapon.ammoTypes.emplace_back();
    heat.flavour = AmmoFlavour::Heat;
    heat.era = HeatEra::Modern;
    heat.speed = 450.5F;
    heat.mass = 4.4F;
    heat.smokeTrail = true;
    heat.guided = GuidanceMode::TopAttack;
    heat.tracerImage = "rocket";
    heat.highExplosive = 0.9F;
    heat.explodeIn = 3.5F;
    heat.explodeSound = "bang";
    heat.name = "Gr 38";
    weapon.ammoTypes.emplace_back();
    return weapon;
}

} // namespace

TEST(WeaponFile, WritesAndReadsEveryElement) {
    EXPECT_EQ(weaponFileText(fullWeapon()), goldenText("weapon.txt"));
    EXPECT_TRUE(readWeaponText(goldenText("weapon.txt")) == fullWeapon());
}

TEST(WeaponFile, WritesLittleForAPlainOne) {
    EXPECT_EQ(linesOf(weaponFileText(WeaponRecord())),
              Lines({"<weapon>", "", "\t<name></name>", "\t<type>WEAPON_RIFLE</type>", "", "\t<dimensions>",
                     "\t</dimensions>", "", "\t<ammo>", "\t</ammo>", "", "</weapon>"}));
    WeaponRecord negative;
    negative.calibre = -1;
    negative.barrelLength = -1;
    negative.magazineCapacity = -5;
    EXPECT_EQ(weaponFileText(negative), weaponFileText(WeaponRecord()));
}

TEST(WeaponFile, LeavesOutBlocksOfWhatIsThrownOrDropped) {
    WeaponRecord weapon = fullWeapon();
    for (const WeaponType type : {WeaponType::Grenade, WeaponType::Bomb}) {
        weapon.type = type;
        const std::string text = weaponFileText(weapon);
        EXPECT_EQ(text.find("<dimensions>"), std::string::npos);
        EXPECT_EQ(text.find("<magazine>"), std::string::npos);
        EXPECT_NE(text.find("<shoot>"), std::string::npos);
        EXPECT_EQ(text.find("<speed>") != std::string::npos, type == WeaponType::Bomb);
    }
}

TEST(WeaponFile, OpensBlocksForAnyOfTheirValues) {
    struct Case {
        void (*change)(WeaponRecord&);
        const char* block;
        const char* line;
    };
    const std::vector<Case> cases = {
        {[](WeaponRecord& w) { w.shootSound = "s"; }, "shoot", "\t\t<sound_shoot>s</sound_shoot>"},
        {[](WeaponRecord& w) { w.tracerImage = "Tracer"; }, "shoot",
         "\t\t<tracer_image>Tracer.png</tracer_image>"},
        {[](WeaponRecord& w) { w.range = -1; }, "shoot", "\t\t<range>-1</range>"},
        {[](WeaponRecord& w) { w.rateOfFire = 1; }, "shoot", "\t\t<rof>1</rof>"},
        {[](WeaponRecord& w) { w.muzzleFlash = false; }, "shoot", "\t\t<muzzle_flash>no</muzzle_flash>"},
        {[](WeaponRecord& w) { w.reload = ReloadMode::SemiAutomatic; }, "shoot",
         "\t\t<reload>RELOAD_SEMI_AUTOMATIC</reload>"},
        {[](WeaponRecord& w) { w.reload = static_cast<ReloadMode>(9); }, "shoot",
         "\t\t<reload>RELOAD_AUTOMATIC</reload>"},
        {[](WeaponRecord& w) { w.magazineCapacity = 2; }, "magazine", "\t\t<capacity>2</capacity>"},
        {[](WeaponRecord& w) { w.singleShot = true; }, "magazine", "\t\t<single_shot>yes</single_shot>"},
        {[](WeaponRecord& w) { w.reloadSound = "r"; }, "magazine", "\t\t<sound_reload>r</sound_reload>"},
        {[](WeaponRecord& w) { w.ejectClipSound = "e"; }, "magazine",
         "\t\t<sound_eject_clip>e</sound_eject_clip>"},
        {[](WeaponRecord& w) { w.period = "WW1"; }, "usage", "\t\t<period>WW1</period>"},
        {[](WeaponRecord& w) { w.countries = "Dutch"; }, "usage", "\t\t<countries>Dutch</countries>"},
        {[](WeaponRecord& w) { w.comments = "c"; }, "comments", "\tc"},
        {[](WeaponRecord& w) { w.calibre = 120; }, "dimensions", "\t\t<calibre>120</calibre>"},
        {[](WeaponRecord& w) { w.numberOfBarrels = 2; }, "dimensions",
         "\t\t<number_barrels>2</number_barrels>"},
    };
    for (const Case& c : cases) {
        WeaponRecord weapon;
        c.change(weapon);
        const std::string block = c.block;
        EXPECT_EQ(linesBetween(weaponFileText(weapon), "<" + block + ">", "</" + block + ">"),
                  Lines({"\t<" + block + ">", c.line, "\t</" + block + ">"}));
    }
}

TEST(WeaponFile, WritesAmmunitionByItsFlavour) {
    struct Case {
        AmmoTypeRecord ammo;
        WeaponType weapon;
        const char* line;
    };
    using F = AmmoFlavour;
    using W = WeaponType;
    const std::vector<Case> cases = {
        {{.flavour = F::Ap, .era = HeatEra::Modern},
         W::Cannon,
         "<type><flavour>FLAVOUR_AP</flavour><speed>0</speed><mass>0</mass><name></name></type>"},
        {{.flavour = F::Heatfs},
         W::Cannon,
         "<type><flavour>FLAVOUR_HEATFS</flavour><speed>0</speed><mass>0</mass><name></name></type>"},
        {{.flavour = F::RpgHeat, .era = static_cast<HeatEra>(77)},
         W::Rpg,
         "<type><flavour>FLAVOUR_RPG_HEAT</flavour><speed>0</speed><mass>0</mass><era>HEAT_ERA_LATE</"
         "era><name></name></type>"},
        {{.flavour = F::Atgm, .guided = static_cast<GuidanceMode>(77)},
         W::Rpg,
         "<type><flavour>FLAVOUR_ATGM</flavour><speed>0</speed><mass>0</mass><guided>GUIDED_MANUAL</"
         "guided><name></name></type>"},
        {{.flavour = F::GrenadeHeat, .speed = 9, .mass = 0.5F},
         W::Grenade,
         "<type><flavour>FLAVOUR_GRENADE_HEAT</flavour><mass>0.5</mass><name></name></type>"},
        {{.flavour = F::MortarSmoke, .highExplosive = 2},
         W::Mortar,
         "<type><flavour>FLAVOUR_MORTAR_SMOKE</flavour><speed>0</speed><mass>0</mass><name></name></type>"},
        {{.flavour = F::Smoke, .highExplosive = 2},
         W::Cannon,
         "<type><flavour>FLAVOUR_SMOKE</flavour><speed>0</speed><mass>0</mass><HE>2</HE><name></name></"
         "type>"},
        {{.flavour = F::ArtillerySmoke, .highExplosive = 2},
         W::Artillery,
         "<type><flavour>FLAVOUR_ARTILLERY_SMOKE</flavour><speed>0</speed><mass>0</mass><HE>2</HE><name></"
         "name></type>"},
        {{.flavour = F::Ball, .highExplosive = -1, .explodeIn = -1},
         W::Rifle,
         "<type><flavour>FLAVOUR_BALL</flavour><speed>0</speed><mass>0</mass><name></name></type>"},
        {{.flavour = static_cast<F>(200)},
         W::Rifle,
         "<type><flavour>FLAVOUR_NONE</flavour><speed>0</speed><mass>0</mass><name></name></type>"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ammoLine(c.ammo, c.weapon), c.line);
    }
    for (const F flavour : {F::GrenadeSmoke, F::RpgSmoke}) {
        EXPECT_EQ(ammoLine({.flavour = flavour, .highExplosive = 2}).find("<HE>"), std::string::npos);
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

TEST(WeaponNames, AreTheGames) {
    struct Type {
        const char* name;
        int value;
    };
    const std::vector<Type> types = {
        {"WEAPON_NONE", 0},
        {"WEAPON_RIFLE", 16},
        {"WEAPON_PISTOL", 17},
        {"WEAPON_CARBINE", 18},
        {"WEAPON_SHOTGUN", 19},
        {"WEAPON_AT_RIFLE", 20},
        {"WEAPON_BOMB", 21},
        {"WEAPON_SMG", 24},
        {"WEAPON_LMG", 25},
        {"WEAPON_HMG", 26},
        {"WEAPON_GRENADE", 32},
        {"WEAPON_GRENADE_LAUNCHER", 34},
        {"WEAPON_RPG", 49},
        {"WEAPON_RECOILLESS_RIFLE", 50},
        {"WEAPON_FLAMETHROWER_PORTABLE", 64},
        {"WEAPON_FLAMETHROWER_TANK", 65},
        {"WEAPON_MORTAR", 80},
        {"WEAPON_CANNON", 128},
        {"WEAPON_MLRS", 144},
        {"WEAPON_ARTILLERY", 248},
    };
    std::set<int> values;
    for (const Type& type : types) {
        EXPECT_EQ(static_cast<int>(weaponTypeOf(type.name)), type.value) << type.name;
        EXPECT_EQ(nameOf(static_cast<WeaponType>(type.value)), type.name);
        values.insert(type.value);
    }
    for (int value = 0; value < 256; ++value) {
        if (!values.contains(value)) {
            EXPECT_EQ(nameOf(static_cast<WeaponType>(value)), "WEAPON_NONE") << value;
        }
    }
    EXPECT_EQ(weaponTypeOf("weapon_rifle"), WeaponType::None);
}

TEST(FlavourNames, AreTheGames) {
    std::size_t named = 0;
    for (int value = 0; value < 256; ++value) {
        const auto flavour = static_cast<AmmoFlavour>(value);
        const std::string_view name = nameOf(flavour);
        if (name == "FLAVOUR_NONE") {
            EXPECT_EQ(displayNameOf(flavour), "Unknown") << value;
            continue;
        }
        ++named;
        EXPECT_EQ(flavourOf(name), value < 16 ? AmmoFlavour::None : flavour) << name;
        const bool isHeatFlavour = value == 34 || value == 81 || value == 129 || value == 141 || value == 142;
        EXPECT_EQ(isHeat(flavour), isHeatFlavour) << name;
    }
    EXPECT_EQ(named, 35U);
    struct Older {
        const char* name;
        int value;
    };
    for (const Older& older :
         {Older{"FLAVOUR_AP_HE", 130}, Older{"FLAVOUR_APC_HE", 132}, Older{"FLAVOUR_APCBC_HE", 134},
          Older{"FLAVOUR_BALL_AT_RIFLE", 18}, Older{"FLAVOUR_RPG", 81}, Older{"FLAVOUR_NONE", 0},
          Older{"FLAVOUR_XYZ", 0}, Older{"", 0}}) {
        EXPECT_EQ(static_cast<int>(flavourOf(older.name)), older.value) << older.name;
    }
    struct Shown {
        int value;
        const char* name;
    };
    for (const Shown& shown :
         {Shown{1, ""}, Shown{64, ""}, Shown{35, "Molotov cocktail"}, Shown{18, "AP"}, Shown{81, "HEAT"},
          Shown{134, "APCBC"}, Shown{193, "Bomb HE"}, Shown{133, "Unknown"}}) {
        EXPECT_EQ(displayNameOf(static_cast<AmmoFlavour>(shown.value)), shown.name) << shown.value;
    }
    EXPECT_EQ(ammoLine(ammoType("<flavour>FLAVOUR_APC_HE</flavour>")).substr(0, 36),
              "<type><flavour>FLAVOUR_APC</flavour>");
    EXPECT_EQ(ammoLine(ammoType("<flavour>?</flavour>")).substr(0, 37),
              "<type><flavour>FLAVOUR_NONE</flavour>");
}

} // namespace varrocade::tests
