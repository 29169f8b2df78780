#include "app/windows/folder_watch.h"

#include "data/category.h"

namespace varrocade {

void FolderWatch::start(const std::string& base) {
    stop();
    base_ = base;
    mark_ = FindFirstChangeNotificationA((base + std::string(DataFolder)).c_str(), TRUE,
                                         FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE |
                                             FILE_NOTIFY_CHANGE_LAST_WRITE);
}

void FolderWatch::stop() {
    if (mark_ != INVALID_HANDLE_VALUE) {
        FindCloseChangeNotification(mark_);
        mark_ = INVALID_HANDLE_VALUE;
    }
}

bool FolderWatch::hasChanged(const std::string& base) {
    // A folder that was not there yet is tried again. What changed before it was watched is not known.
    if (base != base_ || mark_ == INVALID_HANDLE_VALUE) {
        start(base);
        return mark_ != INVALID_HANDLE_VALUE;
    }
    if (WaitForSingleObject(mark_, 0) != WAIT_OBJECT_0) {
        return false;
    }
    if (FindNextChangeNotification(mark_) == FALSE) {
        stop();
    }
    return true;
}

} // namespace varrocade
