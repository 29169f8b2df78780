#pragma once
// Names in the text of a file replaced by others, with nothing else of it touched.

#include "data/category.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A name that is to be another.
struct NameEdit {
    std::string path; ///< of the value, as `forEachField` names it
    std::string from; ///< as the record has it
    std::string to;
};

struct EditedText {
    std::string text;
    bool isAnew = false; ///< the writer has laid it out: the name could not be changed in its place
    std::vector<std::size_t> lines = {}; ///< of the edits in the former text; 0 where there is none
};

/// The text of a unit's or weapon's file with other names in it, which is read as the same record but for
/// them. Nothing where neither the text in its place nor the writer comes to that. `name` is of the file.
std::optional<EditedText> editNames(Category category, std::string_view content, std::string_view name,
                                    std::span<const NameEdit> edits);

/// The same of a "Mod.txt".
std::optional<EditedText> editModNames(std::string_view content, std::span<const NameEdit> edits);

} // namespace varrocade
