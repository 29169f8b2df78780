#pragma once
// Notices that other programs change data files while the window is in front.

#include <windows.h>

#include <string>

namespace varrocade {

/// Watches all folders of data files below a base folder. There is no thread: the system sets a mark that is
/// asked for now and then. Where it watches nothing, as on some network drives, there is never a mark; the
/// files are looked at on coming back to the window in any case.
class FolderWatch {
public:
    FolderWatch() = default;
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;
    ~FolderWatch() { stop(); }

    /// Whether files below `base`, which ends in a backslash, may have changed since the last call; of
    /// another base than before they may have.
    bool hasChanged(const std::string& base);

private:
    void start(const std::string& base);
    void stop();

    std::string base_;
    HANDLE mark_ = INVALID_HANDLE_VALUE;
};

} // namespace varrocade
