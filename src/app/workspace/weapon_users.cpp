#include "app/workspace/weapon_users.h"

#include "data/unit/unit_reader.h"

#include <algorithm>
#include <utility>

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

void WeaponUsers::start(std::vector<std::string> bases) {
    if (bases != bases_) {
        bases_ = std::move(bases);
        known_.reset();
    }
    foldersLeft_.clear();
    seen_.clear();
    listed_.clear();
    looked_ = 0;
    isLooking_ = true;
    for (const std::string& base : bases_) {
        for (const Category category : AllCategories) {
            if (category != Category::Weapons) {
                foldersLeft_.push_back({categoryFolder(base, category), category});
            }
        }
    }
    std::reverse(foldersLeft_.begin(), foldersLeft_.end());
}

void WeaponUsers::listFolder(const Folder& folder) {
    std::vector<StampedFile> files;
    listStampedFiles(folder.path, DataFileEnding, files);
    for (StampedFile& file : files) {
        std::string shown(categoryName(folder.category));
        shown += ": ";
        shown.append(file.name, 0, file.name.size() - DataFileEnding.size());
        if (seen_.insert(shown).second) {
            listed_.push_back({folder.path + file.name, std::move(shown), std::move(file)});
        }
    }
}

void WeaponUsers::read(const Entry& entry) {
    Diagnostics diagnostics;
    const auto record = readUnitFile(entry.path, entry.shown, diagnostics);
    units_[entry.path] = {entry.file, record ? weaponsOf(*record) : std::vector<std::string>()};
    ++filesRead_;
}

bool WeaponUsers::step() {
    if (!foldersLeft_.empty()) {
        const Folder folder = std::move(foldersLeft_.back());
        foldersLeft_.pop_back();
        listFolder(folder);
        return true;
    }
    // Files that have not changed take no time.
    while (looked_ < listed_.size()) {
        const Entry& entry = listed_[looked_++];
        const auto unit = units_.find(entry.path);
        if (unit == units_.end() || unit->second.file != entry.file) {
            read(entry);
            return true;
        }
    }
    if (std::exchange(isLooking_, false)) {
        known_ = std::exchange(listed_, {});
    }
    return false;
}

std::optional<std::vector<std::string>> WeaponUsers::usersOf(std::span<const std::string_view> names) const {
    if (!known_) {
        return std::nullopt;
    }
    std::vector<std::string> users;
    for (const Entry& entry : *known_) {
        const std::vector<std::string>& weapons = units_.at(entry.path).weapons;
        if (std::find_first_of(weapons.begin(), weapons.end(), names.begin(), names.end()) != weapons.end()) {
            users.push_back(entry.shown);
        }
    }
    std::sort(users.begin(), users.end());
    return users;
}

} // namespace varrocade
