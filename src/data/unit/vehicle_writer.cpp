// The layout of vehicle files, top to bottom.

#include "data/unit/elements.h"
#include "data/unit/enumerations.h"
#include "data/unit/unit_writers.h"
#include "data/unit/writer_blocks.h"

#include <array>
#include <initializer_list>

namespace varrocade {

namespace {

namespace e = element;
using namespace writer_blocks;

void writeUniform(FileText& out, const SquadRecord& record) {
    static constexpr NationalUniform noUniform{};
    const NationalUniform* found = findNationalUniform(record.nationality);
    const NationalUniform& national = found != nullptr ? *found : noUniform;
    if (record.namedUniform) {
        out.blankLine();
        out.line(2, e::Uniform, record.uniformName);
    } else {
        if (!record.uniformName.empty() || !record.uniformRanks.empty()) {
            out.blankLine();
        }
        if (record.uniformProfile != DefaultImageName && record.uniformProfile != national.profile) {
            out.imageIfGiven(2, e::UniformProfile, record.uniformProfile);
        }
        if (record.uniformGame != national.game) {
            out.imageIfGiven(2, e::UniformGame, record.uniformGame);
        }
    }
    if (record.uniformRanks != national.ranks) {
        out.imageIfGiven(2, e::UniformRanks, record.uniformRanks);
    }
}

void writeDescription(FileText& out, const SquadRecord& record) {
    out.open(1, e::Description);
    out.line(2, e::Type, record.type);
    out.line(2, e::Nationality, record.nationality);
    out.lineIfGiven(2, e::Language, record.language);
    out.blankLine();
    out.line(2, e::LongName, record.longName);
    out.line(2, e::ShortName, record.shortName);
    out.line(2, e::Comment, record.comment);
    writeUniform(out, record);
    out.close(1, e::Description).blankLine();
}

void writeAttributes(FileText& out, const VehicleRecord& vehicle) {
    out.open(2, e::Attributes);
    out.image(3, e::ImageProfile, vehicle.profileImage);
    out.line(3, e::Weight, vehicle.weight);
    out.flag(3, e::CanMountInfantry, vehicle.canMountInfantry);
    out.flag(3, e::IsAmphibious, vehicle.amphibious);
    out.close(2, e::Attributes).blankLine();
}

void writeEngine(FileText& out, const VehicleRecord& vehicle) {
    out.open(3, e::Engine);
    out.line(4, e::Name, vehicle.engineName);
    out.line(4, e::Horsepower, vehicle.horsepower);
    out.line(4, e::Reliability, vehicle.reliability);
    if (vehicle.engineMount != EngineMount::Rear) {
        out.line(4, e::Mount, vehicle.engineMount == EngineMount::Front ? MountFront : MountMiddle);
    }
    out.line(4, e::RpmIdle, vehicle.idleRevolutions);
    out.line(4, e::RpmLimit, vehicle.revolutionLimit);
    out.close(3, e::Engine);
}

void writeExhaustPipe(FileText& out, const ExhaustPipeRecord& pipe) {
    out.indent(3).startTag(e::ExhaustPipe);
    out.element(e::OffsetX, pipe.offsetX).element(e::OffsetY, pipe.offsetY);
    out.elementUnless(ExhaustPointingBack, e::Angle, pipe.angle);
    out.elementUnless(0, e::VerticalAngle, pipe.verticalAngle);
    out.endTag(e::ExhaustPipe).endLine();
}

void writeDrive(FileText& out, const VehicleRecord& vehicle) {
    out.open(2, e::Drive);
    writeEngine(out, vehicle);
    out.open(3, e::Gears);
    out.line(4, e::Forwards, vehicle.forwardGears);
    out.line(4, e::Reverse, vehicle.reverseGears);
    out.close(3, e::Gears);
    out.line(3, e::Steering, vehicle.steering);
    out.flag(3, e::CanMakeSmokeScreen, vehicle.smokeScreen);
    for (const ExhaustPipeRecord& pipe : vehicle.exhaustPipes) {
        writeExhaustPipe(out, pipe);
    }
    out.close(2, e::Drive).blankLine();
}

// ---- components

void writePlate(FileText& out, std::string_view name, const ArmourPlate& plate) {
    std::string value;
    appendInteger(value, plate.thickness);
    if (plate.angle != 0) {
        value += '@';
        appendInteger(value, plate.angle);
    }
    out.line(4, name, value);
}

/// Equal plates share one line.
void writePair(FileText& out, std::string_view both, std::string_view upperName, const ArmourPlate& upper,
               std::string_view lowerName, const ArmourPlate& lower) {
    if (upper == lower) {
        writePlate(out, both, upper);
    } else {
        writePlate(out, upperName, upper);
        writePlate(out, lowerName, lower);
    }
}

void writeSides(FileText& out, const ArmourRecord& armour) {
    if (armour.upperLeft == armour.upperRight && armour.lowerLeft == armour.lowerRight) {
        writePair(out, e::Side, e::UpperSide, armour.upperLeft, e::LowerSide, armour.lowerLeft);
        return;
    }
    writePlate(out, e::UpperLeft, armour.upperLeft);
    writePlate(out, e::UpperRight, armour.upperRight);
    writePlate(out, e::LowerLeft, armour.lowerLeft);
    writePlate(out, e::LowerRight, armour.lowerRight);
}

void writeIfPositive(FileText& out, std::string_view name, std::int32_t value) {
    if (value > 0) {
        out.line(4, name, value);
    }
}

void writeIfNotNegative(FileText& out, std::string_view name, std::int32_t value) {
    if (value >= 0) {
        out.line(4, name, value);
    }
}

void writeArmour(FileText& out, const ArmourRecord& armour, bool isTurret) {
    out.indent(3).startTag(e::Armour);
    out.raw("\t\t\t\t// @0 means vertically upright, @90 is horizontal").endLine();
    writePair(out, e::Front, e::UpperFront, armour.upperFront, e::LowerFront, armour.lowerFront);
    writeIfPositive(out, e::FrontSpaced, armour.frontSpaced);
    writeSides(out, armour);
    writeIfPositive(out, e::SideSpaced, armour.sideSpaced);
    writePair(out, e::Rear, e::UpperRear, armour.upperRear, e::LowerRear, armour.lowerRear);
    writeIfPositive(out, e::RearSpaced, armour.rearSpaced);
    out.line(4, e::Top, armour.top);
    writeIfNotNegative(out, e::Bottom, armour.bottom);
    if (isTurret) {
        writeIfNotNegative(out, e::Mantlet, armour.mantlet);
    }
    out.close(3, e::Armour);
}

void writeSmokeDischargers(FileText& out, const ComponentRecord& component) {
    for (const SmokeDischargerRecord& discharger : component.smokeDischargers) {
        out.indent(3).startTag(e::SmokeDischarger);
        out.element(e::OffsetX, discharger.offsetX).element(e::OffsetY, discharger.offsetY);
        if (discharger.directional) {
            if (discharger.angleGiven) {
                out.element(e::Angle, discharger.angle);
            }
            if (discharger.elevationGiven) {
                out.element(e::Elevation, discharger.elevation);
            }
            out.element(e::Speed, discharger.speed);
        }
        out.element(e::Ammo, discharger.ammo).element(e::Reload, discharger.reload);
        out.endTag(e::SmokeDischarger).endLine();
    }
}

void writeCrew(FileText& out, const ComponentRecord& component) {
    bool isFirst = true;
    for (const CrewManRecord& man : component.crew) {
        if (!isFirst) {
            out.blankLine();
        }
        isFirst = false;
        out.open(3, e::Man);
        out.line(4, e::Job, man.job);
        // Two tabs here, not four: the game's own files have it so.
        writeManFlags(out, 2, man);
        writePersonalWeapons(out, 4, man);
        for (const AmmoLoadRecord& ammo : man.ammo) {
            writeAmmo(out, 4, ammo, false);
        }
        out.close(3, e::Man);
    }
}

/// Guns come first, then flamethrowers, then machine guns, then the rest. A name that fits two belongs to the
/// first.
std::size_t weaponPass(std::string_view weaponType) {
    constexpr std::array<std::string_view, 3> passes = {"WEAPON_CANNON", "WEAPON_FLAMETHROWER", "WEAPON_HMG"};
    std::size_t pass = 0;
    while (pass < passes.size() && weaponType.find(passes[pass]) == std::string_view::npos) {
        ++pass;
    }
    return pass;
}

constexpr std::size_t WeaponPasses = 4;

void writeWeapon(FileText& out, const WeaponMountRecord& weapon, bool withPosition) {
    out.indent(3).startTag(e::Weapon).element(e::Type, weapon.type).elementIfGiven(e::Mount, weapon.mount);
    if (withPosition) {
        out.elementUnless(0, e::OffsetX, weapon.offsetX).elementUnless(0, e::OffsetY, weapon.offsetY);
        out.elementUnless(0, e::OffsetAngle, weapon.offsetAngle);
    }
    out.endTag(e::Weapon).endLine();
}

void writeWeaponsAndAmmo(FileText& out, const ComponentRecord& component, bool withPositions) {
    for (std::size_t pass = 0; pass < WeaponPasses; ++pass) {
        for (const WeaponMountRecord& weapon : component.weapons) {
            if (weaponPass(weapon.type) == pass) {
                writeWeapon(out, weapon, withPositions);
            }
        }
    }
    for (std::size_t pass = 0; pass < WeaponPasses; ++pass) {
        for (const AmmoLoadRecord& ammo : component.ammo) {
            if (weaponPass(ammo.weaponType) == pass) {
                writeAmmo(out, 3, ammo, !ammo.flavour.empty());
            }
        }
    }
}

void writeSizes(FileText& out, const ComponentRecord& component) {
    out.line(3, e::Width, component.width);
    out.line(3, e::Length, component.length);
    out.line(3, e::Height, component.height);
}

void writeOffsets(FileText& out, const ComponentRecord& component) {
    out.line(3, e::OffsetX, component.offsetX);
    out.line(3, e::OffsetY, component.offsetY);
}

void writeHull(FileText& out, const ComponentRecord& hull) {
    out.open(2, e::Hull);
    out.image(3, e::ImageView, hull.viewImage);
    out.imageIfGiven(3, e::ImageDestroyed, hull.destroyedImage);
    writeSizes(out, hull);
    writeArmour(out, hull.armour, false);
    writeSmokeDischargers(out, hull);
    writeCrew(out, hull);
    out.close(2, e::Hull);
}

void writeSuperstructure(FileText& out, const ComponentRecord& superstructure) {
    out.open(2, e::Superstructure);
    writeSizes(out, superstructure);
    writeOffsets(out, superstructure);
    writeArmour(out, superstructure.armour, false);
    writeSmokeDischargers(out, superstructure);
    out.close(2, e::Superstructure);
}

void writeLimits(FileText& out, const ComponentRecord& component) {
    out.line(3, e::RotateLeft, component.rotateLeft);
    out.line(3, e::RotateRight, component.rotateRight);
    if (component.offsetAngle != 0) {
        out.line(3, e::OffsetAngle, component.offsetAngle);
    }
}

void writeSights(FileText& out, const ComponentRecord& component) {
    out.flag(3, e::AA, component.antiAircraft);
    out.flag(3, e::NightVision, component.nightVision);
}

void writeTurret(FileText& out, const ComponentRecord& turret) {
    out.open(2, e::Turret);
    out.image(3, e::ImageView, turret.viewImage);
    out.imageIfGiven(3, e::ImageDestroyed, turret.destroyedImage);
    out.line(3, e::Diameter, turret.diameter);
    out.line(3, e::Height, turret.height);
    writeOffsets(out, turret);
    out.line(3, e::RotateTime, turret.rotateTime);
    if (turret.limitedTraverse) {
        writeLimits(out, turret);
    }
    writeSights(out, turret);
    writeArmour(out, turret.armour, true);
    writeSmokeDischargers(out, turret);
    writeWeaponsAndAmmo(out, turret, true);
    writeCrew(out, turret);
    out.close(2, e::Turret);
}

/// A fixed weapon's armour has no place in the files.
void writeFixedWeapon(FileText& out, const ComponentRecord& weapon) {
    out.open(2, e::FixedWeapon);
    out.imageIfGiven(3, e::ImageView, weapon.viewImage);
    out.imageIfGiven(3, e::ImageDestroyed, weapon.destroyedImage);
    writeOffsets(out, weapon);
    out.line(3, e::OffsetZ, weapon.offsetZ);
    out.line(3, e::RotateTime, weapon.rotateTime);
    writeLimits(out, weapon);
    writeSights(out, weapon);
    writeWeaponsAndAmmo(out, weapon, false);
    writeCrew(out, weapon);
    out.close(2, e::FixedWeapon);
}

void writeComponent(FileText& out, const ComponentRecord& component) {
    switch (component.kind) {
    case ComponentKind::Hull:
        writeHull(out, component);
        break;
    case ComponentKind::Superstructure:
        writeSuperstructure(out, component);
        break;
    case ComponentKind::Turret:
        writeTurret(out, component);
        break;
    case ComponentKind::FixedWeapon:
        writeFixedWeapon(out, component);
        break;
    }
}

/// Hulls first, then superstructures, then turrets and fixed weapons as they come.
std::size_t componentPass(ComponentKind kind) {
    return kind == ComponentKind::Hull ? 0U : (kind == ComponentKind::Superstructure ? 1U : 2U);
}

constexpr std::size_t ComponentPasses = 3;

void writeComponents(FileText& out, const std::vector<ComponentRecord>& components) {
    std::size_t written = 0;
    for (std::size_t pass = 0; pass < ComponentPasses; ++pass) {
        for (const ComponentRecord& component : components) {
            if (componentPass(component.kind) != pass) {
                continue;
            }
            writeComponent(out, component);
            if (++written != components.size()) {
                out.blankLine();
            }
        }
    }
}

} // namespace

std::optional<std::string> vehicleFileText(const SquadRecord& record) {
    if (!record.vehicle) {
        return std::nullopt;
    }
    FileText out;
    out.open(0, e::Squad);
    writeDescription(out, record);
    writeAvailability(out, record.availability);
    out.open(1, e::Vehicle);
    writeAttributes(out, *record.vehicle);
    writeDrive(out, *record.vehicle);
    writeComponents(out, record.vehicle->components);
    out.close(1, e::Vehicle);
    out.close(0, e::Squad);
    return out.take();
}

} // namespace varrocade
