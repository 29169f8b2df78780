#include "data/losses/save_loss.h"

#include <array>

namespace varrocade {

std::string_view lossKindWord(LossKind kind) {
    constexpr std::array<std::string_view, 3> words = {"dropped", "changed", "respelt"};
    return words[static_cast<std::size_t>(kind)];
}

std::string lossText(const SaveLoss& loss) {
    return std::to_string(loss.line) + ": " + std::string(lossKindWord(loss.kind)) + ": " + loss.message;
}

} // namespace varrocade
