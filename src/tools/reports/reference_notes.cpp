#include "tools/reports/reference_notes.h"

#include "data/reading/unit_reader.h"
#include "weapons/weapon_files.h"

namespace varrocade {

void ReferenceNotes::note(const Reference& reference, std::size_t user) {
    if (reference.folders.empty()) {
        return;
    }
    auto& known = byName_[reference.folders.data()];
    const auto place = known.find(reference.name);
    if (place == known.end()) {
        files_.push_back(
            {reference.kind, std::string(reference.name), reference.folders, reference.ending, {user}});
        known.emplace(files_.back().name, &files_.back());
    } else if (place->second->users.back() != user) {
        place->second->users.push_back(user);
    }
}

void ReferenceNotes::read(const GameFile& file, std::string_view content, std::size_t user) {
    const auto noteUser = [this, user](const Reference& reference) { note(reference, user); };
    Diagnostics diagnostics;
    if (file.category == Category::Weapons) {
        const WeaponRecord weapon = readWeapon(content, file.name, diagnostics);
        weapons_.push_back({std::string(weapon.name), file.name, user});
        forEachReference(weapon, noteUser);
    } else {
        forEachReference(readUnit(content, file.name, diagnostics), noteUser);
    }
}

} // namespace varrocade
