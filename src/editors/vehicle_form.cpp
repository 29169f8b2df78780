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

/// A list of uniform images: an empty name, as the default one, shows as "Default".
struct ImageField {
    int control;
    Text SquadRecord::*member;
};

constexpr auto NewMethodImages = std::to_array<ImageField>({
    {IDC_UNIFORM_PROFILE, &SquadRecord::uniformProfile},
    {IDC_UNIFORM_GAME, &SquadRecord::uniformGame},
});
constexpr ImageField OldMethodImage = {IDC_UNIFORM_NAME, &SquadRecord::uniformName};
constexpr ImageField RanksImage = {IDC_UNIFORM_RANKS, &SquadRecord::uniformRanks};

void showImage(FormPort& port, const ImageField& field, const SquadRecord& record) {
    const Text& name = record.*field.member;
    port.setLimit(field.control, Text::MaxLength);
    port.setText(field.control, name.empty() ? DefaultImageName : name.view());
}

/// "Default" is the empty name; a record that already says "Default" keeps it, so that nothing changes
/// unasked.
void readImage(FormPort& port, const ImageField& field, SquadRecord& record) {
    const std::string chosen = port.text(field.control);
    Text& name = record.*field.member;
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
    port.setLimit(IDC_PROFILE_IMAGE, Text::MaxLength);
    port.setText(IDC_PROFILE_IMAGE,
                 vehicle.profileImage.empty() ? DefaultImageName : vehicle.profileImage.view());
    for (const ImageField& field : NewMethodImages) {
        showImage(port, field, record);
    }
    showImage(port, OldMethodImage, record);
    showImage(port, RanksImage, record);
    port.setChecked(IDC_UNIFORM_NEW_METHOD, !record.namedUniform);
    port.setChecked(IDC_UNIFORM_OLD_METHOD, record.namedUniform);
    enableUniformLists(port);
}

void enableUniformLists(FormPort& port) {
    const bool isNewMethod = port.isChecked(IDC_UNIFORM_NEW_METHOD);
    for (const ImageField& field : NewMethodImages) {
        port.setEnabled(field.control, isNewMethod);
    }
    port.setEnabled(OldMethodImage.control, !isNewMethod);
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
        readImage(port, OldMethodImage, copy);
    } else {
        for (const ImageField& field : NewMethodImages) {
            readImage(port, field, copy);
        }
    }
    readImage(port, RanksImage, copy);
    const std::string profile = port.text(IDC_PROFILE_IMAGE);
    copy.vehicle->profileImage = isDefaultImage(profile) ? std::string_view() : imageNameOf(profile);
    record = std::move(copy);
    return std::nullopt;
}

} // namespace varrocade
