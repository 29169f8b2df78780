#pragma once
// What is wrong with the open unit, for the bar on top of its sheet: what its file hides, and values that
// name what is not there. Each with the part of the unit that it is about.

#include "data/category.h"
#include "data/finding.h"
#include "data/unit/unit_record.h"
#include "view/drawing/unit_part.h"
#include "weapons/weapon_catalogue.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A finding and what it is about, if that can be pointed at.
struct SheetProblem {
    Finding finding;
    UnitPart part = {};
    std::string source = {}; ///< the line of the file, where the finding is about one
};

/// Elements of a unit's file that its record has nothing of: not known, in the wrong place, left out, hidden
/// by a nesting that is broken. Comments are none of these. Nothing of a file far longer than the game's are.
std::vector<SheetProblem> fileProblems(Category category, std::string_view fileContent);

/// Values of the record that name what is not there or do not fit each other: words, weapons, flavours,
/// pictures, ammunition without a weapon, limits. The lines are those of the values in `fileContent`, as far
/// as it still holds them. `missingPictures` are paths. An empty catalogue knows no weapon and says nothing.
std::vector<SheetProblem> valueProblems(const SquadRecord& record, std::string_view fileContent,
                                        std::span<const std::string> missingPictures,
                                        const WeaponCatalogue& catalogue);

/// The part that a field belongs to, by its path from the unit on: "vehicle.turret[2].rotate_left".
UnitPart partOfField(const SquadRecord& record, std::string_view path);

} // namespace varrocade
