#include "data/unit/unit_consistency.h"

#include "data/each_field.h"
#include "data/finding_text.h"
#include "data/unit/elements.h"
#include "data/unit_fields.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace varrocade {

namespace {

namespace e = element;

constexpr std::int32_t FullCircle = 360; // degrees, as all angles here
constexpr std::int32_t HalfCircle = 180;

Finding inconsistency(std::string_view key, const FieldInfo& field, std::int32_t value, std::string message,
                      std::string expected) {
    return {.key = key,
            .severity = Severity::Error,
            .field = std::string(field.element),
            .message = std::move(message),
            .value = std::to_string(value),
            .expected = std::move(expected)};
}

bool isArmed(ComponentKind kind) {
    return kind == ComponentKind::Turret || kind == ComponentKind::FixedWeapon;
}

constexpr auto ComponentRules = std::to_array<std::optional<Finding> (*)(const ComponentRecord&)>(
    {traverseFinding, offsetHeightFinding, rotateTimeFinding});

/// Calls `visit` with each component and its path, with a point at its end.
template <typename Visit>
void forEachComponent(const VehicleRecord& vehicle, Visit visit) {
    std::array<std::size_t, 4> counts = {};
    for (const ComponentRecord& component : vehicle.components) {
        const std::size_t number = ++counts.at(static_cast<std::size_t>(component.kind));
        visit(component, std::string(e::Vehicle) + "." + std::string(elementOf(component.kind)) + "[" +
                             std::to_string(number) + "].");
    }
}

} // namespace

std::optional<Finding> traverseFinding(const ComponentRecord& component) {
    const bool isTurret = component.kind == ComponentKind::Turret;
    if (isTurret ? !component.limitedTraverse : component.kind != ComponentKind::FixedWeapon) {
        return std::nullopt;
    }
    // The messages of turrets name them.
    const std::string rotateWho = isTurret ? "The turret rotate" : "The rotate";
    const auto isLimit = [](std::int32_t angle) { return angle >= 0 && angle <= FullCircle; };
    const bool isRightWrong = isLimit(component.rotateLeft);
    if (!isRightWrong || !isLimit(component.rotateRight)) {
        return inconsistency(
            finding_key::TraverseLimit, isRightWrong ? field::RotateRight : field::RotateLeft,
            isRightWrong ? component.rotateRight : component.rotateLeft,
            rotateWho + " left and right angles must be between 0 and 360 degrees", "0 to 360");
    }
    if (component.rotateLeft + component.rotateRight > FullCircle) {
        return inconsistency(finding_key::TraverseSum, field::RotateLeft, component.rotateLeft,
                             rotateWho + " left and right angles must add up to less that 360 degrees",
                             "at most " + std::to_string(FullCircle - component.rotateRight));
    }
    if (component.offsetAngle < -HalfCircle || component.offsetAngle > HalfCircle) {
        return inconsistency(finding_key::OffsetAngle, field::OffsetAngle, component.offsetAngle,
                             std::string(isTurret ? "The turret offset" : "The offset") +
                                 " angle must be between -180 and 180 degrees",
                             "-180 to 180");
    }
    return std::nullopt;
}

std::optional<Finding> offsetHeightFinding(const ComponentRecord& component) {
    if (component.kind != ComponentKind::FixedWeapon || component.offsetZ > 0) {
        return std::nullopt;
    }
    return inconsistency(finding_key::OffsetHeight, field::OffsetZ, component.offsetZ,
                         "OffsetZ must be greater than zero", "at least 1");
}

std::optional<Finding> rotateTimeFinding(const ComponentRecord& component) {
    if (!isArmed(component.kind) || component.rotateTime > 0) {
        return std::nullopt;
    }
    return inconsistency(finding_key::NoRotateTime, field::RotateTime, component.rotateTime,
                         "The rotate speed must be greater than zero", "at least 1");
}

std::optional<Finding> revolutionsFinding(const VehicleRecord& vehicle) {
    if (vehicle.revolutionLimit >= vehicle.idleRevolutions) {
        return std::nullopt;
    }
    return inconsistency(finding_key::RevolutionLimit, field::RevolutionLimit, vehicle.revolutionLimit,
                         "The revolution limit must not be below the idle revolutions",
                         "at least " + std::to_string(vehicle.idleRevolutions));
}

std::optional<Finding> ammunitionFinding(const AmmoLoadRecord& load,
                                         std::span<const WeaponMountRecord> weapons) {
    const auto fits = [&](const WeaponMountRecord& weapon) { return weapon.type == load.weaponType; };
    if (!load.weaponType.empty() && std::any_of(weapons.begin(), weapons.end(), fits)) {
        return std::nullopt;
    }
    const std::string rounds = std::to_string(load.rounds) + (load.rounds == 1 ? " round" : " rounds");
    return Finding{.key = finding_key::AmmoWithoutWeapon,
                   .field = std::string(field::AmmoFor.element),
                   .message = load.weaponType.empty()
                                  ? rounds + " for no weapon"
                                  : rounds + " for " + quoted(load.weaponType) + ", which is not there",
                   .value = load.weaponType.str()};
}

std::optional<Finding> componentRoomFinding(const VehicleRecord& vehicle) {
    if (vehicle.components.size() < MaxSquadMembers) {
        return std::nullopt;
    }
    return Finding{.key = finding_key::NoRoom,
                   .severity = Severity::Error,
                   .field = std::string(e::Vehicle),
                   .message = std::string(TooManyComponentsText),
                   .value = std::to_string(vehicle.components.size()),
                   .expected = "fewer than " + std::to_string(MaxSquadMembers)};
}

std::vector<Finding> ammunitionFindings(const SquadRecord& unit) {
    std::vector<Finding> findings;
    const auto check = [&findings](const auto& armed, const std::string& path) {
        for (std::size_t i = 0; i < armed.ammo.size(); ++i) {
            if (auto finding = ammunitionFinding(armed.ammo[i], armed.weapons)) {
                finding->field.insert(0, path + std::string(e::Ammo) + "[" + std::to_string(i + 1) + "].");
                findings.push_back(std::move(*finding));
            }
        }
    };
    if (unit.vehicle) {
        forEachComponent(*unit.vehicle, check);
    }
    if (unit.heavyWeapon) {
        check(*unit.heavyWeapon, std::string(elementOf(unit.heavyWeapon->kind)) + ".");
    }
    if (unit.aircraft) {
        check(*unit.aircraft, std::string(e::Aircraft) + ".");
    }
    return findings;
}

std::vector<Finding> vehicleFindings(const VehicleRecord& vehicle) {
    std::vector<Finding> findings;
    const auto add = [&findings](std::optional<Finding> finding, const std::string& path) {
        if (finding) {
            finding->field.insert(0, path);
            findings.push_back(std::move(*finding));
        }
    };
    const std::string vehiclePath = std::string(e::Vehicle) + ".";
    add(revolutionsFinding(vehicle), vehiclePath);
    forEachComponent(vehicle, [&](const ComponentRecord& component, const std::string& path) {
        for (const auto& rule : ComponentRules) {
            add(rule(component), path);
        }
    });
    return findings;
}

} // namespace varrocade
