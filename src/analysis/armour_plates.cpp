#include "analysis/armour_plates.h"

#include "data/unit_fields.h"

#include <array>

namespace varrocade {

namespace {

struct ThicknessRow {
    std::string_view name;
    std::int32_t ArmourRecord::*thickness;
    std::int32_t angle;
};

constexpr std::int32_t Upright = 0;
constexpr std::int32_t Horizontal = 90;

constexpr auto Thicknesses = std::to_array<ThicknessRow>({
    {field::Top.element, &ArmourRecord::top, Horizontal},
    {field::Bottom.element, &ArmourRecord::bottom, Horizontal},
    {field::Mantlet.element, &ArmourRecord::mantlet, Upright},
});

} // namespace

std::vector<VehiclePlate> armourPlates(const VehicleRecord& vehicle) {
    std::vector<VehiclePlate> plates;
    const auto add = [&plates](std::size_t component, std::string_view name, const ArmourPlate& plate) {
        if (plate.thickness > 0) {
            plates.push_back({.component = component, .name = name, .plate = plate});
        }
    };
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const ArmourRecord& armour = vehicle.components[i].armour;
        for (const auto* plate : field::Plates) {
            add(i, plate->element, plate->of(armour));
        }
        for (const ThicknessRow& row : Thicknesses) {
            add(i, row.name, {.thickness = armour.*row.thickness, .angle = row.angle});
        }
    }
    return plates;
}

} // namespace varrocade
