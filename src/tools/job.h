#pragma once
// Work over many files in steps, between which whoever drives it can show how far it is, answer, or stop:
// a window from a timer, the command line in a loop. A job writes nothing while it runs, or whole files
// only, so that dropping it at any step leaves nothing half done.

#include "platform/file_operations.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varrocade {

/// How far a job has come.
struct JobProgress {
    std::size_t done = 0;
    std::size_t total = 0; ///< as far as it is known
    std::string name = {}; ///< of what is done next; empty at the end
    /// The same in a finer measure where things differ much in size; 0 where they do not.
    std::size_t workDone = 0;
    std::size_t workTotal = 0;

    [[nodiscard]] double share() const {
        const std::size_t all = workTotal > 0 ? workTotal : total;
        return all == 0 ? 0 : static_cast<double>(workTotal > 0 ? workDone : done) / static_cast<double>(all);
    }
};

class Job {
public:
    Job() = default;
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;
    virtual ~Job() = default;

    /// Does the next piece of work, at most some milliseconds; false when there is nothing left to do. A file
    /// that fails is kept for `failures` and stops nothing.
    virtual bool step() = 0;
    /// Does all of it in one go. Work that can be shared is, among `threads` threads, or as many as there are
    /// processors where that is 0; what it comes to is the same for any number. No thread is left behind.
    virtual void run(unsigned threads);
    [[nodiscard]] virtual JobProgress progress() const = 0;
    [[nodiscard]] virtual std::vector<FileFailure> failures() const = 0;
};

/// Steps to the end.
inline void runJob(Job& job) {
    while (job.step()) {
    }
}

/// How long the rest will take if it goes on as it went; nothing before a twentieth is done or half a second
/// has passed.
std::optional<std::chrono::seconds> timeToGo(const JobProgress& progress, std::chrono::milliseconds elapsed);

/// The same in words: "about 2 minutes to go". Empty while nothing can be said.
std::string timeToGoText(const JobProgress& progress, std::chrono::milliseconds elapsed);

/// A file that a report comes to.
struct ReportFile {
    std::string name; ///< such as "Vehicles.csv"
    std::string content;
};

/// A job that comes to files. They are made when all is read, and none is written before.
class FileReport : public Job {
public:
    /// Once `step` has returned false.
    [[nodiscard]] virtual std::vector<ReportFile> files() = 0;
};

/// Writes files into `folder`, which ends in a separator, each in one step. The failures of those that could
/// not be written.
std::vector<FileFailure> writeReport(FileOperations& files, const std::string& folder,
                                     const std::vector<ReportFile>& report);

} // namespace varrocade
