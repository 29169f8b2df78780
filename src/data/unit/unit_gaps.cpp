#include "data/unit/unit_gaps.h"

#include "data/each_field.h"
#include "data/unit/elements.h"
#include "data/unit_fields.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace varrocade {

namespace {

class GapList {
public:
    /// Notes that something is missing; `path` is that of the record around, with a point at its end.
    void addIf(bool isMissing, const std::string& path, std::string_view element, std::string_view what) {
        if (isMissing) {
            gaps_.push_back({.key = finding_key::Incomplete,
                             .severity = Severity::Note,
                             .field = path + std::string(element),
                             .message = "still missing: " + std::string(what)});
        }
    }
    std::vector<Finding> take() { return std::move(gaps_); }

private:
    std::vector<Finding> gaps_;
};

void findVehicleGaps(const VehicleRecord& vehicle, GapList& gaps) {
    const std::string path = std::string(element::Vehicle) + ".";
    const auto& components = vehicle.components;
    const auto hull =
        std::find_if(components.begin(), components.end(),
                     [](const ComponentRecord& component) { return component.kind == ComponentKind::Hull; });
    if (hull != components.end()) {
        const std::string hullPath = path + std::string(elementOf(ComponentKind::Hull)) + "[1].";
        gaps.addIf(hull->viewImage.empty(), hullPath, field::ViewImage.element, "the picture of the hull");
        gaps.addIf(hull->width == 0 || hull->length == 0, hullPath, field::Length.element,
                   "the size of the hull");
    }
    const bool hasCrew =
        std::any_of(components.begin(), components.end(),
                    [](const ComponentRecord& component) { return !component.crew.empty(); });
    gaps.addIf(!hasCrew, path, elementOf(ComponentKind::Hull), "the crew");
    gaps.addIf(vehicle.weight == 0, path, field::Weight.element, "the weight");
    gaps.addIf(vehicle.horsepower == 0, path + std::string(element::Drive) + ".", element::Engine,
               "the engine's horsepower");
}

} // namespace

std::vector<Finding> unitGaps(const SquadRecord& unit) {
    GapList gaps;
    gaps.addIf(unit.longName.empty(), {}, field::LongName.element, "the long name");
    if (unit.vehicle) {
        findVehicleGaps(*unit.vehicle, gaps);
    } else if (unit.aircraft) {
        const std::string path = std::string(element::Aircraft) + ".";
        gaps.addIf(unit.aircraft->image.empty(), path, field::AircraftImage.element,
                   "the picture of the aircraft");
        gaps.addIf(unit.aircraft->sound.empty(), path, field::AircraftSound.element,
                   "the sound of the aircraft");
        gaps.addIf(unit.aircraft->speed == 0, path, field::AircraftSpeed.element, "the speed");
    } else {
        const auto& men = unit.infantrymen;
        gaps.addIf(men.empty(), {}, element::Description, unit.heavyWeapon ? "the crew" : "the men");
        const bool isUnarmed =
            !unit.heavyWeapon &&
            std::all_of(men.begin(), men.end(), [](const CrewManRecord& man) { return man.weapons.empty(); });
        gaps.addIf(!men.empty() && isUnarmed, {}, element::Man, "the weapons of the men");
    }
    if (unit.heavyWeapon) {
        const std::string path = std::string(elementOf(unit.heavyWeapon->kind)) + ".";
        const HeavyWeaponRecord& gun = *unit.heavyWeapon;
        gaps.addIf(gun.gunImage.empty(), path, field::GunImage.element, "the picture of the gun");
        gaps.addIf(gun.weapons.empty(), path, field::GunImage.element, "the weapon of the gun");
        gaps.addIf(!gun.weapons.empty() && gun.ammo.empty(), path, element::Ammo,
                   "the ammunition of the gun");
        gaps.addIf(gun.kind == HeavyWeaponKind::AtGun && gun.mass == 0, path, field::Mass.element,
                   "the mass of the gun");
    }
    gaps.addIf(unit.availability.empty(), {}, element::Availability, "the dates of availability");
    return gaps.take();
}

} // namespace varrocade
