#include "weapons/ammo_words.h"

#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "weapons/weapon_names.h"

#include <array>
#include <utility>

namespace varrocade {

namespace {

/// The game's own lists have no words for these.
constexpr auto UnlistedFlavours = std::to_array<std::pair<AmmoFlavour, std::string_view>>(
    {{AmmoFlavour::ArtilleryHe, "Artillery HE"}, {AmmoFlavour::ArtillerySmoke, "Artillery smoke"}});

} // namespace

std::string flavourWord(std::string_view flavour) {
    const AmmoFlavour known = flavourOf(flavour);
    if (known == AmmoFlavour::None) {
        return displayName(flavour, "FLAVOUR_");
    }
    for (const auto& [unlisted, word] : UnlistedFlavours) {
        if (known == unlisted) {
            return std::string(word);
        }
    }
    return std::string(displayNameOf(known));
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
