#pragma once
// What is wrong with the open unit, as the bar on top of its sheet shows it: each finding with the part of
// the unit that it is about.

#include "data/finding.h"
#include "data/unit/unit_record.h"
#include "view/drawing/unit_part.h"

#include <string>
#include <string_view>

namespace varrocade {

/// A finding and what it is about, if that can be pointed at.
struct SheetProblem {
    Finding finding;
    UnitPart part = {};
    std::string source = {}; ///< the line of the file, where the finding is about one
};

/// The part that a field belongs to, by its path from the unit on: "vehicle.turret[2].rotate_left".
UnitPart partOfField(const SquadRecord& record, std::string_view path);

} // namespace varrocade
