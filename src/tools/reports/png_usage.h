#pragma once
// Which pictures are used, by whom, and which are not.

#include "tools/reports/reference_scan.h"

namespace varrocade {

inline constexpr std::string_view UnusedPngsFile = "List Of Unused PNGs.txt";
inline constexpr std::string_view UsedPngsFile = "List Of Used PNGs.txt";

/// Two lists of the pictures of units and weapons, the mod's where one is in use, otherwise the game's: those
/// that nothing names, and those that something does, with its name behind a tab on the lines below. At the
/// end of the second stand the pictures that are named and not there.
class PngUsage : public FileReport {
public:
    explicit PngUsage(GameFolders folders) : scan_(std::move(folders)) {}

    bool step() override { return scan_.step(); }
    void run(unsigned threads) override { scan_.run(threads); }
    [[nodiscard]] JobProgress progress() const override { return scan_.progress(); }
    [[nodiscard]] std::vector<FileFailure> failures() const override { return scan_.failures(); }
    [[nodiscard]] std::vector<ReportFile> files() override;

private:
    ReferenceScan scan_;
};

} // namespace varrocade
