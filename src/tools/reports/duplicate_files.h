#pragma once
// The files of a mod that are the game's own over again.

#include "tools/background_work.h"
#include "tools/reports/mod_check.h"

#include <memory>
#include <optional>
#include <utility>

namespace varrocade {

/// Compares each picture, sound, unit and weapon of the mod with the game's of the same name: by its bytes,
/// pictures then by their pixels, data files by what they hold.
class DuplicateFiles : public ModCheck {
public:
    explicit DuplicateFiles(GameFolders folders) : scan_(std::move(folders)) {}

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override;
    [[nodiscard]] std::vector<ModCheckRow> rows() override;

private:
    struct Pair {
        const AssetFile* mod;
        std::string gamePath;
        std::optional<Category> category; ///< of a data file
    };
    struct Duplicate {
        const Pair* pair;
        std::string_view reason;
    };

    void list();
    void addPairs(std::string_view folder, std::string_view ending, std::optional<Category> category = {});
    void compare(const Pair& pair);
    void comparePixels(const Pair& pair, std::string mod, std::string game);
    void finishPixels();

    ReferenceScan scan_;
    bool isListed_ = false;
    std::vector<Pair> pairs_;
    std::size_t done_ = 0;
    /// Two large pictures whose pixels a thread compares; the next pair waits for it.
    struct PixelComparison;
    std::shared_ptr<PixelComparison> comparison_; ///< shared with the thread
    BackgroundWork thread_;
    std::vector<Duplicate> duplicates_;
    std::vector<FileFailure> failures_;
};

} // namespace varrocade
