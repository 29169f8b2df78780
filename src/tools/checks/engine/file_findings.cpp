#include "tools/checks/engine/file_findings.h"

#include "data/unit/elements.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "weapons/weapon_elements.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace varrocade {

namespace {

/// A file tells at most so much about itself.
constexpr std::size_t MostFindings = 1000;

bool isOfUnit(FieldId field) {
    return std::apply([field](const auto&... fields) { return ((&fields == field) || ...); },
                      fieldsOf<SquadRecord>);
}

/// The path to each element of a file that makes an entry or holds values.
class PathWalk {
public:
    using Paths = std::map<std::string, std::uint32_t, std::less<>>;

    PathWalk(const TagTree& tree, const ElementTable& table)
        : tree_(tree), table_(table), steps_(tree.nodes().size()) {}

    Paths run() {
        const std::vector<TagNode>& nodes = tree_.nodes();
        for (std::uint32_t i = 1; i < nodes.size(); ++i) {
            const Step above = steps_[nodes[i].parent];
            const ElementRow* row = table_.find(above.place, nodes[i].name);
            steps_[i] = {.place = row == nullptr ? std::uint8_t{0} : row->place, .entry = above.entry};
            if (row == nullptr) {
                continue;
            }
            for (const FieldId field : row->fields) {
                paths_[pathOf(field, above.entry)] = i;
            }
            if (row->makesEntry || nodes[i].name == element::Armour) {
                enter(i, above.entry, nodes[i].name);
            }
        }
        return std::move(paths_);
    }

private:
    struct Step {
        std::uint8_t place = 0;
        std::uint32_t entry = 0; ///< the node of the innermost one, 0 for the file
    };

    [[nodiscard]] std::string pathOf(FieldId field, std::uint32_t entry) const {
        // A personal weapon is the value of its entry.
        if (field == &field::PersonalWeapons) {
            return pathOfEntry(entry);
        }
        const std::string name(field->element);
        return entry == 0 || isOfUnit(field) ? name : pathOfEntry(entry) + "." + name;
    }

    [[nodiscard]] const std::string& pathOfEntry(std::uint32_t entry) const {
        static const std::string ofFile;
        const auto found = entryPaths_.find(entry);
        return found == entryPaths_.end() ? ofFile : found->second;
    }

    void enter(std::uint32_t node, std::uint32_t around, std::string_view name) {
        constexpr auto alone = std::to_array<std::string_view>(
            {element::Vehicle, element::Aircraft, element::Armour, element::Mortar, element::Hmg,
             element::Atgun, element::RecoillessRifle});
        const bool isPoint = name == element::Data;
        const std::string_view step = isPoint                        ? element::Availability
                                      : name == weapon_element::Type ? weapon_element::Ammo
                                                                     : name;
        std::string path = isPoint ? std::string() : pathOfEntry(around);
        path += path.empty() ? "" : ".";
        path += step;
        if (std::find(alone.begin(), alone.end(), name) == alone.end()) {
            path += "[" + std::to_string(++counts_[{isPoint ? 0 : around, step}]) + "]";
        }
        paths_[path] = node;
        entryPaths_[node] = std::move(path);
        steps_[node].entry = node;
    }

    const TagTree& tree_;
    const ElementTable& table_;
    std::vector<Step> steps_;
    std::map<std::uint32_t, std::string> entryPaths_;
    std::map<std::pair<std::uint32_t, std::string_view>, std::size_t> counts_;
    Paths paths_;
};

} // namespace

std::map<std::string, std::uint32_t, std::less<>> pathsOfElements(const TagTree& tree,
                                                                  const ElementTable& table) {
    return PathWalk(tree, table).run();
}

const SourceMap& FileFindings::places() {
    if (!places_) {
        places_.emplace(tree_, content_);
    }
    return *places_;
}

void FileFindings::add(SourcePlace place, Remark remark) {
    if (found_.size() >= MostFindings) {
        return;
    }
    const CheckRule* rule = findCheckRule(remark.key);
    found_.push_back({.key = remark.key,
                      .severity = rule != nullptr ? rule->severity : Severity::Warning,
                      .file = file_,
                      .line = place.line,
                      .column = place.column,
                      .field = std::move(remark.field),
                      .message = std::move(remark.message),
                      .value = std::move(remark.value),
                      .expected = std::move(remark.expected),
                      .hint = std::move(remark.hint),
                      .replacement = std::move(remark.replacement)});
}

void FileFindings::atOffset(std::size_t offset, Remark remark) {
    add(places().placeAt(offset), std::move(remark));
}

void FileFindings::atByte(std::size_t offset, Remark remark) {
    add(LineIndex(content_).placeOf(offset), std::move(remark));
}

void FileFindings::atElement(const TagNode& element, Remark remark) {
    if (remark.field.empty()) {
        remark.field = element.name;
    }
    add(places().placeOf(element), std::move(remark));
}

void FileFindings::atText(const TagNode& element, Remark remark) {
    if (remark.field.empty()) {
        remark.field = element.name;
    }
    if (remark.value.empty()) {
        remark.value = element.text;
    }
    add(places().placeOfText(element), std::move(remark));
}

SourcePlace FileFindings::placeOfValue(std::string_view path) {
    if (!nodes_) {
        nodes_ = pathsOfElements(tree_, table_);
    }
    for (bool isValue = true;; isValue = false) {
        const auto found = nodes_->find(path);
        if (found != nodes_->end()) {
            const TagNode& node = tree_.nodes()[found->second];
            return isValue ? places().placeOfText(node) : places().placeOf(node);
        }
        const std::size_t point = path.rfind('.');
        if (point == std::string_view::npos) {
            return tree_.nodes().size() > 1 ? places().placeOf(tree_.nodes()[1]) : SourcePlace{};
        }
        path = path.substr(0, point);
    }
}

void FileFindings::atValue(std::string_view path, Remark remark) {
    remark.field = path;
    add(placeOfValue(path), std::move(remark));
}

void FileFindings::atValue(Finding finding) {
    Remark remark{.key = finding.key,
                  .message = std::move(finding.message),
                  .value = std::move(finding.value),
                  .expected = std::move(finding.expected),
                  .hint = std::move(finding.hint),
                  .replacement = std::move(finding.replacement)};
    atValue(finding.field, std::move(remark));
}

void FileFindings::atFile(Remark remark) {
    add({}, std::move(remark));
}

} // namespace varrocade
