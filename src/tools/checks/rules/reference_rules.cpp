#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"
#include "tools/checks/rules/name_lookup.h"
#include "tools/checks/rules/unit_rules.h"
#include "view/sheet/missing_files.h"
#include "weapons/weapon_names.h"

#include <algorithm>

namespace varrocade {

namespace {

namespace ck = check_key;

constexpr auto FlagFolder = std::to_array<ImageSource>({{image_folder::StaticFlags}});

std::vector<std::string_view> weaponNames(const CheckKnowledge& knowledge) {
    std::vector<std::string_view> names;
    for (const CatalogueEntry& entry : knowledge.catalogue->entries()) {
        names.emplace_back(entry.weapon.fileName);
    }
    return names;
}

void lookUpWeapon(const CheckedUnit& checked, const FieldPath& path, std::string_view name) {
    if (name.empty() || !checked.knowledge.knowsWeapons) {
        return;
    }
    const WeaponRecord* weapon = checked.knowledge.findWeapon(name);
    if (weapon == nullptr) {
        const NearestName nearest = NearestName(name).offerAll(weaponNames(checked.knowledge));
        checked.out.atValue(path.text(), {.key = finding_key::UnknownWeapon,
                                          .message = "there is no weapon file " + quoted(name),
                                          .value = std::string(name),
                                          .expected = "a file in Data/Weapons/",
                                          .hint = nearest.hint(),
                                          .replacement = nearest.onlyName()});
    } else if (weapon->fileName != name && weapon->name != name) {
        checked.out.atValue(path.text(), {.key = ck::WeaponCase,
                                          .message = quoted(name) + " is called " + quoted(weapon->fileName),
                                          .value = std::string(name),
                                          .expected = weapon->fileName,
                                          .hint = "write " + quoted(weapon->fileName),
                                          .replacement = weapon->fileName});
    }
}

/// A flavour must be one that the weapon has.
void lookUpFlavour(const CheckedUnit& checked, const AmmoLoadRecord& load, const RulePath& path,
                   std::size_t index) {
    const AmmoFlavour flavour = flavourOf(load.flavour);
    const WeaponRecord* weapon =
        flavour == AmmoFlavour::None ? nullptr : checked.knowledge.findWeapon(load.weaponType);
    if (weapon == nullptr || weapon->ammoTypes.empty()) {
        return;
    }
    if (std::any_of(weapon->ammoTypes.begin(), weapon->ammoTypes.end(),
                    [flavour](const AmmoTypeRecord& ammo) { return ammo.flavour == flavour; })) {
        return;
    }
    std::string had;
    for (const AmmoTypeRecord& ammo : weapon->ammoTypes) {
        had += (had.empty() ? "" : ", ") + std::string(nameOf(ammo.flavour));
    }
    checked.out.atValue(RulePath(path, element::Ammo, index + 1).to(field::Flavour),
                        {.key = ck::MissingFlavour,
                         .message = load.weaponType.str() + " has no " + load.flavour.str(),
                         .value = load.flavour.str(),
                         .expected = had,
                         .hint = "it has " + had,
                         .replacement = weapon->ammoTypes.size() == 1 ? had : std::string()});
}

/// A uniform is a picture, or one that a mod names. A name like that of a picture means the picture.
void lookUpUniform(const CheckedUnit& checked, const FieldPlace& place, std::string_view name) {
    const std::string_view picture = imageNameOf(name);
    if (findPicture(checked.knowledge, place.field.images, picture) != nullptr || picture != name) {
        lookUpPicture(checked.knowledge, place.field.images, place.path, picture, checked.out);
        return;
    }
    constexpr std::size_t slip = 2;
    for (const std::string_view known : checked.knowledge.files.stems(image_folder::Uniforms, ImageEnding)) {
        if (editDistance(name, known, slip) <= slip) {
            lookUpPicture(checked.knowledge, place.field.images, place.path, picture, checked.out);
            return;
        }
    }
}

/// A record's word may be newer than its file's.
void lookUpWord(const CheckedUnit& checked, const FieldPlace& place, std::string_view name,
                std::span<const std::string_view> words) {
    if (!name.empty() && std::find(words.begin(), words.end(), name) == words.end()) {
        const NearestName nearest = NearestName(name).offerAll(words);
        checked.out.atValue(place.path.text(),
                            {.key = finding_key::UnknownWord,
                             .message = std::string(place.field.label) + " " + quoted(name) + " is not known",
                             .value = std::string(name),
                             .expected = "one of " + std::to_string(words.size()) + " words",
                             .hint = nearest.hint(),
                             .replacement = nearest.onlyName()});
    }
}

/// Without lists of all files: whether this value's is there.
void lookUpFile(const CheckedUnit& checked, const FieldPlace& place, std::string_view name) {
    if (auto missing = missingFile(place, name, checked.knowledge.bases)) {
        checked.out.atValue(std::move(*missing));
    }
}

void lookUp(const CheckedUnit& checked, const FieldPlace& place, std::string_view name) {
    if (!checked.knowledge.bases.empty()) {
        lookUpFile(checked, place, name);
    }
    const bool isDefault = isDefaultImage(name);
    switch (place.field.kind) {
    case FieldKind::Word:
    case FieldKind::Nationality:
        lookUpWord(checked, place, name, place.field.words());
        break;
    case FieldKind::Flavour:
        if (flavourOf(name) == AmmoFlavour::None) {
            lookUpWord(checked, place, name, flavourNames());
        }
        break;
    case FieldKind::Weapon:
        lookUpWeapon(checked, place.path, name);
        break;
    case FieldKind::Image:
        if (!isDefault && &place.field == &field::ViewImage) {
            const bool isHull = place.holder == Holder::Hull;
            lookUpPicture(checked.knowledge, isHull ? image_sources::Hull : image_sources::Turret, place.path,
                          name, checked.out);
        } else if (!isDefault) {
            lookUpPicture(checked.knowledge, place.field.images, place.path, name, checked.out);
        }
        break;
    case FieldKind::Uniform:
        if (!name.empty() && !isDefault) {
            lookUpUniform(checked, place, name);
        }
        break;
    case FieldKind::Sound:
        lookUpSound(checked.knowledge, place.path, name, checked.out);
        break;
    default:
        break;
    }
}

void lookUpFlag(const CheckedUnit& checked) {
    const std::string_view nationality = checked.unit.nationality;
    const auto names = nationalityNames();
    if (!checked.knowledge.files.hasFolder(image_folder::StaticFlags, ImageEnding) ||
        std::find(names.begin(), names.end(), nationality) == names.end()) {
        return;
    }
    const std::string flag = loweredText(nationality.substr(NationalityPrefix.size()));
    if (findPicture(checked.knowledge, FlagFolder, flag) == nullptr) {
        checked.out.atValue(field::Nationality.element,
                            {.key = ck::MissingFlag,
                             .message = displayName(nationality, NationalityPrefix) + " units have no flag",
                             .value = std::string(nationality),
                             .expected = "Images/Flags/Static/" + flag + ".png"});
    }
}

} // namespace

void checkReferences(const CheckedUnit& checked) {
    forEachField(checked.unit, [&](const FieldPlace& place, const auto& value) {
        if constexpr (std::is_convertible_v<decltype(value), std::string_view>) {
            if (place.field.kind != FieldKind::Prose && place.isStored()) {
                lookUp(checked, place, value);
            }
        }
    });
    const auto checkLoads = [&](const std::vector<AmmoLoadRecord>& loads, const RulePath& path) {
        for (std::size_t i = 0; i < loads.size(); ++i) {
            lookUpFlavour(checked, loads[i], path, i);
        }
    };
    forEachArmed(checked.unit,
                 [&](const auto& armed, const RulePath& path) { checkLoads(armed.ammo, path); });
    const RulePath record;
    for (std::size_t i = 0; i < checked.unit.infantrymen.size(); ++i) {
        checkLoads(checked.unit.infantrymen[i].ammo, RulePath(record, element::Man, i + 1));
    }
    lookUpFlag(checked);
}

} // namespace varrocade
