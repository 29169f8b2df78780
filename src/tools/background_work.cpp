#include "tools/background_work.h"

#include <chrono>
#include <utility>
#include <vector>

namespace varrocade {

namespace {

bool endsWithin(const std::future<void>& worker, std::chrono::milliseconds patience) {
    return worker.wait_for(patience) == std::future_status::ready;
}

/// Those that were left while they worked. A future that is destroyed joins its thread.
std::vector<std::future<void>>& leftWorkers() {
    static std::vector<std::future<void>> workers;
    return workers;
}

} // namespace

void BackgroundWork::start(std::function<void()> work) {
    leave();
    worker_ = std::async(std::launch::async, std::move(work));
}

bool BackgroundWork::isDone() const {
    constexpr std::chrono::milliseconds patience{10};
    return endsWithin(worker_, patience);
}

void BackgroundWork::leave() {
    constexpr std::chrono::milliseconds none{0};
    std::erase_if(leftWorkers(), [&](const std::future<void>& worker) { return endsWithin(worker, none); });
    // Nobody feels so short a wait, and most work has ended by then.
    constexpr std::chrono::milliseconds patience{30};
    if (worker_.valid() && !endsWithin(worker_, patience)) {
        leftWorkers().push_back(std::move(worker_));
    }
    worker_ = {};
}

} // namespace varrocade
