#include "view/sheet/sheet_text.h"

#include "data/format/numbers.h"
#include "data/unit/enumerations.h"
#include "weapons/weapon_names.h"

namespace varrocade {

std::string grouped(std::int32_t value) {
    std::string digits = std::to_string(value);
    const std::size_t first = value < 0 ? 1 : 0;
    for (std::size_t place = digits.size(); place > first + 3;) {
        place -= 3;
        digits.insert(place, ",");
    }
    return digits;
}

std::string centimetres(std::int32_t value) {
    return value > 0 ? std::to_string(value) + " cm" : "-";
}

std::string yesNo(bool value) {
    return value ? "yes" : "no";
}

std::string powerToWeight(std::int32_t horsepower, std::int32_t kilograms) {
    if (kilograms <= 0) {
        return "-";
    }
    constexpr double kilogramsPerTon = 1000;
    std::string text;
    appendFixed(text, horsepower * kilogramsPerTon / kilograms, 1);
    return text + " hp/t";
}

std::string weaponWord(std::string_view weaponType) {
    if (weaponType.starts_with(WeaponPrefix)) {
        weaponType.remove_prefix(WeaponPrefix.size());
    }
    // The kind of weapon reads as a word, its designation stays in capitals.
    std::string words;
    bool isKind = true;
    for (const char c : weaponType) {
        if (c == '_') {
            isKind = false;
            words += ' ';
        } else {
            const bool lower = isKind && !words.empty() && c >= 'A' && c <= 'Z' && weaponType.find('_') > 3;
            words += lower ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }
    return words;
}

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
