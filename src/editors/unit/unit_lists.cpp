#include "editors/unit/unit_lists.h"

#include "data/unit/enumerations.h"
#include "resources/resource.h"
#include "view/sheet/sheet_text.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace varrocade {

namespace {

std::string numbered(std::size_t place, const std::string& text) {
    return std::to_string(place) + ". " + text;
}

std::string offsetText(std::int32_t x, std::int32_t y) {
    return "(" + std::to_string(x) + ", " + std::to_string(y) + ")";
}

// ---- exhaust pipes

constexpr auto ExhaustFields = std::to_array<FormField<ExhaustPipeRecord>>({
    {IDC_OFFSET_X, "OffsetX", &ExhaustPipeRecord::offsetX},
    {IDC_OFFSET_Y, "OffsetY", &ExhaustPipeRecord::offsetY},
    {IDC_ANGLE, "Angle", &ExhaustPipeRecord::angle, {-360, 360}},
    {IDC_VERTICAL_ANGLE, "Vertical angle", &ExhaustPipeRecord::verticalAngle, {-90, 90}},
});

std::string exhaustLine(std::size_t place, const ExhaustPipeRecord& pipe) {
    return numbered(place,
                    offsetText(pipe.offsetX, pipe.offsetY) + ", " + std::to_string(pipe.angle) + " degrees");
}

void mirrorExhaust(ExhaustPipeRecord& pipe) {
    constexpr std::int32_t fullCircle = 360;
    pipe.offsetX = -pipe.offsetX;
    pipe.angle = (fullCircle - pipe.angle) % fullCircle;
}

// ---- smoke dischargers

using Discharger = SmokeDischargerRecord;

constexpr auto DischargerFields = std::to_array<FormField<Discharger>>({
    {IDC_OFFSET_X, "OffsetX", &Discharger::offsetX},
    {IDC_OFFSET_Y, "OffsetY", &Discharger::offsetY},
    {IDC_DIRECTIONAL, "Directional", &Discharger::directional},
    {IDC_ANGLE_GIVEN, "Angle given", &Discharger::angleGiven},
    {IDC_ANGLE, "Angle", &Discharger::angle, {-360, 360}},
    {IDC_ELEVATION_GIVEN, "Elevation given", &Discharger::elevationGiven},
    {IDC_ELEVATION, "Elevation", &Discharger::elevation, {-90, 90}},
    {IDC_SPEED, "Speed", &Discharger::speed, NotNegative},
    {IDC_ROUNDS, "Rounds", &Discharger::ammo, NotNegative},
    {IDC_RELOAD, "Reload", &Discharger::reload, NotNegative},
});

std::string dischargerLine(std::size_t place, const Discharger& discharger) {
    std::string text = offsetText(discharger.offsetX, discharger.offsetY);
    if (discharger.directional && discharger.angleGiven) {
        text += ", " + std::to_string(discharger.angle) + " degrees";
    }
    return numbered(place, text + ", " + std::to_string(discharger.ammo) + " rounds");
}

void mirrorDischarger(Discharger& discharger) {
    discharger.offsetX = -discharger.offsetX;
    discharger.angle = -discharger.angle;
}

void showDischarger(FormPort& port, const Discharger&) {
    enableDischarger(port);
}

/// What the check boxes switch off is not kept.
void readDischarger(FormPort& port, Discharger& discharger) {
    enableDischarger(port);
    if (!discharger.directional) {
        discharger.angleGiven = discharger.elevationGiven = false;
        discharger.speed = 0;
    }
    discharger.angle = discharger.angleGiven ? discharger.angle : 0;
    discharger.elevation = discharger.elevationGiven ? discharger.elevation : 0;
}

// ---- crew

constexpr auto CrewFields = std::to_array<FormField<CrewManRecord>>({
    {IDC_JOB, "Job", &CrewManRecord::job},
    {IDC_MAN_LANGUAGE, "Language", &CrewManRecord::language},
    {IDC_BODY_ARMOUR, "Body armour", &CrewManRecord::bodyArmour},
    {IDC_MAN_NIGHT_VISION, "Night vision", &CrewManRecord::nightVision},
});

std::string crewLine(std::size_t place, const CrewManRecord& man) {
    std::string text = displayName(man.job, JobPrefix);
    for (const Text& weapon : man.weapons) {
        text += ", " + weaponWord(weapon);
    }
    return numbered(place, text);
}

// ---- weapons and ammunition

constexpr auto WeaponFields = std::to_array<FormField<WeaponMountRecord>>({
    {IDC_WEAPON_TYPE, "Weapon", &WeaponMountRecord::type},
    {IDC_WEAPON_MOUNT, "Mount", &WeaponMountRecord::mount},
    {IDC_OFFSET_X, "OffsetX", &WeaponMountRecord::offsetX},
    {IDC_OFFSET_Y, "OffsetY", &WeaponMountRecord::offsetY},
    {IDC_OFFSET_ANGLE, "Angle", &WeaponMountRecord::offsetAngle, {-360, 360}},
});

std::string weaponLine(std::size_t place, const WeaponMountRecord& weapon) {
    return numbered(place, weapon.type.empty() ? "(no weapon)" : weaponWord(weapon.type));
}

constexpr auto PersonalWeaponFields = std::to_array<FormField<PersonalWeapon>>({
    {IDC_WEAPON_TYPE, "Weapon", &PersonalWeapon::type},
});

std::string personalWeaponLine(std::size_t place, const PersonalWeapon& weapon) {
    return numbered(place, weapon.type.empty() ? "(no weapon)" : weaponWord(weapon.type));
}

constexpr auto AmmunitionFields = std::to_array<FormField<AmmoLoadRecord>>({
    {IDC_WEAPON_TYPE, "For", &AmmoLoadRecord::weaponType},
    {IDC_FLAVOUR, "Flavour", &AmmoLoadRecord::flavour},
    {IDC_ROUNDS, "Rounds", &AmmoLoadRecord::rounds, NotNegative},
});

std::string ammunitionLine(std::size_t place, const AmmoLoadRecord& ammo) {
    std::string text = grouped(ammo.rounds) + " for " +
                       (ammo.weaponType.empty() ? "(no weapon)" : weaponWord(ammo.weaponType));
    if (!ammo.flavour.empty()) {
        text += ", " + flavourWord(ammo.flavour);
    }
    return numbered(place, text);
}

// ---- availability

constexpr auto AvailabilityFields = std::to_array<FormField<AvailabilityPoint>>({
    {IDC_MONTH, "Month", &AvailabilityPoint::month, {1, 12}},
    {IDC_YEAR, "Year", &AvailabilityPoint::year, {1000, 5000}},
    {IDC_NUMBER, "Number", &AvailabilityPoint::number},
});

std::string availabilityLine(std::size_t, const AvailabilityPoint& point) {
    const std::string month = std::to_string(point.month);
    return std::to_string(point.year) + "-" + (month.size() < 2 ? "0" : "") + month + ":  " +
           grouped(point.number);
}

} // namespace

const ListShape<ExhaustPipeRecord>& exhaustPipeShape() {
    static const ListShape<ExhaustPipeRecord> shape{
        .fields = ExhaustFields, .line = exhaustLine, .mirror = mirrorExhaust};
    return shape;
}

const ListShape<SmokeDischargerRecord>& smokeDischargerShape() {
    static const ListShape<SmokeDischargerRecord> shape{.fields = DischargerFields,
                                                        .line = dischargerLine,
                                                        .mirror = mirrorDischarger,
                                                        .afterShow = showDischarger,
                                                        .afterRead = readDischarger};
    return shape;
}

const ListShape<CrewManRecord>& crewShape() {
    static const ListShape<CrewManRecord> shape{
        .fields = CrewFields, .line = crewLine, .most = MaxSquadMembers};
    return shape;
}

const ListShape<WeaponMountRecord>& weaponShape() {
    static const ListShape<WeaponMountRecord> shape{.fields = WeaponFields, .line = weaponLine};
    return shape;
}

const ListShape<PersonalWeapon>& personalWeaponShape() {
    static const ListShape<PersonalWeapon> shape{.fields = PersonalWeaponFields, .line = personalWeaponLine};
    return shape;
}

const ListShape<AmmoLoadRecord>& ammunitionShape() {
    static const ListShape<AmmoLoadRecord> shape{.fields = AmmunitionFields, .line = ammunitionLine};
    return shape;
}

const ListShape<AvailabilityPoint>& availabilityShape() {
    static const ListShape<AvailabilityPoint> shape{.fields = AvailabilityFields,
                                                    .line = availabilityLine,
                                                    .most = MaxAvailabilityPoints,
                                                    .blank = {.month = 1, .year = 1940, .number = 100}};
    return shape;
}

void enableDischarger(FormPort& port) {
    const bool isDirectional = port.isChecked(IDC_DIRECTIONAL);
    port.setEnabled(IDC_ANGLE_GIVEN, isDirectional);
    port.setEnabled(IDC_ELEVATION_GIVEN, isDirectional);
    port.setEnabled(IDC_SPEED, isDirectional);
    port.setEnabled(IDC_ANGLE, isDirectional && port.isChecked(IDC_ANGLE_GIVEN));
    port.setEnabled(IDC_ELEVATION, isDirectional && port.isChecked(IDC_ELEVATION_GIVEN));
}

void sortByDate(std::vector<AvailabilityPoint>& points) {
    std::stable_sort(points.begin(), points.end(),
                     [](const AvailabilityPoint& a, const AvailabilityPoint& b) {
                         return std::tie(a.year, a.month) < std::tie(b.year, b.month);
                     });
}

} // namespace varrocade
