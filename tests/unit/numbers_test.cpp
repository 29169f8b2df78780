#include "data/numbers.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace varrocade::tests {

TEST(Numbers, ReadsIntegersLeniently) {
    struct Case {
        std::string_view text;
        std::int32_t value;
    };
    const std::vector<Case> cases = {
        {"", 0},
        {"0", 0},
        {"42", 42},
        {" \t\r\n\v\f42", 42},
        {"+7", 7},
        {"-7", -7},
        {"- 7", 0},
        {"--7", 0},
        {"45@30", 45},
        {"12.9", 12},
        {"1e3", 1},
        {"0x10", 0},
        {"none", 0},
        {"@30", 0},
        {"000000000000000000000012", 12},
        {"2147483647", INT32_MAX},
        {"2147483648", INT32_MAX},
        {"-2147483648", INT32_MIN},
        {"-2147483649", INT32_MIN},
        {"99999999999999999999999999", INT32_MAX},
        {"-99999999999999999999999999", INT32_MIN},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(toInteger(c.text), c.value) << c.text;
    }
    EXPECT_EQ(toInteger(std::string_view("123456").substr(1, 3)), 234) << "reads beyond its text";
}

TEST(Numbers, ClampsToNarrowerTypes) {
    EXPECT_EQ(toClamped<std::uint8_t>("255"), 255);
    EXPECT_EQ(toClamped<std::uint8_t>("256"), 255);
    EXPECT_EQ(toClamped<std::uint8_t>("-1"), 0);
    EXPECT_EQ(toClamped<std::uint16_t>("70000"), 65535);
    EXPECT_EQ(toClamped<std::int16_t>("40000"), 32767);
    EXPECT_EQ(toClamped<std::int16_t>("-40000"), -32768);
    EXPECT_EQ(toClamped<std::int16_t>("-123"), -123);
}

TEST(Numbers, ReadsRealNumbersLeniently) {
    struct Case {
        std::string text;
        double value;
    };
    constexpr double largest = std::numeric_limits<double>::max();
    const std::vector<Case> cases = {
        {"", 0},
        {".", 0},
        {"7.92", 7.92},
        {"  -0.5kg", -0.5},
        {"+3.", 3},
        {".25", 0.25},
        {"-.25", -0.25},
        {"1e3", 1000},
        {"1E-2", 0.01},
        {"2e", 2},
        {"2e+", 2},
        {"1,5", 1},
        {"abc", 0},
        {"nan", 0},
        {"inf", 0},
        {"-infinity", 0},
        {"0x1p4", 0},
        {"1e999", largest},
        {"-1e999", -largest},
        {"1e-999", 0},
        {std::string(400, '1') + "e-5", largest},
        {"0." + std::string(350, '0') + "1e20", 0},
        {"00." + std::string(400, '0') + "1e1", 0},
        {std::string(320, '1') + ".5e-2", largest},
        {"1e99999999999", largest},
        {"0.0000001", 1e-7},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(toReal(c.text), c.value) << c.text;
    }
    const std::string zeros(400, '0');
    EXPECT_EQ(toReal("0." + zeros + "1"), 0.0) << "too small without an exponent";
    EXPECT_EQ(toReal("1" + zeros), largest) << "too large without an exponent";
    EXPECT_EQ(toReal("1" + zeros + ".5"), largest);
}

TEST(Numbers, ClampsRealNumbersToFloats) {
    EXPECT_EQ(toFloat("7.92"), 7.92F);
    EXPECT_EQ(toFloat("1e39"), std::numeric_limits<float>::max());
    EXPECT_EQ(toFloat("-1e300"), -std::numeric_limits<float>::max());
    EXPECT_EQ(toFloat("1e-300"), 0.0F);
    EXPECT_EQ(toFloat("3.4028236e38"), std::numeric_limits<float>::max())
        << "rounds beyond the largest float";
}

TEST(Numbers, WritesFloatsAsTheGamesFilesHaveThem) {
    struct Case {
        float value;
        std::string_view text;
    };
    const std::vector<Case> cases = {
        {0.0F, "0"},
        {7.92F, "7.92"},
        {120.0F, "120"},
        {0.0106F, "0.0106"},
        {123456.0F, "123456"},
        {123456.7F, "123457"},
        {1234567.0F, "1.23457e+06"},
        {0.0001F, "0.0001"},
        {0.00001F, "1e-05"},
        {-2.5F, "-2.5"},
        {1.0e30F, "1e+30"},
    };
    for (const Case& c : cases) {
        std::string text = "x";
        appendShortest(text, c.value);
        EXPECT_EQ(text, "x" + std::string(c.text));
        EXPECT_EQ(toFloat(c.text), c.value == 1234567.0F  ? 1234570.0F
                                   : c.value == 123456.7F ? 123457.0F
                                                          : c.value);
    }
}

TEST(Numbers, WritesFixedDecimalsAndIntegers) {
    std::string text;
    appendFixed(text, 3.2, 2);
    text += ' ';
    appendFixed(text, 0.005, 2);
    text += ' ';
    appendFixed(text, -1.999, 2);
    text += ' ';
    appendInteger(text, INT32_MIN);
    text += ' ';
    appendInteger(text, 0);
    EXPECT_EQ(text, "3.20 0.01 -2.00 -2147483648 0");
    std::string huge;
    appendFixed(huge, std::numeric_limits<double>::max(), 2);
    EXPECT_EQ(huge.size(), 312U);
}

} // namespace varrocade::tests
