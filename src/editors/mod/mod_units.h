#pragma once
// The two sides of an equipment list's dialog: the units that there are, and those that are listed.

#include "mod/equipment_lists.h"
#include "mod/mod_record.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Which units are offered.
struct UnitFilter {
    std::string_view words;                ///< that names must hold
    std::optional<Category> category = {}; ///< none: of any
    std::string_view nationality = {};     ///< empty: of any
    std::optional<MonthRange> time = {};   ///< in which they must have existed
};

/// The places of the units that pass and are not listed yet.
std::vector<std::size_t> unitsToOffer(const std::vector<EquipmentSource>& sources, const UnitFilter& filter,
                                      const std::vector<ModListedUnit>& listed);

/// Adds units behind the listed ones. The share of each is the greatest number of it in a time.
void listUnits(std::vector<ModListedUnit>& listed, const std::vector<EquipmentSource>& sources,
               std::span<const std::size_t> places, const MonthRange& time);

/// Takes units out, by their places in rising order.
void unlistUnits(std::vector<ModListedUnit>& listed, std::span<const std::size_t> places);

/// Whether there is a file of a listed unit's name and kind.
bool isUnitThere(const std::vector<EquipmentSource>& sources, const ModListedUnit& unit);

/// A number that all chosen units have alike, as text; empty where they differ.
std::string commonNumber(const std::vector<ModListedUnit>& listed, std::span<const std::size_t> places,
                         std::int32_t ModListedUnit::*member);

/// What a kind of units is called; a word that names none, as it is.
std::string shownKind(std::string_view word);

/// Name, kind, share and cost of a listed unit; the name of one that is missing says so.
std::array<std::string, 4> listedCells(const std::vector<EquipmentSource>& sources,
                                       const ModListedUnit& unit);

} // namespace varrocade
