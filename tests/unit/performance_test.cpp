// Weight and speed of vehicles: how exact on published figures, how they follow the numbers of a file, and
// which faults of a file show.

#include "analysis/performance/drive_simulation.h"
#include "analysis/performance/outliers.h"
#include "performance_vehicles.h"
#include "test_support.h"
#include "weapons/weapon_catalogue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <set>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

const WeaponMasses& sampleWeapons() {
    static const WeaponMasses weapons = [] {
        WeaponCatalogue catalogue;
        catalogue.load(SampleBase);
        return WeaponMasses(catalogue);
    }();
    return weapons;
}

VehicleFigures figuresOf(const SquadRecord& unit) {
    return vehicleFigures(unit, sampleWeapons());
}

std::vector<VehicleFigures> figuresOf(const std::vector<SquadRecord>& units) {
    std::vector<VehicleFigures> figures;
    figures.reserve(units.size());
    for (const SquadRecord& unit : units) {
        figures.push_back(figuresOf(unit));
    }
    return figures;
}

/// The vehicles of the sample, and with them those of the table.
std::vector<SquadRecord> knownVehicles(bool withTable = true) {
    std::vector<SquadRecord> units;
    for (const SampleFile& file : sampleFiles()) {
        if (file.category == Category::Vehicles) {
            units.push_back(readUnitText(file.content));
        }
    }
    for (const RealVehicle& real : realVehicles()) {
        if (withTable) {
            units.push_back(real.unit);
        }
    }
    return units;
}

SquadRecord realVehicle(std::string_view name) {
    for (const RealVehicle& real : realVehicles()) {
        if (real.unit.fileName == name) {
            return real.unit;
        }
    }
    ADD_FAILURE() << name;
    return {};
}

double weightOf(const SquadRecord& unit) {
    return estimateWeight(figuresOf(unit)).value_or(WeightShares{}).total();
}

DriveModel driveOf(const SquadRecord& unit) {
    const VehicleFigures figures = figuresOf(unit);
    return driveModel(figures, figures.weight).value_or(DriveModel{});
}

/// Errors as parts of the true value.
struct Errors {
    std::vector<double> sizes;

    void add(double found, double published) { sizes.push_back(std::abs(found / published - 1.0)); }
    double median() {
        std::nth_element(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2),
                         sizes.end());
        return sizes[sizes.size() / 2];
    }
    [[nodiscard]] double partWithin(double limit) const {
        const auto within =
            std::count_if(sizes.begin(), sizes.end(), [=](double size) { return size <= limit; });
        return static_cast<double>(within) / static_cast<double>(sizes.size());
    }
};

/// Round figures to begin a fit with that has not seen the vehicles.
constexpr WeightFactors RoundFactors = {1, 1, 10, 1, 200, 200, 150, 150, 150, 50};
constexpr CalibrationOptions WideFreedom = {.spread = 0.12, .freedom = 0.5};

} // namespace

TEST(Performance, IsAsExactAsItsPageSays) {
    Errors weights;
    for (const SquadRecord& unit : knownVehicles()) {
        weights.add(weightOf(unit), unit.vehicle->weight);
    }
    Errors roads;
    Errors fields;
    for (const RealVehicle& real : realVehicles()) {
        const DriveModel drive = driveOf(real.unit);
        roads.add(topSpeed(drive, {}), real.roadSpeed);
        if (real.fieldSpeed > 0) {
            fields.add(topSpeed(drive, {.surface = Surface::Field}), real.fieldSpeed);
        }
    }
    EXPECT_GE(weights.sizes.size(), 200U);
    EXPECT_LE(weights.median(), 0.095);
    EXPECT_GE(weights.partWithin(0.25), 0.92);
    EXPECT_LE(roads.median(), 0.085);
    EXPECT_GE(roads.partWithin(0.28), 0.94);
    EXPECT_LE(fields.median(), 0.15);
    EXPECT_GE(fields.partWithin(0.40), 0.88);
}

TEST(Performance, WeighsVehiclesThatTheFitHasNotSeen) {
    const std::vector<VehicleFigures> all = figuresOf(knownVehicles());
    constexpr std::size_t parts = 10;
    Errors weights;
    for (std::size_t part = 0; part < parts; ++part) {
        std::vector<VehicleFigures> seen;
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (i % parts != part) {
                seen.push_back(all[i]);
            }
        }
        const WeightCalibration fit = calibrateWeight(seen, RoundFactors, WideFreedom);
        for (std::size_t i = part; i < all.size(); i += parts) {
            weights.add(estimateWeight(all[i], fit.factors)->total(), all[i].weight);
        }
    }
    EXPECT_LE(weights.median(), 0.10);
    EXPECT_GE(weights.partWithin(0.25), 0.90);
}

TEST(Performance, FewVehiclesMoveTheFactorsLittleAndFaultsNotAtAll) {
    std::vector<VehicleFigures> ten = figuresOf(knownVehicles(false));
    ten.resize(10);
    const WeightCalibration clean = calibrateWeight(ten);
    EXPECT_EQ(clean.vehicles, 10U);
    ten[3].weight *= 10;
    ten[7].weight = 0;
    const WeightCalibration faulty = calibrateWeight(ten);
    EXPECT_EQ(faulty.vehicles, 9U);
    for (std::size_t i = 0; i < WeightFactorCount; ++i) {
        EXPECT_NEAR(clean.factors[i] / builtInWeightFactors()[i], 1.0, 0.25) << i;
        EXPECT_NEAR(faulty.factors[i] / clean.factors[i], 1.0, 0.1) << i;
    }
}

TEST(Performance, ThickerIsNeverLighter) {
    for (const std::string_view name :
         {"Tiger II", "SU-100", "M113A1", "Leclerc", "BA-64", "GAZ-66", "M3 Half-track"}) {
        SquadRecord unit = realVehicle(name);
        double weight = 0.0;
        for (const int thickness : {0, 1, 3, 4, 8, 15, 16, 49, 50, 120, 400, 5000}) {
            for (ComponentRecord& part : unit.vehicle->components) {
                part.armour.upperFront.thickness = part.armour.top = thickness;
                part.armour.lowerLeft.thickness = part.armour.mantlet = part.armour.sideSpaced = thickness;
            }
            EXPECT_GE(weightOf(unit), weight) << name << " " << thickness;
            weight = weightOf(unit);
        }
    }
}

TEST(Performance, MorePowerIsNeverSlowerSteeperNeverFaster) {
    for (const std::string_view name :
         {"Renault FT", "Churchill III", "T-34-85", "M3 Half-track", "BTR-80", "M1 Abrams"}) {
        SquadRecord unit = realVehicle(name);
        double seconds = std::numeric_limits<double>::infinity();
        std::array<double, SurfaceCount> speeds = {};
        double steepest = 0.0;
        for (int power = 10; power < 4000; power += power / 8 + 1) {
            unit.vehicle->horsepower = power;
            const DriveModel drive = driveOf(unit);
            for (std::size_t i = 0; i < SurfaceCount; ++i) {
                const double speed = topSpeed(drive, {.surface = static_cast<Surface>(i)});
                EXPECT_GE(speed, speeds[i]) << name << " " << power;
                EXPECT_LE(speed, i > 0 ? speeds[i - 1] : 200.0);
                speeds[i] = speed;
            }
            const double time = secondsTo(drive, {}, ComparedSpeed).value_or(1e9);
            EXPECT_LE(time, seconds) << name << " " << power;
            seconds = time;
            EXPECT_GE(steepestSlope(drive, Surface::Field), steepest);
            steepest = steepestSlope(drive, Surface::Field);
        }
        const DriveModel drive = driveOf(realVehicle(name));
        double speed = topSpeed(drive, {});
        for (double slope = 1.0; slope < 150.0; slope += 1.0) {
            const double slower = topSpeed(drive, {.slope = slope});
            EXPECT_LE(slower, speed);
            speed = slower;
        }
        EXPECT_EQ(speed, 0.0);
    }
}

TEST(Performance, GearsAndCurvesFitTogether) {
    const SquadRecord unit = realVehicle("T-34-85");
    const DriveModel drive = driveOf(unit);
    ASSERT_EQ(drive.gears.size(), 5U);
    EXPECT_NEAR(drive.gears.back().limit, topSpeed(drive, {}), 1e-9);
    for (std::size_t i = 0; i < drive.gears.size(); ++i) {
        EXPECT_LT(drive.gears[i].idle, drive.gears[i].limit);
        EXPECT_GT(tractiveForceAt(drive, Surface::Road, i, drive.gears[i].limit), 0.0);
        EXPECT_EQ(tractiveForceAt(drive, Surface::Road, i, 1.01 * drive.gears[i].limit), 0.0);
        if (i > 0) {
            EXPECT_GT(drive.gears[i].limit, drive.gears[i - 1].limit);
            EXPECT_LE(tractiveForceAt(drive, Surface::Road, i, drive.gears[i].limit),
                      tractiveForceAt(drive, Surface::Road, i - 1, drive.gears[i - 1].limit));
        }
    }
    // 500 hp of 735.5 W, 0.70 of it at the sprockets: force times speed at the limit.
    EXPECT_NEAR(tractiveForceAt(drive, Surface::Road, 4, drive.gears[4].limit) * drive.gears[4].limit / 3.6,
                500 * 735.5 * 0.70, 1.0);
    // 32 t on level ground at rest: 0.047 to 0.049 of the weight.
    EXPECT_NEAR(resistanceAt(drive, {}, 0), 32'000 * 9.81 * 0.0482, 300);
    const std::vector<SpeedAtTime> curve = speedOverTime(drive, {});
    EXPECT_TRUE(std::is_sorted(curve.begin(), curve.end(), [](const SpeedAtTime& a, const SpeedAtTime& b) {
        return a.seconds < b.seconds && a.speed < b.speed;
    }));
    EXPECT_NEAR(curve.back().speed, 0.98 * topSpeed(drive, {}), 1e-6);
    EXPECT_FALSE(secondsTo(drive, {}, 100).has_value());
    EXPECT_NEAR(groundPressure(figuresOf(unit), 32'000).kilopascals.value_or(0), 83, 15);
    EXPECT_FALSE(groundPressure(figuresOf(realVehicle("BTR-80")), 13'600).kilopascals.has_value());
}

TEST(Performance, KindsFollowTypeAndSteering) {
    struct Case {
        std::string_view type;
        std::string_view steering;
        RunningGear gear;
    };
    for (const Case& each : std::to_array<Case>({
             {"TYPE_TANK", "STEERING_CLUTCH_AND_BRAKE", RunningGear::Tracked},
             {"TYPE_TANK", "STEERING_FRONT_WHEELS", RunningGear::Wheeled},
             {"TYPE_ARMOURED_CAR", "STEERING_CLUTCH_AND_BRAKE", RunningGear::Wheeled},
             {"TYPE_ARMOURED_CAR", "STEERING_CONTROLLED_DIFFERENTIAL", RunningGear::Tracked},
             {"TYPE_HALFTRACK", "STEERING_FRONT_WHEELS", RunningGear::HalfTracked},
             {"TYPE_HALFTRACK", "STEERING_CONTROLLED_DIFFERENTIAL", RunningGear::Tracked},
             {"TYPE_LORRY", "STEERING_HALFTRACK", RunningGear::HalfTracked},
             {"TYPE_INFANTRY_FIGHTING_VEHICLE", "", RunningGear::Tracked},
         })) {
        EXPECT_EQ(runningGearOf(each.type, each.steering), each.gear) << each.type << " " << each.steering;
    }
}

TEST(Performance, WeaponsWeighByTheirFilesOrNames) {
    // A 7.5 cm KwK 42 with mounting parts some 1,000 kg, its complete round 14 kg.
    EXPECT_NEAR(sampleWeapons().of("weapon_cannon_75_kwk42_l70").weapon, 1030, 50);
    EXPECT_NEAR(sampleWeapons().of("WEAPON_CANNON_75_KWK42_L70").round, 11, 1);
    EXPECT_NEAR(weaponMassByName("WEAPON_CANNON_75_ANY_L70").weapon, 1030, 50);
    EXPECT_NEAR(weaponMassByName("WEAPON_HMG_ANY").round, 0.027, 0.002);
    EXPECT_EQ(weaponMassByName("").weapon, 0);
    EXPECT_GT(weaponMassByName("WEAPON_CANNON_99999999999_L99999999999").weapon, 0);
}

TEST(Performance, HostileNumbersGiveFiniteFigures) {
    constexpr int max = std::numeric_limits<int>::max();
    for (const int value : {max, max - 1, 1, 0, -1, std::numeric_limits<int>::min()}) {
        SquadRecord unit = realVehicle("Maus");
        VehicleRecord& vehicle = *unit.vehicle;
        vehicle.weight = vehicle.horsepower = vehicle.idleRevolutions = vehicle.revolutionLimit = value;
        vehicle.forwardGears = value;
        for (ComponentRecord& part : vehicle.components) {
            part.width = part.length = part.height = part.diameter = value;
            part.armour.upperFront = part.armour.lowerLeft = part.armour.upperRear = {value, value};
            part.armour.top = part.armour.bottom = part.armour.mantlet = part.armour.sideSpaced = value;
            part.ammo.push_back({.weaponType = "WEAPON_CANNON_128", .flavour = {}, .rounds = value});
        }
        const VehicleFigures figures = figuresOf(unit);
        EXPECT_EQ(figures.canEstimate(), value > 0) << value;
        EXPECT_EQ(driveModel(figures, figures.weight).has_value(), value > 0);
        const WeightCalibration fit = calibrateWeight(std::span(&figures, 1));
        EXPECT_TRUE(
            std::all_of(fit.factors.begin(), fit.factors.end(), [](double f) { return f > 0 && f < 1e6; }));
        findOutliers(std::span(&unit, 1), std::span(&figures, 1));
        for (const double slope : {-1e300, 0.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
            if (const std::optional<DriveModel> drive = driveModel(figures, figures.weight)) {
                EXPECT_TRUE(std::isfinite(weightOf(unit)));
                EXPECT_TRUE(std::isfinite(topSpeed(*drive, {.surface = Surface::Sand, .slope = slope})));
                EXPECT_TRUE(std::isfinite(steepestSlope(*drive, Surface::Sand)));
                EXPECT_TRUE(std::isfinite(speedOverTime(*drive, {.slope = slope}).back().seconds));
            }
        }
    }
    EXPECT_EQ(figuresOf(SquadRecord{}).missing().size(), 4U);
    EXPECT_EQ(calibrateWeight({}).factors, builtInWeightFactors());
}

TEST(Performance, PlantedFaultsAreFoundAmongRealVehicles) {
    const std::vector<SquadRecord> units = knownVehicles();
    const std::vector<VehicleFigures> figures = figuresOf(units);
    const auto listed = [](const std::vector<Outlier>& outliers) {
        std::set<std::size_t> vehicles;
        for (const Outlier& outlier : outliers) {
            EXPECT_FALSE(outlier.sentence.empty());
            EXPECT_TRUE(outlier.given < outlier.expectedFrom || outlier.given > outlier.expectedTo);
            vehicles.insert(outlier.vehicle);
        }
        return vehicles;
    };
    const std::vector<Outlier> alarms = findOutliers(units, figures);
    EXPECT_LE(static_cast<double>(listed(alarms).size()), 0.02 * static_cast<double>(units.size()));
    const std::array<std::function<void(VehicleRecord&)>, 5> faults = {
        [](VehicleRecord& vehicle) { vehicle.weight /= 2; },
        [](VehicleRecord& vehicle) { vehicle.weight *= 2; },
        [](VehicleRecord& vehicle) {
            for (ComponentRecord& part : vehicle.components) {
                ArmourRecord& a = part.armour;
                for (ArmourPlate* plate : {&a.upperFront, &a.lowerFront, &a.upperLeft, &a.upperRight,
                                           &a.lowerLeft, &a.lowerRight, &a.upperRear, &a.lowerRear}) {
                    plate->thickness *= 10;
                }
                a.top *= 10;
            }
        },
        [](VehicleRecord& vehicle) { vehicle.components.front().armour.upperLeft.thickness *= 10; },
        [](VehicleRecord& vehicle) { vehicle.components.front().length *= 10; },
    };
    // Every tenth vehicle has the fault at a time.
    constexpr std::size_t step = 10;
    for (const auto& fault : faults) {
        std::size_t found = 0;
        for (std::size_t first = 0; first < step; ++first) {
            std::vector<SquadRecord> planted = units;
            std::vector<VehicleFigures> plantedFigures = figures;
            for (std::size_t i = first; i < units.size(); i += step) {
                fault(*planted[i].vehicle);
                plantedFigures[i] = figuresOf(planted[i]);
            }
            for (const std::size_t vehicle : listed(findOutliers(planted, plantedFigures))) {
                found += vehicle % step == first ? 1U : 0U;
            }
        }
        EXPECT_GE(static_cast<double>(found), 0.97 * static_cast<double>(units.size()))
            << &fault - faults.data();
    }
}

} // namespace varrocade::tests
