#pragma once
// What is wrong with the text of a "Mod.txt". Elements that the editor does not know are the modder's own.

#include "data/finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

struct CheckKnowledge;

/// By their places: tags that do not match, values that cannot be read as what they are, and a file of which
/// nothing is read at all; with `knowledge` also pictures and units that are not there. Without what the
/// file's own comments suppress.
std::vector<Finding> checkModFile(std::string_view content, const CheckKnowledge* knowledge = nullptr);

/// The same of the file in a mod's folder; nothing where there is none.
std::vector<Finding> checkModFileOf(const std::string& modFolder);

/// Whether a finding is about tags, so that a part of the file may not be read.
bool hidesSettings(const Finding& finding);

} // namespace varrocade
