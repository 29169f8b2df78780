#pragma once
// Copies of unsaved changes below `Backups\Unsaved\`, from which the next start brings them back after an
// exit, a crash or a log-off. A copy stands at the path that its file has below the base folder.

#include "app/workspace/workspace.h"

#include <cstdint>
#include <optional>

namespace varrocade {

/// How often the window has the journal written, in milliseconds: a change is in it within two seconds.
inline constexpr unsigned JournalInterval = 1000;

/// What becomes of positions that were moved in the drawing of the open unit and are not saved.
enum class JournalMoves : std::uint8_t { Kept, Dropped };

/// Writes the copies of what was changed, and removes those of what was saved or discarded. The failure of
/// the first one that cannot be written; the others are.
std::optional<FileFailure> writeJournal(Workspace& workspace, JournalMoves moves = JournalMoves::Kept);

/// The same from the window's timer: says once when it fails.
void keepJournal(Workspace& workspace);

/// Whether the program may end: after the question about unsaved positions, when all other changes are in the
/// journal. What cannot be written there is told, and the program stays.
bool mayExit(Workspace& workspace);

/// At the start: brings what a save that was cut off has left into the journal where it is whole, and offers
/// the changes of the journal. They are opened among the unsaved records, or dropped, which keeps them as
/// backups, or left for the next start.
void offerUnsavedChanges(Workspace& workspace);

} // namespace varrocade
