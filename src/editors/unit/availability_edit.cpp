#include "editors/unit/availability_edit.h"

#include "editors/unit/weapon_choices.h"

#include <algorithm>
#include <tuple>

namespace varrocade {

namespace {

constexpr int MonthsPerYear = 12;

bool isEarlier(const AvailabilityPoint& a, const AvailabilityPoint& b) {
    return std::tie(a.year, a.month) < std::tie(b.year, b.month);
}

int monthIndex(const AvailabilityPoint& point) {
    return point.year * MonthsPerYear + std::clamp<int>(point.month, 1, MonthsPerYear) - 1;
}

AvailabilityPoint inMonth(int index, std::uint16_t number) {
    return {static_cast<std::uint8_t>(index % MonthsPerYear + 1),
            static_cast<std::uint16_t>(index / MonthsPerYear), number};
}

} // namespace

AvailabilityPoint nextDate(std::span<const AvailabilityPoint> points) {
    if (points.empty()) {
        return {1, 1940, FirstNumberOfUnits};
    }
    const AvailabilityPoint& last = *std::max_element(points.begin(), points.end(), isEarlier);
    int month = monthIndex(last) + 1;
    if (month / MonthsPerYear <= std::min<int>(lastYearOfEra(last.year), UINT16_MAX)) {
        return inMonth(month, last.number);
    }
    const auto isTaken = [&](int index) {
        return std::any_of(points.begin(), points.end(),
                           [index](const AvailabilityPoint& point) { return monthIndex(point) == index; });
    };
    do {
        --month;
    } while (month > 0 && isTaken(month));
    // As many as there are from the date before.
    std::uint16_t number = last.number;
    int latest = -1;
    for (const AvailabilityPoint& point : points) {
        if (monthIndex(point) <= month && monthIndex(point) > latest) {
            latest = monthIndex(point);
            number = point.number;
        }
    }
    return inMonth(month, number);
}

std::size_t placeOfDate(std::span<const AvailabilityPoint> points, const AvailabilityPoint& added) {
    const auto later = std::find_if(points.rbegin(), points.rend(),
                                    [&](const AvailabilityPoint& point) { return !isEarlier(added, point); });
    return static_cast<std::size_t>(points.rend() - later);
}

std::uint16_t roundNumber(std::uint16_t number, std::uint16_t greatest) {
    constexpr unsigned steps = 50;
    unsigned power = 1;
    while (power * 10 * steps <= greatest) {
        power *= 10;
    }
    unsigned step = power;
    for (const unsigned factor : {2U, 5U, 10U}) {
        if (step * steps < greatest) {
            step = power * factor;
        }
    }
    const unsigned rounded = (number + step / 2) / step * step;
    return static_cast<std::uint16_t>(std::min<unsigned>(rounded, UINT16_MAX));
}

} // namespace varrocade
