#include "weapons/ammo_words.h"

#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "weapons/weapon_names.h"

namespace varrocade {

std::string flavourWord(std::string_view flavour) {
    const std::string_view known = displayNameOf(flavourOf(flavour));
    if (flavourOf(flavour) != AmmoFlavour::None && !known.empty()) {
        return std::string(known);
    }
    return displayName(flavour, "FLAVOUR_");
}

std::string ammoText(const AmmoLoadRecord& ammo) {
    std::string text = grouped(ammo.rounds);
    if (!ammo.flavour.empty()) {
        text += " " + flavourWord(ammo.flavour);
    }
    return text;
}

std::string ammoFor(std::span<const AmmoLoadRecord> loads, std::string_view weaponType) {
    std::string text;
    for (const AmmoLoadRecord& ammo : loads) {
        if (ammo.weaponType == weaponType) {
            text += (text.empty() ? "" : ", ") + ammoText(ammo);
        }
    }
    return text.empty() ? "-" : text;
}

} // namespace varrocade
