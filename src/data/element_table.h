#pragma once
// Which elements a kind of file has and where, taken from its reader's rules: for those who look at a file's
// text without reading it into a record.

#include "data/tag_rules.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace varrocade {

/// An element in its place. Places are those of the reader as numbers; 0 is any that no rule tells apart.
struct ElementRow {
    std::uint8_t parent = 0;
    std::string_view element = {};
    std::uint8_t place = 0; ///< of what stands in it; 0 for an element that holds a value
    bool makesEntry = false;
    std::span<const FieldId> fields = {};
    std::string_view today = {};

    /// Whether it holds elements and no text.
    [[nodiscard]] bool isGroup() const { return place != 0 && fields.empty(); }
};

class ElementTable {
public:
    template <typename Reading>
    explicit ElementTable(const tag_rules::RuleTable<Reading>& rules) {
        for (const tag_rules::Rule<Reading>& rule : rules.rules()) {
            const auto place = static_cast<std::uint8_t>(rule.place);
            rows_.push_back({.parent = static_cast<std::uint8_t>(rule.parent),
                             .element = rule.element,
                             .place = place,
                             .makesEntry = place != 0 && rule.apply != nullptr && rule.fields.empty(),
                             .fields = rule.fields,
                             .today = rule.today});
        }
        find_ = [](const void* table, std::uint8_t parent, std::string_view element) {
            const auto* typed = static_cast<const tag_rules::RuleTable<Reading>*>(table);
            const auto* rule = typed->find(static_cast<typename Reading::Place>(parent), element);
            return rule == nullptr ? NoRow : static_cast<std::size_t>(rule - typed->rules().data());
        };
        rules_ = &rules;
    }

    /// What an element means in a place, or null.
    [[nodiscard]] const ElementRow* find(std::uint8_t parent, std::string_view element) const {
        const std::size_t row = find_(rules_, parent, element);
        return row == NoRow ? nullptr : &rows_[row];
    }

    /// Whether an element of this name means something in some place.
    [[nodiscard]] bool knows(std::string_view element) const {
        return std::any_of(rows_.begin(), rows_.end(),
                           [element](const ElementRow& row) { return row.element == element; });
    }

    [[nodiscard]] std::span<const ElementRow> rows() const { return rows_; }

private:
    static constexpr std::size_t NoRow = static_cast<std::size_t>(-1);

    const void* rules_ = nullptr; ///< of the reader, which live as long as the program
    std::size_t (*find_)(const void* table, std::uint8_t parent, std::string_view element) = nullptr;
    std::vector<ElementRow> rows_;
};

} // namespace varrocade
