// The layouts of infantry and heavy-weapon squads and of aircraft, top to bottom.

#include "data/each_field.h"
#include "data/field_text.h"
#include "data/unit/elements.h"
#include "data/unit/enumerations.h"
#include "data/writing/unit_writers.h"
#include "data/writing/writer_blocks.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

namespace e = element;
using namespace field_text;
using namespace writer_blocks;

void writeKind(FileText& out, const SquadRecord& record) {
    lines(out, 2, record, field::Type, field::Nationality, field::VoiceLanguage);
}

void writeNames(FileText& out, const SquadRecord& record) {
    lines(out, 2, record, field::LongName, field::ShortName, field::Comment);
}

void writeSquadDescription(FileText& out, const SquadRecord& record) {
    out.open(1, e::Description);
    writeKind(out, record);
    line(out, 2, field::Quality, record);
    writeNames(out, record);
    if (record.namedUniform) {
        line(out, 2, field::UniformName, record);
    } else {
        lines(out, 2, record, field::UniformGame, field::UniformProfile);
    }
    line(out, 2, field::UniformRanks, record);
    out.close(1, e::Description);
}

/// An ordinary rifleman has no job line.
bool hasJobLine(std::string_view job) {
    const auto jobs = squadJobNames();
    return std::find(jobs.begin(), jobs.end(), job) != jobs.end();
}

/// The flavour is left out where it goes without saying.
void writeFlavouredAmmo(FileText& out, const AmmoLoadRecord& ammo) {
    writeAmmo(out, 2, ammo, !isDefaultFlavour(ammo.weaponType, ammo.flavour));
}

void writeInfantryman(FileText& out, const CrewManRecord& man) {
    out.open(1, e::Man);
    if (hasJobLine(man.job)) {
        line(out, 2, field::Job, man);
    }
    writeManFlags(out, 2, man);
    writePersonalWeapons(out, 2, man);
    for (const AmmoLoadRecord& ammo : man.ammo) {
        writeFlavouredAmmo(out, ammo);
    }
    out.close(1, e::Man);
}

/// Here, and only here, the flavour stands behind the rounds.
void writeHeavyAmmo(FileText& out, const AmmoLoadRecord& ammo) {
    out.indent(2).startTag(e::Ammo);
    pieces(out, ammo, field::AmmoFor, field::Rounds, field::Flavour);
    out.endTag(e::Ammo).endLine();
}

void writeHeavyWeapon(FileText& out, const HeavyWeaponRecord& weapon) {
    const std::string_view name = elementOf(weapon.kind);
    out.open(1, name);
    lines(out, 2, weapon, field::BaseImage, field::GunImage, field::HeavyProfileImage,
          field::HeavyNightVision);
    for (const WeaponMountRecord& mounted : weapon.weapons) {
        out.indent(2).startTag(e::Weapon);
        piece(out, field::MountedType, mounted);
        out.endTag(e::Weapon).endLine();
    }
    for (const AmmoLoadRecord& ammo : weapon.ammo) {
        writeHeavyAmmo(out, ammo);
    }
    if (weapon.limitedTraverse) {
        lines(out, 2, weapon, field::HeavyRotateLeft, field::HeavyRotateRight);
    }
    if (weapon.kind == HeavyWeaponKind::AtGun) {
        lines(out, 2, weapon, field::HeavyAntiAircraft, field::Mass, field::TrailLength);
    }
    line(out, 2, field::Moveable, weapon);
    out.close(1, name);
}

void writeMembers(FileText& out, const SquadRecord& record) {
    const std::size_t men = record.infantrymen.size();
    const std::size_t heavyPlace = record.heavyWeapon ? std::min(record.heavyWeaponPlace, men) : men + 1;
    bool isFirst = true;
    const auto separate = [&] {
        if (!isFirst) {
            out.blankLine();
        }
        isFirst = false;
    };
    for (std::size_t i = 0; i <= men; ++i) {
        if (i == heavyPlace) {
            separate();
            writeHeavyWeapon(out, *record.heavyWeapon);
        }
        if (i < men) {
            separate();
            writeInfantryman(out, record.infantrymen[i]);
        }
    }
}

void writeArmament(FileText& out, const AircraftRecord& aircraft) {
    out.open(1, e::Armament);
    for (const WeaponMountRecord& weapon : aircraft.weapons) {
        out.indent(2).startTag(e::Weapon);
        pieces(out, weapon, field::MountedType, field::MountedOffsetX, field::MountedOffsetY);
        out.endTag(e::Weapon).endLine();
    }
    for (const AmmoLoadRecord& ammo : aircraft.ammo) {
        writeFlavouredAmmo(out, ammo);
    }
    out.close(1, e::Armament);
}

void writeRotorBlades(FileText& out, const RotorBladesRecord& rotor) {
    out.indent(1).startTag(e::RotorBlades);
    pieces(out, rotor, field::RotorImage, field::RotorOffsetX, field::RotorOffsetY, field::RotorDiameter,
           field::Clockwise);
    out.endTag(e::RotorBlades).endLine();
}

} // namespace

std::string squadFileText(const SquadRecord& record) {
    FileText out;
    out.open(0, e::Squad);
    writeSquadDescription(out, record);
    writeAvailability(out, record.availability);
    writeMembers(out, record);
    out.close(0, e::Squad);
    return out.take();
}

std::optional<std::string> aircraftFileText(const SquadRecord& record) {
    if (!record.aircraft) {
        return std::nullopt;
    }
    const AircraftRecord& aircraft = *record.aircraft;
    FileText out;
    out.open(0, e::Aircraft);
    out.open(1, e::Description);
    writeKind(out, record);
    writeNames(out, record);
    lines(out, 2, aircraft, field::AircraftImage, field::EjectsFlares, field::AircraftSound,
          field::AircraftSpeed);
    out.close(1, e::Description);
    writeAvailability(out, record.availability);
    writeArmament(out, aircraft);
    for (const RotorBladesRecord& rotor : aircraft.rotorBlades) {
        writeRotorBlades(out, rotor);
    }
    out.close(0, e::Aircraft);
    return out.take();
}

} // namespace varrocade
