#pragma once
// Which elements a file has and where: unknown ones, those in the wrong place, missing ones, values given
// twice; and whether the texts of those that hold values can be read as what they are.

#include "data/category.h"
#include "data/element_table.h"
#include "tools/checks/engine/file_findings.h"

#include <span>

namespace varrocade {

/// Looks through the elements of a file, whose nodes stand behind their parents.
void checkElements(std::span<const TagNode> nodes, Category category, const ElementTable& table,
                   FileFindings& out);

/// Whether the text of an element can be read as the value of its field.
void checkValueText(const TagNode& node, const FieldInfo& field, FileFindings& out);

} // namespace varrocade
