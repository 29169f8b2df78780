#include "tools/checks/engine/check_file.h"

#include "data/reading/unit_rules.h"
#include "data/unit/elements.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/file_findings.h"
#include "tools/checks/engine/suppressions.h"
#include "tools/checks/rules/element_rules.h"
#include "tools/checks/rules/line_rules.h"
#include "tools/checks/rules/structure_rules.h"
#include "tools/checks/rules/unit_rules.h"
#include "tools/checks/rules/weapon_file_rules.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace varrocade {

namespace {

namespace ck = check_key;

/// The game's files have a few kilobytes; what is far larger is no such file, and is not taken apart.
constexpr std::size_t LargestFile = std::size_t{4} << 20U;

const ElementTable& elementsOf(Category category) {
    return category == Category::Weapons ? weapon_rules::elements() : unit_rules::elements();
}

/// Findings that follow from another one about the same value say nothing new.
void dropEchoes(std::vector<Finding>& found) {
    struct Echo {
        std::string_view key;
        std::string_view of;
    };
    constexpr auto echoes = std::to_array<Echo>({
        {ck::UnclosedElement, ck::CommentInValue},
        {ck::StrayText, ck::CommentInValue},
        {ck::StrayText, ck::BrokenTag},
        {ck::StrayClosingTag, ck::BrokenTag},
        {finding_key::AmmoWithoutWeapon, finding_key::UnknownWeapon},
        {finding_key::AmmoWithoutWeapon, ck::EmptyValue},
        {ck::EmptyValue, ck::BrokenTag},
        {finding_key::UnknownElement, ck::BrokenTag},
        {ck::WeaponWithoutAmmo, finding_key::UnknownWeapon},
        {ck::NoRounds, ck::NotANumber},
        {ck::NoRounds, ck::EmptyValue},
        {ck::NoSize, ck::NotANumber},
        {ck::NoSize, ck::EmptyValue},
        {ck::NoSize, ck::OutOfRange},
        {ck::NoArmour, ck::NotANumber},
        {ck::NoArmour, ck::OutOfRange},
        {ck::NoArmour, ck::EmptyValue},
        {ck::VehicleSize, ck::PictureSizeKey},
        {ck::UnusualValue, ck::VehicleWeight},
        {ck::UnusualValue, ck::NumberCut},
        {ck::AvailabilityYears, ck::OutOfRange},
        {ck::AvailabilityOrder, ck::OutOfRange},
        {ck::AvailabilityOrder, ck::NotANumber},
        {ck::AvailabilityOrder, ck::AvailabilityYears},
        {ck::CrewWithoutJob, finding_key::UnknownWord},
        {finding_key::NoRotateTime, ck::NotANumber},
        {finding_key::NoRotateTime, ck::OutOfRange},
    });
    const std::vector<Finding> all = found;
    std::erase_if(found, [&](const Finding& finding) {
        return std::any_of(all.begin(), all.end(), [&](const Finding& other) {
            return other.line == finding.line &&
                   std::any_of(echoes.begin(), echoes.end(), [&](const Echo& row) {
                       return row.key == finding.key && row.of == other.key;
                   });
        });
    });
}

/// By their places. Where text and record tell the same, what names the whole path of the value stays.
std::vector<Finding> sorted(FileFindings& out) {
    std::vector<Finding> found = std::move(out.found());
    if (found.size() < 2) {
        return found;
    }
    dropEchoes(found);
    std::stable_sort(found.begin(), found.end(), [](const Finding& a, const Finding& b) {
        return std::forward_as_tuple(a.line, a.column, a.key, a.value, a.expected, b.field.size()) <
               std::forward_as_tuple(b.line, b.column, b.key, b.value, b.expected, a.field.size());
    });
    const auto isSame = [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.column, a.key, a.value, a.expected) ==
               std::tie(b.line, b.column, b.key, b.value, b.expected);
    };
    found.erase(std::unique(found.begin(), found.end(), isSame), found.end());
    return found;
}

/// What the text is like; whether it can be read as it is meant.
bool checkText(const FileToCheck& file, const TagTree& tree, FileFindings& out) {
    if (hasWideMark(file.content)) {
        out.atFile({.key = ck::EmptyFile,
                    .message = "the file is written in UTF-16, so that the game sees no element in it",
                    .hint = "save it as ANSI text"});
        return false;
    }
    if (hasForeignBytes(file.content)) {
        checkCharacters(file.content, out);
    }
    if (tree.nodes().size() == 1 && tree.content().find('<') == std::string_view::npos) {
        out.atFile({.key = ck::EmptyFile, .message = "the file holds no element"});
        return false;
    }
    const ElementTable& table = elementsOf(file.category);
    if (tree.isVerbatim()) {
        checkElements(tree.nodes(), file.category, table, out);
        return true;
    }
    const std::size_t before = out.found().size();
    std::vector<TagNode> mended;
    checkStructure(tree.content(), table, out, mended);
    const bool isSound = out.found().size() == before;
    checkLines(file.content, out);
    checkElements(mended, file.category, table, out);
    return isSound && tree.nodes().size() > 1;
}

void checkUnitRecord(const CheckedUnit& checked) {
    checkIdentity(checked);
    checkReferences(checked);
    checkPictures(checked);
    checkArmament(checked);
    checkCrew(checked);
    checkPlacement(checked);
    checkArmour(checked);
    checkAvailability(checked);
    checkUsage(checked);
    checkValues(checked);
}

void checkWeaponRecord(const CheckedWeapon& checked) {
    checkWeapon(checked);
    checkWeaponValues(checked);
}

/// What the reader has no room for.
void addLeftOut(const Diagnostics& diagnostics, FileFindings& out) {
    for (const Finding& finding : diagnostics) {
        if (finding.key == finding_key::NoRoom) {
            out.found().push_back(finding);
            out.found().back().file = out.file();
        }
    }
}

std::vector<Finding> tooLarge(const FileToCheck& file) {
    return {{.key = ck::LongLine,
             .severity = Severity::Error,
             .file = std::string(file.shown),
             .line = 1,
             .column = 1,
             .message = "the file is larger than any of the game, and is not looked at"}};
}

/// Runs `check` on a file that was taken apart.
template <typename Check>
std::vector<Finding> onTree(const FileToCheck& file, const TagTree& tree, Check check) {
    FileFindings out(file.shown, tree, file.content, elementsOf(file.category));
    check(tree, out);
    std::vector<Finding> found = sorted(out);
    applyComments(file.content, out.file(), found);
    return found;
}

/// Takes a file apart before.
template <typename Check>
std::vector<Finding> withTree(const FileToCheck& file, Check check) {
    if (file.content.size() > LargestFile) {
        return tooLarge(file);
    }
    TagTree tree;
    tree.parse(file.content);
    return onTree(file, tree, check);
}

} // namespace

std::string pathOfFinding(Category category, std::string_view content, const Finding& finding) {
    if (finding.line == 0 || finding.field.find_first_of(".[") != std::string::npos) {
        return finding.field;
    }
    TagTree tree;
    tree.parse(content);
    const SourceMap places(tree, content);
    std::string nearest;
    SourcePlace nearestPlace{0, 0};
    for (const auto& [path, node] : pathsOfElements(tree, elementsOf(category))) {
        const SourcePlace place = places.placeOf(tree.nodes()[node]);
        const bool isBefore = std::tie(place.line, place.column) <= std::tie(finding.line, finding.column);
        const bool isNearer =
            std::tie(nearestPlace.line, nearestPlace.column) < std::tie(place.line, place.column);
        if (isBefore && isNearer) {
            nearest = path;
            nearestPlace = place;
        }
    }
    if (nearest.empty()) {
        return finding.field;
    }
    const bool isItself = nearest == finding.field || nearest.ends_with("." + finding.field);
    const bool isEntry = nearest.ends_with(']') || finding.key == ck::MissingElement;
    return isItself || !isEntry || finding.field.empty() ? nearest : nearest + "." + finding.field;
}

void readForCheck(const FileToCheck& file, ReadUnitFile& into) {
    into.unit = {};
    into.diagnostics.clear();
    into.unit.fileName = file.name;
    into.tree.parse(file.content);
    ReaderFindings ofReader(into.diagnostics, file.name, into.tree, file.content);
    unit_rules::Reading reading{{.tree = into.tree, .findings = &ofReader}, into.unit};
    unit_rules::readTree(reading);
}

std::vector<Finding> checkFile(const CheckKnowledge& knowledge, const FileToCheck& file,
                               const ReadUnitFile* read) {
    if (file.content.size() > LargestFile) {
        return tooLarge(file);
    }
    if (file.category == Category::Weapons) {
        TagTree tree;
        Diagnostics diagnostics;
        const WeaponRecord weapon = readWeapon(tree, file.content, file.name, diagnostics);
        return checkWeaponFile(knowledge, file, {tree, weapon, diagnostics});
    }
    if (read == nullptr) {
        ReadUnitFile own;
        readForCheck(file, own);
        return checkFile(knowledge, file, &own);
    }
    return onTree(file, read->tree, [&](const TagTree& tree, FileFindings& out) {
        if (checkText(file, tree, out)) {
            addLeftOut(read->diagnostics, out);
            checkUnitRecord({read->unit, file.category, file.name, knowledge, out, file.looksIntoPictures});
        }
    });
}

std::vector<Finding> checkWeaponFile(const CheckKnowledge& knowledge, const FileToCheck& file,
                                     const ReadWeaponFile& read) {
    if (file.content.size() > LargestFile) {
        return tooLarge(file);
    }
    return onTree(file, read.tree, [&](const TagTree& tree, FileFindings& out) {
        if (checkText(file, tree, out)) {
            addLeftOut(read.diagnostics, out);
            checkWeaponRecord({read.weapon, file.name, knowledge, out});
        }
    });
}

std::vector<Finding> checkFileText(const FileToCheck& file) {
    return withTree(file, [&](const TagTree& tree, FileFindings& out) { checkText(file, tree, out); });
}

std::vector<Finding> checkUnitValues(const CheckKnowledge& knowledge, const FileToCheck& file,
                                     const SquadRecord& unit) {
    return withTree(file, [&](const TagTree&, FileFindings& out) {
        checkUnitRecord({unit, file.category, file.name, knowledge, out});
    });
}

std::vector<Finding> checkWeaponFileValues(const CheckKnowledge& knowledge, const FileToCheck& file,
                                           const WeaponRecord& weapon) {
    return withTree(file, [&](const TagTree&, FileFindings& out) {
        checkWeaponRecord({weapon, file.name, knowledge, out});
    });
}

} // namespace varrocade
