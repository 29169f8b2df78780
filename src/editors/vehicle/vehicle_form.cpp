#include "editors/vehicle/vehicle_form.h"

#include "data/unit_fields.h"
#include "editors/unit/description_rows.h"
#include "resources/resource.h"

#include <array>

namespace varrocade {

namespace {

struct OfVehicle {
    static auto& in(auto& squad) { return *squad.vehicle; }
};

constexpr auto ImageRows = std::to_array<description_rows::SquadRow>({
    {IDC_PROFILE_IMAGE, OfVehicle(), field::ProfileImage, description_rows::WithDefault},
});

constexpr auto AttributeRows = std::to_array<description_rows::SquadRow>({
    {IDC_WEIGHT, OfVehicle(), field::Weight},
    {IDC_MOUNT_INFANTRY, OfVehicle(), field::CanMountInfantry},
    {IDC_AMPHIBIOUS, OfVehicle(), field::Amphibious},
});

constexpr auto VehicleRows =
    description_rows::joined(description_rows::joined(description_rows::Names, ImageRows),
                             description_rows::joined(description_rows::Uniforms, AttributeRows));

constexpr FormShape<SquadRecord> VehicleShape = {.rows = VehicleRows};

} // namespace

const FormShape<SquadRecord>& vehicleShape() {
    return VehicleShape;
}

} // namespace varrocade
