#include "editors/mod/mod_units.h"

#include "data/format/texts.h"
#include "data/unit/older_words.h"
#include "editors/form/form.h"
#include "mod/mod_fields.h"

#include <algorithm>

namespace varrocade {

namespace {

bool isSame(const EquipmentSource& source, const ModListedUnit& unit) {
    return categoryWord(source.category) == unit.category &&
           equalsIgnoringCase(source.fileName, unit.fileName);
}

bool passes(const EquipmentSource& source, const UnitFilter& filter) {
    const std::array<std::string, 1> name = {source.fileName};
    return (!filter.category || *filter.category == source.category) &&
           (filter.nationality.empty() || todaysWord(filter.nationality) == todaysWord(source.nationality)) &&
           (!filter.time || mostAvailable(source.availability, filter.time->first, filter.time->last) > 0) &&
           !fittingChoices(name, filter.words).empty();
}

} // namespace

std::string shownKind(std::string_view word) {
    const std::optional<Category> category = categoryOfWord(word);
    return std::string(category ? categoryName(*category) : word);
}

std::vector<std::size_t> unitsToOffer(const std::vector<EquipmentSource>& sources, const UnitFilter& filter,
                                      const std::vector<ModListedUnit>& listed) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const bool isListed = std::any_of(listed.begin(), listed.end(), [&](const ModListedUnit& unit) {
            return isSame(sources[i], unit);
        });
        if (!isListed && passes(sources[i], filter)) {
            places.push_back(i);
        }
    }
    return places;
}

void listUnits(std::vector<ModListedUnit>& listed, const std::vector<EquipmentSource>& sources,
               std::span<const std::size_t> places, const MonthRange& time) {
    constexpr NumberRange shares = mod_field::Share.range;
    for (const std::size_t place : places) {
        const EquipmentSource& source = sources[place];
        listed.push_back({.fileName = source.fileName,
                          .category = std::string(categoryWord(source.category)),
                          .share = std::clamp(mostAvailable(source.availability, time.first, time.last),
                                              shares.least, shares.greatest)});
    }
}

void unlistUnits(std::vector<ModListedUnit>& listed, std::span<const std::size_t> places) {
    for (std::size_t i = places.size(); i-- > 0;) {
        listed.erase(listed.begin() + static_cast<std::ptrdiff_t>(places[i]));
    }
}

bool isUnitThere(const std::vector<EquipmentSource>& sources, const ModListedUnit& unit) {
    return std::any_of(sources.begin(), sources.end(),
                       [&](const EquipmentSource& source) { return isSame(source, unit); });
}

std::string commonNumber(const std::vector<ModListedUnit>& listed, std::span<const std::size_t> places,
                         std::int32_t ModListedUnit::*member) {
    const bool isCommon =
        !places.empty() && std::all_of(places.begin(), places.end(), [&](std::size_t place) {
            return listed[place].*member == listed[places.front()].*member;
        });
    return isCommon ? std::to_string(listed[places.front()].*member) : std::string();
}

std::array<std::string, 4> listedCells(const std::vector<EquipmentSource>& sources,
                                       const ModListedUnit& unit) {
    return {unit.fileName + (isUnitThere(sources, unit) ? "" : "  (!) there is no such unit"),
            shownKind(unit.category), std::to_string(unit.share),
            unit.cost > 0 ? std::to_string(unit.cost) : std::string()};
}

} // namespace varrocade
