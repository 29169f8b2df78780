#pragma once

#include "data/unit/unit_record.h"
#include "view/drawing/component_places.h"
#include "weapons/weapon_catalogue.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

struct DrawingObjects;

/// What every editor of the open unit works with.
struct EditContext {
    SquadRecord& record;
    const WeaponCatalogue& catalogue;
    const DrawingObjects& drawing;
    /// The folders that images are offered from, each ending in a backslash.
    std::vector<std::string> imageBases;
    /// Tells where the components were before their list was changed, ahead of `changed`.
    void (*rearranged)(const FormerPlaces& places);
    /// Shows the record's present state in the main window.
    void (*redraw)();
    /// Shows it, and remembers it as a step that can be undone under this name.
    void (*changed)(std::string_view what);
    /// Which entry a dialog that is a list begins with.
    std::size_t firstShown = 0;
};

} // namespace varrocade
