#include "tools/sheets/sheet_cells.h"

#include "data/format/texts.h"

#include <array>

namespace varrocade {

namespace {

/// What a unit has one of needs no name in headings.
constexpr auto UnnamedSteps = std::to_array<std::string_view>({element::Vehicle, element::Aircraft});
/// Guns are compared with each other whatever their kind.
constexpr auto HeavyWeapons = std::to_array<std::string_view>(
    {element::Mortar, element::Hmg, element::Atgun, element::RecoillessRifle});

template <typename Names>
bool isAmong(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// "turret[2]" as "turret 2", "armour" as it stands.
std::string stepWords(std::string_view step) {
    std::string words;
    for (const char c : step) {
        if (c != ']') {
            words += c == '_' || c == '[' ? ' ' : c;
        }
    }
    return words;
}

void addWords(std::string& heading, std::string_view words) {
    if (!words.empty()) {
        heading += heading.empty() ? "" : " ";
        heading += words;
    }
}

} // namespace

std::string headingOf(const CellPlace& cell) {
    std::string heading;
    const std::string text = cell.place.path.text();
    std::string_view path = text;
    std::string_view lastStep;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('.'), path.size());
        const std::string_view step = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        const bool isField = path.empty() && !step.ends_with(']');
        if (!isField && !isAmong(UnnamedSteps, step)) {
            addWords(heading, isAmong(HeavyWeapons, step) ? std::string("heavy weapon") : stepWords(step));
        }
        if (!isField) {
            lastStep = step.substr(0, step.find('['));
        }
    }
    if (heading.empty() || !equalsIgnoringCase(lastStep, cell.place.field.label)) {
        addWords(heading, cell.place.field.label);
    }
    if (&cell.field != &cell.place.field) {
        addWords(heading, cell.field.label);
    }
    if (!cell.field.traits.unit.empty()) {
        addWords(heading, "[" + std::string(cell.field.traits.unit) + "]");
    }
    if (heading.front() >= 'a' && heading.front() <= 'z') {
        heading.front() = static_cast<char>(heading.front() - 'a' + 'A');
    }
    return heading;
}

bool mayBeNegativeForNone(const FieldInfo& field) {
    return &field == &field::Bottom || &field == &field::Mantlet;
}

} // namespace varrocade
