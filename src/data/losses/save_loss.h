#pragma once
// One thing that saving a file anew would drop or change.

#include <cstddef>
#include <string>
#include <string_view>

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

} // namespace varrocade
