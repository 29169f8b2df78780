#include "performance_vehicles.h"

#include "data/format/numbers.h"
#include "test_support.h"

#include <array>
#include <cmath>
#include <map>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

constexpr std::size_t Columns = 17;

std::vector<std::string_view> parts(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> found;
    while (!text.empty()) {
        if (const std::string_view part = takePart(text, separator); !part.empty() && part != "-") {
            found.push_back(part);
        }
    }
    return found;
}

std::int32_t integerAt(std::string_view text, std::string_view separator, std::size_t place) {
    const std::vector<std::string_view> all = parts(text, separator);
    return place < all.size() ? toInteger(all[place]) : 0;
}

std::vector<ArmourPlate> platesOf(std::string_view text) {
    std::vector<ArmourPlate> plates;
    for (std::string_view word : parts(text, " ")) {
        const std::int32_t thickness = toInteger(takePart(word, "@"));
        plates.push_back({thickness, toInteger(word)});
    }
    plates.resize(8);
    return plates;
}

/// Front, side, rear and top, as superstructures and turrets have them.
ArmourRecord roundArmour(std::string_view text) {
    const std::vector<ArmourPlate> plates = platesOf(text);
    ArmourRecord armour;
    armour.upperFront = armour.lowerFront = plates[0];
    armour.upperLeft = armour.upperRight = armour.lowerLeft = armour.lowerRight = plates[1];
    armour.upperRear = armour.lowerRear = plates[2];
    armour.top = plates[3].thickness;
    return armour;
}

ComponentRecord hullOf(std::string_view size, std::string_view text) {
    ComponentRecord hull{.kind = ComponentKind::Hull};
    hull.length = integerAt(size, "x", 0);
    hull.width = integerAt(size, "x", 1);
    hull.height = integerAt(size, "x", 2);
    const std::vector<ArmourPlate> plates = platesOf(takePart(text, ";"));
    ArmourRecord& armour = hull.armour;
    armour.upperFront = plates[0];
    armour.lowerFront = plates[1];
    armour.upperLeft = armour.upperRight = plates[2];
    armour.lowerLeft = armour.lowerRight = plates[3];
    armour.upperRear = plates[4];
    armour.lowerRear = plates[5];
    armour.top = plates[6].thickness;
    armour.bottom = plates[7].thickness;
    const std::vector<ArmourPlate> spaced = platesOf(text);
    armour.frontSpaced = spaced[0].thickness;
    armour.sideSpaced = spaced[1].thickness;
    armour.rearSpaced = spaced[2].thickness;
    return hull;
}

/// "75x2810x90 7.6*2": a gun with its barrel and rounds, two machine guns. The names carry the figures, in
/// the way of the game's own.
void arm(std::string_view text, ComponentRecord& part) {
    for (std::string_view gun : parts(text, " ")) {
        const bool isGun = gun.find('x') != std::string_view::npos;
        const double calibre = toReal(takePart(gun, isGun ? "x" : "*"));
        std::string name = isGun ? "WEAPON_CANNON_" : "WEAPON_HMG_";
        name += std::to_string(std::lround(calibre));
        if (isGun) {
            name += "_TEST_L" + std::to_string(std::lround(integerAt(gun, "x", 0) / calibre));
            part.ammo.push_back({.weaponType = Text(name), .flavour = {}, .rounds = integerAt(gun, "x", 1)});
        } else {
            part.ammo.push_back({.weaponType = Text(name), .flavour = {}, .rounds = 2000 * toInteger(gun)});
        }
        part.weapons.resize(part.weapons.size() + static_cast<std::size_t>(isGun ? 1 : toInteger(gun)),
                            {.type = Text(name)});
    }
}

void addComponents(const std::vector<std::string_view>& column, VehicleRecord& vehicle) {
    std::vector<ComponentRecord>& all = vehicle.components;
    all.push_back(hullOf(column[8], column[11]));
    for (std::string_view box : parts(column[9], ",")) {
        ComponentRecord& part = all.emplace_back(ComponentRecord{.kind = ComponentKind::Superstructure});
        const std::string_view size = takePart(box, ":");
        part.width = integerAt(size, "x", 0);
        part.length = integerAt(size, "x", 1);
        part.height = integerAt(size, "x", 2);
        part.armour = roundArmour(box);
    }
    for (const std::string_view size : parts(column[10], ",")) {
        ComponentRecord& part = all.emplace_back(ComponentRecord{.kind = ComponentKind::Turret});
        part.diameter = integerAt(size, "x", 0);
        part.height = integerAt(size, "x", 1);
        part.armour = roundArmour(column[12]);
        part.armour.mantlet = platesOf(column[12])[4].thickness;
        if (all.size() > 2 && all[all.size() - 2].kind == ComponentKind::Turret) {
            part.armour.mantlet = ArmourNotGiven;
        }
    }
    if (!parts(column[13], " ").empty()) {
        const bool hasTurret = all.back().kind == ComponentKind::Turret;
        arm(column[13],
            hasTurret ? all.back() : all.emplace_back(ComponentRecord{.kind = ComponentKind::FixedWeapon}));
    }
    const std::int32_t crew = toInteger(column[14]);
    all.front().crew.resize(static_cast<std::size_t>(crew));
}

RealVehicle vehicleOf(const std::vector<std::string_view>& column) {
    static const std::map<std::string_view, std::string_view> types = {
        {"TANK", "TYPE_TANK"},
        {"AG", "TYPE_ASSAULT_GUN"},
        {"AC", "TYPE_ARMOURED_CAR"},
        {"HT", "TYPE_HALFTRACK"},
        {"IFV", "TYPE_INFANTRY_FIGHTING_VEHICLE"},
        {"LORRY", "TYPE_LORRY"}};
    static const std::map<std::string_view, std::string_view> steering = {
        {"CB", "STEERING_CLUTCH_AND_BRAKE"},    {"CD", "STEERING_CONTROLLED_DIFFERENTIAL"},
        {"DD", "STEERING_DOUBLE_DIFFERENTIAL"}, {"MD", "STEERING_DOUBLE_DIFFERENTIAL_MAYBACH"},
        {"FW", "STEERING_FRONT_WHEELS"},        {"HT", "STEERING_HALFTRACK"},
        {"TD", "STEERING_TRIPLE_DIFFERENTIAL"}, {"TT", "STEERING_TWIN_TRANSMISSION"}};
    RealVehicle real;
    real.unit.fileName = column[0];
    real.unit.type = types.at(column[1]);
    real.unit.availability.push_back({1, static_cast<std::uint16_t>(toInteger(column[3])), 100});
    VehicleRecord& vehicle = real.unit.vehicle.emplace();
    vehicle.steering = steering.at(column[2]);
    vehicle.weight = toInteger(column[4]);
    vehicle.horsepower = toInteger(column[5]);
    vehicle.revolutionLimit = toInteger(column[6]);
    vehicle.forwardGears = toInteger(column[7]);
    vehicle.canMountInfantry = column[1] == "IFV" || column[1] == "HT";
    addComponents(column, vehicle);
    real.roadSpeed = toReal(column[15]);
    real.fieldSpeed = toReal(column[16]);
    return real;
}

} // namespace

const std::vector<RealVehicle>& realVehicles() {
    static const std::vector<RealVehicle> vehicles = [] {
        std::vector<RealVehicle> all;
        const std::string file = goldenText("performance_vehicles.txt");
        std::string_view rest = file;
        takePart(rest, "--\n");
        while (!rest.empty()) {
            std::string_view line = takePart(rest, "\n");
            std::vector<std::string_view> columns;
            while (!line.empty()) {
                columns.push_back(takePart(line, "|"));
            }
            EXPECT_EQ(columns.size(), Columns + 1) << (columns.empty() ? "" : columns.front());
            if (columns.size() == Columns + 1) {
                all.push_back(vehicleOf(columns));
                all.back().isConfident = columns.back() == "A";
            }
        }
        return all;
    }();
    return vehicles;
}

} // namespace varrocade::tests
