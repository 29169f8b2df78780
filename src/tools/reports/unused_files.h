#pragma once
// The pictures, sounds and weapons of a mod that nothing names.

#include "tools/reports/mod_check.h"

namespace varrocade {

class UnusedFiles : public ModCheck {
public:
    explicit UnusedFiles(GameFolders folders) : scan_(std::move(folders)) {}

    bool step() override { return scan_.step(); }
    void run(unsigned threads) override { scan_.run(threads); }
    [[nodiscard]] JobProgress progress() const override { return scan_.progress(); }
    [[nodiscard]] std::vector<FileFailure> failures() const override { return scan_.failures(); }
    [[nodiscard]] std::vector<ModCheckRow> rows() override;

private:
    ReferenceScan scan_;
};

} // namespace varrocade
