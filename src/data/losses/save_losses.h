#pragma once
// What saving a file anew would drop or change of the file as it stands: the warning before a lossy save.

#include "data/category.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

enum class LossKind {
    Dropped, ///< is not in the saved file
    Changed, ///< is in it with another meaning
    Respelt  ///< is in it with the same meaning, but spelt or placed otherwise
};

struct SaveLoss {
    std::size_t line; ///< of the file as it stands, from 1
    LossKind kind;
    std::string message; ///< such as `<weight> "5 kg" is read as "5"`
    bool operator==(const SaveLoss&) const = default;
};

/// "dropped", "changed" or "respelt".
std::string_view lossKindWord(LossKind kind);

/// One line about a loss: "12: dropped: ...".
std::string lossText(const SaveLoss& loss);

/// What reading a unit file with this content and writing it with the category's writer would lose, in the
/// order of the file's lines; empty when nothing. No list at all when the writer has nothing to write.
/// Layout, the order of elements and values left out because their absence means the same are no losses.
std::optional<std::vector<SaveLoss>> unitSaveLosses(Category category, std::string_view fileContent);

} // namespace varrocade
