#include "editors/penetration/can_penetrate_form.h"

#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/format/words.h"
#include "data/unit/component_words.h"

#include <algorithm>

namespace varrocade {

namespace {

/// A plate's name in files, "upper_front", for people.
std::string plateWord(std::string_view name) {
    std::string word(name);
    std::replace(word.begin(), word.end(), '_', ' ');
    if (!word.empty() && word[0] >= 'a' && word[0] <= 'z') {
        word[0] = static_cast<char>(word[0] - 'a' + 'A');
    }
    return word;
}

template <typename Cells>
std::string tabbed(const Cells& cells) {
    std::string line;
    for (const auto& cell : cells) {
        line += line.empty() ? "" : "\t";
        line += cell;
    }
    return line + "\r\n";
}

} // namespace

DragTexts defaultDragTexts() {
    DragTexts texts;
    const auto classes = dragClasses();
    for (std::size_t i = 0; i < texts.size() && i < classes.size(); ++i) {
        appendShortest(texts[i], static_cast<float>(classes[i].coefficient));
    }
    return texts;
}

std::string plateRangeText(std::optional<int> range) {
    if (!range) {
        return "never";
    }
    return *range >= CurveEnd ? "at every range" : "up to " + grouped(*range) + " m";
}

std::array<std::string, PlateRangeHeads.size()> plateRangeCells(const VehicleRecord& vehicle,
                                                                const PlateRange& range) {
    const VehiclePlate& plate = range.plate;
    return {componentTitle(plate.component + 1, vehicle.components[plate.component].kind),
            plateWord(plate.name), grouped(plate.plate.thickness) + " mm", std::to_string(plate.plate.angle),
            plateRangeText(range.range)};
}

std::string plateRangeSentence(const VehicleRecord& vehicle, const PlateRange& range) {
    const auto cells = plateRangeCells(vehicle, range);
    return cells[0] + ", " + cells[1] + ", " + cells[2] + " at " + cells[3] + " degrees: " + cells[4];
}

std::string plateRangeTable(const PenetrationQuestion& question, const VehicleRecord& vehicle,
                            std::span<const PlateRange> ranges) {
    std::string table = tabbed(
        std::array{question.vehicle, question.weapon, question.shell, "wind resistance " + question.drag});
    table += tabbed(PlateRangeHeads);
    for (const PlateRange& range : ranges) {
        table += tabbed(plateRangeCells(vehicle, range));
    }
    return table;
}

} // namespace varrocade
