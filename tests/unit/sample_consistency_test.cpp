// The sample game holds everything that its files name.

#include "data/enumerations.h"
#include "platform/file_operations.h"
#include "test_support.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

struct NamedFile {
    std::string folder; // below the base folder
    std::string name;
    std::string ending;
};

/// What a file names that does not exist, gathered over all files.
class Missing {
public:
    void file(std::string_view user, const NamedFile& named) {
        const std::string path = SampleBase + named.folder + "\\" + named.name + named.ending;
        if (!named.name.empty() && !systemFiles().exists(path)) {
            note(user, path);
        }
    }
    void note(std::string_view user, const std::string& what) {
        missing_.insert(what + " of " + std::string(user));
    }
    void expectNone() const {
        std::string all;
        for (const std::string& line : missing_) {
            all += line + "\n";
        }
        EXPECT_TRUE(missing_.empty()) << missing_.size() << " missing:\n" << all;
    }

private:
    std::set<std::string> missing_;
};

constexpr std::string_view Png = ".png";

void image(Missing& missing, std::string_view user, std::string_view folder, std::string_view name) {
    missing.file(user, {"Images\\" + std::string(folder), std::string(name), std::string(Png)});
}

void sound(Missing& missing, std::string_view user, std::string_view name) {
    missing.file(user, {"Sounds", std::string(name), ".wav"});
}

const std::map<std::string, WeaponRecord>& weapons() {
    static const std::map<std::string, WeaponRecord> all = [] {
        std::map<std::string, WeaponRecord> read;
        for (const SampleFile& file : sampleFiles()) {
            if (file.category == Category::Weapons) {
                WeaponReadReport report;
                read[file.name] = readWeapon(file.content, file.name, report);
                EXPECT_TRUE(report.diagnostics.empty()) << file.name << ": " << report.diagnostics.front();
            }
        }
        return read;
    }();
    return all;
}

struct SampleUnit {
    Category category;
    SquadRecord record;
};

const std::vector<SampleUnit>& units() {
    static const std::vector<SampleUnit> all = [] {
        std::vector<SampleUnit> read;
        for (const SampleFile& file : sampleFiles()) {
            if (file.category != Category::Weapons) {
                Diagnostics diagnostics;
                read.push_back({file.category, readUnit(file.content, file.name, diagnostics)});
                EXPECT_TRUE(diagnostics.empty()) << file.name << ": " << diagnostics.front();
            }
        }
        return read;
    }();
    return all;
}

void weapon(Missing& missing, std::string_view user, std::string_view type) {
    if (!weapons().contains(std::string(type))) {
        missing.note(user, "weapon " + std::string(type));
    }
}

void ammo(Missing& missing, std::string_view user, const std::vector<AmmoLoadRecord>& loads) {
    for (const AmmoLoadRecord& load : loads) {
        weapon(missing, user, load.weaponType);
        const auto found = weapons().find(load.weaponType.str());
        if (found == weapons().end() || load.flavour.empty()) {
            continue;
        }
        const std::vector<AmmoTypeRecord>& types = found->second.ammoTypes;
        if (std::none_of(types.begin(), types.end(), [&](const AmmoTypeRecord& type) {
                return type.flavour == flavourOf(load.flavour);
            })) {
            missing.note(user, load.weaponType.str() + " with " + load.flavour.str());
        }
    }
}

void mounted(Missing& missing, std::string_view user, const std::vector<WeaponMountRecord>& mounts) {
    for (const WeaponMountRecord& mount : mounts) {
        weapon(missing, user, mount.type);
    }
}

void men(Missing& missing, std::string_view user, const std::vector<CrewManRecord>& crew) {
    const auto jobs = jobNames();
    for (const CrewManRecord& man : crew) {
        for (const Text& personal : man.weapons) {
            weapon(missing, user, personal);
        }
        ammo(missing, user, man.ammo);
        EXPECT_NE(std::find(jobs.begin(), jobs.end(), man.job.view()), jobs.end())
            << user << ": " << man.job.view();
    }
}

void uniforms(Missing& missing, const SquadRecord& record) {
    const NationalUniform* national = findNationalUniform(record.nationality);
    const auto uniform = [&](const Text& name, std::string_view nationalName) {
        const bool isNational = name == "Default" || name.empty();
        image(missing, record.fileName, "Uniforms", isNational ? nationalName : name.view());
    };
    uniform(record.uniformProfile, national != nullptr ? national->profile : "");
    uniform(record.uniformGame, national != nullptr ? national->game : "");
    uniform(record.uniformRanks, national != nullptr ? national->ranks : "");
}

} // namespace

TEST(Sample, HasThePicturesOfItsUnits) {
    Missing missing;
    const auto vehicle = [&](std::string_view user, std::string_view folder, const Text& name) {
        image(missing, user, "Units\\Vehicles\\" + std::string(folder), name);
    };
    for (const SampleUnit& unit : units()) {
        const SquadRecord& record = unit.record;
        const std::string_view user = record.fileName;
        if (record.vehicle) {
            vehicle(user, "Profiles", record.vehicle->profileImage);
            for (const ComponentRecord& component : record.vehicle->components) {
                vehicle(user, component.kind == ComponentKind::Hull ? "Hulls" : "Turrets",
                        component.viewImage);
                vehicle(user, "Destroyed", component.destroyedImage);
            }
        }
        if (record.heavyWeapon) {
            image(missing, user, "Units", record.heavyWeapon->baseImage);
            image(missing, user, "Units", record.heavyWeapon->gunImage);
            image(missing, user, "Units", record.heavyWeapon->profileImage);
        }
        if (record.aircraft) {
            image(missing, user, "Units", record.aircraft->image);
            for (const RotorBladesRecord& rotor : record.aircraft->rotorBlades) {
                image(missing, user, "Units", rotor.image);
            }
        } else {
            uniforms(missing, record);
        }
    }
    missing.expectNone();
}

TEST(Sample, HasThePicturesAndSoundsOfItsWeaponsAndAircraft) {
    Missing missing;
    for (const auto& [name, record] : weapons()) {
        image(missing, name, "Tracers", record.tracerImage);
        for (const std::string& file : {record.shootSound, record.reloadSound, record.ejectClipSound}) {
            sound(missing, name, file);
        }
        for (const AmmoTypeRecord& type : record.ammoTypes) {
            image(missing, name, "Tracers", type.tracerImage);
            sound(missing, name, type.explodeSound);
        }
    }
    for (const SampleUnit& unit : units()) {
        if (unit.record.aircraft) {
            sound(missing, unit.record.fileName, unit.record.aircraft->sound);
        }
    }
    missing.expectNone();
}

TEST(Sample, HasTheWeaponsAndAmmunitionOfItsUnits) {
    Missing missing;
    for (const SampleUnit& unit : units()) {
        const SquadRecord& record = unit.record;
        const std::string_view user = record.fileName;
        men(missing, user, record.infantrymen);
        if (record.vehicle) {
            for (const ComponentRecord& component : record.vehicle->components) {
                mounted(missing, user, component.weapons);
                ammo(missing, user, component.ammo);
                men(missing, user, component.crew);
            }
        }
        if (record.heavyWeapon) {
            mounted(missing, user, record.heavyWeapon->weapons);
            ammo(missing, user, record.heavyWeapon->ammo);
        }
        if (record.aircraft) {
            mounted(missing, user, record.aircraft->weapons);
            ammo(missing, user, record.aircraft->ammo);
        }
    }
    missing.expectNone();
}

TEST(Sample, UsesTheGamesNames) {
    const auto knows = [](std::span<const std::string_view> names, std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    std::set<std::string_view> types;
    for (const SampleUnit& unit : units()) {
        const SquadRecord& record = unit.record;
        EXPECT_TRUE(knows(unitTypeNames(), record.type)) << record.fileName.view();
        EXPECT_TRUE(knows(nationalityNames(), record.nationality)) << record.fileName.view();
        // The lists sort a unit under the nation that its file's name begins with.
        EXPECT_TRUE(record.fileName.view().starts_with(displayName(record.nationality, NationalityPrefix)))
            << record.fileName.view();
        EXPECT_EQ(record.vehicle.has_value(), unit.category == Category::Vehicles) << record.fileName.view();
        EXPECT_EQ(record.aircraft.has_value(), unit.category == Category::Aircraft) << record.fileName.view();
        if (record.vehicle) {
            EXPECT_TRUE(knows(steeringNames(), record.vehicle->steering)) << record.fileName.view();
            EXPECT_TRUE(knows(reliabilityNames(), record.vehicle->reliability)) << record.fileName.view();
        }
        types.insert(record.type);
    }
    EXPECT_GE(types.size(), 12U);
    std::set<WeaponType> weaponTypes;
    for (const auto& [name, record] : weapons()) {
        EXPECT_EQ(record.name, name);
        EXPECT_FALSE(record.ammoTypes.empty()) << name;
        weaponTypes.insert(record.type);
    }
    EXPECT_EQ(weaponTypes.size(), 19U);
}

} // namespace varrocade::tests
