#pragma once
// One call that takes longer than a window can be kept waiting for, on a thread of its own.

#include <functional>
#include <future>

namespace varrocade {

/// What the work needs it must own, together with whoever waits for it: an object that is dropped does not
/// wait. A thread that still works then is joined by a later object, at the latest when the program ends. All
/// objects belong to one thread.
class BackgroundWork {
public:
    BackgroundWork() = default;
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;
    ~BackgroundWork() { leave(); }

    /// What was under way is left.
    void start(std::function<void()> work);
    [[nodiscard]] bool isStarted() const { return worker_.valid(); }
    /// Waits some milliseconds at most, so that whoever asks in a loop need not spin.
    [[nodiscard]] bool isDone() const;
    /// Goes away from the work, whether it is done or not.
    void leave();

private:
    std::future<void> worker_;
};

} // namespace varrocade
