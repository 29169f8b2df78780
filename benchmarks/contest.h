#pragma once
// Ratios that hold on a busy machine: the contestants take turns, and medians are compared.

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <vector>

namespace varrocade::benchmarks {

struct ContestResult {
    double first; ///< median seconds a round
    double second;
    double ratio; ///< median of the rounds' ratios, first to second
};

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// How long the contestants take is measured in processor time, which others on the machine do not add to.
struct ProcessorClock {
    template <typename Work>
    double operator()(Work work) const {
        const std::clock_t start = std::clock();
        work();
        return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    }
};

/// What one waits for.
struct WallClock {
    template <typename Work>
    double operator()(Work work) const {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
};

/// Lets two contestants take turns for a number of rounds, the one that begins changing each time.
template <typename First, typename Second, typename Clock = ProcessorClock>
ContestResult contest(std::size_t rounds, First first, Second second, Clock secondsOf = {}) {
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    std::vector<double> ratios;
    first();
    second();
    for (std::size_t round = 0; round < rounds; ++round) {
        const bool firstBegins = round % 2 == 0;
        const double early = firstBegins ? secondsOf(first) : secondsOf(second);
        const double late = firstBegins ? secondsOf(second) : secondsOf(first);
        firstTimes.push_back(firstBegins ? early : late);
        secondTimes.push_back(firstBegins ? late : early);
        ratios.push_back(firstTimes.back() / std::max(secondTimes.back(), 1e-9));
    }
    return {median(firstTimes), median(secondTimes), median(ratios)};
}

} // namespace varrocade::benchmarks
