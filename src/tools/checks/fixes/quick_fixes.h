#pragma once
// Mending a finding in the text of its file, where there is one right answer: the name that was meant, a
// closing tag, the ammunition that all others carry. Everything else of the file stays as it is.

#include "data/category.h"
#include "data/finding.h"
#include "tools/checks/engine/knowledge.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// What would mend a finding, as a button or a menu says it: `Write "WEAPON_MG42" for "WEAPON_MG_42"`. Empty
/// where there is more than one answer, or none.
std::string quickFixName(const CheckKnowledge& knowledge, const Finding& finding);

/// A file's text with findings mended.
struct FixedText {
    std::string text;
    std::size_t fixed = 0; ///< how many of them
};

/// Mends findings about a file that `checkFile` has told of this content. A finding stays that is still there
/// after its change, or whose change would bring more errors.
FixedText fixText(const CheckKnowledge& knowledge, Category category, std::string_view name,
                  std::string_view content, std::span<const Finding> findings);

} // namespace varrocade
