// Every file of the sample, read and written and read again.

#include "data/enumerations.h"
#include "data/unit_writers.h"
#include "test_support.h"
#include "weapons/weapon_files.h"

#include <array>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

struct Written {
    std::string text;
    SquadRecord unit;
    WeaponRecord weapon;
    Diagnostics diagnostics;
};

/// Reads a content with its category's reader and writes what came of it.
Written rewritten(const SampleFile& file, const std::string& content) {
    Written written;
    if (file.category == Category::Weapons) {
        WeaponReadReport report;
        written.weapon = readWeapon(content, file.name, report);
        written.diagnostics = report.diagnostics;
        written.text = weaponFileText(written.weapon);
    } else {
        written.unit = readUnit(content, file.name, written.diagnostics);
        written.text = unitFileText(file.category, written.unit).value_or("");
    }
    return written;
}

void clearDefaultFlavours(std::vector<AmmoLoadRecord>& loads) {
    for (AmmoLoadRecord& ammo : loads) {
        if (isDefaultFlavour(ammo.weaponType, ammo.flavour)) {
            ammo.flavour.clear();
        }
    }
}

/// A unit without what its category's files have no place for.
SquadRecord asInFile(Category category, SquadRecord unit) {
    unit.convertedAvailability = false;
    if (unit.vehicle) {
        for (ComponentRecord& component : unit.vehicle->components) {
            if (component.kind == ComponentKind::FixedWeapon) {
                component.armour = ArmourRecord();
            }
        }
    }
    if (category == Category::Vehicles && unit.uniformProfile == "Default") {
        unit.uniformProfile.clear();
    }
    if (unit.aircraft) {
        for (WeaponMountRecord& weapon : unit.aircraft->weapons) {
            weapon.mount.clear();
            weapon.offsetAngle = 0;
        }
        clearDefaultFlavours(unit.aircraft->ammo);
    }
    for (CrewManRecord& man : unit.infantrymen) {
        man.job = man.job.view().starts_with("JOB_SQUAD_") ? man.job.view() : "JOB_LOADER";
        clearDefaultFlavours(man.ammo);
    }
    return unit;
}

} // namespace

TEST(RoundTrip, KeepsEveryRecord) {
    for (const SampleFile& file : sampleFiles()) {
        const Written first = rewritten(file, file.content);
        ASSERT_FALSE(first.text.empty()) << file.name;
        const Written second = rewritten(file, first.text);
        EXPECT_EQ(second.text, first.text) << file.name;
        if (file.category == Category::Weapons) {
            EXPECT_TRUE(second.weapon == first.weapon) << file.name;
        } else {
            EXPECT_TRUE(asInFile(file.category, second.unit) == asInFile(file.category, first.unit))
                << file.name;
        }
        EXPECT_TRUE(second.diagnostics.empty()) << file.name << ": " << second.diagnostics.front();
    }
}

TEST(RoundTrip, WritesTheGamesOwnFilesByteForByte) {
    struct Expectation {
        std::size_t files;
        std::size_t identical;
    };
    // The rest are files kept by hand and files in the older forms.
    constexpr std::array<Expectation, CategoryCount> least = {{{16, 12}, {7, 6}, {8, 7}, {6, 5}, {75, 70}}};
    std::array<Expectation, CategoryCount> found{};
    std::array<std::string, CategoryCount> others;
    for (const SampleFile& file : sampleFiles()) {
        const auto category = static_cast<std::size_t>(file.category);
        const bool isIdentical = rewritten(file, file.content).text == file.content;
        ++found[category].files;
        found[category].identical += isIdentical ? 1 : 0;
        others[category] += isIdentical ? "" : "\n" + file.name;
    }
    for (std::size_t category = 0; category < CategoryCount; ++category) {
        EXPECT_GE(found[category].files, least[category].files) << categoryName(AllCategories[category]);
        EXPECT_GE(found[category].identical, least[category].identical) << "changed:" << others[category];
    }
}

TEST(RoundTrip, WritesOverlongValuesThatItReadsAgain) {
    // Longer lines than the game's own buffers hold.
    const std::string longest(255, 'x');
    WeaponRecord weapon;
    weapon.fileName = "weapon";
    weapon.name = longest;
    weapon.comments = std::string(2000, 'c');
    for (int i = 0; i < 3; ++i) {
        AmmoTypeRecord& ammo = weapon.ammoTypes.emplace_back();
        ammo.name = ammo.tracerImage = ammo.explodeSound = longest;
    }
    WeaponReadReport report;
    EXPECT_TRUE(readWeapon(weaponFileText(weapon), "weapon", report) == weapon);
}

} // namespace varrocade::tests
