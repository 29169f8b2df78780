#pragma once

#include "data/field.h"
#include "view/painting/drawing_objects_win32.h"
#include "view/painting/picture_cache_win32.h"
#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_record.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// What the editor of the open weapon works with.
struct WeaponEdit {
    WeaponRecord& record;
    const WeaponCatalogue& catalogue;
    const DrawingObjects& drawing;
    PictureCache& pictures;
    /// The folders that pictures and sounds are offered from, each ending in a backslash.
    std::vector<std::string> bases;
    /// The units that carry the weapon ("Vehicles: German Panzer VI Tiger Ausf E"); nothing before all are
    /// known.
    std::function<std::optional<std::vector<std::string>>()> users;
    /// Shows the record, and remembers it as a step that can be undone under this name.
    void (*changed)(std::string_view what);
    std::size_t firstAmmo = 0;   ///< the ammunition that is shown first
    FieldId focus = nullptr;     ///< the field that the dialog begins with
    std::string unitToOpen = {}; ///< one of the users that is to be opened afterwards, or empty
};

/// "Weapon Data": edits all of a weapon. True when OK has changed the record.
bool editWeaponData(HWND owner, WeaponEdit& edit);

} // namespace varrocade
