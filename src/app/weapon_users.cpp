#include "app/weapon_users.h"

#include "data/category.h"
#include "data/unit_reader.h"

#include <algorithm>
#include <set>

namespace varrocade {

namespace {

std::vector<std::string> weaponsOf(const SquadRecord& unit) {
    std::set<std::string> weapons;
    const auto addMounts = [&](const std::vector<WeaponMountRecord>& mounts) {
        for (const WeaponMountRecord& mount : mounts) {
            weapons.insert(mount.type.str());
        }
    };
    // A man with grenades has no weapon for them: what he throws is among his ammunition.
    const auto addMen = [&](const std::vector<CrewManRecord>& men) {
        for (const CrewManRecord& man : men) {
            for (const Text& weapon : man.weapons) {
                weapons.insert(weapon.str());
            }
            for (const AmmoLoadRecord& ammo : man.ammo) {
                weapons.insert(ammo.weaponType.str());
            }
        }
    };
    addMen(unit.infantrymen);
    if (unit.vehicle) {
        for (const ComponentRecord& component : unit.vehicle->components) {
            addMounts(component.weapons);
            addMen(component.crew);
        }
    }
    if (unit.heavyWeapon) {
        addMounts(unit.heavyWeapon->weapons);
    }
    if (unit.aircraft) {
        addMounts(unit.aircraft->weapons);
    }
    return {weapons.begin(), weapons.end()};
}

} // namespace

std::vector<std::string> WeaponUsers::usersOf(std::span<const std::string> bases,
                                              std::span<const std::string_view> names) {
    std::set<std::string> seen;
    std::vector<std::string> users;
    std::vector<StampedFile> files;
    for (const std::string& base : bases) {
        for (const Category category : AllCategories) {
            const std::string folder = categoryFolder(base, category);
            if (category == Category::Weapons || !listStampedFiles(folder, DataFileEnding, files)) {
                continue;
            }
            for (const StampedFile& file : files) {
                const std::string name = file.name.substr(0, file.name.size() - DataFileEnding.size());
                std::string shown = std::string(categoryName(category)) + ": " + name;
                if (!seen.insert(shown).second) {
                    continue;
                }
                Unit& unit = units_[folder + file.name];
                if (unit.file != file) {
                    Diagnostics diagnostics;
                    const auto record = readUnitFile(folder + file.name, name, diagnostics);
                    unit = {file, record ? weaponsOf(*record) : std::vector<std::string>()};
                    ++filesRead_;
                }
                const bool carries = std::any_of(names.begin(), names.end(), [&](std::string_view weapon) {
                    return std::find(unit.weapons.begin(), unit.weapons.end(), weapon) != unit.weapons.end();
                });
                if (carries) {
                    users.push_back(std::move(shown));
                }
            }
        }
    }
    std::sort(users.begin(), users.end());
    return users;
}

} // namespace varrocade
