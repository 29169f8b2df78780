#pragma once
// The files of the game that values name: pictures and sounds.

#include "data/field.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// The path of the picture or sound that a value of a field names, in the first of the bases that has it;
/// empty where none has. Each base ends in a backslash.
std::string fileOfValue(const FieldInfo& field, std::string_view value, std::span<const std::string> bases);

/// The name of that file, with its ending.
std::string fileNameOfValue(const FieldInfo& field, std::string_view value);

} // namespace varrocade
