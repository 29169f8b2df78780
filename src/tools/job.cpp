#include "tools/job.h"

#include "platform/safe_save.h"

namespace varrocade {

void Job::run(unsigned /*threads*/) {
    runJob(*this);
}

std::optional<std::chrono::seconds> timeToGo(const JobProgress& progress, std::chrono::milliseconds elapsed) {
    constexpr std::chrono::milliseconds leastTime{500};
    constexpr double leastShare = 0.05;
    const double share = progress.share();
    if (share < leastShare || share >= 1 || elapsed < leastTime) {
        return std::nullopt;
    }
    const double rest = static_cast<double>(elapsed.count()) * (1 - share) / share;
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
