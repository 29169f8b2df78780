#include "tools/checks/fixes/quick_fixes.h"

#include "data/finding_text.h"
#include "data/format/source_map.h"
#include "data/format/texts.h"
#include "data/format/words.h"
#include "data/reading/unit_reader.h"
#include "data/reading/unit_rules.h"
#include "data/unit/elements.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_file.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/file_findings.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <vector>

namespace varrocade {

namespace {

namespace ck = check_key;

struct TextEdit {
    std::size_t begin = 0;
    std::size_t length = 0;
    std::string text;
};

/// From the last one of the file to the first: so each leaves the places of the others.
using FixEdits = std::vector<TextEdit>;

std::size_t offsetOf(std::string_view content, const SourcePlace& place) {
    const LineIndex lines(content);
    const std::string_view line = lines.line(place.line);
    const std::size_t column = std::min(place.column - 1, line.size());
    return line.empty() ? content.size() : static_cast<std::size_t>(line.data() - content.data()) + column;
}

/// What is carried for a weapon without ammunition; null where units differ in that.
const std::vector<UsualLoad>* loadsFor(const CheckKnowledge& knowledge, const Finding& finding) {
    const auto found = knowledge.usualLoads.find(finding.value);
    return found == knowledge.usualLoads.end() || found->second.empty() ? nullptr : &found->second;
}

/// The men of a crew have rounds without a flavour: their file has no place for it.
bool isOfCrew(const Finding& finding) {
    return finding.field.starts_with(element::Vehicle) &&
           finding.field.find("." + std::string(element::Man) + "[") != std::string::npos;
}

std::string tagged(std::string_view name, std::string_view text) {
    return "<" + std::string(name) + ">" + std::string(text) + "</" + std::string(name) + ">";
}

/// Behind the weapon, as lines of their own where the weapon has one.
FixEdits ammunitionEdits(std::string_view content, std::size_t at, const Finding& finding,
                         const std::vector<UsualLoad>& loads) {
    const std::string opening = "<" + std::string(element::Weapon) + ">";
    const std::string closing = "</" + std::string(element::Weapon) + ">";
    const std::size_t begin = content.rfind(opening, at);
    const std::size_t end = content.find(closing, at);
    if (begin == std::string_view::npos || end == std::string_view::npos) {
        return {};
    }
    const std::size_t behind = end + closing.size();
    const std::size_t lineBegin = content.find_last_of("\r\n", begin) + 1;
    const std::size_t lineEnd = std::min(content.find_first_of("\r\n", behind), content.size());
    const std::string_view indent = content.substr(lineBegin, begin - lineBegin);
    const bool isOnItsOwn =
        trimmed(indent).empty() && trimmed(content.substr(behind, lineEnd - behind)).empty();
    const std::string_view lineBreak = content.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
    std::string text;
    for (const UsualLoad& load : loads) {
        if (isOnItsOwn) {
            text += std::string(lineBreak) + std::string(indent);
        }
        std::string inner = tagged(field::AmmoFor.element, finding.value);
        if (!load.flavour.empty() && !isOfCrew(finding)) {
            inner += tagged(field::Flavour.element, load.flavour);
        }
        text += tagged(element::Ammo, inner + tagged(field::Rounds.element, std::to_string(load.rounds)));
        if (isOfCrew(finding)) {
            break;
        }
    }
    return {{isOnItsOwn ? lineEnd : behind, 0, std::move(text)}};
}

/// An element's name, in both of its tags.
FixEdits renameEdits(std::string_view content, std::size_t at, const Finding& finding) {
    const std::string opening = tagText(finding.value);
    const std::string closing = "</" + finding.value + ">";
    const std::size_t end = content.find(closing, at);
    if (!content.substr(at).starts_with(opening) || end == std::string_view::npos) {
        return {};
    }
    return {{end, closing.size(), "</" + finding.replacement + ">"},
            {at, opening.size(), "<" + finding.replacement + ">"}};
}

FixEdits valueEdits(std::string_view content, std::size_t at, const Finding& finding) {
    const bool isTag = finding.value.starts_with('<');
    const std::size_t end = isTag ? at + finding.value.size() : content.find('<', at);
    const std::size_t found = content.substr(0, end).find(finding.value, at);
    if (found == std::string_view::npos || (isTag && found != at)) {
        return {};
    }
    return {{found, finding.value.size(), finding.replacement}};
}

/// A point of availability with what stands behind it on its line, which goes with it.
std::size_t endOfPoint(std::string_view content, std::size_t begin) {
    const std::string closing = "</" + std::string(element::Data) + ">";
    const std::size_t end = std::min(content.find(closing, begin), content.size() - closing.size());
    const std::size_t lineEnd = std::min(content.find_first_of("\r\n", end), content.size());
    const std::size_t behind = end + closing.size();
    const std::string_view rest = trimmed(content.substr(behind, lineEnd - behind));
    return rest.starts_with("//") ? lineEnd : behind;
}

/// Puts the points into the order of their dates, each in the place of another.
FixEdits sortingEdits(std::string_view content) {
    TagTree tree;
    tree.parse(content);
    Diagnostics diagnostics;
    const std::vector<AvailabilityPoint> points = readUnit(content, {}, diagnostics).availability;
    const auto nodes = pathsOfElements(tree, unit_rules::elements());
    const SourceMap places(tree, content);
    std::vector<std::string_view> texts;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto node = nodes.find(std::string(element::Availability) + "[" + std::to_string(i + 1) + "]");
        if (node == nodes.end()) {
            return {};
        }
        const std::size_t begin = offsetOf(content, places.placeOf(tree.nodes()[node->second]));
        texts.push_back(content.substr(begin, endOfPoint(content, begin) - begin));
    }
    std::vector<std::size_t> order(points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::tie(points[a].year, points[a].month) < std::tie(points[b].year, points[b].month);
    });
    FixEdits edits;
    for (std::size_t i = points.size(); i-- > 0;) {
        if (order[i] != i) {
            edits.push_back({static_cast<std::size_t>(texts[i].data() - content.data()), texts[i].size(),
                             std::string(texts[order[i]])});
        }
    }
    return edits;
}

FixEdits editsFor(const CheckKnowledge& knowledge, std::string_view content, const Finding& finding) {
    if (quickFixName(knowledge, finding).empty()) {
        return {};
    }
    const std::size_t at = offsetOf(content, SourcePlace{finding.line, finding.column});
    if (finding.key == ck::WeaponWithoutAmmo) {
        return ammunitionEdits(content, at, finding, *loadsFor(knowledge, finding));
    }
    if (finding.key == ck::AvailabilityOrder) {
        return sortingEdits(content);
    }
    return finding.key == finding_key::UnknownElement ? renameEdits(content, at, finding)
                                                      : valueEdits(content, at, finding);
}

bool isSameProblem(const Finding& a, const Finding& b) {
    return std::tie(a.key, a.field, a.value) == std::tie(b.key, b.field, b.value);
}

std::size_t countErrors(const std::vector<Finding>& findings) {
    return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(), [](const Finding& one) {
        return one.severity == Severity::Error;
    }));
}

/// Whether the values of a file are looked at at all while it has the finding.
bool isOfStructure(const Finding& finding) {
    return finding.key == ck::StrayClosingTag || finding.key == ck::UnclosedElement ||
           finding.key == ck::BrokenTag;
}

bool isBetter(const std::vector<Finding>& before, const std::vector<Finding>& after, const Finding& fixed) {
    const auto count = [&](const std::vector<Finding>& all) {
        return std::count_if(all.begin(), all.end(),
                             [&](const Finding& one) { return isSameProblem(one, fixed); });
    };
    return count(after) < count(before) &&
           (isOfStructure(fixed) || countErrors(after) <= countErrors(before));
}

} // namespace

std::string quickFixName(const CheckKnowledge& knowledge, const Finding& finding) {
    if (finding.line == 0 || finding.column == 0) {
        return {};
    }
    if (finding.key == ck::WeaponWithoutAmmo) {
        const std::vector<UsualLoad>* loads = loadsFor(knowledge, finding);
        if (loads == nullptr) {
            return {};
        }
        std::string text;
        for (const UsualLoad& load : *loads) {
            text += (text.empty() ? "Add " : ", ") + grouped(load.rounds);
            text += load.flavour.empty() || isOfCrew(finding) ? "" : " " + load.flavour;
            if (isOfCrew(finding)) {
                break;
            }
        }
        return text + " for " + quoted(finding.value);
    }
    if (finding.key == ck::AvailabilityOrder) {
        // The rule says so only where sorting is all that is to be done.
        return finding.hint.empty() ? "" : "Sort the points of availability by their dates";
    }
    if (finding.replacement.empty() || finding.value.empty() || finding.replacement == finding.value) {
        return {};
    }
    return "Write " + quoted(finding.replacement) + " for " + quoted(finding.value);
}

FixedText fixText(const CheckKnowledge& knowledge, Category category, std::string_view name,
                  std::string_view content, std::span<const Finding> findings) {
    FixedText result{std::string(content)};
    std::vector<const Finding*> fromBehind;
    for (const Finding& finding : findings) {
        fromBehind.push_back(&finding);
    }
    std::stable_sort(fromBehind.begin(), fromBehind.end(), [](const Finding* a, const Finding* b) {
        return std::tie(b->line, b->column) < std::tie(a->line, a->column);
    });
    const std::string shown = findings.empty() ? std::string() : findings.front().file;
    const auto check = [&](std::string_view text) {
        return checkFile(knowledge, {.category = category, .name = name, .shown = shown, .content = text});
    };
    std::vector<Finding> present = check(content);
    for (const Finding* finding : fromBehind) {
        if (std::none_of(present.begin(), present.end(),
                         [finding](const Finding& one) { return isSameProblem(one, *finding); })) {
            result.fixed += 1; // with another one
            continue;
        }
        std::string text = result.text;
        const FixEdits edits = editsFor(knowledge, text, *finding);
        for (const TextEdit& edit : edits) {
            text.replace(edit.begin, edit.length, edit.text);
        }
        if (edits.empty()) {
            continue;
        }
        std::vector<Finding> after = check(text);
        if (isBetter(present, after, *finding)) {
            result.text = std::move(text);
            result.fixed += 1;
            present = std::move(after);
        }
    }
    return result;
}

} // namespace varrocade
