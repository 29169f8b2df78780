#include "data/format/numbers.h"

#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace varrocade::tests {

TEST(Numbers, ReadsIntegersLeniently) {
    using Case = std::pair<std::string_view, std::int32_t>;
    for (const auto& [text, value] :
         {Case{"", 0}, Case{"0", 0}, Case{"42", 42}, Case{" \t\r\n\v\f42", 42}, Case{"+7", 7}, Case{"-7", -7},
          Case{"- 7", 0}, Case{"--7", 0}, Case{"45@30", 45}, Case{"12.9", 12}, Case{"1e3", 1},
          Case{"0x10", 0}, Case{"none", 0}, Case{"@30", 0}}) {
        EXPECT_EQ(toInteger(text), value) << text;
    }
    EXPECT_EQ(toInteger("000000000000000000000012"), 12);
    EXPECT_EQ(toInteger("2147483647"), INT32_MAX);
    EXPECT_EQ(toInteger("2147483648"), INT32_MAX);
    EXPECT_EQ(toInteger("-2147483649"), INT32_MIN);
    EXPECT_EQ(toInteger("99999999999999999999999999"), INT32_MAX);
    EXPECT_EQ(toInteger("-99999999999999999999999999"), INT32_MIN);
    EXPECT_EQ(toInteger(std::string_view("123456").substr(1, 3)), 234) << "reads beyond its text";
    EXPECT_EQ(toClamped<std::uint8_t>("256"), 255);
    EXPECT_EQ(toClamped<std::uint8_t>("-1"), 0);
    EXPECT_EQ(toClamped<std::int16_t>("40000"), 32767);
    EXPECT_EQ(toClamped<std::int16_t>("-40000"), -32768);
    EXPECT_EQ(toClamped<std::int16_t>("-123"), -123);
}

TEST(Numbers, ReadsRealNumbersLeniently) {
    constexpr double largest = std::numeric_limits<double>::max();
    using Case = std::pair<std::string_view, double>;
    for (const auto& [text, value] :
         {Case{"7.92", 7.92}, Case{"  -0.5kg", -0.5}, Case{"+3.", 3}, Case{".25", 0.25}, Case{"-.25", -0.25},
          Case{"1e3", 1000}, Case{"1E-2", 0.01}, Case{"2e", 2}, Case{"2e+", 2}, Case{"1,5", 1},
          Case{"1e999", largest}, Case{"-1e999", -largest}, Case{"0.0000001", 1e-7}}) {
        EXPECT_EQ(toReal(text), value) << text;
    }
    for (const char* text : {"", ".", "abc", "nan", "inf", "-infinity", "0x1p4", "1e-999"}) {
        EXPECT_EQ(toReal(text), 0.0) << text;
    }
    const std::string zeros(400, '0');
    for (const std::string& tooLarge : {std::string("1e99999999999"), std::string(400, '1') + "e-5",
                                        std::string(320, '1') + ".5e-2", "1" + zeros, "1" + zeros + ".5"}) {
        EXPECT_EQ(toReal(tooLarge), largest) << tooLarge;
    }
    for (const std::string& tooSmall : {"0." + zeros + "1e20", "00." + zeros + "1e1", "0." + zeros + "1"}) {
        EXPECT_EQ(toReal(tooSmall), 0.0) << tooSmall;
    }
    constexpr float largestFloat = std::numeric_limits<float>::max();
    EXPECT_EQ(toFloat("1e39"), largestFloat);
    EXPECT_EQ(toFloat("-1e300"), -largestFloat);
    EXPECT_EQ(toFloat("1e-300"), 0.0F);
    EXPECT_EQ(toFloat("3.4028236e38"), largestFloat) << "rounds beyond the largest float";
}

TEST(Numbers, WritesFloatsAsTheGamesFilesHaveThem) {
    using Case = std::pair<float, std::string>;
    for (const auto& [value, text] :
         {Case{0.0F, "0"}, Case{7.92F, "7.92"}, Case{120.0F, "120"}, Case{0.0106F, "0.0106"},
          Case{123456.0F, "123456"}, Case{123456.7F, "123457"}, Case{1234567.0F, "1.23457e+06"},
          Case{0.0001F, "0.0001"}, Case{0.00001F, "1e-05"}, Case{-2.5F, "-2.5"}, Case{1.0e30F, "1e+30"}}) {
        std::string written = "x";
        appendShortest(written, value);
        EXPECT_EQ(written, "x" + text);
    }
}

TEST(Numbers, WritesFixedDecimalsAndIntegers) {
    std::string text;
    for (const double value : {3.2, 0.005, -1.999}) {
        appendFixed(text, value, 2);
        text += ' ';
    }
    appendInteger(text, INT32_MIN);
    appendInteger(text, 0);
    EXPECT_EQ(text, "3.20 0.01 -2.00 -21474836480");
    std::string huge;
    appendFixed(huge, std::numeric_limits<double>::max(), 2);
    EXPECT_EQ(huge.size(), 312U);
}

} // namespace varrocade::tests
