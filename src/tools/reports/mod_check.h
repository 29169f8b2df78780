#pragma once
// What the three checks of a mod come to: rows of files that it does not need, or lacks.

#include "platform/file_operations.h"
#include "tools/job.h"
#include "tools/reports/reference_scan.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

struct ModCheckRow {
    std::string below;     ///< the file below the mod's folder
    std::string reason;    ///< such as "byte for byte the game's own"
    std::string path = {}; ///< of a file of the mod that is not needed; empty for one that it lacks
    std::vector<ReferenceUser> users = {}; ///< the unit or weapon that it holds, and who names it
};

class ModCheck : public Job {
public:
    /// Once `step` has returned false.
    [[nodiscard]] virtual std::vector<ModCheckRow> rows() = 0;
};

/// A data file as somebody to look at.
ReferenceUser userOfFile(Category category, const AssetFile& file);

/// "3 files:" or that there is none, and how many were moved away.
std::string modCheckSummary(std::size_t found, std::size_t moved);

/// What is asked before files go: how many, and which, as far as a box has room.
std::string recycleQuestion(const std::vector<ModCheckRow>& rows);

/// Moves files to the recycle bin, one a step. What is not below the mod's folder, or leaves it again by its
/// path or by a link, is refused.
class RecycleJob : public Job {
public:
    RecycleJob(FileOperations& files, std::string modFolder, std::vector<std::string> paths)
        : files_(files), modFolder_(std::move(modFolder)), paths_(std::move(paths)) {}

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    /// The files that could not be moved.
    [[nodiscard]] std::vector<FileFailure> failures() const override { return failures_; }
    /// Those that were.
    [[nodiscard]] const std::set<std::string, std::less<>>& moved() const { return moved_; }

private:
    FileOperations& files_;
    std::string modFolder_;
    std::vector<std::string> paths_;
    std::size_t done_ = 0;
    std::set<std::string, std::less<>> moved_;
    std::vector<FileFailure> failures_;
};

} // namespace varrocade
