#include "data/field_text.h"

#include "data/unit/enumerations.h"

#include <array>
#include <charconv>

namespace varrocade {

namespace {

/// The shortest text that reads back as the same value.
template <typename Real>
std::string shortestText(Real value) {
    std::array<char, 64> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), result.ptr};
}

} // namespace

std::string valueText(bool value) {
    return value ? "yes" : "no";
}

std::string valueText(std::int32_t value) {
    std::string text;
    appendInteger(text, value);
    return text;
}

std::string valueText(float value) {
    return shortestText(value);
}

std::string valueText(double value) {
    return shortestText(value);
}

std::string valueText(std::string_view value) {
    return std::string(value);
}

std::string valueText(const ArmourPlate& value) {
    std::string text = valueText(value.thickness);
    if (value.angle != 0) {
        text += '@';
        appendInteger(text, value.angle);
    }
    return text;
}

std::string valueText(EngineMount value) {
    return std::string(value == EngineMount::Front    ? MountFront
                       : value == EngineMount::Middle ? MountMiddle
                                                      : MountRear);
}

} // namespace varrocade
