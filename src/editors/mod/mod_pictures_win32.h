#pragma once
// Pictures in the "Edit Mod" dialogs: shown beside the fields that name them, and chosen by their looks.

#include "data/unit/image_folders.h"
#include "editors/mod/mod_edit.h"

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// The path of a picture, the mod's before the game's; empty where there is none of that name.
std::string picturePath(const ModEdit& edit, std::span<const ImageSource> sources, std::string_view name);

/// Paints a picture as large as an area allows, no larger than it is, in its middle. Nothing where there is
/// none.
void paintPictureInto(HDC device, const RECT& area, const ModEdit& edit, const std::string& path);

/// What stands below a picture in a dialog.
struct ShownPicture {
    std::string label;
    std::string path;     ///< empty: it is told that there is none
    bool isNamed = false; ///< so that it should be there
};

/// Paints pictures side by side with their labels below.
void paintPictures(const DRAWITEMSTRUCT& item, const ModEdit& edit, std::span<const ShownPicture> pictures);

/// Has a picture of some folders chosen from small ones; nothing where the user would rather not. The empty
/// name is among them: the game's own.
std::optional<std::string> choosePicture(HWND owner, const ModEdit& edit,
                                         std::span<const ImageSource> sources, const std::string& chosen);

} // namespace varrocade
