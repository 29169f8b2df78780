#include "tools/weapon_users.h"

#include "data/reading/unit_reader.h"
#include "tools/references.h"

#include <algorithm>
#include <set>
#include <utility>

namespace varrocade {

namespace {

/// A man with grenades has no weapon for them: what he throws is among his ammunition.
std::vector<std::string> weaponsOf(const SquadRecord& unit) {
    std::set<std::string> weapons;
    forEachReference(unit, [&](const Reference& reference) {
        if (reference.kind == ReferenceKind::Weapon) {
            weapons.emplace(reference.name);
        }
    });
    return {weapons.begin(), weapons.end()};
}

} // namespace

void WeaponUsers::start(GameFolders folders) {
    if (folders != folders_) {
        folders_ = std::move(folders);
        known_.reset();
    }
    categoriesLeft_.clear();
    for (const Category category : AllCategories) {
        if (category != Category::Weapons) {
            categoriesLeft_.push_back(category);
        }
    }
    std::reverse(categoriesLeft_.begin(), categoriesLeft_.end());
    listed_.clear();
    changed_.clear();
    read_.clear();
    walk_ = {};
    isLooking_ = true;
}

void WeaponUsers::listCategory(Category category) {
    for (GameFile& file : listGameFiles(folders_, category, FileStamps::With).files) {
        const auto unit = units_.find(file.path);
        if (unit == units_.end() || unit->second.file != file) {
            changed_.push_back(file);
        }
        listed_.push_back(std::move(file));
    }
}

bool WeaponUsers::step() {
    if (!isLooking_) {
        return false;
    }
    if (!categoriesLeft_.empty()) {
        listCategory(categoriesLeft_.back());
        categoriesLeft_.pop_back();
        if (categoriesLeft_.empty()) {
            walk_ = GameFileWalk(std::exchange(changed_, {}));
        }
        return true;
    }
    const bool isMoreToRead = walk_.step([this](const GameFile& file, std::string_view content) {
        Diagnostics diagnostics;
        read_.push_back({file, weaponsOf(readUnit(content, file.name, diagnostics))});
        ++filesRead_;
    });
    if (!isMoreToRead) {
        finish();
    }
    return isMoreToRead;
}

/// From here on the new answers hold, all at once.
void WeaponUsers::finish() {
    for (Unit& unit : read_) {
        std::string path = unit.file.path;
        units_.insert_or_assign(std::move(path), std::move(unit));
    }
    for (const FileFailure& failure : walk_.failures()) {
        units_.erase(failure.path);
    }
    read_.clear();
    walk_ = {};
    known_ = std::exchange(listed_, {});
    isLooking_ = false;
}

std::optional<std::vector<std::string>> WeaponUsers::usersOf(std::span<const std::string_view> names) const {
    if (!known_) {
        return std::nullopt;
    }
    std::vector<std::string> users;
    for (const GameFile& file : *known_) {
        // A file that could not be read is listed without a unit.
        const auto unit = units_.find(file.path);
        if (unit != units_.end() &&
            std::find_first_of(unit->second.weapons.begin(), unit->second.weapons.end(), names.begin(),
                               names.end()) != unit->second.weapons.end()) {
            users.push_back(std::string(categoryName(file.category)) + ": " + file.name);
        }
    }
    std::sort(users.begin(), users.end());
    return users;
}

} // namespace varrocade
