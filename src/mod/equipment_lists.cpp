#include "mod/equipment_lists.h"

#include "data/reading/unit_reader.h"
#include "data/unit/older_words.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

constexpr int MonthsOfYear = 12;
constexpr int MostSingleYears = 12;
constexpr int YearsOfLongWars = 5;
constexpr int LongestWar = 300; ///< in years; files may say anything
constexpr int LastYearOfAll = 9999;

int monthCount(int year, int month) {
    return std::clamp(year, -LastYearOfAll, LastYearOfAll) * MonthsOfYear +
           std::clamp(month, 1, MonthsOfYear) - 1;
}

/// The units of a nationality from one month to another, both with them.
std::vector<ModListedUnit> unitsOfTime(const std::vector<EquipmentSource>& units,
                                       std::string_view nationality, int first, int last) {
    std::vector<ModListedUnit> listed;
    for (const EquipmentSource& unit : units) {
        const int most = todaysWord(unit.nationality) == todaysWord(nationality)
                             ? mostAvailable(unit.availability, first, last)
                             : 0;
        if (most > 0) {
            listed.push_back({.fileName = unit.fileName,
                              .category = std::string(categoryWord(unit.category)),
                              .share = most});
        }
    }
    return listed;
}

std::string nameOfTime(const ModPeriod& period) {
    const std::string first = std::to_string(period.firstYear);
    return period.firstYear == period.lastYear ? first : first + "-" + std::to_string(period.lastYear);
}

} // namespace

MonthRange monthsOf(const ModSettings& war, const ModPeriod& period) {
    return {.first = period.firstYear != 0 ? monthCount(period.firstYear, period.firstMonth)
                                           : monthCount(war.firstYear, war.firstMonth),
            .last = period.lastYear != 0 ? monthCount(period.lastYear, period.lastMonth)
                                         : monthCount(war.lastYear, war.lastMonth)};
}

int mostAvailable(const std::vector<AvailabilityPoint>& points, int firstMonth, int lastMonth) {
    std::vector<std::pair<int, int>> timeline;
    timeline.reserve(points.size());
    for (const AvailabilityPoint& point : points) {
        timeline.emplace_back(monthCount(point.year, point.month), point.number);
    }
    std::stable_sort(timeline.begin(), timeline.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    int most = 0;
    for (std::size_t i = 0; i < timeline.size(); ++i) {
        const bool lasts = i + 1 == timeline.size() || timeline[i + 1].first > firstMonth;
        if (timeline[i].first <= lastMonth && lasts) {
            most = std::max(most, timeline[i].second);
        }
    }
    return most;
}

std::vector<ModEquipment> equipmentOf(const ModSettings& war, std::string_view nationality,
                                      const std::vector<EquipmentSource>& units) {
    const int firstYear = std::clamp(war.firstYear, -LastYearOfAll, LastYearOfAll);
    const int lastYear =
        std::clamp(war.lastYear, -LastYearOfAll, std::min(firstYear + LongestWar, LastYearOfAll));
    const int step = lastYear - firstYear < MostSingleYears ? 1 : YearsOfLongWars;
    std::vector<ModEquipment> lists;
    for (int year = firstYear; year <= lastYear; year += step) {
        const ModPeriod period{.firstYear = year, .lastYear = std::min(year + step - 1, lastYear)};
        const int begin = monthCount(year, year == firstYear ? war.firstMonth : 1);
        const int end =
            monthCount(period.lastYear, period.lastYear == lastYear ? war.lastMonth : MonthsOfYear);
        std::vector<ModListedUnit> listed = unitsOfTime(units, nationality, begin, end);
        const bool goesOn =
            !lists.empty() && lists.back().units == listed && lists.back().period.lastYear == year - 1;
        if (goesOn) {
            lists.back().period.lastYear = period.lastYear;
            lists.back().name = nameOfTime(lists.back().period);
        } else if (!listed.empty()) {
            lists.push_back({.name = nameOfTime(period), .period = period, .units = std::move(listed)});
        }
    }
    return lists;
}

void listEquipment(ModSettings& settings, const std::vector<EquipmentSource>& units) {
    for (ModNationality& nation : settings.nationalities) {
        nation.equipment = equipmentOf(settings, nation.id, units);
    }
}

std::vector<EquipmentSource> readEquipmentSources(const GameFolders& folders,
                                                  std::vector<FileFailure>* failures) {
    std::vector<EquipmentSource> units;
    const auto tell = [&](const std::vector<FileFailure>& more) {
        if (failures != nullptr) {
            failures->insert(failures->end(), more.begin(), more.end());
        }
    };
    for (const Category category : AllCategories) {
        if (category == Category::Weapons) {
            continue;
        }
        GameFileList list = listGameFiles(folders, category);
        tell(list.failures);
        GameFileWalk walk(std::move(list.files));
        walk.run([&](const GameFile& file, std::string_view content) {
            Diagnostics ignored;
            SquadRecord unit = readUnit(content, file.name, ignored);
            units.push_back({category, file.name, std::string(std::string_view(unit.nationality)),
                             std::move(unit.availability)});
        });
        tell(walk.failures());
    }
    return units;
}

} // namespace varrocade
