// The layout of vehicle files, top to bottom.

#include "data/field_text.h"
#include "data/unit/elements.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "data/writing/unit_writers.h"
#include "data/writing/writer_blocks.h"

#include <array>
#include <initializer_list>

namespace varrocade {

namespace {

namespace e = element;
using namespace field_text;
using namespace writer_blocks;

void writeUniform(FileText& out, const SquadRecord& record) {
    static constexpr NationalUniform noUniform{};
    const NationalUniform* found = findNationalUniform(record.nationality);
    const NationalUniform& national = found != nullptr ? *found : noUniform;
    if (record.namedUniform) {
        out.blankLine();
        line(out, 2, field::UniformName, record);
    } else {
        if (!record.uniformName.empty() || !record.uniformRanks.empty()) {
            out.blankLine();
        }
        if (record.uniformProfile != DefaultImageName && record.uniformProfile != national.profile) {
            line(out, 2, field::UniformProfile, record);
        }
        if (record.uniformGame != national.game) {
            line(out, 2, field::UniformGame, record);
        }
    }
    if (record.uniformRanks != national.ranks) {
        line(out, 2, field::UniformRanks, record);
    }
}

void writeDescription(FileText& out, const SquadRecord& record) {
    out.open(1, e::Description);
    lines(out, 2, record, field::Type, field::Nationality, field::VoiceLanguage);
    out.blankLine();
    lines(out, 2, record, field::LongName, field::ShortName, field::Comment);
    writeUniform(out, record);
    out.close(1, e::Description).blankLine();
}

void writeAttributes(FileText& out, const VehicleRecord& vehicle) {
    out.open(2, e::Attributes);
    lines(out, 3, vehicle, field::ProfileImage, field::Weight, field::CanMountInfantry, field::Amphibious);
    out.close(2, e::Attributes).blankLine();
}

void writeEngine(FileText& out, const VehicleRecord& vehicle) {
    out.open(3, e::Engine);
    lines(out, 4, vehicle, field::EngineName, field::Horsepower, field::Reliability, field::MountOfEngine,
          field::IdleRevolutions, field::RevolutionLimit);
    out.close(3, e::Engine);
}

void writeExhaustPipe(FileText& out, const ExhaustPipeRecord& pipe) {
    out.indent(3).startTag(e::ExhaustPipe);
    pieces(out, pipe, field::ExhaustOffsetX, field::ExhaustOffsetY, field::ExhaustAngle,
           field::ExhaustVerticalAngle);
    out.endTag(e::ExhaustPipe).endLine();
}

void writeDrive(FileText& out, const VehicleRecord& vehicle) {
    out.open(2, e::Drive);
    writeEngine(out, vehicle);
    out.open(3, e::Gears);
    lines(out, 4, vehicle, field::ForwardGears, field::ReverseGears);
    out.close(3, e::Gears);
    lines(out, 3, vehicle, field::Steering, field::SmokeScreen);
    for (const ExhaustPipeRecord& pipe : vehicle.exhaustPipes) {
        writeExhaustPipe(out, pipe);
    }
    out.close(2, e::Drive).blankLine();
}

// ---- components

using PlateField = Field<ArmourRecord, ArmourPlate>;

/// Equal plates share one line.
void writePair(FileText& out, std::string_view both, const ArmourRecord& armour, const PlateField& upper,
               const PlateField& lower) {
    if (upper.of(armour) == lower.of(armour)) {
        out.line(4, both, valueText(upper.of(armour)));
    } else {
        lines(out, 4, armour, upper, lower);
    }
}

void writeSides(FileText& out, const ArmourRecord& armour) {
    if (armour.upperLeft == armour.upperRight && armour.lowerLeft == armour.lowerRight) {
        if (armour.upperLeft == armour.lowerLeft) {
            out.line(4, e::Side, valueText(armour.upperLeft));
        } else {
            out.line(4, e::UpperSide, valueText(armour.upperLeft));
            out.line(4, e::LowerSide, valueText(armour.lowerLeft));
        }
        return;
    }
    lines(out, 4, armour, field::UpperLeft, field::UpperRight, field::LowerLeft, field::LowerRight);
}

void writeArmour(FileText& out, const ArmourRecord& armour, bool isTurret) {
    out.indent(3).startTag(e::Armour);
    out.raw("\t\t\t\t// @0 means vertically upright, @90 is horizontal").endLine();
    writePair(out, e::Front, armour, field::UpperFront, field::LowerFront);
    line(out, 4, field::FrontSpaced, armour);
    writeSides(out, armour);
    line(out, 4, field::SideSpaced, armour);
    writePair(out, e::Rear, armour, field::UpperRear, field::LowerRear);
    lines(out, 4, armour, field::RearSpaced, field::Top, field::Bottom);
    if (isTurret) {
        line(out, 4, field::Mantlet, armour);
    }
    out.close(3, e::Armour);
}

void writeSmokeDischargers(FileText& out, const ComponentRecord& component) {
    for (const SmokeDischargerRecord& discharger : component.smokeDischargers) {
        out.indent(3).startTag(e::SmokeDischarger);
        pieces(out, discharger, field::DischargerOffsetX, field::DischargerOffsetY);
        if (discharger.directional) {
            if (discharger.angleGiven) {
                piece(out, field::DischargerAngle, discharger);
            }
            if (discharger.elevationGiven) {
                piece(out, field::DischargerElevation, discharger);
            }
            piece(out, field::DischargerSpeed, discharger);
        }
        pieces(out, discharger, field::DischargerAmmo, field::DischargerReload);
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
        line(out, 4, field::Job, man);
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
    out.indent(3).startTag(e::Weapon);
    pieces(out, weapon, field::MountedType, field::Mount);
    if (withPosition) {
        pieces(out, weapon, field::MountedOffsetX, field::MountedOffsetY, field::MountedOffsetAngle);
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

void writeHull(FileText& out, const ComponentRecord& hull) {
    out.open(2, e::Hull);
    lines(out, 3, hull, field::ViewImage, field::DestroyedImage, field::Width, field::Length, field::Height);
    writeArmour(out, hull.armour, false);
    writeSmokeDischargers(out, hull);
    writeCrew(out, hull);
    out.close(2, e::Hull);
}

void writeSuperstructure(FileText& out, const ComponentRecord& superstructure) {
    out.open(2, e::Superstructure);
    lines(out, 3, superstructure, field::Width, field::Length, field::Height, field::OffsetX, field::OffsetY);
    writeArmour(out, superstructure.armour, false);
    writeSmokeDischargers(out, superstructure);
    out.close(2, e::Superstructure);
}

void writeLimits(FileText& out, const ComponentRecord& component) {
    lines(out, 3, component, field::RotateLeft, field::RotateRight, field::OffsetAngle);
}

void writeSights(FileText& out, const ComponentRecord& component) {
    lines(out, 3, component, field::AntiAircraft, field::NightVision);
}

void writeTurret(FileText& out, const ComponentRecord& turret) {
    out.open(2, e::Turret);
    lines(out, 3, turret, field::ViewImage, field::DestroyedImage, field::Diameter, field::Height,
          field::OffsetX, field::OffsetY, field::RotateTime);
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
    if (!weapon.viewImage.empty()) {
        line(out, 3, field::ViewImage, weapon);
    }
    lines(out, 3, weapon, field::DestroyedImage, field::OffsetX, field::OffsetY, field::OffsetZ,
          field::RotateTime);
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
