#include "view/chart/chart.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

ChartAxis chartAxis(double greatest, int mostSteps) {
    constexpr double most = 1e6;
    const double reached = std::min(greatest, most);
    const double least = reached / mostSteps;
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    double step = 10 * power;
    for (const double factor : {5.0, 2.0, 1.0}) {
        step = factor * power >= least ? factor * power : step;
    }
    return {.step = step, .steps = static_cast<int>(std::ceil(reached / step))};
}

} // namespace varrocade
