#pragma once
// What the dialog "Import Spreadsheet" shows, without any window.

#include "tools/sheets/sheet_import.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

inline constexpr std::array<std::string_view, 5> SheetChangeHeads = {"Line", "File", "Column", "Now",
                                                                     "In the sheet"};
inline constexpr std::array<std::string_view, 2> SheetNoteHeads = {"Line", "Refused, or to be known"};

std::array<std::string, SheetChangeHeads.size()> changeCells(const SheetChange& change);

/// What a change's file says now and what the sheet says, each on a line of its own.
std::string changedValues(const SheetChange& change);

/// What the import tells besides the changes, what is refused first.
std::vector<std::array<std::string, SheetNoteHeads.size()>> importNotes(const SheetImport& import);

/// Whether there is something to write, and nothing refused.
bool canWrite(const SheetImport& import);

/// "3 values of 2 files would change." or why nothing can be written.
std::string importSummary(const SheetImport& import);

/// Changes and notes as tab separated lines below their heads, for the clipboard.
std::string importTable(const SheetImport& import);

} // namespace varrocade
