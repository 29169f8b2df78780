#pragma once
// Ratios that hold on a busy machine: the contestants take turns, and medians are compared.

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <vector>

namespace varrocade::benchmarks {

struct ContestResult {
    double first; ///< median seconds of processor time a round
    double second;
    double ratio; ///< median of the rounds' ratios, first to second
};

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

template <typename Work>
double processorSeconds(Work work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Lets two contestants take turns for a number of rounds, the one that begins changing each time.
template <typename First, typename Second>
ContestResult contest(std::size_t rounds, First first, Second second) {
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    std::vector<double> ratios;
    first();
    second();
    for (std::size_t round = 0; round < rounds; ++round) {
        const bool firstBegins = round % 2 == 0;
        const double early = firstBegins ? processorSeconds(first) : processorSeconds(second);
        const double late = firstBegins ? processorSeconds(second) : processorSeconds(first);
        firstTimes.push_back(firstBegins ? early : late);
        secondTimes.push_back(firstBegins ? late : early);
        ratios.push_back(firstTimes.back() / std::max(secondTimes.back(), 1e-9));
    }
    return {median(firstTimes), median(secondTimes), median(ratios)};
}

} // namespace varrocade::benchmarks
