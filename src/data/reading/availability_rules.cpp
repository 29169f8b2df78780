// The older availability form: a number a quarter year, turned into dated points.

#include "data/reading/availability_rules.h"

#include "data/format/numbers.h"
#include "data/unit_fields.h"

#include <algorithm>

namespace varrocade::unit_rules {

namespace {

struct Quarter {
    std::int32_t year;
    std::int32_t quarter;
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Reads digits, "Q" and one digit.
std::optional<Quarter> quarterOf(std::string_view name) {
    const std::size_t q = name.find('Q');
    if (q == 0 || q == std::string_view::npos || q + 2 != name.size() || !isDigit(name[q + 1]) ||
        !std::all_of(name.begin(), name.begin() + static_cast<std::ptrdiff_t>(q), isDigit)) {
        return std::nullopt;
    }
    return Quarter{std::clamp(toInteger(name.substr(0, q)), 1000, 5000),
                   std::clamp(toInteger(name.substr(q + 1)), 1, 4)};
}

} // namespace

void addQuarter(Reading& reading, std::string_view name, std::string_view text) {
    const std::optional<Quarter> quarter = quarterOf(name);
    if (!quarter) {
        return;
    }
    reading.record.convertedAvailability = true;
    reading.point = nullptr;
    const auto number = toClamped<std::uint16_t>(text);
    if (reading.trace != nullptr) {
        reading.trace->noteConverted(&field::NumberOfUnits, valueText(std::int32_t{number}));
    }
    if (number == 0) {
        if (reading.trace != nullptr) {
            reading.trace->noteLeftOut("a quarter without units becomes no point");
        }
        return;
    }
    std::vector<AvailabilityPoint>& points = reading.record.availability;
    // The last month of the quarter, but the first one for the second point: so the game converts them.
    const std::int32_t month = points.size() == 1 ? 3 * quarter->quarter - 2 : 3 * quarter->quarter;
    const AvailabilityPoint point{static_cast<std::uint8_t>(month), static_cast<std::uint16_t>(quarter->year),
                                  number};
    const std::size_t count = points.size();
    if (count > 1 && points[count - 1].number == number && points[count - 2].number == number) {
        points.back() = point;
    } else if (count < MaxAvailabilityPoints) {
        points.push_back(point);
    } else {
        tag_rules::reportLeftOut(reading, "more than 255 availability points");
    }
}

} // namespace varrocade::unit_rules
