#pragma once
// When and by whom weapons are used: the words of their `period` and `countries`.

#include "data/format/texts.h"

#include <span>
#include <string_view>
#include <vector>

namespace varrocade {

/// A period of the game, with the year from which units may have what came in it. Armies had the weapons of
/// a war before it broke out.
struct WeaponPeriod {
    std::string_view word;
    int firstYear;
};

std::span<const WeaponPeriod> weaponPeriods();

/// The period of a word, letter case aside, or null.
const WeaponPeriod* findPeriod(std::string_view word);

/// The words of a list that is separated by commas, without blanks around them.
std::vector<std::string_view> usageWords(std::string_view list);

/// Identifiers and words for people compare alike: "NORTH_KOREAN" and "North Korean".
constexpr char foldedInName(char c) {
    return c == '_' ? ' ' : lowered(c);
}

/// Whether a list of periods names one, or none at all.
bool isOfPeriod(std::string_view wanted, std::string_view periods);

/// Whether a list of countries names a nationality, as units do ("NATIONALITY_NORTH_KOREAN") or as weapons
/// do, or names none at all.
bool usesWeapon(std::string_view nationality, std::string_view countries);

/// Whether a word of `countries` is one of the game's nationalities.
bool isCountry(std::string_view word);

} // namespace varrocade
