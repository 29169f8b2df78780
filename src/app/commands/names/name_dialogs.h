#pragma once
// The small dialogs that ask for a file's name.

#include "app/workspace/file_actions.h"

#include <windows.h>

#include <functional>
#include <string>

namespace varrocade {

enum class NameDialogKind { NewWeapon, Duplicate, Rename };

struct NewFileChoice {
    std::string name;
    WeaponType weaponType = WeaponType::Rifle; ///< of a new weapon only
};

struct NameDialog {
    HWND owner;
    NameDialogKind kind;
    /// Does what the dialog is for, or says why not; the dialog then stays open.
    std::function<NameCheck(const NewFileChoice& choice)> take;
    NewFileChoice choice = {}; ///< what the dialog begins with, and what was chosen
    std::string title = {};    ///< of the window, where it is not the template's
};

/// Runs the dialog; false when the user cancelled it.
bool askForName(NameDialog& dialog);

} // namespace varrocade
