#include "weapons/weapon_usage.h"

#include "data/format/texts.h"
#include "data/unit/enumerations.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

constexpr auto Periods = std::to_array<WeaponPeriod>({
    {"WW1", 1880},
    {"WW2", 1930},
    {"Cold War", 1945},
    {"Modern", 1989},
});

/// The forms of nationalities in old files, and the ones that stand for the same nation today.
constexpr auto NationalitySynonyms = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"Armenia", "Armenian"},
    {"Azerbaijan", "Azerbaijani"},
    {"Finland", "Finnish"},
    {"Kuwati", "Kuwaiti"},
});

bool sameFolded(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return foldedInName(x) == foldedInName(y); });
}

std::string_view nationOf(std::string_view nationality) {
    if (nationality.starts_with(NationalityPrefix)) {
        nationality.remove_prefix(NationalityPrefix.size());
    }
    for (const auto& [old, present] : NationalitySynonyms) {
        if (sameFolded(nationality, old)) {
            return present;
        }
    }
    return nationality;
}

std::string_view itself(std::string_view word) {
    return word;
}

/// Calls `visit` with each word of a list until it gives back true; whether it did.
template <typename Visit>
bool anyWord(std::string_view list, Visit visit) {
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(','), list.size());
        const std::string_view word = trimmed(list.substr(0, comma));
        if (!word.empty() && visit(word)) {
            return true;
        }
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return false;
}

/// Whether one of the words of a list, separated by commas, is the wanted one. A list without words names
/// all.
bool lists(std::string_view list, std::string_view wanted, std::string_view (*meaning)(std::string_view)) {
    bool isEmpty = true;
    return anyWord(list,
                   [&](std::string_view word) {
                       isEmpty = false;
                       return sameFolded(meaning(word), wanted);
                   }) ||
           isEmpty;
}

} // namespace

std::span<const WeaponPeriod> weaponPeriods() {
    return Periods;
}

const WeaponPeriod* findPeriod(std::string_view word) {
    const auto found = std::find_if(Periods.begin(), Periods.end(), [word](const WeaponPeriod& period) {
        return sameFolded(period.word, word);
    });
    return found == Periods.end() ? nullptr : &*found;
}

std::vector<std::string_view> usageWords(std::string_view list) {
    std::vector<std::string_view> words;
    anyWord(list, [&words](std::string_view word) {
        words.push_back(word);
        return false;
    });
    return words;
}

bool isOfPeriod(std::string_view wanted, std::string_view periods) {
    return lists(periods, wanted, itself);
}

bool usesWeapon(std::string_view nationality, std::string_view countries) {
    return lists(countries, nationOf(nationality), nationOf);
}

bool isCountry(std::string_view word) {
    const auto names = nationalityNames();
    return std::any_of(names.begin(), names.end(), [word](std::string_view name) {
        return sameFolded(name.substr(NationalityPrefix.size()), word);
    });
}

} // namespace varrocade
