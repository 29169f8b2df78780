#pragma once
// What an import looks at besides the cells: headings that are of fields, values that a file would not keep.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_record.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// Whether a heading is that of a field, whatever numbers stand in it.
bool isFieldHeading(std::string_view heading);

/// A path and the plain text of its cell.
using CellValue = std::pair<std::string, std::string>;

/// The text that the category's writer gives a record, and nothing where it has nothing to write.
std::optional<std::string> fileTextOf(Category category, const SquadRecord& unit);
std::optional<std::string> fileTextOf(Category category, const WeaponRecord& weapon);

/// The first of the changed values that is lost when `after` is written and read again, though it is not
/// lost in `before`. Writers sort what they write: entries are told apart by their values, not their numbers.
const CellValue* lostValue(Category category, const SquadRecord& before, const SquadRecord& after,
                           const std::vector<CellValue>& changed);
const CellValue* lostValue(Category category, const WeaponRecord& before, const WeaponRecord& after,
                           const std::vector<CellValue>& changed);

} // namespace varrocade
