#include "tools/checks/engine/background_check.h"

#include <utility>

namespace varrocade {

void BackgroundCheck::start(const GameFolders& folders) {
    cancel();
    isUnwanted_ = false;
    isDone_ = false;
    thousandths_ = 0;
    worker_ = std::thread([this, folders] {
        constexpr std::size_t whole = 1000;
        auto check = std::make_unique<FolderCheck>(folders);
        while (!isUnwanted_ && !check->failure() && check->step()) {
            const WalkProgress progress = check->progress();
            thousandths_ = static_cast<int>(whole * progress.done / progress.total);
        }
        check_ = std::move(check);
        isDone_ = true;
    });
}

void BackgroundCheck::cancel() {
    if (worker_.joinable()) {
        isUnwanted_ = true;
        worker_.join();
        check_.reset();
    }
}

std::unique_ptr<FolderCheck> BackgroundCheck::take() {
    if (!worker_.joinable() || !isDone_) {
        return nullptr;
    }
    worker_.join();
    return std::move(check_);
}

} // namespace varrocade
