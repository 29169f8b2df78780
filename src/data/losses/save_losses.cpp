// What is particular to unit files about the losses of a save.

#include "data/losses/save_losses.h"

#include "data/losses/loss_finder.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "data/unit/unit_rules.h"
#include "data/unit/unit_writers.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

bool isUnitElement(std::string_view name) {
    for (std::size_t place = 0; place < static_cast<std::size_t>(unit_rules::Place::Count); ++place) {
        if (unit_rules::findRule(static_cast<unit_rules::Place>(place), name) != nullptr) {
            return true;
        }
    }
    return false;
}

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
    if (value.field == fieldId<&AmmoLoadRecord::flavour>()) {
        return isDefaultFlavour(lastText(history, value.entry, fieldId<&AmmoLoadRecord::weaponType>(), {}),
                                value.after);
    }
    if (isOneOf(value.field, {fieldId<&ArmourRecord::bottom>(), fieldId<&ArmourRecord::mantlet>(),
                              fieldId<&ArmourRecord::frontSpaced>(), fieldId<&ArmourRecord::sideSpaced>(),
                              fieldId<&ArmourRecord::rearSpaced>()})) {
        return value.after.starts_with('-');
    }
    return isOneOf(value.field,
                   {fieldId<&SquadRecord::uniformProfile>(), fieldId<&SquadRecord::uniformGame>(),
                    fieldId<&SquadRecord::uniformRanks>()}) &&
           value.after == DefaultImageName;
}

/// In vehicles, moreover, what the nation's crews wear.
bool goesWithoutSayingInVehicle(const FieldHistory& history, const TracedValue& value) {
    if (goesWithoutSaying(history, value)) {
        return true;
    }
    const SquadRecord defaults;
    const NationalUniform* national =
        findNationalUniform(lastText(history, 0, fieldId<&SquadRecord::nationality>(), defaults.nationality));
    if (national == nullptr) {
        return false;
    }
    return (value.field == fieldId<&SquadRecord::uniformProfile>() && value.after == national->profile) ||
           (value.field == fieldId<&SquadRecord::uniformGame>() && value.after == national->game) ||
           (value.field == fieldId<&SquadRecord::uniformRanks>() && value.after == national->ranks);
}

SquadRecord readTraced(TracedFile& file) {
    SquadRecord record;
    unit_rules::Reading reading{.record = record, .tree = file.tree};
    reading.trace = &file.trace;
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
    readTraced(saved);
    // Writers sort weapons and ammunition by their types, and conversions mix points with those of a file.
    const std::array<FieldId, 5> keys = {
        fieldId<&WeaponMountRecord::type>(), fieldId<&AmmoLoadRecord::weaponType>(),
        fieldId<&AvailabilityPoint::month>(), fieldId<&AvailabilityPoint::year>(),
        fieldId<&AvailabilityPoint::number>()};
    const LossKnowledge knowledge{
        .isElement = isUnitElement,
        .keys = keys,
        .goesWithoutSaying = category == Category::Vehicles ? goesWithoutSayingInVehicle : goesWithoutSaying};
    return findLosses(file, saved, knowledge);
}

} // namespace varrocade
