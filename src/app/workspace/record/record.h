#pragma once
// What can be open: a unit or a weapon.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_record.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace varrocade {

/// A unit, a weapon, or nothing.
using Record = std::variant<std::monostate, SquadRecord, WeaponRecord>;

/// The name of a record's file, without folder and ".txt"; empty of nothing.
std::string fileNameOf(const Record& record);
void setFileName(Record& record, std::string_view name);

/// The text that the writer of a category gives a record; nothing when it has none for it.
std::optional<std::string> fileTextOf(Category category, const Record& record);

/// Reads a file's content as the category's reader does, for comparing.
Record readRecord(Category category, std::string_view content, std::string_view name);

} // namespace varrocade
