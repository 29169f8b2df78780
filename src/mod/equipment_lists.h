#pragma once
// Equipment lists from the units that there are.

#include "data/category.h"
#include "data/finding.h"
#include "data/game_files.h"
#include "data/unit/unit_record.h"
#include "mod/mod_record.h"

#include <string>
#include <vector>

namespace varrocade {

/// How many units of a kind there were at most in a time, months counted from January of year 0, both ends
/// with it. A unit's number holds from the date of its point on.
int mostAvailable(const std::vector<AvailabilityPoint>& points, int firstMonth, int lastMonth);

/// The first and the last month of a time, counted in that way.
struct MonthRange {
    int first = 0;
    int last = 0;
};
/// A period within the war that a mod covers, which an open end of it goes to.
MonthRange monthsOf(const ModSettings& war, const ModPeriod& period);

/// A unit that may be listed.
struct EquipmentSource {
    Category category = Category::Vehicles;
    std::string fileName;
    std::string nationality;
    std::vector<AvailabilityPoint> availability;
};

/// Lists of what a nationality had in the mod's war: one for each year, or for each five years of a war of
/// more than twelve; neighbours that are alike become one. A unit's share is the greatest number of it in
/// that time.
std::vector<ModEquipment> equipmentOf(const ModSettings& war, std::string_view nationality,
                                      const std::vector<EquipmentSource>& units);

/// Gives every nationality of the settings such lists in place of those that it has.
void listEquipment(ModSettings& settings, const std::vector<EquipmentSource>& units);

/// The units of a game; `failures`, where it is given, takes the files that could not be read.
std::vector<EquipmentSource> readEquipmentSources(const GameFolders& folders,
                                                  std::vector<FileFailure>* failures = nullptr);

} // namespace varrocade
