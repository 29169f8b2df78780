#pragma once
// Saving and discarding some of the records with unsaved changes, shown or not.

#include "app/workspace/workspace.h"

#include <cstddef>
#include <span>

namespace varrocade {

/// Saves those of `unsavedRecords` at these places, asking as for each of them alone: the open one to the
/// base folder in use, the others to their own. False when one is still unsaved.
bool saveChosen(Workspace& workspace, std::span<const std::size_t> places);

/// Discards their changes, which puts a copy of each among the backups. The open one's can be undone; for the
/// others there is a question first. What cannot be kept is told and stays.
void discardChosen(Workspace& workspace, std::span<const std::size_t> places);

} // namespace varrocade
