#include "editors/vehicle/vehicle_form.h"

#include "data/unit/image_names.h"
#include "resources/resource.h"

#include <array>

namespace varrocade {

namespace {

constexpr auto SquadFields = std::to_array<FormField<SquadRecord>>({
    {IDC_TYPE, "Type", &SquadRecord::type},
    {IDC_NATIONALITY, "Nationality", &SquadRecord::nationality},
    {IDC_LONG_NAME, "Long name", &SquadRecord::longName},
    {IDC_SHORT_NAME, "Short name", &SquadRecord::shortName},
    {IDC_DESCRIPTION, "Description", &SquadRecord::comment},
});

constexpr auto VehicleFields = std::to_array<FormField<VehicleRecord>>({
    {IDC_WEIGHT, "Weight", &VehicleRecord::weight, {.zeroForOtherTexts = true}},
    {IDC_MOUNT_INFANTRY, "Can mount infantry", &VehicleRecord::canMountInfantry},
    {IDC_AMPHIBIOUS, "Is amphibious", &VehicleRecord::amphibious},
});

enum class UniformMethod { Any, New, Old };

/// An image and the uniform method that it belongs to.
struct ImageField {
    int control;
    std::string_view label; ///< for messages
    UniformMethod method;
    Text& (*name)(SquadRecord& record);
};

constexpr auto ImageFields = std::to_array<ImageField>({
    {IDC_UNIFORM_PROFILE, "Profile image", UniformMethod::New,
     [](SquadRecord& record) -> Text& { return record.uniformProfile; }},
    {IDC_UNIFORM_GAME, "Game image", UniformMethod::New,
     [](SquadRecord& record) -> Text& { return record.uniformGame; }},
    {IDC_UNIFORM_NAME, "Uniform", UniformMethod::Old,
     [](SquadRecord& record) -> Text& { return record.uniformName; }},
    {IDC_UNIFORM_RANKS, "Rank Image", UniformMethod::Any,
     [](SquadRecord& record) -> Text& { return record.uniformRanks; }},
    {IDC_PROFILE_IMAGE, "Control panel image", UniformMethod::Any,
     [](SquadRecord& record) -> Text& { return record.vehicle->profileImage; }},
});

/// Whether the method that the radio buttons tell has this image.
bool isInUse(FormPort& port, const ImageField& field) {
    return field.method == UniformMethod::Any ||
           (field.method == UniformMethod::New) == port.isChecked(IDC_UNIFORM_NEW_METHOD);
}

/// An empty name, as the default one, shows as "Default".
void showImage(FormPort& port, int control, const Text& name) {
    port.setLimit(control, Text::MaxLength);
    port.setText(control, name.empty() ? DefaultImageName : name.view());
}

/// "Default" is the empty name; a record that already says "Default" keeps it, so that nothing changes
/// unasked.
std::optional<FormError> readImage(FormPort& port, const ImageField& field, Text& name) {
    const std::string chosen = port.text(field.control);
    if (!isDefaultImage(chosen)) {
        name = imageNameOf(chosen);
    } else if (!isDefaultImage(name)) {
        name.clear();
    }
    return valueError(field.control, field.label, chosen);
}

/// A language is two characters; everything else, "Default" among it, is none.
LanguageCode languageOf(std::string_view text) {
    return text.size() == LanguageCode::MaxLength ? LanguageCode(text) : LanguageCode();
}

} // namespace

void fillVehicleForm(FormPort& port, const SquadRecord& record) {
    fillForm<SquadRecord>(port, SquadFields, record);
    fillForm<VehicleRecord>(port, VehicleFields, *record.vehicle);
    port.setText(IDC_LANGUAGE, record.language.empty() ? DefaultImageName : record.language.view());
    SquadRecord shown = record;
    for (const ImageField& field : ImageFields) {
        showImage(port, field.control, field.name(shown));
    }
    port.setChecked(IDC_UNIFORM_NEW_METHOD, !record.namedUniform);
    port.setChecked(IDC_UNIFORM_OLD_METHOD, record.namedUniform);
    enableUniformLists(port);
}

void enableUniformLists(FormPort& port) {
    for (const ImageField& field : ImageFields) {
        port.setEnabled(field.control, isInUse(port, field));
    }
}

std::optional<FormError> readVehicleForm(FormPort& port, SquadRecord& record) {
    SquadRecord copy = record;
    if (auto error = readForm<SquadRecord>(port, SquadFields, copy)) {
        return error;
    }
    if (auto error = readForm<VehicleRecord>(port, VehicleFields, *copy.vehicle)) {
        return error;
    }
    copy.language = languageOf(port.text(IDC_LANGUAGE));
    if (auto error = valueError(IDC_LANGUAGE, "Voice language", copy.language)) {
        return error;
    }
    copy.namedUniform = !port.isChecked(IDC_UNIFORM_NEW_METHOD);
    for (const ImageField& field : ImageFields) {
        if (!isInUse(port, field)) {
            continue;
        }
        if (auto error = readImage(port, field, field.name(copy))) {
            return error;
        }
    }
    record = std::move(copy);
    return std::nullopt;
}

} // namespace varrocade
