#include "tools/checks/rules/weapon_file_rules.h"

#include "data/finding_text.h"
#include "data/format/texts.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"
#include "tools/checks/rules/name_lookup.h"
#include "tools/checks/rules/unit_rules.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_kinds.h"
#include "weapons/weapon_names.h"
#include "weapons/weapon_usage.h"

#include <algorithm>
#include <string>

namespace varrocade {

namespace {

namespace ck = check_key;
namespace wf = weapon_field;

void checkName(const CheckedWeapon& checked) {
    const WeaponRecord& weapon = checked.weapon;
    if (!weapon.name.empty() && !equalsIgnoringCase(weapon.name, checked.fileName)) {
        checked.out.atValue(wf::Name.element, {.key = ck::FileName,
                                               .message = "the weapon calls itself " + quoted(weapon.name) +
                                                          ", its file " + quoted(checked.fileName),
                                               .value = weapon.name,
                                               .expected = std::string(checked.fileName)});
    }
    const std::string_view name = weapon.name.empty() ? checked.fileName : std::string_view(weapon.name);
    const WeaponType ofName = typeOfWeaponName(name);
    // Flamethrowers have one prefix for two types.
    constexpr std::string_view flamethrower = "WEAPON_FLAMETHROWER_";
    const bool isFlame = name.starts_with(flamethrower) && nameOf(weapon.type).starts_with(flamethrower);
    const bool isCalledFlame = name.starts_with(flamethrower) && !isFlame;
    if (isCalledFlame || (ofName != WeaponType::None && ofName != weapon.type && !isFlame)) {
        checked.out.atValue(
            wf::Type.element,
            {.key = ck::NamePrefix,
             .message = quoted(name) + " is not called as a " + std::string(nameOf(weapon.type)),
             .value = std::string(nameOf(weapon.type)),
             .expected = isCalledFlame ? std::string(flamethrower) + "..." : std::string(nameOf(ofName))});
    }
}

void checkAmmo(const CheckedWeapon& checked, std::size_t index) {
    const WeaponRecord& weapon = checked.weapon;
    const AmmoTypeRecord& ammo = weapon.ammoTypes[index];
    const RulePath record;
    const RulePath path(record, weapon_element::Ammo, index + 1);
    const auto usual = flavoursOf(weapon.type);
    const std::string name(nameOf(ammo.flavour));
    if (ammo.flavour != AmmoFlavour::None &&
        std::find(usual.begin(), usual.end(), ammo.flavour) == usual.end()) {
        std::string expected;
        for (const AmmoFlavour flavour : usual) {
            expected += (expected.empty() ? "" : ", ") + std::string(nameOf(flavour));
        }
        checked.out.atValue(path.to(wf::Flavour),
                            {.key = ck::FlavourOfType,
                             .message = std::string(nameOf(weapon.type)) + " does not fire " + name,
                             .value = name,
                             .expected = expected});
    }
    for (std::size_t i = 0; i < index; ++i) {
        if (weapon.ammoTypes[i].flavour == ammo.flavour && weapon.ammoTypes[i].name == ammo.name) {
            checked.out.atValue(path.to(wf::Flavour),
                                {.key = ck::SameFlavour,
                                 .message = name + " is there twice, both times as " + quoted(ammo.name),
                                 .value = name});
            break;
        }
    }
    if (ammo.mass > 0 && ammo.highExplosive > ammo.mass) {
        std::string explosive;
        std::string mass;
        appendShortest(explosive, double{ammo.highExplosive});
        appendShortest(mass, double{ammo.mass});
        checked.out.atValue(path.to(wf::HighExplosive),
                            {.key = ck::MoreExplosiveThanMass,
                             .message = explosive + " kg of explosive in a projectile of " + mass + " kg",
                             .value = explosive,
                             .expected = "less than " + mass});
    }
}

void checkUsageWords(const CheckedWeapon& checked) {
    for (const std::string_view word : usageWords(checked.weapon.period)) {
        if (findPeriod(word) == nullptr) {
            NearestName nearest(word);
            for (const WeaponPeriod& period : weaponPeriods()) {
                nearest.offer(period.word);
            }
            checked.out.atValue(wf::Period.element,
                                {.key = ck::UnknownPeriod,
                                 .message = "the period " + quoted(word) + " is not known",
                                 .value = std::string(word),
                                 .hint = nearest.hint(),
                                 .replacement = nearest.onlyName()});
        }
    }
    for (const std::string_view word : usageWords(checked.weapon.countries)) {
        if (!isCountry(word)) {
            NearestName nearest(word);
            for (const std::string_view name : nationalityNames()) {
                nearest.offer(displayName(name, NationalityPrefix));
            }
            checked.out.atValue(wf::Countries.element,
                                {.key = ck::UnknownCountry,
                                 .message = "the country " + quoted(word) + " is not known",
                                 .value = std::string(word),
                                 .hint = nearest.hint(),
                                 .replacement = nearest.onlyName()});
        }
    }
}

} // namespace

void checkWeapon(const CheckedWeapon& checked) {
    checkName(checked);
    if (checked.weapon.ammoTypes.empty()) {
        checked.out.atElement(checked.out.firstElement(), {.key = ck::NoAmmunition,
                                                           .message = "the weapon has no ammunition",
                                                           .field = std::string(weapon_element::Ammo)});
    }
    for (std::size_t i = 0; i < checked.weapon.ammoTypes.size(); ++i) {
        checkAmmo(checked, i);
    }
    checkUsageWords(checked);
    forEachField(checked.weapon, [&](const FieldPlace& place, const auto& value) {
        if (!place.isStored()) {
            return;
        }
        if constexpr (std::is_convertible_v<decltype(value), std::string_view>) {
            if (place.field.kind == FieldKind::Sound) {
                lookUpSound(checked.knowledge, place.path, value, checked.out);
            } else if (place.field.kind == FieldKind::Image) {
                lookUpPicture(checked.knowledge, place.field.images, place.path, value, checked.out);
            }
        }
    });
}

} // namespace varrocade
