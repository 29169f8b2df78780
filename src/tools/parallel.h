#pragma once
// Work on many things that know nothing of each other, on all processors. The window has one thread; this is
// for the command line.

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace varrocade {

/// How many threads are meant by a number of which 0 stands for as many as there are processors.
inline unsigned threadCount(unsigned threads) {
    return threads != 0 ? threads : std::max(1U, std::thread::hardware_concurrency());
}

/// Calls `work(i)` for each number below `count`, in their order as far as each thread goes, on `threads`
/// threads; on as many as there are processors where that is 0.
template <typename Work>
void forEachInParallel(std::size_t count, Work work, unsigned threads = 0) {
    std::atomic<std::size_t> next = 0;
    const auto run = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            work(i);
        }
    };
    std::vector<std::thread> others;
    for (std::size_t i = 1; i < std::min<std::size_t>(threadCount(threads), count); ++i) {
        others.emplace_back(run);
    }
    run();
    for (std::thread& other : others) {
        other.join();
    }
}

} // namespace varrocade
