// The "Weapon Data" dialog's forms, lists and figures, driven without windows.

#include "analysis/usual_spans.h"
#include "editors/unit/sound_choices.h"
#include "editors/weapon/weapon_figures.h"
#include "editors/weapon/weapon_form.h"
#include "editors/weapon/weapon_words.h"
#include "fake_form_port.h"
#include "resources/resource.h"
#include "test_support.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_kinds.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

using Texts = std::vector<std::string>;

/// Shows a weapon as the dialog does.
struct ShownWeapon {
    explicit ShownWeapon(WeaponRecord shown) : weapon(std::move(shown)) {
        form.show(port);
        if (ammo.count() > 0) {
            ammo.show(0, port);
        }
    }
    /// Takes everything over; the message of what is refused.
    std::string take() {
        auto error = form.read(port);
        if (!error && ammo.count() > 0) {
            error = ammo.read(0, port);
        }
        return error ? error->message : std::string();
    }
    void choose(int control, const std::string& word) {
        port.texts[control] = word;
        form.update(port);
        ammo.update(0, port);
    }

    WeaponRecord weapon;
    FakeFormPort port;
    RecordForm<WeaponRecord> form{weapon, weaponDataShape()};
    AmmoTypeModel ammo{weapon};
};

std::string formWord(auto value) {
    return Codec<decltype(value)>::textOf(value, {});
}

} // namespace

TEST(WeaponForm, OpeningAndTakingChangesNothing) {
    std::size_t count = 0;
    for (const SampleFile& file : sampleFiles()) {
        if (file.category != Category::Weapons) {
            continue;
        }
        SCOPED_TRACE(file.name);
        const WeaponRecord weapon = readWeaponText(file.content);
        ShownWeapon shown(weapon);
        for (std::size_t i = 0; i < shown.ammo.count(); ++i) {
            shown.ammo.show(i, shown.port);
            ASSERT_FALSE(shown.ammo.read(i, shown.port));
        }
        ASSERT_FALSE(shown.form.read(shown.port));
        EXPECT_TRUE(shown.weapon == weapon);
        EXPECT_EQ(weaponFileText(shown.weapon), weaponFileText(weapon));
        ++count;
    }
    EXPECT_GT(count, 100U);
}

TEST(WeaponForm, WhatIsTakenIsWhatTheFileGivesBack) {
    for (const FormWord<WeaponType>& type : FormWords<WeaponType>::words()) {
        for (const FormWord<AmmoFlavour>& flavour : FormWords<AmmoFlavour>::words()) {
            SCOPED_TRACE(std::string(type.word) + ", " + std::string(flavour.word));
            ShownWeapon shown(startingWeapon(WeaponType::Cannon));
            shown.choose(IDC_WD_TYPE, std::string(type.word));
            shown.choose(IDC_WD_FLAVOUR, std::string(flavour.word));
            const std::pair<int, const char*> typed[] = {
                {IDC_WD_NAME, "X"},         {IDC_WD_CALIBRE, "88.1234567"}, {IDC_WD_BARREL_LENGTH, "4930"},
                {IDC_WD_BARRELS, "2"},      {IDC_WD_RANGE, "3500"},         {IDC_WD_RATE_OF_FIRE, "15"},
                {IDC_WD_CAPACITY, "3"},     {IDC_WD_TRACER, "red.png"},     {IDC_WD_SHOOT_SOUND, "bang"},
                {IDC_WD_RELOAD_SOUND, "r"}, {IDC_WD_EJECT_SOUND, "e"},      {IDC_WD_COMMENTS, "some words"},
                {IDC_WD_PERIOD, "WW2"},     {IDC_WD_COUNTRIES, "German"},   {IDC_WD_AMMO_NAME, "round"},
                {IDC_WD_SPEED, "1e3"},      {IDC_WD_MASS, "0.33333333"},    {IDC_WD_EXPLOSIVE, "-0"},
                {IDC_WD_FUSE, "4.5"},       {IDC_WD_AMMO_TRACER, "green"},  {IDC_WD_EXPLODE_SOUND, "boom"}};
            for (const auto& [control, text] : typed) {
                shown.port.texts[control] = text;
            }
            shown.port.texts[IDC_WD_ERA] = formWord(HeatEra::Modern);
            shown.port.texts[IDC_WD_GUIDANCE] = formWord(GuidanceMode::TopAttack);
            shown.port.texts[IDC_WD_RELOAD] = formWord(ReloadMode::Automatic);
            ASSERT_EQ(shown.take(), "");
            const WeaponRecord& weapon = shown.weapon;
            EXPECT_EQ(weapon.type, type.value);
            const bool hasBarrel = type.value != WeaponType::Grenade && type.value != WeaponType::Bomb;
            EXPECT_EQ(weapon.magazineCapacity, hasBarrel ? 3 : 1);
            EXPECT_EQ(weapon.calibre, hasBarrel ? 88.1235F : 75.0F) << "as it is printed";
            const AmmoTypeRecord& ammo = weapon.ammoTypes[0];
            EXPECT_EQ(ammo.flavour, flavour.value);
            EXPECT_EQ(ammo.era, isHeat(flavour.value) ? HeatEra::Modern : HeatEra::Early);
            EXPECT_EQ(ammo.speed, type.value == WeaponType::Grenade ? 550.0F : 1000.0F);
            // Nothing that the form lets through is lost in the file.
            const std::string text = weaponFileText(weapon);
            const WeaponRecord again = readWeaponText(text);
            EXPECT_EQ(weaponFileText(again), text);
            EXPECT_EQ(again.ammoTypes[0].mass, ammo.mass);
            EXPECT_EQ(again.countries, "German");
        }
    }
}

TEST(WeaponForm, SaysWhatTheFileDoesNotCarry) {
    ShownWeapon shown(startingWeapon(WeaponType::Cannon));
    EXPECT_EQ(weaponNotCarried(shown.port, shown.weapon), "");
    EXPECT_EQ(ammoNotCarried(shown.port, shown.weapon.ammoTypes[0]),
              "Not in the file of this type and flavour: HEAT era.");
    shown.choose(IDC_WD_TYPE, formWord(WeaponType::Grenade));
    shown.choose(IDC_WD_FLAVOUR, formWord(AmmoFlavour::GrenadeSmoke));
    EXPECT_EQ(
        weaponNotCarried(shown.port, shown.weapon),
        "Not in the file of this type: Calibre, Barrel length, Number of barrels, Capacity, Single shot, "
        "Reloading, Ejecting the clip.");
    EXPECT_EQ(ammoNotCarried(shown.port, shown.weapon.ammoTypes[0]),
              "Not in the file of this type and flavour: HEAT era, Speed, High explosive.");
    for (const int control :
         {IDC_WD_CALIBRE, IDC_WD_SINGLE_SHOT, IDC_WD_SPEED, IDC_WD_EXPLOSIVE, IDC_WD_ERA}) {
        EXPECT_TRUE(shown.port.disabled.contains(control)) << control;
    }
    const std::tuple<int, const char*, const char*> refused[] = {
        {IDC_WD_TYPE, "Cannons", "\"Type\" must be one of the words of its list"},
        {IDC_WD_RANGE, "40000", "\"Range\" must be a whole number from 0 to 32767"},
        {IDC_WD_MASS, "-1", "\"Mass\" must be a number of at least 0"},
        {IDC_WD_MASS, "1e39", "\"Mass\" must be a number of at least 0"},
        {IDC_WD_NAME, "a//b",
         "\"Name\" must not begin with \"<\" nor contain \"</\" or \"//\": the file could not hold it"}};
    for (const auto& [control, text, message] : refused) {
        const std::string former = shown.port.texts[control];
        shown.port.texts[control] = text;
        EXPECT_EQ(shown.take(), message);
        shown.port.texts[control] = former;
    }
}

TEST(WeaponForm, AmmunitionUpToTheGamesMost) {
    WeaponRecord weapon = startingWeapon(WeaponType::Mortar);
    AmmoTypeModel model(weapon);
    while (model.hasRoom()) {
        model.add();
    }
    EXPECT_EQ(weapon.ammoTypes.size(), 255U);
    EXPECT_EQ(weapon.ammoTypes.back().flavour, AmmoFlavour::MortarHe);
    EXPECT_EQ(offeredFlavours(WeaponType::Mortar, false),
              (Texts{"HE (FLAVOUR_MORTAR_HE)", "Smoke (FLAVOUR_MORTAR_SMOKE)"}));
    EXPECT_EQ(offeredFlavours(WeaponType::Mortar, true).size(), 32U);
    EXPECT_EQ(offeredFlavours(WeaponType::Mortar, true)[1], "Smoke (FLAVOUR_MORTAR_SMOKE)");
}

TEST(WeaponForm, ListsInTextsKeepWhatTheyDoNotKnow) {
    constexpr std::tuple<const char*, const char*, bool, const char*> cases[] = {
        {"", "WW2", true, "WW2"},
        {"WW2,Space Age ,  Modern", "Cold War", true, "WW2,Space Age ,  Modern, Cold War"},
        {"WW2,Space Age ,  Modern", "ww2", false, "Space Age,  Modern"},
        {"WW2,Space Age ,  Modern", "Modern", false, "WW2,Space Age "},
        {"WW2, WW2", "WW2", false, ""},
        {" , WW2", "WW2", true, " , WW2"},
        {"WW2", "WW1", false, "WW2"}};
    for (const auto& [text, entry, isIn, result] : cases) {
        EXPECT_EQ(withEntry(text, entry, isIn), result) << text << " / " << entry;
    }
    EXPECT_EQ(checkListEntries(Texts{"WW1", "WW2"}, "Space Age, ww2,"), (Texts{"WW1", "WW2", "Space Age"}));
    const Texts countries = knownCountries();
    EXPECT_NE(std::find(countries.begin(), countries.end(), "North Korean"), countries.end());
}

TEST(WeaponKinds, NamesFollowTheType) {
    constexpr std::tuple<const char*, WeaponType, const char*> cases[] = {
        {"WEAPON_CANNON_88", WeaponType::Mlrs, "WEAPON_MLRS_88"},
        {"88", WeaponType::Cannon, "WEAPON_CANNON_88"},
        {"WEAPON_GRENADE_LAUNCHER_M79", WeaponType::Grenade, "WEAPON_GRENADE_M79"},
        {"", WeaponType::AtRifle, "WEAPON_AT_RIFLE_"}};
    for (const auto& [name, type, result] : cases) {
        EXPECT_EQ(nameForType(name, type), result);
        EXPECT_EQ(namePrefixNote(name, type), "Names of this type begin with " + namePrefixOf(type));
        EXPECT_EQ(namePrefixNote(result, type), "");
    }
    // A new weapon of any type is what its file gives back, and has nothing out of the ordinary.
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    for (const FormWord<WeaponType>& type : FormWords<WeaponType>::words()) {
        WeaponRecord weapon = startingWeapon(type.value);
        weapon.fileName = readWeaponText("").fileName;
        EXPECT_TRUE(readWeaponText(weaponFileText(weapon)) == weapon) << type.word;
        EXPECT_EQ(unusualFigures(weapon, 0, catalogue.entries()), Texts()) << type.word;
    }
}

TEST(UsualSpans, NoteWhatIsOutOfTheOrdinary) {
    EXPECT_FALSE(usualSpan({1, 2, 3, 4}));
    std::vector<double> many;
    for (int i = 1; i <= 40; ++i) {
        many.push_back(i);
    }
    const auto span = usualSpan(many);
    ASSERT_TRUE(span);
    EXPECT_EQ(span->least, 3);
    EXPECT_EQ(span->greatest, 38);
    EXPECT_FALSE(isUnusual(47.5, *span) || isUnusual(2.4, *span));
    EXPECT_TRUE(isUnusual(47.6, *span) && isUnusual(2.39, *span));

    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    WeaponRecord rifle = *catalogue.find("WEAPON_RIFLE_KAR98K");
    EXPECT_EQ(unusualFigures(rifle, 0, catalogue.entries()), Texts());
    EXPECT_NEAR(muzzleEnergy(rifle.ammoTypes[0]), 3.7, 0.5);
    rifle.ammoTypes[0].speed = 9000;
    rifle.ammoTypes[0].mass = 0.5F;
    rifle.ammoTypes[0].highExplosive = 0.1F;
    Texts notes = unusualFigures(rifle, 0, catalogue.entries());
    ASSERT_EQ(notes.size(), 2U) << "no other ball has explosive to compare with";
    EXPECT_EQ(notes[0].substr(0, 40), "Speed 9000 m/s: usual for Ball is 700 to") << notes[0];
    EXPECT_EQ(notes[1].substr(0, 43), "Mass for the calibre 0.5 kg: usual for Ball") << notes[1];
    rifle.rateOfFire = 3000;
    notes = unusualFigures(rifle, 7, catalogue.entries());
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_TRUE(notes[0].starts_with("Rate of fire 3000 rounds a minute: usual for the type Rifle is "))
        << notes[0];
}

TEST(WeaponFigures, StandBesideThoseOfAnotherWeapon) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    const WeaponRecord* own = catalogue.find("WEAPON_CANNON_75_KWK42_L70");
    const WeaponRecord* other = catalogue.find("WEAPON_CANNON_88_KWK36_L56");
    ASSERT_TRUE(own != nullptr && other != nullptr);
    std::string text;
    for (const FigureRow& row : weaponFigureRows(*own, 0, other)) {
        text += row.label + "|" + row.own + "|" + row.other + "\n";
    }
    EXPECT_NE(text.find("Barrel|5250 mm (L70)|4930 mm (L56)\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Muzzle energy|2,972 kJ|"), std::string::npos) << text;
    EXPECT_NE(text.find("Armour, muzzle|152 mm|"), std::string::npos) << text;
    for (const FigureRow& row : weaponFigureRows({}, 0, nullptr)) {
        EXPECT_TRUE(row.other.empty() && !row.own.empty()) << row.label;
    }
}

TEST(SoundChoices, TheModsBeforeTheGames) {
    TemporaryFolder folder;
    folder.write("Mod\\Sounds\\bang.wav", "");
    folder.write("Game\\Sounds\\Bang.wav", "");
    folder.write("Game\\Sounds\\boom.wav", "");
    folder.write("Game\\Sounds\\notes.txt", "");
    const Texts bases = {folder.path() + "Mod\\", folder.path() + "Game\\"};
    EXPECT_EQ(soundChoices(bases), (Texts{"bang", "boom"}));
    EXPECT_EQ(soundPath(bases, "bang"), folder.path() + "Mod\\Sounds\\bang.wav");
    EXPECT_EQ(soundPath(bases, "boom"), folder.path() + "Game\\Sounds\\boom.wav");
    EXPECT_EQ(soundPath(bases, "nothing") + soundPath(bases, ""), "");
}

} // namespace varrocade::tests
