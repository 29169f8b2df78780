// What is particular to unit files about the losses of a save.

#include "data/losses/save_losses.h"

#include "data/losses/loss_finder.h"
#include "data/reading/unit_rules.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "data/unit_fields.h"
#include "data/writing/unit_writers.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

std::string_view lastText(const FieldHistory& history, std::uint32_t entry, FieldId field,
                          std::string_view otherwise) {
    const TracedValue* value = history.last(entry, field);
    return value != nullptr ? std::string_view(value->after) : otherwise;
}

bool isOneOf(FieldId field, std::initializer_list<FieldId> fields) {
    return std::find(fields.begin(), fields.end(), field) != fields.end();
}

/// Flavours that follow from the weapon type, armour of less than nothing, the nation's default images.
bool goesWithoutSaying(const FieldHistory& history, const TracedValue& value) {
    if (value.field == &field::Flavour) {
        return isDefaultFlavour(lastText(history, value.entry, &field::AmmoFor, {}), value.after);
    }
    if (isOneOf(value.field, {&field::Bottom, &field::Mantlet, &field::FrontSpaced, &field::SideSpaced,
                              &field::RearSpaced})) {
        return value.after.starts_with('-');
    }
    return isOneOf(value.field, {&field::UniformProfile, &field::UniformGame, &field::UniformRanks}) &&
           value.after == DefaultImageName;
}

/// In vehicles, moreover, what the nation's crews wear.
bool goesWithoutSayingInVehicle(const FieldHistory& history, const TracedValue& value) {
    if (goesWithoutSaying(history, value)) {
        return true;
    }
    const SquadRecord defaults;
    const NationalUniform* national =
        findNationalUniform(lastText(history, 0, &field::Nationality, defaults.nationality));
    if (national == nullptr) {
        return false;
    }
    return (value.field == &field::UniformProfile && value.after == national->profile) ||
           (value.field == &field::UniformGame && value.after == national->game) ||
           (value.field == &field::UniformRanks && value.after == national->ranks);
}

SquadRecord readTraced(TracedFile& file) {
    SquadRecord record;
    unit_rules::Reading reading{{.tree = file.tree, .trace = &file.trace}, record};
    unit_rules::readTree(reading);
    return record;
}

} // namespace

std::optional<std::vector<Finding>> unitSaveLosses(Category category, std::string_view fileContent) {
    TracedFile file(fileContent);
    const std::optional<std::string> text = unitFileText(category, readTraced(file));
    if (!text) {
        return std::nullopt;
    }
    TracedFile saved(*text);
    const std::optional<std::string> again = unitFileText(category, readTraced(saved));
    // Writers sort weapons and ammunition by their types, and conversions mix points with those of a file.
    const std::array<FieldId, 5> keys = {&field::MountedType, &field::AmmoFor, &field::Month, &field::Year,
                                         &field::NumberOfUnits};
    const LossKnowledge knowledge{
        .isElement = unit_rules::isElement,
        .keys = keys,
        .goesWithoutSaying = category == Category::Vehicles ? goesWithoutSayingInVehicle : goesWithoutSaying};
    std::vector<Finding> losses = findLosses(file, saved, knowledge);
    addReadBack(fileContent, *text, again ? std::string_view(*again) : std::string_view(), losses);
    return losses;
}

} // namespace varrocade
