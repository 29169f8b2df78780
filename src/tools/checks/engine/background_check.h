#pragma once
// A check of a folder beside a window: on a thread of its own, which ends as soon as nobody wants it.

#include "data/game_files.h"
#include "tools/checks/engine/folder_check.h"

#include <atomic>
#include <memory>
#include <thread>

namespace varrocade {

class BackgroundCheck {
public:
    BackgroundCheck() = default;
    BackgroundCheck(const BackgroundCheck&) = delete;
    BackgroundCheck& operator=(const BackgroundCheck&) = delete;
    ~BackgroundCheck() { cancel(); }

    /// Begins anew; what was under way ends first.
    void start(const GameFolders& folders);
    /// Ends what is under way, within the time that one file takes or the listing of the folders.
    void cancel();

    [[nodiscard]] bool isRunning() const { return worker_.joinable(); }
    /// How far it has come, in thousandths.
    [[nodiscard]] int thousandths() const { return thousandths_.load(); }
    /// The finished check, once; null before that.
    std::unique_ptr<FolderCheck> take();

private:
    std::thread worker_;
    std::atomic<bool> isUnwanted_ = false;
    std::atomic<bool> isDone_ = false;
    std::atomic<int> thousandths_ = 0;
    std::unique_ptr<FolderCheck> check_; ///< the worker's until it is done
};

} // namespace varrocade
