#include "app/workspace/names/unit_start.h"

#include "data/unit/enumerations.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/members.h"
#include "editors/unit/carried_ammo.h"
#include "weapons/weapon_usage.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view PictureBegin = "Image-";
constexpr std::string_view GunEnd = " gun";

void addCrew(SquadRecord& unit, const UnitStart& start, const WeaponCatalogue& catalogue) {
    CrewManRecord man;
    if (!start.arms.empty()) {
        man.weapons = {start.arms};
        man.ammo = usualLoads(catalogue, start.arms, WeaponBearer::Man);
    }
    addMen(unit, man, static_cast<std::size_t>(std::max(start.men, 0)), std::nullopt);
    if (!unit.infantrymen.empty()) {
        unit.infantrymen.front().job = squadJobNames().front();
    }
}

/// Arms a heavy weapon or an aircraft.
void mount(auto& bearer, const Text& type, const WeaponCatalogue& catalogue, WeaponBearer kind) {
    if (!type.empty()) {
        bearer.weapons.emplace_back().type = type;
        bearer.ammo = usualLoads(catalogue, type, kind);
    }
}

WeaponType typeOfKind(HeavyWeaponKind kind) {
    switch (kind) {
    case HeavyWeaponKind::Mortar:
        return WeaponType::Mortar;
    case HeavyWeaponKind::Hmg:
        return WeaponType::Hmg;
    case HeavyWeaponKind::RecoillessRifle:
        return WeaponType::RecoillessRifle;
    case HeavyWeaponKind::AtGun:
        break;
    }
    return WeaponType::Cannon;
}

/// The weapon of the type that is most the nation's own, by the order in which the weapon's file names its
/// countries; none where there is none. With `pictures` those that have one of them go first.
Text ownOfType(std::span<const std::string> weapons, WeaponType type, std::string_view nationality,
               const WeaponCatalogue& catalogue, std::span<const std::string> pictures = {}) {
    Text own;
    std::pair<bool, std::size_t> least{true, std::string::npos};
    for (const std::string& name : weapons) {
        const WeaponRecord& weapon = *catalogue.find(name);
        const auto countries = usageWords(weapon.countries);
        const auto nation = std::find_if(countries.begin(), countries.end(), [&](std::string_view country) {
            return usesWeapon(nationality, country);
        });
        const std::pair<bool, std::size_t> rank{pictureOfWeapon(name, pictures).empty(),
                                                static_cast<std::size_t>(nation - countries.begin())};
        if (weapon.type == type && rank < least) {
            least = rank;
            own = std::string_view(name);
        }
    }
    return own;
}

/// A name without what sets its words apart.
std::string lettersOf(std::string_view name) {
    std::string bare;
    for (const char c : name) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
            bare += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return bare;
}

/// How many characters the words of a picture's name have that all stand in a weapon's, calibres without
/// their unit; 0 where one does not.
std::size_t lengthOfWords(std::string_view stem, std::string_view weapon) {
    std::size_t length = 0;
    while (!stem.empty()) {
        const std::size_t blank = std::min(stem.find(' '), stem.size());
        std::string word = lettersOf(stem.substr(0, blank));
        stem.remove_prefix(std::min(blank + 1, stem.size()));
        if (word.ends_with("mm")) {
            word.resize(word.size() - 2);
        }
        if (weapon.find(word) == std::string_view::npos) {
            return 0;
        }
        length += word.size();
    }
    return length;
}

std::vector<std::string> weaponsOf(std::string_view nationality, WeaponBearer bearer,
                                   const WeaponCatalogue& catalogue) {
    SquadRecord unit;
    unit.nationality = nationality;
    return weaponChoices(catalogue, unit, bearer, false);
}

void dressGun(HeavyWeaponRecord& gun, const UnitStart& start,
              const std::function<bool(std::string_view)>& hasPicture) {
    gun.gunImage = start.picture;
    const std::string_view name = start.picture;
    if (!name.starts_with(PictureBegin) || !name.ends_with(GunEnd)) {
        return;
    }
    const std::string stem(
        name.substr(PictureBegin.size(), name.size() - PictureBegin.size() - GunEnd.size()));
    const auto take = [&](Text& image, const std::string& picture) {
        if (hasPicture(picture)) {
            image = std::string_view(picture);
        }
    };
    take(gun.baseImage, std::string(PictureBegin) + stem + " base");
    take(gun.profileImage, "Profile-" + stem);
}

} // namespace

std::string pictureOfWeapon(std::string_view weapon, std::span<const std::string> pictures) {
    const std::string bare = lettersOf(weapon);
    std::string best;
    std::size_t longest = 2; // fewer characters are no name
    for (const std::string& picture : pictures) {
        std::string_view stem = picture;
        stem.remove_prefix(stem.starts_with(PictureBegin) ? PictureBegin.size() : 0);
        stem.remove_suffix(stem.ends_with(GunEnd) ? GunEnd.size() : 0);
        if (const std::size_t length = lengthOfWords(stem, bare); length > longest) {
            longest = length;
            best = picture;
        }
    }
    return best;
}

std::vector<std::string> startWeapons(Category category, std::string_view nationality, HeavyWeaponKind kind,
                                      const WeaponCatalogue& catalogue) {
    const bool isGun = category == Category::AtGuns;
    std::vector<std::string> weapons =
        weaponsOf(nationality, isGun ? WeaponBearer::HeavyWeapon : WeaponBearer::Aircraft, catalogue);
    if (isGun) {
        std::stable_partition(weapons.begin(), weapons.end(), [&](const std::string& name) {
            return catalogue.find(name)->type == typeOfKind(kind);
        });
    }
    return weapons;
}

UnitStart suggestedStart(Category category, std::string_view nationality, HeavyWeaponKind kind,
                         const WeaponCatalogue& catalogue, std::span<const std::string> pictures) {
    constexpr std::int32_t riflemen = 10;
    constexpr std::int32_t gunners = 5;
    UnitStart start{.kind = kind};
    const bool isGun = category == Category::AtGuns;
    if (isGun || category == Category::Infantry) {
        start.men = isGun ? gunners : riflemen;
        start.arms = ownOfType(weaponsOf(nationality, WeaponBearer::Man, catalogue), WeaponType::Rifle,
                               nationality, catalogue);
    }
    if (isGun) {
        start.weapon = ownOfType(startWeapons(category, nationality, kind, catalogue), typeOfKind(kind),
                                 nationality, catalogue, pictures);
        start.picture = std::string_view(pictureOfWeapon(start.weapon, pictures));
    } else if (category == Category::Aircraft) {
        start.weapon = ownOfType(startWeapons(category, nationality, kind, catalogue), WeaponType::Hmg,
                                 nationality, catalogue);
    }
    return start;
}

void beginWith(SquadRecord& unit, Category category, const UnitStart& start, const WeaponCatalogue& catalogue,
               const std::function<bool(std::string_view picture)>& hasPicture) {
    if (category == Category::Infantry) {
        addCrew(unit, start, catalogue);
    } else if (category == Category::AtGuns) {
        HeavyWeaponRecord& gun = *unit.heavyWeapon;
        gun.kind = start.kind;
        unit.type = unitTypeOf(start.kind);
        dressGun(gun, start, hasPicture);
        mount(gun, start.weapon, catalogue, WeaponBearer::HeavyWeapon);
        addCrew(unit, start, catalogue);
    } else if (category == Category::Aircraft) {
        unit.aircraft->image = start.picture;
        mount(*unit.aircraft, start.weapon, catalogue, WeaponBearer::Aircraft);
    }
}

} // namespace varrocade
