#include "editors/vehicle_form.h"

#include "data/image_names.h"
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

struct ImageField {
    int control;
    Text SquadRecord::*member;
};

constexpr auto NewMethodImages = std::to_array<ImageField>({
    {IDC_UNIFORM_PROFILE, &SquadRecord::uniformProfile},
    {IDC_UNIFORM_GAME, &SquadRecord::uniformGame},
});

/// An empty name, as the default one, shows as "Default".
void showImage(FormPort& port, int control, const Text& name) {
    port.setLimit(control, Text::MaxLength);
    port.setText(control, name.empty() ? DefaultImageName : name.view());
}

/// "Default" is the empty name; a record that already says "Default" keeps it, so that nothing changes
/// unasked.
void readImage(FormPort& port, int control, Text& name) {
    const std::string chosen = port.text(control);
    if (!isDefaultImage(chosen)) {
        name = imageNameOf(chosen);
    } else if (!isDefaultImage(name)) {
        name.clear();
    }
}

/// A language is two characters; everything else, "Default" among it, is none.
LanguageCode languageOf(std::string_view text) {
    return text.size() == LanguageCode::MaxLength ? LanguageCode(text) : LanguageCode();
}

} // namespace

void fillVehicleForm(FormPort& port, const SquadRecord& record) {
    const VehicleRecord& vehicle = *record.vehicle;
    fillForm<SquadRecord>(port, SquadFields, record);
    fillForm<VehicleRecord>(port, VehicleFields, vehicle);
    port.setText(IDC_LANGUAGE, record.language.empty() ? DefaultImageName : record.language.view());
    showImage(port, IDC_PROFILE_IMAGE, vehicle.profileImage);
    for (const ImageField& field : NewMethodImages) {
        showImage(port, field.control, record.*field.member);
    }
    showImage(port, IDC_UNIFORM_NAME, record.uniformName);
    showImage(port, IDC_UNIFORM_RANKS, record.uniformRanks);
    port.setChecked(IDC_UNIFORM_NEW_METHOD, !record.namedUniform);
    port.setChecked(IDC_UNIFORM_OLD_METHOD, record.namedUniform);
    enableUniformLists(port);
}

void enableUniformLists(FormPort& port) {
    const bool isNewMethod = port.isChecked(IDC_UNIFORM_NEW_METHOD);
    for (const ImageField& field : NewMethodImages) {
        port.setEnabled(field.control, isNewMethod);
    }
    port.setEnabled(IDC_UNIFORM_NAME, !isNewMethod);
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
    copy.namedUniform = !port.isChecked(IDC_UNIFORM_NEW_METHOD);
    if (copy.namedUniform) {
        readImage(port, IDC_UNIFORM_NAME, copy.uniformName);
    } else {
        for (const ImageField& field : NewMethodImages) {
            readImage(port, field.control, copy.*field.member);
        }
    }
    readImage(port, IDC_UNIFORM_RANKS, copy.uniformRanks);
    readImage(port, IDC_PROFILE_IMAGE, copy.vehicle->profileImage);
    record = std::move(copy);
    return std::nullopt;
}

} // namespace varrocade
