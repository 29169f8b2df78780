#pragma once
// The settings of a mod as text: how a "Mod.txt" is read, and how a new one is laid out.

#include "mod/mod_record.h"

#include <string>
#include <string_view>

namespace varrocade {

class ElementTable;

/// Which elements mean something where in a "Mod.txt".
const ElementTable& modElements();

/// Reads the content of a "Mod.txt"; what it does not name keeps its default.
ModSettings readModSettings(std::string_view fileContent);

/// The text of a new "Mod.txt", in the tagged syntax of the data files.
std::string modSettingsText(const ModSettings& settings);

} // namespace varrocade
