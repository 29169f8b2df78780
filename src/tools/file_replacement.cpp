#include "tools/file_replacement.h"

#include "platform/safe_save.h"

#include <utility>

namespace varrocade {

FileReplacementJob::FileReplacementJob(FileOperations& files, BackupKeeper& backups, std::string base,
                                       std::vector<FileReplacement> replacements)
    : files_(files), backups_(backups), base_(std::move(base)), replacements_(std::move(replacements)) {}

std::optional<FileFailure> FileReplacementJob::keep(const FileReplacement& file) {
    std::string content;
    if (!files_.read(file.path, content)) {
        return FileFailure{file.path, files_.lastError()};
    }
    if (content != file.before) {
        return FileFailure{file.path, "it has changed since it was read"};
    }
    return backups_.keep(files_, base_, file.path);
}

bool FileReplacementJob::step() {
    if (failure_) {
        return false;
    }
    if (kept_ < replacements_.size()) {
        failure_ = keep(replacements_[kept_]);
        ++kept_;
    } else if (written_ < replacements_.size()) {
        const FileReplacement& file = replacements_[written_];
        failure_ = saveFile(files_, file.path, file.after);
        if (failure_) {
            putBack();
        } else {
            ++written_;
        }
    }
    return !failure_ && written_ < replacements_.size();
}

void FileReplacementJob::putBack() {
    for (; written_ > 0; --written_) {
        const FileReplacement& file = replacements_[written_ - 1];
        const auto other = saveFile(files_, file.path, file.before);
        // The backups have it too, should even this fail.
        if (other && failure_) {
            failure_->reason += "; " + other->path + " could not be put back: " + other->reason;
        } else if (other) {
            failure_ = FileFailure{other->path, "could not be put back: " + other->reason};
        }
    }
}

JobProgress FileReplacementJob::progress() const {
    const std::size_t done = kept_ + written_;
    const std::size_t next = kept_ < replacements_.size() ? kept_ : written_;
    return {done, 2 * replacements_.size(),
            next < replacements_.size() ? replacements_[next].path.substr(base_.size()) : std::string()};
}

std::vector<FileFailure> FileReplacementJob::failures() const {
    return failure_ ? std::vector<FileFailure>{*failure_} : std::vector<FileFailure>();
}

std::optional<FileFailure> replaceTogether(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base,
                                           std::vector<FileReplacement> replacements) {
    FileReplacementJob job(files, backups, base, std::move(replacements));
    runJob(job);
    const std::vector<FileFailure> failures = job.failures();
    return failures.empty() ? std::nullopt : std::optional(failures.front());
}

} // namespace varrocade
