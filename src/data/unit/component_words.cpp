#include "data/unit/component_words.h"

#include <array>

namespace varrocade {

std::string_view componentKindWord(ComponentKind kind) {
    constexpr std::array<std::string_view, 4> words = {"Hull", "Superstructure", "Turret", "Fixed Weapon"};
    return words[static_cast<std::size_t>(kind)];
}

std::string componentTitle(std::size_t place, ComponentKind kind) {
    return std::to_string(place) + ". " + std::string(componentKindWord(kind));
}

std::string componentName(std::size_t place, ComponentKind kind) {
    return std::string(componentKindWord(kind)) + " " + std::to_string(place);
}

std::string componentLine(std::size_t place, const ComponentRecord& component) {
    std::string line = componentTitle(place, component.kind);
    if (!component.crew.empty()) {
        line += " (crew " + std::to_string(component.crew.size()) + ")";
    }
    return line;
}

} // namespace varrocade
