#include "editors/vehicle/vehicle_form.h"

#include "data/unit/image_names.h"
#include "data/unit_fields.h"
#include "resources/resource.h"

#include <array>

namespace varrocade {

namespace {

using Squad = SquadRecord;

struct OfVehicle {
    static auto& in(auto& squad) { return *squad.vehicle; }
};

/// No element: the images that a file has say it.
constexpr auto NamedUniform = field_row::flag(&Squad::namedUniform, "", "Use old method");

bool isNewMethod(FormPort& port, const Squad&) {
    return port.isChecked(IDC_UNIFORM_NEW_METHOD);
}

bool isOldMethod(FormPort& port, const Squad&) {
    return !port.isChecked(IDC_UNIFORM_NEW_METHOD);
}

/// A language is two characters; everything else, "Default" among it, is none.
struct TwoCharacters : Codec<LanguageCode> {
    static Refusal take(std::string_view text, const CodecTerms& terms, LanguageCode& language) {
        return Codec::take(text.size() == LanguageCode::MaxLength ? text : std::string_view(), terms,
                           language);
    }
};

constexpr RowTerms<Squad> WithDefault = {.emptyAs = DefaultImageName};

constexpr auto SquadRows = std::to_array<FormRow<Squad>>({
    {IDC_NATIONALITY, field::Nationality},
    {IDC_TYPE, field::Type},
    {IDC_LANGUAGE, field::VoiceLanguage, WithDefault, TwoCharacters()},
    {IDC_LONG_NAME, field::LongName},
    {IDC_SHORT_NAME, field::ShortName},
    {IDC_DESCRIPTION, field::Comment},
    {IDC_PROFILE_IMAGE, OfVehicle(), field::ProfileImage, WithDefault},
    {IDC_UNIFORM_OLD_METHOD, NamedUniform, {.otherwise = IDC_UNIFORM_NEW_METHOD}},
    {IDC_UNIFORM_PROFILE, field::UniformProfile, {.enabledWhen = isNewMethod, .emptyAs = DefaultImageName}},
    {IDC_UNIFORM_GAME, field::UniformGame, {.enabledWhen = isNewMethod, .emptyAs = DefaultImageName}},
    {IDC_UNIFORM_RANKS, field::UniformRanks, WithDefault},
    {IDC_UNIFORM_NAME, field::UniformName, {.enabledWhen = isOldMethod, .emptyAs = DefaultImageName}},
    {IDC_WEIGHT, OfVehicle(), field::Weight},
    {IDC_MOUNT_INFANTRY, OfVehicle(), field::CanMountInfantry},
    {IDC_AMPHIBIOUS, OfVehicle(), field::Amphibious},
});

constexpr FormShape<Squad> SquadShape = {.rows = SquadRows};

} // namespace

const FormShape<SquadRecord>& vehicleShape() {
    return SquadShape;
}

} // namespace varrocade
