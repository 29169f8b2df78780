#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

namespace {

namespace ck = check_key;

/// The years of the game's battles, with some room at both ends.
constexpr std::int32_t FirstYear = 1860;
constexpr std::int32_t LastYear = 2050;

std::int32_t monthsOf(const AvailabilityPoint& point) {
    return point.year * 12 + point.month;
}

std::string dateText(const AvailabilityPoint& point) {
    return std::to_string(point.month) + "/" + std::to_string(point.year);
}

/// Whether sorting is all that is to be done: of a date that stands twice, or that is none, a part is wrong.
bool isSortable(std::span<const AvailabilityPoint> points) {
    constexpr std::uint8_t lastMonth = 12;
    if (std::any_of(points.begin(), points.end(), [](const AvailabilityPoint& point) {
            return point.month == 0 || point.month > lastMonth;
        })) {
        return false;
    }
    std::vector<std::int32_t> dates(points.size());
    std::transform(points.begin(), points.end(), dates.begin(), monthsOf);
    std::sort(dates.begin(), dates.end());
    return std::adjacent_find(dates.begin(), dates.end()) == dates.end();
}

} // namespace

void checkAvailability(const CheckedUnit& checked) {
    const auto& points = checked.unit.availability;
    const auto isThere = [](const AvailabilityPoint& point) { return point.number > 0; };
    if (std::none_of(points.begin(), points.end(), isThere)) {
        checked.out.atFile({.key = ck::NoAvailability,
                            .message = points.empty() ? "the unit has no dates of availability"
                                                      : "the unit never has a number above 0"});
        return;
    }
    const std::int32_t first = checked.knowledge.mod ? checked.knowledge.mod->firstYear : FirstYear;
    const std::int32_t last = checked.knowledge.mod ? checked.knowledge.mod->lastYear : LastYear;
    // What is there before a mod begins is there in it, too.
    const bool isOver = std::all_of(points.begin(), points.end(),
                                    [&](const AvailabilityPoint& point) { return point.year < first; }) &&
                        points.back().number == 0;
    const RulePath unit;
    const bool canSort = isSortable(points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const RulePath path(unit, element::Availability, i + 1);
        if (i > 0 && monthsOf(points[i]) <= monthsOf(points[i - 1])) {
            const bool isYear = points[i].year < points[i - 1].year;
            checked.out.atValue(isYear ? path.to(field::Year) : path.to(field::Month),
                                {.key = ck::AvailabilityOrder,
                                 .message = dateText(points[i]) + " stands behind " + dateText(points[i - 1]),
                                 .value = std::to_string(isYear ? points[i].year : points[i].month),
                                 .expected = "a date after " + dateText(points[i - 1]),
                                 .hint = canSort ? "sort the points" : ""});
        }
        const bool isEarly = points[i].year < FirstYear || (isOver && i + 1 == points.size());
        if (isEarly || points[i].year > std::min(last, LastYear)) {
            checked.out.atValue(path.to(field::Year),
                                {.key = ck::AvailabilityYears,
                                 .message = std::to_string(points[i].year) +
                                            " lies outside of the years of the " +
                                            (checked.knowledge.mod ? "mod" : "game"),
                                 .value = std::to_string(points[i].year),
                                 .expected = std::to_string(first) + " to " + std::to_string(last)});
        }
    }
}

} // namespace varrocade
