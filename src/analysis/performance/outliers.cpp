#include "analysis/performance/outliers.h"

#include "analysis/armour_plates.h"
#include "data/each_field.h"
#include "data/format/numbers.h"
#include "data/unit_fields.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace varrocade {

namespace {

constexpr std::array<std::string_view, 3> Keys = {"vehicle-weight", "vehicle-plate", "vehicle-size"};

/// A weight is out of line beyond three robust deviations, between these logarithms: a half and a double
/// (0.69) are to be told from the error of an estimate.
constexpr double DeviationsOfWeight = 3.0;
constexpr double LeastDeviation = 0.34;
constexpr double GreatestDeviation = 0.40;

/// How thick a plate may be against the other plates and the weight. Limits lie some 20 % above those of two
/// hundred vehicles. Tanks from 1960 on have layered fronts, given as the steel that they are worth.
struct PlateLimits {
    double ofMedian; ///< of the vehicle's other plates' median
    double ofMedianLayered;
    double ofMass; ///< millimetres, for each tonne to the power of two thirds
    double ofMassLayered;
};

constexpr PlateLimits Front = {6.3, 20.0, 20.0, 90.0};
constexpr PlateLimits Side = {2.8, 8.0, 14.0, 30.0};
constexpr PlateLimits Rear = {2.4, 4.0, 14.0, 16.0};
constexpr PlateLimits Roof = {1.6, 2.0, 9.0, 9.0};
constexpr PlateLimits Spaced = {1.2, 2.0, 5.0, 9.0};

constexpr auto PlateKinds = std::to_array<std::pair<std::string_view, PlateLimits>>({
    {field::UpperFront.element, Front},
    {field::LowerFront.element, Front},
    {field::Mantlet.element, Front},
    {field::UpperLeft.element, Side},
    {field::UpperRight.element, Side},
    {field::LowerLeft.element, Side},
    {field::LowerRight.element, Side},
    {field::UpperRear.element, Rear},
    {field::LowerRear.element, Rear},
    {field::Top.element, Roof},
    {field::Bottom.element, Roof},
});

constexpr int LayeredSince = 1960;
constexpr double LayeredFromMass = 28'000.0; ///< kilograms
/// Fewer other plates have no median that tells anything.
constexpr std::size_t LeastPlates = 3;
/// Plates as thin as this are no fault of a unit: a lorry's sheet of 2 mm among others of 1 mm.
constexpr double ThinPlate = 4.0;

/// Centimetres that no vehicle leaves.
struct SizeRange {
    double from;
    double to;
};
constexpr SizeRange HullLength = {150, 1400};
constexpr SizeRange HullWidth = {90, 480};
constexpr SizeRange HullHeight = {50, 420};
constexpr SizeRange TurretHeight = {12, 280};
constexpr SizeRange BoxHeight = {5, 280};
constexpr double LeastBox = 20.0;
/// A turret or superstructure reaches at most so far beyond the hull's width or length.
constexpr double BeyondHull = 1.15;
constexpr double MaxTurretDiameter = 420.0;

std::string figure(double value) {
    std::string text;
    appendFixed(text, value, 0);
    return text;
}

std::string rangeText(const Outlier& outlier, std::string_view unit) {
    return figure(outlier.expectedFrom) + " to " + figure(outlier.expectedTo) + " " + std::string(unit);
}

class SizeCheck {
public:
    SizeCheck(std::size_t component, ComponentKind kind, std::vector<Outlier>& found)
        : component_(component), kind_(kind), found_(found) {}

    /// A size that is not given, 0, is left to others.
    void check(std::string_view name, std::int32_t given, SizeRange range) {
        if (given == 0 || (given >= range.from && given <= range.to)) {
            return;
        }
        Outlier& outlier = found_.emplace_back();
        outlier.kind = OutlierKind::Size;
        outlier.component = component_;
        outlier.what = std::string(name) + " of the " + std::string(elementOf(kind_));
        outlier.given = given;
        outlier.expectedFrom = range.from;
        outlier.expectedTo = range.to;
        outlier.sentence = "The " + outlier.what + " is given as " + figure(given) + " cm; " +
                           rangeText(outlier, "cm") + " would be in line.";
    }

private:
    std::size_t component_;
    ComponentKind kind_;
    std::vector<Outlier>& found_;
};

const ComponentRecord* firstHull(const VehicleRecord& vehicle) {
    const auto hull =
        std::find_if(vehicle.components.begin(), vehicle.components.end(),
                     [](const ComponentRecord& part) { return part.kind == ComponentKind::Hull; });
    return hull == vehicle.components.end() ? nullptr : &*hull;
}

/// The plates of a vehicle that belong to its body, with the spaced ones.
struct NamedPlate {
    std::size_t component;
    std::string_view name;
    double thickness;
    PlateLimits limits;
};

std::vector<NamedPlate> bodyPlates(const VehicleRecord& vehicle) {
    std::vector<NamedPlate> plates;
    for (const VehiclePlate& plate : armourPlates(vehicle)) {
        const auto kind = std::find_if(PlateKinds.begin(), PlateKinds.end(),
                                       [&](const auto& row) { return row.first == plate.name; });
        if (vehicle.components[plate.component].kind != ComponentKind::FixedWeapon &&
            kind != PlateKinds.end()) {
            plates.push_back(
                {plate.component, plate.name, static_cast<double>(plate.plate.thickness), kind->second});
        }
    }
    return plates;
}

void addSpaced(const VehicleRecord& vehicle, std::vector<NamedPlate>& plates) {
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const ArmourRecord& armour = vehicle.components[i].armour;
        for (const auto& [name, thickness] : {std::pair(field::FrontSpaced.element, armour.frontSpaced),
                                              std::pair(field::SideSpaced.element, armour.sideSpaced),
                                              std::pair(field::RearSpaced.element, armour.rearSpaced)}) {
            if (thickness > 0) {
                plates.push_back({i, name, static_cast<double>(thickness), Spaced});
            }
        }
    }
}

/// The median of the values but the one at `without`.
double medianOfOthers(std::vector<double> values, std::size_t without) {
    if (without < values.size()) {
        values.erase(values.begin() + static_cast<std::ptrdiff_t>(without));
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

std::string_view outlierKey(OutlierKind kind) {
    return Keys[static_cast<std::size_t>(kind)];
}

std::vector<Outlier> sizeOutliers(const VehicleRecord& vehicle) {
    std::vector<Outlier> found;
    const ComponentRecord* hull = firstHull(vehicle);
    const auto upTo = [](double limit, std::int32_t ofHull) {
        return ofHull > 0 ? std::min(limit, std::max(BeyondHull * ofHull, LeastBox)) : limit;
    };
    const double width = upTo(HullWidth.to, hull != nullptr ? hull->width : 0);
    const double length = upTo(HullLength.to, hull != nullptr ? hull->length : 0);
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const ComponentRecord& part = vehicle.components[i];
        SizeCheck size(i, part.kind, found);
        if (part.kind == ComponentKind::Hull) {
            size.check(field::Width.element, part.width, HullWidth);
            size.check(field::Length.element, part.length, HullLength);
            size.check(field::Height.element, part.height, HullHeight);
        } else if (part.kind == ComponentKind::Superstructure) {
            size.check(field::Width.element, part.width, {LeastBox, width});
            size.check(field::Length.element, part.length, {LeastBox, length});
            size.check(field::Height.element, part.height, BoxHeight);
        } else if (part.kind == ComponentKind::Turret) {
            size.check(field::Diameter.element, part.diameter,
                       {LeastBox, std::min(width, MaxTurretDiameter)});
            size.check(field::Height.element, part.height, TurretHeight);
        }
    }
    return found;
}

std::vector<Outlier> plateOutliers(const VehicleRecord& vehicle, const VehicleFigures& figures) {
    std::vector<NamedPlate> plates = bodyPlates(vehicle);
    std::vector<double> thicknesses;
    thicknesses.reserve(plates.size());
    for (const NamedPlate& plate : plates) {
        thicknesses.push_back(plate.thickness);
    }
    addSpaced(vehicle, plates);
    const bool isLayered =
        figures.year >= LayeredSince && figures.weight >= LayeredFromMass && figures.body == BodyKind::Tank;
    const double ofMass = std::pow(figures.weight / 1000.0, 2.0 / 3.0);
    std::vector<Outlier> found;
    for (std::size_t i = 0; i < plates.size(); ++i) {
        const NamedPlate& plate = plates[i];
        double limit = 1e9;
        if (thicknesses.size() > LeastPlates) {
            limit = (isLayered ? plate.limits.ofMedianLayered : plate.limits.ofMedian) *
                    medianOfOthers(thicknesses, i);
        }
        if (figures.weight > 0) {
            limit = std::min(limit, (isLayered ? plate.limits.ofMassLayered : plate.limits.ofMass) * ofMass);
        }
        limit = std::max(limit, ThinPlate);
        if (plate.thickness > limit) {
            Outlier& outlier = found.emplace_back();
            outlier.kind = OutlierKind::Plate;
            outlier.component = plate.component;
            outlier.what = std::string(plate.name) + " of the " +
                           std::string(elementOf(vehicle.components[plate.component].kind));
            outlier.given = plate.thickness;
            outlier.expectedTo = limit;
            outlier.sentence = "The plate " + outlier.what + " is given as " + figure(plate.thickness) +
                               " mm; up to " + figure(limit) +
                               " mm would be in line with the others and the weight.";
        }
    }
    return found;
}

std::vector<Outlier> bodyOutliers(const VehicleRecord& vehicle, const VehicleFigures& figures) {
    std::vector<Outlier> found = sizeOutliers(vehicle);
    for (Outlier& outlier : plateOutliers(vehicle, figures)) {
        found.push_back(std::move(outlier));
    }
    return found;
}

std::optional<Outlier> weightOutlier(const VehicleFigures& figures, const WeightCalibration& calibration) {
    const std::optional<WeightShares> shares = estimateWeight(figures, calibration.factors);
    if (!shares || figures.lacks(MissingFigure::Weight)) {
        return std::nullopt;
    }
    const double estimate = std::max(shares->total(), 1.0);
    const double limit =
        std::clamp(DeviationsOfWeight * calibration.spread, LeastDeviation, GreatestDeviation);
    if (std::abs(std::log(figures.weight / estimate)) <= limit) {
        return std::nullopt;
    }
    Outlier outlier;
    outlier.name = figures.name;
    outlier.kind = OutlierKind::Weight;
    outlier.what = field::Weight.element;
    outlier.given = figures.weight;
    outlier.expectedFrom = estimate * std::exp(-limit);
    outlier.expectedTo = estimate * std::exp(limit);
    outlier.sentence = "The weight is given as " + figure(figures.weight) +
                       " kg; size, armour and power come to " + rangeText(outlier, "kg") + ".";
    return outlier;
}

std::vector<Outlier> findOutliers(std::span<const SquadRecord> units,
                                  std::span<const VehicleFigures> figures) {
    const WeightCalibration calibration = calibrateWeight(figures);
    std::vector<Outlier> found;
    for (std::size_t i = 0; i < std::min(units.size(), figures.size()); ++i) {
        if (!units[i].vehicle) {
            continue;
        }
        const std::size_t before = found.size();
        for (Outlier& outlier : bodyOutliers(*units[i].vehicle, figures[i])) {
            found.push_back(std::move(outlier));
        }
        if (found.size() == before) {
            if (std::optional<Outlier> outlier = weightOutlier(figures[i], calibration)) {
                found.push_back(std::move(*outlier));
            }
        }
        for (std::size_t k = before; k < found.size(); ++k) {
            found[k].vehicle = i;
            found[k].name = units[i].fileName.str();
        }
    }
    return found;
}

} // namespace varrocade
