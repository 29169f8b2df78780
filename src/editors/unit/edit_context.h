#pragma once

#include "data/unit/unit_record.h"
#include "view/drawing/component_places.h"
#include "view/sheet/unit_problems.h"
#include "weapons/weapon_catalogue.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

struct DrawingObjects;
class PictureCache;

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
    /// The field that the first dialog begins with; none: its first one.
    FieldFocus focus = {};
    /// What the dialog's entries belong to, for its caption: "Turret 2". Empty where the dialog's own says
    /// it.
    std::string subject = {};
    /// Has windows that follow the editing show the unit with what is typed and not taken over yet; null
    /// where there are none. A weight that is taken there goes to `take`.
    void (*preview)(const SquadRecord& typed, std::function<void(std::int32_t weight)> take) = nullptr;
    /// Opens the window with weight and top speed, which shows what `preview` gives it; null where there is
    /// none.
    void (*openPerformance)() = nullptr;
    /// The pictures of the drawing, for dialogs that show some themselves.
    PictureCache* pictures = nullptr;
};

/// The caption of a dialog that edits something of the subject: "Turret 2: crew". Empty without one.
inline std::string captionOf(const EditContext& edit, std::string_view what) {
    return edit.subject.empty() ? std::string() : edit.subject + ": " + std::string(what);
}

} // namespace varrocade
