#include "tools/reports/unit_sheets.h"

#include "data/reading/unit_reader.h"
#include "tools/asset_files.h"
#include "weapons/weapon_files.h"

#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view SheetEnding = ".csv";

} // namespace

std::string sheetFileName(Category category) {
    return std::string(categoryName(category)) + std::string(SheetEnding);
}

UnitSheets::UnitSheets(GameFolders folders) : folders_(std::move(folders)) {
    for (const Category category : AllCategories) {
        sheets_.emplace_back(categoryName(category));
    }
}

bool UnitSheets::step() {
    if (!isListed_) {
        isListed_ = true;
        walk_ = GameFileWalk(listOwnFiles(folders_, failures_));
        return true;
    }
    return walk_.step([this](const GameFile& file, std::string_view content) {
        Diagnostics diagnostics;
        SheetBuilder& sheet = sheets_.at(static_cast<std::size_t>(file.category));
        if (file.category == Category::Weapons) {
            sheet.add(file.name, readWeapon(content, file.name, diagnostics));
        } else {
            sheet.add(file.name, readUnit(content, file.name, diagnostics));
        }
    });
}

JobProgress UnitSheets::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

std::vector<FileFailure> UnitSheets::failures() const {
    std::vector<FileFailure> all = failures_;
    all.insert(all.end(), walk_.failures().begin(), walk_.failures().end());
    return all;
}

std::vector<ReportFile> UnitSheets::files() {
    std::vector<ReportFile> files;
    files.reserve(std::size(AllCategories));
    for (const Category category : AllCategories) {
        files.push_back({sheetFileName(category), sheets_.at(static_cast<std::size_t>(category)).file()});
    }
    return files;
}

} // namespace varrocade
