#include "analysis/performance/vehicle_figures.h"

#include "analysis/performance/lengths.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr double MaxWeight = 1e7;     ///< kilograms
constexpr double MaxHorsepower = 1e6; ///< far beyond any vehicle, as the others
constexpr double MaxRevolutions = 1e5;
constexpr int MaxGears = 32;
constexpr int FirstYear = 1900;
constexpr int LastYear = 2100;
constexpr double MaxRounds = 20'000.0;
/// Ammunition of all guns together, kilograms: an ISU-152 has 1.6 t.
constexpr double MaxAmmunition = 12'000.0;
constexpr double MaxGuns = 40'000.0;

constexpr std::array<std::string_view, 4> MissingTexts = {
    "no weight", "no horsepower", "no hull with width, length and height", "no date of availability"};

double bounded(std::int32_t value, double max) {
    return std::clamp(static_cast<double>(value), 0.0, max);
}

int firstYearOf(const std::vector<AvailabilityPoint>& points) {
    int first = 0;
    for (const AvailabilityPoint& point : points) {
        const int year = point.year;
        if (year >= FirstYear && year <= LastYear && (first == 0 || year < first)) {
            first = year;
        }
    }
    return first;
}

void addWeapons(const std::vector<WeaponMountRecord>& mounts, const std::vector<AmmoLoadRecord>& loads,
                const WeaponMasses& weapons, VehicleFigures& figures) {
    for (const WeaponMountRecord& mount : mounts) {
        figures.guns += weapons.of(mount.type).weapon;
    }
    for (const AmmoLoadRecord& load : loads) {
        figures.ammunition += weapons.of(load.weaponType).round * bounded(load.rounds, MaxRounds);
    }
}

void addComponent(const ComponentRecord& part, const WeaponMasses& weapons, VehicleFigures& figures) {
    const double height = inMetres(part.height);
    const double volume = inMetres(part.width) * inMetres(part.length) * height;
    if (part.kind == ComponentKind::Hull) {
        figures.volume += volume;
        if (figures.height <= 0) {
            figures.length = inMetres(part.length);
            figures.width = inMetres(part.width);
            figures.height = height;
        }
    } else if (part.kind == ComponentKind::Superstructure) {
        figures.volume += volume;
    }
    if (part.kind == ComponentKind::Superstructure || part.kind == ComponentKind::Turret) {
        figures.totalHeight = std::max(figures.totalHeight, height);
    }
    figures.crew += static_cast<int>(std::min<std::size_t>(part.crew.size(), MaxSquadMembers));
    addWeapons(part.weapons, part.ammo, weapons, figures);
}

} // namespace

std::string_view missingFigureText(MissingFigure figure) {
    return MissingTexts[static_cast<std::size_t>(figure)];
}

bool VehicleFigures::lacks(MissingFigure figure) const {
    switch (figure) {
    case MissingFigure::Weight:
        return weight <= 0;
    case MissingFigure::Power:
        return horsepower <= 0;
    case MissingFigure::Hull:
        return length <= 0 || width <= 0 || height <= 0;
    case MissingFigure::Date:
        return year == 0;
    }
    return true;
}

bool VehicleFigures::canEstimate() const {
    return !lacks(MissingFigure::Power) && !lacks(MissingFigure::Hull) && !lacks(MissingFigure::Date);
}

std::vector<MissingFigure> VehicleFigures::missing() const {
    std::vector<MissingFigure> found;
    for (const MissingFigure figure :
         {MissingFigure::Weight, MissingFigure::Power, MissingFigure::Hull, MissingFigure::Date}) {
        if (lacks(figure)) {
            found.push_back(figure);
        }
    }
    return found;
}

VehicleFigures vehicleFigures(const SquadRecord& unit, const WeaponMasses& weapons) {
    VehicleFigures figures;
    figures.name = unit.fileName.str();
    if (!unit.vehicle) {
        return figures;
    }
    const VehicleRecord& vehicle = *unit.vehicle;
    figures.gear = runningGearOf(unit.type, vehicle.steering);
    figures.body = bodyKindOf(unit, figures.gear);
    figures.weight = bounded(vehicle.weight, MaxWeight);
    figures.horsepower = bounded(vehicle.horsepower, MaxHorsepower);
    figures.year = firstYearOf(unit.availability);
    figures.forwardGears = std::clamp(vehicle.forwardGears, 1, MaxGears);
    figures.idleRevolutions =
        std::clamp(bounded(vehicle.idleRevolutions, MaxRevolutions), 100.0, MaxRevolutions);
    figures.revolutionLimit =
        std::max(bounded(vehicle.revolutionLimit, MaxRevolutions), 1.2 * figures.idleRevolutions);
    figures.amphibious = vehicle.amphibious;
    for (const ComponentRecord& part : vehicle.components) {
        addComponent(part, weapons, figures);
    }
    figures.totalHeight += figures.height;
    figures.guns = std::min(figures.guns, MaxGuns);
    figures.ammunition = std::min(figures.ammunition, MaxAmmunition);
    figures.armour = armourMass(vehicle, figures.gear, figures.body, figures.year);
    return figures;
}

} // namespace varrocade
