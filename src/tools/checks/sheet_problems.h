#pragma once
// What the checks find in the open unit or weapon, for the bar on top of its sheet.

#include "data/category.h"
#include "tools/checks/engine/suppressions.h"
#include "view/sheet/unit_problems.h"
#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_record.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Errors and warnings about a unit's or weapon's file, first of all elements that its record has nothing of:
/// not known, in the wrong place, left out, hidden by a nesting that is broken. Nothing of a file far longer
/// than the game's are.
std::vector<SheetProblem> fileProblems(Category category, std::string_view fileContent);

/// Values of the record that name what is not there or do not fit each other, and what it lacks yet; while it
/// lacks something only errors are told beside that. The lines are those of the
/// values in `fileContent`, as far as it still holds them. `missingPictures` are paths, of the drawing; other
/// pictures and sounds are looked for in `bases`. An empty catalogue knows no weapon and says nothing.
std::vector<SheetProblem> valueProblems(const SquadRecord& record, std::string_view fileContent,
                                        std::span<const std::string> missingPictures,
                                        const WeaponCatalogue& catalogue,
                                        std::span<const std::string> bases = {});

/// Values of a weapon that cannot be, or do not fit each other.
std::vector<SheetProblem> valueProblems(const WeaponRecord& weapon, std::string_view fileContent);

/// Drops what the list of the folder excuses; `shown` is what findings call the file.
void dropSuppressed(std::vector<SheetProblem>& problems, const SuppressionList& list,
                    const std::string& shown);

} // namespace varrocade
