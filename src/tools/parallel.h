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

/// Calls `work(thread, i)` for each number below `count` on `threads` threads, on as many as there are
/// processors where that is 0. A thread takes `perTurn` neighbours at a time, in their order as far as it
/// goes; `thread` counts from 0, for what each has of its own.
template <typename Work>
void shareInParallel(std::size_t count, std::size_t perTurn, Work work, unsigned threads = 0) {
    const std::size_t turns = (count + perTurn - 1) / perTurn;
    std::atomic<std::size_t> next = 0;
    const auto run = [&](std::size_t thread) {
        for (std::size_t turn = next++; turn < turns; turn = next++) {
            const std::size_t end = std::min((turn + 1) * perTurn, count);
            for (std::size_t i = turn * perTurn; i < end; ++i) {
                work(thread, i);
            }
        }
    };
    std::vector<std::thread> others;
    for (std::size_t i = 1; i < std::min<std::size_t>(threadCount(threads), turns); ++i) {
        others.emplace_back(run, i);
    }
    run(0);
    for (std::thread& other : others) {
        other.join();
    }
}

/// Calls `work(i)` in the same way, one at a time.
template <typename Work>
void forEachInParallel(std::size_t count, Work work, unsigned threads = 0) {
    shareInParallel(
        count, 1, [&work](std::size_t /*thread*/, std::size_t i) { work(i); }, threads);
}

} // namespace varrocade
