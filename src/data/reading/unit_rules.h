#pragma once
// What each element of a unit file means: the table behind the unit reader.

#include "data/element_table.h"
#include "data/reading/unit_reading.h"

#include <string_view>

namespace varrocade::unit_rules {

using Rule = tag_rules::Rule<Reading>;

/// The rules of unit files.
const tag_rules::RuleTable<Reading>& ruleTable();

/// Which elements mean something where, for those who look at files without reading them.
const ElementTable& elements();

/// Whether an element of this name means something in some place.
bool isElement(std::string_view name);

/// Walks the tree and fills the record.
void readTree(Reading& reading);

} // namespace varrocade::unit_rules
