#pragma once
// Spreadsheets of all units and weapons: a file a category, a row a unit, a column a value.

#include "data/game_files.h"
#include "tools/job.h"
#include "tools/sheets/sheet_builder.h"

#include <vector>

namespace varrocade {

/// "Vehicles.csv"
std::string sheetFileName(Category category);

/// Reads the units and weapons of the mod where one is in use, otherwise those of the game.
class UnitSheets : public FileReport {
public:
    explicit UnitSheets(GameFolders folders);

    bool step() override;
    void run(unsigned threads) override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override;
    [[nodiscard]] std::vector<ReportFile> files() override;

private:
    GameFolders folders_;
    GameFileWalk walk_;
    bool isListed_ = false;
    unsigned threads_ = 1;              ///< that the work was shared among
    std::size_t readInThreads_ = 0;     ///< how many files, which the walk knows nothing of
    std::vector<FileFailure> failures_; ///< of the listing and of what was read in threads
    std::vector<SheetBuilder> sheets_;  ///< one a category
};

} // namespace varrocade
