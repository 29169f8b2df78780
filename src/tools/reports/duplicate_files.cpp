#include "tools/reports/duplicate_files.h"

#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/unit/image_names.h"
#include "pictures/png_codec.h"
#include "tools/voices.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace varrocade {

namespace {

/// Whether two data files hold the same unit or weapon; both are read as one of the same name.
bool holdSameRecord(Category category, std::string_view a, std::string_view b) {
    Diagnostics diagnostics;
    if (category == Category::Weapons) {
        return readWeapon(a, {}, diagnostics) == readWeapon(b, {}, diagnostics);
    }
    return readUnit(a, {}, diagnostics) == readUnit(b, {}, diagnostics);
}

} // namespace

void DuplicateFiles::addPairs(std::string_view folder, std::string_view ending,
                              std::optional<Category> category) {
    const std::vector<AssetFile>& all = scan_.files().list(folder, ending);
    const auto firstHidden =
        std::find_if(all.rbegin(), all.rend(), [](const AssetFile& file) { return file.isOfMod; }).base();
    // Behind the files that count stand the game's that the mod hides.
    std::unordered_map<std::string, const AssetFile*> hidden;
    for (auto file = firstHidden; file != all.end(); ++file) {
        hidden.insert_or_assign(loweredText(file->name), &*file);
    }
    for (auto file = all.begin(); file != firstHidden; ++file) {
        const auto other = hidden.find(loweredText(file->name));
        if (file->isOfMod && other != hidden.end()) {
            pairs_.push_back({&*file, other->second->path(), category});
        }
    }
}

void DuplicateFiles::list() {
    for (const std::string_view folder : pictureFolders()) {
        addPairs(folder, ImageEnding);
    }
    addPairs(SoundFolder, SoundEnding);
    addPairs(VoiceFolder, SoundEnding);
    for (const Category category : AllCategories) {
        addPairs(categoryFolder({}, category), DataFileEnding, category);
    }
}

void DuplicateFiles::compare(const Pair& pair) {
    std::string mod;
    std::string game;
    for (const auto& [path, content] : {std::pair(pair.mod->path(), &mod), std::pair(pair.gamePath, &game)}) {
        if (!systemFiles().read(path, *content)) {
            failures_.push_back({path, systemFiles().lastError()});
            return;
        }
    }
    const bool isPicture = imageNameOf(pair.mod->name).size() < pair.mod->name.size();
    if (mod == game) {
        duplicates_.push_back({&pair, "byte for byte the game's own"});
    } else if (pair.category && holdSameRecord(*pair.category, mod, game)) {
        duplicates_.push_back({&pair, "value for value the game's own"});
    } else if (isPicture) {
        comparePixels(pair, std::move(mod), std::move(game));
    }
}

struct DuplicateFiles::PixelComparison {
    const Pair* pair;
    std::string mod;
    std::string game;
    bool isSame = false;
};

void DuplicateFiles::comparePixels(const Pair& pair, std::string mod, std::string game) {
    comparison_ = std::make_shared<PixelComparison>(PixelComparison{&pair, std::move(mod), std::move(game)});
    const auto compareThem = [](PixelComparison& both) { both.isSame = samePngPixels(both.mod, both.game); };
    // Fewer pixels are compared in less time than anybody feels.
    constexpr std::int64_t few = 500'000;
    const PictureSize size = pngSizeOf(comparison_->mod).value_or(PictureSize{});
    if (std::int64_t{size.width} * size.height > few) {
        thread_.start([both = comparison_, compareThem] { compareThem(*both); });
    } else {
        compareThem(*comparison_);
        finishPixels();
    }
}

void DuplicateFiles::finishPixels() {
    if (comparison_->isSame) {
        duplicates_.push_back({comparison_->pair, "pixel for pixel the game's own"});
    }
    comparison_.reset();
}

bool DuplicateFiles::step() {
    if (!isListed_) {
        isListed_ = true;
        list();
        return true;
    }
    if (comparison_) {
        if (thread_.isDone()) {
            finishPixels();
        }
        return true;
    }
    if (done_ < pairs_.size()) {
        compare(pairs_[done_++]);
        return true;
    }
    return scan_.step();
}

JobProgress DuplicateFiles::progress() const {
    JobProgress progress = scan_.progress();
    progress.done += comparison_ ? done_ - 1 : done_;
    progress.total += pairs_.size();
    if (comparison_) {
        progress.name = comparison_->pair->mod->name;
    } else if (done_ < pairs_.size()) {
        progress.name = pairs_[done_].mod->name;
    }
    return progress;
}

std::vector<FileFailure> DuplicateFiles::failures() const {
    std::vector<FileFailure> all = failures_;
    for (FileFailure& failure : scan_.failures()) {
        all.push_back(std::move(failure));
    }
    return all;
}

std::vector<ModCheckRow> DuplicateFiles::rows() {
    std::vector<ModCheckRow> rows;
    for (const Duplicate& duplicate : duplicates_) {
        const AssetFile& file = *duplicate.pair->mod;
        ModCheckRow row{file.below(), std::string(duplicate.reason), file.path()};
        if (duplicate.pair->category) {
            row.users.push_back(userOfFile(*duplicate.pair->category, file));
        }
        if (const std::vector<std::size_t>* users = scan_.usersOf(file)) {
            for (const std::size_t user : *users) {
                row.users.push_back(scan_.users()[user]);
            }
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace varrocade
