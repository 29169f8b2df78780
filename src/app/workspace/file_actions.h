#pragma once
// New, Duplicate, Rename, Delete: what becomes of the files. The dialogs that ask for names come between the
// halves of the first three.

#include "app/workspace/names/unit_start.h"
#include "app/workspace/workspace.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Why a name is refused; an empty text when the reason has been shown already. Nothing: it is taken.
using NameCheck = std::optional<std::string>;

/// Writes the file of a new unit of the present category, with what it begins with. `nationality` is
/// "NATIONALITY_...".
NameCheck createUnit(Workspace& workspace, const std::string& name, const std::string& nationality,
                     const UnitStart& start = {});

/// Writes the file of a new weapon, with the figures that weapons of its type begin with.
NameCheck createWeapon(Workspace& workspace, const std::string& name, WeaponType type = WeaponType::Rifle);

/// Writes the open record under another name. It stays open under its own.
NameCheck duplicateRecord(Workspace& workspace, const std::string& name);

/// Shows a file that was just made in the list and opens it.
void openNewFile(Workspace& workspace, const std::string& name);

/// Why the file of the open record cannot get a name.
NameCheck refusalOfRenaming(const Workspace& workspace, const std::string& name);

/// Gives the file of the open record another name, and the record with all its steps. Can be undone.
NameCheck renameFile(Workspace& workspace, const std::string& name);

/// Does the same without looking at the name; false when it fails, which has been shown.
bool giveName(Workspace& workspace, const std::string& name);

/// Notes what is done to files, with the record as it was before, so that it can be undone.
void noteFileStep(Workspace& workspace, FileStep step);

/// Selects the open record under its new name and has it shown.
void showRenamed(Workspace& workspace);

/// Moves the selected file to the recycle bin, after the questions about unsaved positions and about that,
/// and opens the next one of the list. Can be undone.
void deleteFile(Workspace& workspace);

} // namespace varrocade
