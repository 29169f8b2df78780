#include "tools/checks/sheet_problems.h"

#include "data/format/source_map.h"
#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/unit/unit_gaps.h"
#include "tools/checks/engine/check_file.h"
#include "tools/checks/engine/check_rules.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace varrocade {

namespace {

/// The category that a record's own kind is written in.
Category categoryOf(const SquadRecord& record) {
    return record.vehicle       ? Category::Vehicles
           : record.aircraft    ? Category::Aircraft
           : record.heavyWeapon ? Category::AtGuns
                                : Category::Infantry;
}

/// Whether the bar shows a finding; what is only unusual has its place in lists.
bool isForBar(const Finding& finding) {
    // A broken file gives no whole unit: that it lacks a vehicle goes without saying. What a comment excuses
    // may be what only the other half of the checks looks for.
    return finding.severity != Severity::Note && finding.key != check_key::WrongCategory &&
           finding.key != check_key::BadSuppression;
}

/// Whether it is told of a unit in the making, which fits nowhere yet.
bool isForUnfinished(const Finding& finding) {
    return finding.severity == Severity::Error || finding.key == finding_key::AmmoWithoutWeapon;
}

} // namespace

std::vector<SheetProblem> fileProblems(Category category, std::string_view fileContent) {
    // The game's files have a few KB; a window does not wait for what is no such file.
    constexpr std::size_t mostBytes = std::size_t{256} * 1024U;
    if (fileContent.size() > mostBytes) {
        return {};
    }
    // Single values are looked at in the record, which may be newer.
    constexpr auto ofValues =
        std::to_array<std::string_view>({finding_key::UnknownWord, check_key::OutOfRange});
    std::vector<Finding> found = checkFileText({.category = category, .content = fileContent});
    std::erase_if(found, [&](const Finding& finding) {
        return !isForBar(finding) ||
               std::find(ofValues.begin(), ofValues.end(), finding.key) != ofValues.end();
    });
    Diagnostics ofReader;
    if (category != Category::Weapons) { // the catalogue tells what it had no room for
        readUnit(fileContent, {}, ofReader);
    }
    std::copy_if(ofReader.begin(), ofReader.end(), std::back_inserter(found),
                 [](const Finding& finding) { return finding.key == finding_key::NoRoom; });
    std::stable_sort(found.begin(), found.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    std::vector<SheetProblem> problems;
    const LineIndex lines(fileContent);
    for (Finding& finding : found) {
        std::string source =
            finding.line > 0 ? std::string(trimmed(lines.line(finding.line))) : std::string();
        problems.push_back({std::move(finding), {}, std::move(source)});
    }
    return problems;
}

std::vector<SheetProblem> valueProblems(const SquadRecord& record, std::string_view fileContent,
                                        std::span<const std::string> missingPictures,
                                        const WeaponCatalogue& catalogue,
                                        std::span<const std::string> bases) {
    CheckKnowledge knowledge;
    learnWeapons(knowledge, catalogue);
    knowledge.bases = bases;
    if (bases.empty()) {
        knowledge.missingPictures = missingPictures;
    }
    std::vector<SheetProblem> problems;
    std::vector<Finding> gaps = unitGaps(record);
    for (Finding& finding : checkUnitValues(
             knowledge, {.category = categoryOf(record), .name = record.fileName, .content = fileContent},
             record)) {
        if (isForBar(finding) && (gaps.empty() || isForUnfinished(finding))) {
            // A record that no file holds yet has no lines.
            finding.line = fileContent.empty() ? 0 : finding.line;
            const UnitPart part = partOfField(record, finding.field);
            problems.push_back({std::move(finding), part});
        }
    }
    for (Finding& gap : gaps) {
        const UnitPart part = partOfField(record, gap.field);
        problems.push_back({std::move(gap), part});
    }
    return problems;
}

std::vector<SheetProblem> valueProblems(const WeaponRecord& weapon, std::string_view fileContent) {
    std::vector<SheetProblem> problems;
    for (Finding& finding : checkWeaponFileValues(
             {}, {.category = Category::Weapons, .name = weapon.fileName, .content = fileContent}, weapon)) {
        if (isForBar(finding)) {
            const UnitPart part = partOfField(weapon, finding.field);
            problems.push_back({std::move(finding), part});
        }
    }
    return problems;
}

void dropSuppressed(std::vector<SheetProblem>& problems, const SuppressionList& list,
                    const std::string& shown) {
    std::erase_if(problems, [&](SheetProblem& problem) {
        problem.finding.file = shown;
        return list.covers(problem.finding);
    });
}

} // namespace varrocade
