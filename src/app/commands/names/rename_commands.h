#pragma once

#include "app/workspace/names/used_names.h"

#include <string>

namespace varrocade {

/// "Rename...": asks for another name for the file of the open record. Where other files have its name, it
/// offers to change it there too.
void renameOpenFile();

/// "Rename everywhere..." of the open record, or of what its selected part names.
void renameChosenEverywhere();
bool canRenameChosen();

/// Asks for another name for something, shows what that changes, and does it.
void renameEverywhere(const UsedName& name);

/// The name that the commands are about: of the selected part of the open unit, else of the open record.
UsedName chosenName();

} // namespace varrocade
