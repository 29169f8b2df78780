#pragma once
// The fields of a mod's settings, each described once.

#include "data/field.h"
#include "mod/mod_record.h"

#include <tuple>

namespace varrocade {

namespace mod_field {

namespace row = field_row;

inline constexpr auto Name = row::text(&ModSettings::name, "name", "Name");
inline constexpr auto Author =
    row::text(&ModSettings::author, "author", "Author", {.omitted = Omission::Default});
inline constexpr auto Comment =
    row::text(&ModSettings::comment, "comment", "Comment", {.omitted = Omission::Default});
inline constexpr auto FirstYear = row::number(&ModSettings::firstYear, "first", "First year");
inline constexpr auto LastYear = row::number(&ModSettings::lastYear, "last", "Last year");

} // namespace mod_field

template <>
inline constexpr auto fieldsOf<ModSettings> = std::tie(mod_field::Name, mod_field::Author, mod_field::Comment,
                                                       mod_field::FirstYear, mod_field::LastYear);

} // namespace varrocade
