#include "data/format/words.h"

#include "data/format/numbers.h"

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

std::string counted(std::size_t count, std::string_view one) {
    return std::to_string(count) + " " + std::string(one) + (count == 1 ? "" : "s");
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

} // namespace varrocade
