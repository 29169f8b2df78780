#pragma once
// A spreadsheet that is imported beside records with unsaved changes, and the way back.

#include "app/workspace/workspace.h"
#include "tools/sheets/sheet_import.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace varrocade {

/// What undo calls an import.
inline constexpr std::string_view ImportStepName = "Import spreadsheet";

/// The records with unsaved changes whose files these are, by their places among `unsavedRecords`.
std::vector<std::size_t> unsavedAmong(const Workspace& workspace, const std::vector<FileReplacement>& files);

/// After the files were written: they can be undone together, and all that shows them is read again.
void noteImport(Workspace& workspace, const SheetImport& import);

/// Gives the files of a step what they held before. False, and nothing is written, where one has changed
/// since, on the disk or here; that is told.
bool takeReplacedBack(Workspace& workspace, const FileStep& step);

} // namespace varrocade
