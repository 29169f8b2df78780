#include "app/workspace/names/unit_start.h"

#include "data/unit/enumerations.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/members.h"

#include <algorithm>

namespace varrocade {

namespace {

void addCrew(SquadRecord& unit, const UnitStart& start, const Text& weapon) {
    CrewManRecord man;
    if (!weapon.empty()) {
        man.weapons = {weapon};
    }
    addMen(unit, man, static_cast<std::size_t>(std::max(start.men, 0)), std::nullopt);
    if (!unit.infantrymen.empty()) {
        unit.infantrymen.front().job = squadJobNames().front();
    }
}

void addMounted(std::vector<WeaponMountRecord>& weapons, const Text& type) {
    if (!type.empty()) {
        weapons.emplace_back().type = type;
    }
}

void dressGun(HeavyWeaponRecord& gun, const UnitStart& start,
              const std::function<bool(std::string_view)>& hasPicture) {
    constexpr std::string_view begin = "Image-";
    constexpr std::string_view end = " gun";
    gun.gunImage = start.picture;
    const std::string_view name = start.picture;
    if (!name.starts_with(begin) || !name.ends_with(end)) {
        return;
    }
    const std::string stem(name.substr(begin.size(), name.size() - begin.size() - end.size()));
    const auto take = [&](Text& image, const std::string& picture) {
        if (hasPicture(picture)) {
            image = std::string_view(picture);
        }
    };
    take(gun.baseImage, std::string(begin) + stem + " base");
    take(gun.profileImage, "Profile-" + stem);
}

} // namespace

void beginWith(SquadRecord& unit, Category category, const UnitStart& start,
               const std::function<bool(std::string_view picture)>& hasPicture) {
    if (category == Category::Infantry) {
        addCrew(unit, start, start.weapon);
    } else if (category == Category::AtGuns) {
        HeavyWeaponRecord& gun = *unit.heavyWeapon;
        gun.kind = start.kind;
        unit.type = unitTypeOf(start.kind);
        dressGun(gun, start, hasPicture);
        addMounted(gun.weapons, start.weapon);
        addCrew(unit, start, {});
    } else if (category == Category::Aircraft) {
        unit.aircraft->image = start.picture;
        addMounted(unit.aircraft->weapons, start.weapon);
    }
}

} // namespace varrocade
