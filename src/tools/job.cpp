#include "tools/job.h"

#include "platform/safe_save.h"

namespace varrocade {

std::optional<std::chrono::seconds> timeToGo(const JobProgress& progress, std::chrono::milliseconds elapsed) {
    constexpr std::chrono::milliseconds leastTime{500};
    constexpr std::size_t leastShare = 20;
    if (progress.done == 0 || progress.done >= progress.total || elapsed < leastTime ||
        progress.done * leastShare < progress.total) {
        return std::nullopt;
    }
    const double each = static_cast<double>(elapsed.count()) / static_cast<double>(progress.done);
    const double rest = each * static_cast<double>(progress.total - progress.done);
    return std::chrono::ceil<std::chrono::seconds>(std::chrono::duration<double, std::milli>(rest));
}

std::string timeToGoText(const JobProgress& progress, std::chrono::milliseconds elapsed) {
    const std::optional<std::chrono::seconds> rest = timeToGo(progress, elapsed);
    if (!rest) {
        return {};
    }
    constexpr std::int64_t minute = 60;
    const std::int64_t seconds = rest->count();
    const bool inMinutes = seconds >= 2 * minute;
    const std::int64_t count = inMinutes ? (seconds + minute - 1) / minute : seconds;
    return "about " + std::to_string(count) +
           (inMinutes    ? " minutes"
            : count == 1 ? " second"
                         : " seconds") +
           " to go";
}

std::vector<FileFailure> writeReport(FileOperations& files, const std::string& folder,
                                     const std::vector<ReportFile>& report) {
    std::vector<FileFailure> failures;
    for (const ReportFile& file : report) {
        if (auto failure = saveFile(files, folder + file.name, file.content)) {
            failures.push_back(std::move(*failure));
        }
    }
    return failures;
}

} // namespace varrocade
