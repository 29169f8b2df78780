// The layouts of infantry and heavy-weapon squads and of aircraft, top to bottom.

#include "data/unit/elements.h"
#include "data/unit/enumerations.h"
#include "data/unit/unit_writers.h"
#include "data/unit/writer_blocks.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

namespace e = element;
using namespace writer_blocks;

void writeKind(FileText& out, const SquadRecord& record) {
    out.line(2, e::Type, record.type);
    out.line(2, e::Nationality, record.nationality);
    out.lineIfGiven(2, e::Language, record.language);
}

void writeNames(FileText& out, const SquadRecord& record) {
    out.line(2, e::LongName, record.longName);
    out.line(2, e::ShortName, record.shortName);
    out.line(2, e::Comment, record.comment);
}

void writeSquadDescription(FileText& out, const SquadRecord& record) {
    out.open(1, e::Description);
    writeKind(out, record);
    out.line(2, e::Quality, record.quality);
    writeNames(out, record);
    if (record.namedUniform) {
        out.line(2, e::Uniform, record.uniformName);
    } else {
        out.imageIfGiven(2, e::UniformGame, record.uniformGame);
        out.imageIfGiven(2, e::UniformProfile, record.uniformProfile);
    }
    out.imageIfGiven(2, e::UniformRanks, record.uniformRanks);
    out.close(1, e::Description);
}

/// An ordinary rifleman has no job line.
bool hasJobLine(std::string_view job) {
    constexpr std::array<std::string_view, 3> jobs = {"JOB_SQUAD_LEADER", "JOB_SQUAD_ASSISTANT_LEADER",
                                                      "JOB_SQUAD_MG_ASSISTANT"};
    return std::find(jobs.begin(), jobs.end(), job) != jobs.end();
}

/// The flavour is left out where it goes without saying.
void writeFlavouredAmmo(FileText& out, const AmmoLoadRecord& ammo) {
    writeAmmo(out, 2, ammo, !isDefaultFlavour(ammo.weaponType, ammo.flavour));
}

void writeInfantryman(FileText& out, const CrewManRecord& man) {
    out.open(1, e::Man);
    if (hasJobLine(man.job)) {
        out.line(2, e::Job, man.job);
    }
    writeManFlags(out, 2, man);
    writePersonalWeapons(out, 2, man);
    for (const AmmoLoadRecord& ammo : man.ammo) {
        writeFlavouredAmmo(out, ammo);
    }
    out.close(1, e::Man);
}

std::string_view elementOf(HeavyWeaponKind kind) {
    switch (kind) {
    case HeavyWeaponKind::Mortar:
        return e::Mortar;
    case HeavyWeaponKind::Hmg:
        return e::Hmg;
    case HeavyWeaponKind::AtGun:
        return e::Atgun;
    case HeavyWeaponKind::RecoillessRifle:
        break;
    }
    return e::RecoillessRifle;
}

/// Here, and only here, the flavour stands behind the rounds.
void writeHeavyAmmo(FileText& out, const AmmoLoadRecord& ammo) {
    out.indent(2).startTag(e::Ammo).element(e::For, ammo.weaponType).element(e::Rounds, ammo.rounds);
    out.elementIfGiven(e::Flavour, ammo.flavour).endTag(e::Ammo).endLine();
}

void writeHeavyWeapon(FileText& out, const HeavyWeaponRecord& weapon) {
    const std::string_view name = elementOf(weapon.kind);
    out.open(1, name);
    out.imageIfGiven(2, e::ImageViewBase, weapon.baseImage);
    out.imageIfGiven(2, e::ImageViewGun, weapon.gunImage);
    out.imageIfGiven(2, e::ImageProfile, weapon.profileImage);
    out.flag(2, e::NightVision, weapon.nightVision);
    for (const WeaponMountRecord& mounted : weapon.weapons) {
        out.indent(2).startTag(e::Weapon).element(e::Type, mounted.type).endTag(e::Weapon).endLine();
    }
    for (const AmmoLoadRecord& ammo : weapon.ammo) {
        writeHeavyAmmo(out, ammo);
    }
    if (weapon.limitedTraverse) {
        out.line(2, e::RotateLeft, weapon.rotateLeft);
        out.line(2, e::RotateRight, weapon.rotateRight);
    }
    if (weapon.kind == HeavyWeaponKind::AtGun) {
        out.flag(2, e::AA, weapon.antiAircraft);
        out.line(2, e::Mass, weapon.mass);
        if (weapon.trailLength > 0) {
            std::string length;
            appendFixed(length, weapon.trailLength, 2);
            out.line(2, e::TrailLength, length);
        }
    }
    if (!weapon.moveable) {
        out.line(2, e::Moveable, "no");
    }
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
        out.indent(2).startTag(e::Weapon).element(e::Type, weapon.type);
        out.elementUnless(0, e::OffsetX, weapon.offsetX).elementUnless(0, e::OffsetY, weapon.offsetY);
        out.endTag(e::Weapon).endLine();
    }
    for (const AmmoLoadRecord& ammo : aircraft.ammo) {
        writeFlavouredAmmo(out, ammo);
    }
    out.close(1, e::Armament);
}

void writeRotorBlades(FileText& out, const RotorBladesRecord& rotor) {
    out.indent(1).startTag(e::RotorBlades).imageElement(e::Image, rotor.image);
    out.elementUnless(0, e::OffsetX, rotor.offsetX).elementUnless(0, e::OffsetY, rotor.offsetY);
    out.elementUnless(0, e::Diameter, rotor.diameter);
    if (!rotor.clockwise) {
        out.element(e::Clockwise, "no");
    }
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
    out.imageIfGiven(2, e::Image, aircraft.image);
    out.flag(2, e::EjectsFlares, aircraft.ejectsFlares);
    out.lineIfGiven(2, e::Sound, aircraft.sound);
    out.line(2, e::Speed, aircraft.speed);
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
