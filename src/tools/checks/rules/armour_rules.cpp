#include "analysis/performance/outliers.h"
#include "analysis/performance/vehicle_figures.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"

#include <algorithm>
#include <array>
#include <set>

namespace varrocade {

namespace {

namespace ck = check_key;

/// Where so many of the eight plates are given, one without a thickness was forgotten.
constexpr std::ptrdiff_t MostPlates = 5;

/// Spaced armour and the plates that it stands before.
struct SpacedRow {
    const Field<ArmourRecord, std::int32_t>* spaced;
    std::array<const Field<ArmourRecord, ArmourPlate>*, 4> plates;
};

constexpr auto SpacedRows = std::to_array<SpacedRow>({
    {&field::FrontSpaced, {&field::UpperFront, &field::LowerFront, &field::UpperFront, &field::LowerFront}},
    {&field::SideSpaced, {&field::UpperLeft, &field::UpperRight, &field::LowerLeft, &field::LowerRight}},
    {&field::RearSpaced, {&field::UpperRear, &field::LowerRear, &field::UpperRear, &field::LowerRear}},
});

void checkPlates(const CheckedUnit& checked, const ArmourRecord& armour, const RulePath& path,
                 bool isFightingVehicle) {
    const auto isGiven = [&](const Field<ArmourRecord, ArmourPlate>* plate) {
        return plate->of(armour).thickness > 0;
    };
    const auto given = std::count_if(field::Plates.begin(), field::Plates.end(), isGiven);
    if (given == 0 && isFightingVehicle) {
        checked.out.atValue(path.text(), {.key = ck::NoArmour, .message = "no plate has a thickness"});
    }
    if (given >= MostPlates) {
        for (const auto* plate : field::Plates) {
            if (!isGiven(plate)) {
                checked.out.atValue(path.to(*plate),
                                    {.key = ck::NoArmour,
                                     .message = std::string(plate->label) + " has no thickness",
                                     .value = "0",
                                     .expected = "a thickness in mm"});
            }
        }
    }
    for (const SpacedRow& row : SpacedRows) {
        if (row.spaced->of(armour) > 0 && std::none_of(row.plates.begin(), row.plates.end(), isGiven)) {
            checked.out.atValue(path.to(*row.spaced),
                                {.key = ck::SpacedWithoutBase,
                                 .message = std::string(row.spaced->label) + " armour of " +
                                            std::to_string(row.spaced->of(armour)) + " mm before no plate",
                                 .value = std::to_string(row.spaced->of(armour))});
        }
    }
}

/// The path of what an outlier names: "upper_front of the hull".
std::string pathOf(const Outlier& outlier, const VehicleRecord& vehicle) {
    const std::string name = outlier.what.substr(0, outlier.what.find(' '));
    if (outlier.kind == OutlierKind::Weight) {
        return std::string(element::Vehicle) + "." + name;
    }
    std::string path;
    std::size_t index = 0;
    forEachComponentPath(vehicle, [&](const ComponentRecord&, const RulePath& ofPart) {
        path = index++ == outlier.component ? ofPart.text() + "." : path;
    });
    return path + (outlier.kind == OutlierKind::Plate ? std::string(element::Armour) + "." : "") + name;
}

void checkOutliers(const CheckedUnit& checked, const VehicleRecord& vehicle) {
    if (!checked.knowledge.masses) {
        return;
    }
    const VehicleFigures figures = vehicleFigures(checked.unit, *checked.knowledge.masses);
    std::vector<Outlier> outliers = bodyOutliers(vehicle, figures);
    // Many plates too thick for the weight are one weight too low for the plates. One thickness may stand for
    // several plates.
    std::set<double> thicknesses;
    for (const Outlier& outlier : outliers) {
        if (outlier.kind == OutlierKind::Plate) {
            thicknesses.insert(outlier.given);
        }
    }
    if ((outliers.empty() || thicknesses.size() > 1) && checked.knowledge.weights) {
        if (auto outlier = weightOutlier(figures, *checked.knowledge.weights)) {
            std::erase_if(outliers, [](const Outlier& other) { return other.kind == OutlierKind::Plate; });
            outliers.push_back(std::move(*outlier));
        }
    }
    for (Outlier& outlier : outliers) {
        std::string message = std::move(outlier.sentence);
        message.resize(message.size() - (message.ends_with('.') ? 1 : 0));
        checked.out.atValue(pathOf(outlier, vehicle),
                            {.key = outlierKey(outlier.kind),
                             .message = std::move(message),
                             .value = std::to_string(static_cast<std::int64_t>(outlier.given)),
                             .expected = std::to_string(static_cast<std::int64_t>(outlier.expectedFrom)) +
                                         " to " +
                                         std::to_string(static_cast<std::int64_t>(outlier.expectedTo))});
    }
}

} // namespace

void checkArmour(const CheckedUnit& checked) {
    if (!checked.unit.vehicle) {
        return;
    }
    constexpr auto armoured = std::to_array<std::string_view>(
        {"TYPE_TANK", "TYPE_ASSAULT_GUN", "TYPE_ARMOURED_CAR", "TYPE_INFANTRY_FIGHTING_VEHICLE"});
    const bool isFightingVehicle =
        std::find(armoured.begin(), armoured.end(), checked.unit.type.view()) != armoured.end();
    forEachComponentPath(*checked.unit.vehicle, [&](const ComponentRecord& part, const RulePath& path) {
        if (part.kind != ComponentKind::FixedWeapon) {
            checkPlates(checked, part.armour, RulePath(path, element::Armour),
                        isFightingVehicle && part.kind != ComponentKind::Superstructure);
        }
    });
    checkOutliers(checked, *checked.unit.vehicle);
}

} // namespace varrocade
