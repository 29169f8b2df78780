#include "tools/reports/unit_sheets.h"

#include "data/reading/unit_reader.h"
#include "tools/asset_files.h"
#include "tools/file_shares.h"
#include "tools/parallel.h"
#include "weapons/weapon_files.h"

#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view SheetEnding = ".csv";

void addFile(SheetBuilder& sheet, const GameFile& file, std::string_view content) {
    Diagnostics diagnostics;
    if (file.category == Category::Weapons) {
        sheet.add(file.name, readWeapon(content, file.name, diagnostics));
    } else {
        sheet.add(file.name, readUnit(content, file.name, diagnostics));
    }
}

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
        addFile(sheets_.at(static_cast<std::size_t>(file.category)), file, content);
    });
}

void UnitSheets::run(unsigned threads) {
    threads = threadCount(threads);
    if (isListed_ || threads == 1) {
        runJob(*this);
        return;
    }
    isListed_ = true;
    threads_ = threads;
    const std::vector<GameFile> files = listOwnFiles(folders_, failures_);
    std::vector<FileShare> shares = shareFiles(files, threads);
    std::vector<SheetBuilder> parts;
    parts.reserve(shares.size());
    for (const FileShare& share : shares) {
        parts.emplace_back(categoryName(share.category));
    }
    const auto read = [&](std::size_t i) {
        shares[i].walk.run([&sheet = parts[i]](const GameFile& file, std::string_view content) {
            addFile(sheet, file, content);
        });
    };
    forEachInParallel(shares.size(), read, threads);
    for (std::size_t i = 0; i < shares.size(); ++i) {
        sheets_.at(static_cast<std::size_t>(shares[i].category)).join(parts[i]);
    }
    appendFailures(failures_, shares);
    readInThreads_ = files.size();
}

JobProgress UnitSheets::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done + readInThreads_, walked.total + readInThreads_, std::string(walked.name)};
}

std::vector<FileFailure> UnitSheets::failures() const {
    std::vector<FileFailure> all = failures_;
    all.insert(all.end(), walk_.failures().begin(), walk_.failures().end());
    return all;
}

std::vector<ReportFile> UnitSheets::files() {
    std::vector<ReportFile> files(sheets_.size());
    const auto make = [&](std::size_t category) {
        files[category] = {sheetFileName(static_cast<Category>(category)), sheets_[category].file()};
    };
    forEachInParallel(files.size(), make, threads_);
    return files;
}

} // namespace varrocade
