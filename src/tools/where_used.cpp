#include "tools/where_used.h"

#include "data/format/source_map.h"
#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/reading/unit_rules.h"
#include "data/unit/image_names.h"
#include "mod/each_mod_field.h"
#include "mod/mod_settings.h"
#include "tools/asset_files.h"
#include "tools/checks/engine/file_findings.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

/// Finds the places of uses in one file.
void placeUses(std::string_view content, Category category, std::vector<NameUse>& uses, std::size_t first) {
    TagTree tree;
    tree.parse(content);
    const SourceMap places(tree, content);
    const bool isWeapon = category == Category::Weapons;
    const auto nodes = pathsOfElements(tree, isWeapon ? weapon_rules::elements() : unit_rules::elements());
    for (std::size_t i = first; i < uses.size(); ++i) {
        if (const auto node = nodes.find(uses[i].path); node != nodes.end()) {
            const SourcePlace place = places.placeOfText(tree.nodes()[node->second]);
            uses[i].line = place.line;
            uses[i].column = place.column;
        }
    }
}

} // namespace

std::string_view bareName(std::string_view name) {
    for (const std::string_view ending : {ImageEnding, SoundEnding, DataFileEnding}) {
        if (name.size() > ending.size() &&
            equalsIgnoringCase(name.substr(name.size() - ending.size()), ending)) {
            return name.substr(0, name.size() - ending.size());
        }
    }
    return name;
}

std::string_view referenceWord(ReferenceKind kind) {
    constexpr std::array<std::string_view, 7> words = {"weapon", "picture",     "uniform", "sound",
                                                       "flag",   "nationality", "unit"};
    return words[static_cast<std::size_t>(kind)];
}

NameSearch::NameSearch(GameFolders folders, std::vector<std::string> names)
    : folders_(std::move(folders)), names_(std::move(names)) {
    for (std::string& name : names_) {
        name = std::string(bareName(name));
    }
    std::erase(names_, std::string());
}

bool NameSearch::isWanted(std::string_view name) const {
    return std::any_of(names_.begin(), names_.end(),
                       [name](const std::string& wanted) { return equalsIgnoringCase(name, wanted); });
}

bool NameSearch::step() {
    if (!isBegun_) {
        isBegun_ = true;
        begin();
        return true;
    }
    return walk_.step([this](const GameFile& file, std::string_view content) { read(file, content); });
}

void NameSearch::begin() {
    readSettings(folders_.mod.empty() ? folders_.program : folders_.mod);
    walk_ = GameFileWalk(listAllFiles(folders_, failures_));
}

void NameSearch::note(const Reference& reference, NameUse use) {
    // A flag follows from the nationality, which is a use itself.
    if (reference.written.empty() || reference.kind == ReferenceKind::Flag ||
        !(isWanted(bareName(reference.written)) || isWanted(reference.name))) {
        return;
    }
    use.kind = reference.kind;
    use.path = reference.path.text();
    use.written = std::string(reference.written);
    uses_.push_back(std::move(use));
}

void NameSearch::readSettings(const std::string& base) {
    const auto settings = loadModSettings(base);
    if (!settings) {
        return;
    }
    const NameUse ofSettings{.below = std::string(ModFileName)};
    forEachReference(*settings, [&](const Reference& reference) { note(reference, ofSettings); });
    forEachListedUnit(*settings, [&](const std::string& path, const ModListedUnit& unit) {
        if (isWanted(bareName(unit.fileName))) {
            NameUse use = ofSettings;
            use.kind = ReferenceKind::Unit;
            use.path = path;
            use.written = unit.fileName;
            uses_.push_back(std::move(use));
        }
    });
}

void NameSearch::read(const GameFile& file, std::string_view content) {
    const std::size_t first = uses_.size();
    const NameUse ofFile{.file = file, .below = dataFilePath({}, file.category, file.name)};
    const ReferenceVisit visit = [&](const Reference& reference) { note(reference, ofFile); };
    Diagnostics diagnostics;
    if (file.category == Category::Weapons) {
        forEachReference(readWeapon(content, file.name, diagnostics), visit);
    } else {
        forEachReference(readUnit(content, file.name, diagnostics), visit);
    }
    if (uses_.size() > first) {
        placeUses(content, file.category, uses_, first);
    }
}

JobProgress NameSearch::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

std::vector<FileFailure> NameSearch::failures() const {
    std::vector<FileFailure> failures = failures_;
    failures.insert(failures.end(), walk_.failures().begin(), walk_.failures().end());
    return failures;
}

} // namespace varrocade
