#include "data/finding_text.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"
#include "weapons/weapon_kinds.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

namespace ck = check_key;

constexpr std::string_view Driver = "JOB_DRIVER";
constexpr std::string_view Gunner = "JOB_GUNNER";
constexpr std::string_view NoJob = "JOB_NONE";
constexpr std::string_view SquadPrefix = "JOB_SQUAD_";
/// Who aims where there are few men.
constexpr auto Aiming = std::to_array<std::string_view>({Gunner, "JOB_COMMANDER", "JOB_MACHINE_GUNNER"});
/// In so many men a part has a gunner of its own.
constexpr std::size_t FullCrew = 3;

bool isIn(std::string_view job, std::span<const std::string_view> jobs) {
    return std::find(jobs.begin(), jobs.end(), job) != jobs.end();
}

bool isGun(const WeaponMountRecord& weapon) {
    return typeOfWeaponName(weapon.type) == WeaponType::Cannon;
}

void checkJobs(const CheckedUnit& checked, const ComponentRecord& part, const RulePath& path) {
    for (std::size_t i = 0; i < part.crew.size(); ++i) {
        const std::string_view job = part.crew[i].job;
        if (job.empty() || job == NoJob || job.starts_with(SquadPrefix)) {
            checked.out.atValue(RulePath(path, element::Man, i + 1).to(field::Job),
                                {.key = ck::CrewWithoutJob,
                                 .message = "a man of the crew has " +
                                            (job.empty() ? std::string("no job") : "the job " + quoted(job)),
                                 .value = std::string(job),
                                 .expected = "a job of a vehicle, such as JOB_LOADER"});
        }
    }
}

/// Whether somebody in another part may serve this one's weapons: a hull's man the bow machine gun.
bool isServedFromElsewhere(const VehicleRecord& vehicle, const ComponentRecord& part) {
    constexpr auto serving = std::to_array<std::string_view>({Gunner, "JOB_MACHINE_GUNNER", "JOB_RADIO"});
    return std::any_of(vehicle.components.begin(), vehicle.components.end(), [&](const auto& other) {
        return &other != &part && other.weapons.empty() &&
               std::any_of(other.crew.begin(), other.crew.end(),
                           [&](const CrewManRecord& man) { return isIn(man.job, serving); });
    });
}

/// Where the gunner was probably meant: the first of two men with one job, otherwise the gun.
std::string placeOfGunner(const ComponentRecord& part, const RulePath& path, const RulePath& weapon) {
    for (std::size_t i = 0; i < part.crew.size(); ++i) {
        const auto isSame = [&](const CrewManRecord& other) { return other.job == part.crew[i].job; };
        if (std::count_if(part.crew.begin(), part.crew.end(), isSame) > 1) {
            return RulePath(path, element::Man, i + 1).to(field::Job);
        }
    }
    return weapon.to(field::MountedType);
}

void checkService(const CheckedUnit& checked, const ComponentRecord& part, const RulePath& path) {
    if (part.weapons.empty()) {
        if (part.kind == ComponentKind::FixedWeapon) {
            checked.out.atValue(path.text(),
                                {.key = ck::UnarmedPart, .message = "a fixed weapon has no <weapon>"});
        }
        if (part.kind == ComponentKind::FixedWeapon && !part.crew.empty()) {
            checked.out.atValue(
                RulePath(path, element::Man, 1).text(),
                {.key = ck::CrewWithoutSeat, .message = "a man serves a fixed weapon that is not there"});
        }
        return;
    }
    const RulePath weapon(path, element::Weapon, 1);
    const std::string_view name = part.weapons.front().type;
    if (part.crew.empty()) {
        // Those who ride along serve what no crew does.
        const bool isForRiders =
            part.kind == ComponentKind::FixedWeapon && checked.unit.vehicle->canMountInfantry;
        if (!isForRiders && !isServedFromElsewhere(*checked.unit.vehicle, part)) {
            checked.out.atValue(
                weapon.to(field::MountedType),
                {.key = ck::WeaponWithoutMan,
                 .message = quoted(name) + " in a " + std::string(elementOf(part.kind)) + " without men",
                 .value = std::string(name),
                 .expected = "a <man> beside it"});
        }
        return;
    }
    const auto has = [&](std::span<const std::string_view> jobs) {
        return std::any_of(part.crew.begin(), part.crew.end(),
                           [&](const CrewManRecord& man) { return isIn(man.job, jobs); });
    };
    const bool hasGun = std::any_of(part.weapons.begin(), part.weapons.end(), isGun);
    const std::array<std::string_view, 1> onlyGunner = {Gunner};
    if (hasGun && (part.crew.size() >= FullCrew ? !has(onlyGunner) : !has(Aiming))) {
        checked.out.atValue(placeOfGunner(part, path, weapon),
                            {.key = ck::GunWithoutGunner,
                             .message = "none of the " + std::to_string(part.crew.size()) + " men beside " +
                                        quoted(name) + " is a gunner",
                             .value = std::string(name),
                             .expected = "a man with " + std::string(Gunner)});
    }
}

void checkVehicleCrew(const CheckedUnit& checked, const VehicleRecord& vehicle) {
    bool hasDriver = false;
    std::size_t men = 0;
    forEachComponentPath(vehicle, [&](const ComponentRecord& part, const RulePath& path) {
        checkJobs(checked, part, path);
        if (part.kind == ComponentKind::Turret || part.kind == ComponentKind::FixedWeapon) {
            checkService(checked, part, path);
        }
        men += part.crew.size();
        hasDriver = hasDriver || std::any_of(part.crew.begin(), part.crew.end(),
                                             [](const CrewManRecord& man) { return man.job == Driver; });
    });
    if (men == 0) {
        checked.out.atValue(element::Vehicle, {.key = ck::NoCrew, .message = "the vehicle has no crew"});
    } else if (!hasDriver) {
        checked.out.atValue(std::string(element::Vehicle) + ".hull[1]",
                            {.key = ck::NoDriver,
                             .message = "none of the " + std::to_string(men) + " men is a driver",
                             .expected = "a man with " + std::string(Driver)});
    }
}

} // namespace

void checkCrew(const CheckedUnit& checked) {
    const SquadRecord& unit = checked.unit;
    if (unit.vehicle) {
        checkVehicleCrew(checked, *unit.vehicle);
        return;
    }
    if (unit.aircraft) {
        return;
    }
    const RulePath record;
    if (unit.heavyWeapon) {
        const std::string_view name = elementOf(unit.heavyWeapon->kind);
        if (unit.heavyWeapon->weapons.empty()) {
            checked.out.atValue(name,
                                {.key = ck::UnarmedPart, .message = tagText(name) + " has no <weapon>"});
        } else if (unit.infantrymen.empty()) {
            checked.out.atValue(
                RulePath(RulePath(record, name), element::Weapon, 1).to(field::MountedType),
                {.key = ck::WeaponWithoutMan,
                 .message = quoted(unit.heavyWeapon->weapons.front().type) + " has no men who serve it",
                 .value = unit.heavyWeapon->weapons.front().type.str()});
        }
    } else if (unit.infantrymen.empty()) {
        checked.out.atFile({.key = ck::NoCrew, .message = "the squad has no men"});
    }
    for (std::size_t i = 0; i < unit.infantrymen.size(); ++i) {
        const std::string_view job = unit.infantrymen[i].job;
        constexpr auto ofVehicles = std::to_array<std::string_view>({Driver, "JOB_COMMANDER", "JOB_RADIO"});
        if (isIn(job, ofVehicles)) {
            checked.out.atValue(RulePath(record, element::Man, i + 1).to(field::Job),
                                {.key = ck::CrewWithoutJob,
                                 .message = "an infantryman has the job " + quoted(job) + " of a vehicle",
                                 .value = std::string(job)});
        }
    }
}

} // namespace varrocade
