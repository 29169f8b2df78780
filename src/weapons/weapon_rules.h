#pragma once
// The weapon reader's walk over a tree, for those who ask what became of each element.

#include "data/element_table.h"
#include "data/format/tag_tree.h"
#include "data/losses/reading_trace.h"
#include "data/reader_findings.h"
#include "weapons/weapon_files.h"

#include <string>
#include <string_view>

namespace varrocade::weapon_rules {

/// Reads a tree. `findings` and `trace` may be null.
WeaponRecord readTree(const TagTree& tree, std::string_view fileName, ReaderFindings* findings,
                      ReadingTrace* trace);

/// Which elements mean something where.
const ElementTable& elements();

/// Whether an element of this name means something in some place.
bool isElement(std::string_view name);

} // namespace varrocade::weapon_rules
