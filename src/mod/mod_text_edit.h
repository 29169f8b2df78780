#pragma once
// Changing settings in the text of a "Mod.txt" that people wrote.

#include "mod/mod_record.h"

#include <string>
#include <string_view>

namespace varrocade {

/// `source` with the settings in place of what it says. Only elements whose values differ are touched: of a
/// value its text, of an entry its element, and an entry that changes its place takes its whole text along.
/// Comments, elements that are not known, indentation and line ends stay. A text whose nesting is too broken
/// to be changed in place becomes comments below one that is written anew.
std::string editedModText(std::string_view source, const ModSettings& settings);

} // namespace varrocade
