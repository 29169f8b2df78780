#include "editors/unit/unit_lists.h"

#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "resources/resource.h"
#include "weapons/ammo_words.h"

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

constexpr auto ExhaustRows = std::to_array<FormRow<ExhaustPipeRecord>>({
    {IDC_OFFSET_X, field::ExhaustOffsetX},
    {IDC_OFFSET_Y, field::ExhaustOffsetY},
    {IDC_ANGLE, field::ExhaustAngle},
    {IDC_VERTICAL_ANGLE, field::ExhaustVerticalAngle},
});

std::string exhaustLine(std::size_t place, const ExhaustPipeRecord& pipe) {
    return numbered(place,
                    offsetText(pipe.offsetX, pipe.offsetY) + ", " + std::to_string(pipe.angle) + " degrees");
}

void mirrorExhaust(ExhaustPipeRecord& pipe) {
    constexpr std::int32_t fullCircle = 360;
    pipe.offsetX = mirrored(pipe.offsetX);
    pipe.angle = (fullCircle - pipe.angle % fullCircle) % fullCircle;
}

// ---- smoke dischargers

using Discharger = SmokeDischargerRecord;

// No elements: that there is an angle, an elevation or a speed says it.
constexpr auto Directional = field_row::flag(&Discharger::directional, "", "Directional");
constexpr auto AngleGiven = field_row::flag(&Discharger::angleGiven, "", "Angle given");
constexpr auto ElevationGiven = field_row::flag(&Discharger::elevationGiven, "", "Elevation given");

bool isDirectional(FormPort& port, const Discharger&) {
    return port.isChecked(IDC_DIRECTIONAL);
}

bool hasAngle(FormPort& port, const Discharger&) {
    return port.isChecked(IDC_DIRECTIONAL) && port.isChecked(IDC_ANGLE_GIVEN);
}

bool hasElevation(FormPort& port, const Discharger&) {
    return port.isChecked(IDC_DIRECTIONAL) && port.isChecked(IDC_ELEVATION_GIVEN);
}

constexpr auto DischargerRows = std::to_array<FormRow<Discharger>>({
    {IDC_OFFSET_X, field::DischargerOffsetX},
    {IDC_OFFSET_Y, field::DischargerOffsetY},
    {IDC_DIRECTIONAL, Directional},
    {IDC_ANGLE_GIVEN, AngleGiven, {.enabledWhen = isDirectional}},
    {IDC_ANGLE, field::DischargerAngle, {.enabledWhen = hasAngle}},
    {IDC_ELEVATION_GIVEN, ElevationGiven, {.enabledWhen = isDirectional}},
    {IDC_ELEVATION, field::DischargerElevation, {.enabledWhen = hasElevation}},
    {IDC_SPEED, field::DischargerSpeed, {.enabledWhen = isDirectional}},
    {IDC_ROUNDS, field::DischargerAmmo},
    {IDC_RELOAD, field::DischargerReload},
});

std::string dischargerLine(std::size_t place, const Discharger& discharger) {
    std::string text = offsetText(discharger.offsetX, discharger.offsetY);
    if (discharger.directional && discharger.angleGiven) {
        text += ", " + std::to_string(discharger.angle) + " degrees";
    }
    return numbered(place, text + ", " + std::to_string(discharger.ammo) + " rounds");
}

void mirrorDischarger(Discharger& discharger) {
    discharger.offsetX = mirrored(discharger.offsetX);
    discharger.angle = mirrored(discharger.angle);
}

/// What the check boxes switch off is not kept.
std::optional<FormError> clearDischarger(const Discharger&, Discharger& discharger) {
    if (!discharger.directional) {
        discharger.angleGiven = discharger.elevationGiven = false;
        discharger.speed = 0;
    }
    discharger.angle = discharger.angleGiven ? discharger.angle : 0;
    discharger.elevation = discharger.elevationGiven ? discharger.elevation : 0;
    return std::nullopt;
}

// ---- crew

constexpr auto CrewRows = std::to_array<FormRow<CrewManRecord>>({
    {IDC_JOB, field::Job},
    {IDC_MAN_LANGUAGE, field::ManLanguage},
    {IDC_BODY_ARMOUR, field::BodyArmour},
    {IDC_MAN_NIGHT_VISION, field::ManNightVision},
});

std::string crewLine(std::size_t place, const CrewManRecord& man) {
    std::string text = shownWord(man.job, JobPrefix, jobNames());
    for (const Text& weapon : man.weapons) {
        text += ", " + weaponWord(weapon);
    }
    return numbered(place, text);
}

// ---- weapons and ammunition

FormError chooseWeapon() {
    return {refusedInput(field::MountedType, "Choose a weapon"), IDC_WEAPON_TYPE};
}

std::optional<FormError> withoutWeapon(const WeaponMountRecord& weapon) {
    return weapon.type.empty() ? std::optional(chooseWeapon()) : std::nullopt;
}

constexpr auto WeaponRows = std::to_array<FormRow<WeaponMountRecord>>({
    {IDC_WEAPON_TYPE, field::MountedType},
    {IDC_WEAPON_MOUNT, field::Mount, {.words = mountNames}},
    {IDC_OFFSET_X, field::MountedOffsetX},
    {IDC_OFFSET_Y, field::MountedOffsetY},
    {IDC_OFFSET_ANGLE, field::MountedOffsetAngle},
});

std::string weaponLine(std::size_t place, const WeaponMountRecord& weapon) {
    std::string text = weapon.type.empty() ? "(no weapon)" : weaponWord(weapon.type);
    if (weapon.offsetX != 0 || weapon.offsetY != 0) {
        text += " " + offsetText(weapon.offsetX, weapon.offsetY);
    }
    return numbered(place, text);
}

/// To the other wing, or the other side of a turret.
void mirrorWeapon(WeaponMountRecord& weapon) {
    weapon.offsetX = -weapon.offsetX;
    weapon.offsetAngle = -weapon.offsetAngle;
}

constexpr auto PersonalWeaponType =
    field_row::reference(FieldKind::Weapon, &PersonalWeapon::type, "type", "Weapon");

constexpr auto PersonalWeaponRows = std::to_array<FormRow<PersonalWeapon>>({
    {IDC_WEAPON_TYPE, PersonalWeaponType},
});

std::string personalWeaponLine(std::size_t place, const PersonalWeapon& weapon) {
    return numbered(place, weapon.type.empty() ? "(no weapon)" : weaponWord(weapon.type));
}

std::optional<FormError> withoutPersonalWeapon(const PersonalWeapon& weapon) {
    return weapon.type.empty() ? std::optional(chooseWeapon()) : std::nullopt;
}

std::optional<FormError> ofNobody(const AmmoLoadRecord& ammo) {
    if (!ammo.weaponType.empty()) {
        return std::nullopt;
    }
    return FormError{refusedInput(field::AmmoFor, "Choose the weapon that the ammunition is for"),
                     IDC_WEAPON_TYPE};
}

constexpr auto AmmunitionRows = std::to_array<FormRow<AmmoLoadRecord>>({
    {IDC_WEAPON_TYPE, field::AmmoFor},
    {IDC_FLAVOUR, field::Flavour},
    {IDC_ROUNDS, field::Rounds},
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

constexpr auto AvailabilityRows = std::to_array<FormRow<AvailabilityPoint>>({
    {IDC_MONTH, field::Month},
    {IDC_YEAR, field::Year},
    {IDC_NUMBER, field::NumberOfUnits},
});

std::string availabilityLine(std::size_t, const AvailabilityPoint& point) {
    const std::string month = std::to_string(point.month);
    return std::to_string(point.year) + "-" + (month.size() < 2 ? "0" : "") + month + ":  " +
           grouped(point.number);
}

} // namespace

const ListShape<ExhaustPipeRecord>& exhaustPipeShape() {
    static const ListShape<ExhaustPipeRecord> shape{
        .form = {.rows = ExhaustRows}, .line = exhaustLine, .mirror = mirrorExhaust};
    return shape;
}

const ListShape<SmokeDischargerRecord>& smokeDischargerShape() {
    static const ListShape<SmokeDischargerRecord> shape{
        .form = {.rows = DischargerRows, .check = clearDischarger},
        .line = dischargerLine,
        .mirror = mirrorDischarger};
    return shape;
}

const ListShape<CrewManRecord>& crewShape() {
    static const ListShape<CrewManRecord> shape{
        .form = {.rows = CrewRows}, .line = crewLine, .most = MaxSquadMembers};
    return shape;
}

const ListShape<WeaponMountRecord>& weaponShape() {
    static const ListShape<WeaponMountRecord> shape{.form = {.rows = WeaponRows},
                                                    .line = weaponLine,
                                                    .mirror = mirrorWeapon,
                                                    .incomplete = withoutWeapon};
    return shape;
}

const ListShape<PersonalWeapon>& personalWeaponShape() {
    static const ListShape<PersonalWeapon> shape{.form = {.rows = PersonalWeaponRows},
                                                 .line = personalWeaponLine,
                                                 .incomplete = withoutPersonalWeapon};
    return shape;
}

const ListShape<AmmoLoadRecord>& ammunitionShape() {
    static const ListShape<AmmoLoadRecord> shape{
        .form = {.rows = AmmunitionRows}, .line = ammunitionLine, .incomplete = ofNobody};
    return shape;
}

const ListShape<AvailabilityPoint>& availabilityShape() {
    static const ListShape<AvailabilityPoint> shape{
        .form = {.rows = AvailabilityRows}, .line = availabilityLine, .most = MaxAvailabilityPoints};
    return shape;
}

std::int32_t mirrored(std::int32_t value) {
    // The least number of a file has no counterpart.
    return value == INT32_MIN ? INT32_MAX : -value;
}

void sortByDate(std::vector<AvailabilityPoint>& points) {
    std::stable_sort(points.begin(), points.end(),
                     [](const AvailabilityPoint& a, const AvailabilityPoint& b) {
                         return std::tie(a.year, a.month) < std::tie(b.year, b.month);
                     });
}

} // namespace varrocade
