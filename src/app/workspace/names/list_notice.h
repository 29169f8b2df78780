#pragma once
// What the list of names says in their place when it has none to show.

#include "app/workspace/workspace.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varrocade {

/// What the user can do about an empty list.
enum class ListRemedy : std::uint8_t { None, ShowAll, ChooseFolder, ShowGameUnits };

struct ListNotice {
    std::string text; ///< empty while names are shown
    ListRemedy remedy = ListRemedy::None;
};

/// What the button that does it says.
std::string_view remedyText(ListRemedy remedy);

/// Why no name is shown: the filter hides them all, the program runs where there is no game, or the folder
/// is empty. A mod that has none of a category can have the game's shown.
ListNotice listNotice(const Workspace& workspace);

} // namespace varrocade
