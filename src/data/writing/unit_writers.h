#pragma once
// The unit files' layouts, as the game's own files have them down to tabs, blank lines and the order of
// lines.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "platform/backups.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// The text of a vehicle file; nothing when the record has no vehicle.
std::optional<std::string> vehicleFileText(const SquadRecord& record);

/// The text of an infantry or heavy-weapon squad's file.
std::string squadFileText(const SquadRecord& record);

/// The text of an aircraft file; nothing when the record has no aircraft.
std::optional<std::string> aircraftFileText(const SquadRecord& record);

/// The text that the writer of a category gives a record; nothing when the record is of another kind
/// (or the category is that of the weapons).
std::optional<std::string> unitFileText(Category category, const SquadRecord& record);

enum class SaveResult { Saved, NothingToSave, Failed };

/// What came of a save.
struct SaveOutcome {
    SaveResult result = SaveResult::NothingToSave;
    FileFailure failure = {}; ///< of a save that failed
    std::string content = {}; ///< what the file holds since it was saved
};

/// Writes a unit to its file below `base` through a temporary file, keeping the former content among the
/// backups. A failure leaves the old file whole.
SaveOutcome saveUnit(FileOperations& files, BackupKeeper& backups, const std::string& base, Category category,
                     const SquadRecord& record);

} // namespace varrocade
