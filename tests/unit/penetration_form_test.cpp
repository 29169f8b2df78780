// The penetration dialogs' forms, driven without windows.

#include "editors/penetration/penetration_form.h"

#include <gtest/gtest.h>

#include <map>

namespace varrocade::tests {
namespace {

TEST(PenetrationForm, StepsOfAnAxisAreRoundAndFew) {
    for (const auto& [greatest, expected] : std::map<double, std::pair<double, int>>{{0.5, {0.1, 5}},
                                                                                     {6, {1, 6}},
                                                                                     {6.1, {2, 4}},
                                                                                     {152, {50, 4}},
                                                                                     {301, {100, 4}},
                                                                                     {1.7e308, {2e5, 5}}}) {
        const ChartAxis axis = chartAxis(greatest, 6);
        EXPECT_DOUBLE_EQ(axis.step, expected.first) << greatest;
        EXPECT_EQ(axis.steps, expected.second) << greatest;
    }
}

} // namespace
} // namespace varrocade::tests
