#pragma once
// The machinery of reading a tagged file by a table of rules: which element in which place sets which field.
// Units, weapons and the settings of a mod have their tables; here is what these share.
//
// A `Reading` of each kind of file holds what its walk is filling. It derives from `TagReading`, names its
// enumeration of places `Place`, whose first value `Unknown` stands for any place that no rule tells apart,
// and has a function `target(reading, const Record*)` for each record that its fields belong to: the object
// that is being filled, or null.

#include "data/field.h"
#include "data/format/numbers.h"
#include "data/format/tag_tree.h"
#include "data/losses/reading_trace.h"
#include "data/reader_findings.h"
#include "data/unit/image_names.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

namespace varrocade {

/// What every walk over a tree knows.
struct TagReading {
    const TagTree& tree;
    /// Where to note what the record cannot take, or null.
    ReaderFindings* findings = nullptr;
    const TagNode* node = nullptr; ///< the present one
    /// Where to note what becomes of each element, or null.
    ReadingTrace* trace = nullptr;
};

namespace tag_rules {

/// One rule: an element in a place leads to another place and does something with its text.
template <typename Reading>
struct Rule {
    using Place = typename Reading::Place;
    using Action = void (*)(Reading& reading, std::string_view text);

    Place parent; ///< `Unknown`: wherever no other rule knows the element
    std::string_view element;
    Place place = Place::Unknown;
    Action apply = nullptr;
    /// What its text sets, for those who look at texts without reading them.
    std::span<const FieldId> fields = {};
    /// What writers put in the place of an older spelling; empty for today's.
    std::string_view today = {};
};

/// The list of these fields.
template <const auto&... Fields>
inline constexpr std::array<FieldId, sizeof...(Fields)> FieldList = {&Fields...};

/// Rules by place and element, in a table that one look finds most of them in.
template <typename Reading>
class RuleTable {
public:
    using Row = Rule<Reading>;
    using Place = typename Reading::Place;

    RuleTable() { slots_.fill(Free); }

    /// At most a few hundred rules in all.
    template <typename Rules>
    void add(const Rules& rules) {
        for (const Row& rule : rules) {
            std::size_t slot = slotOf(rule.parent, rule.element);
            while (slots_[slot] != Free) {
                slot = (slot + 1) % Slots;
            }
            slots_[slot] = static_cast<std::uint16_t>(rules_.size());
            rules_.push_back(rule);
        }
    }

    /// The rule for an element in a place, or null.
    [[nodiscard]] const Row* find(Place parent, std::string_view element) const {
        const Row* rule = look(parent, element);
        return rule != nullptr || parent == Place::Unknown ? rule : look(Place::Unknown, element);
    }

    /// Whether an element of this name means something in some place.
    [[nodiscard]] bool knows(std::string_view element) const {
        return std::any_of(rules_.begin(), rules_.end(),
                           [element](const Row& rule) { return rule.element == element; });
    }

    [[nodiscard]] const std::vector<Row>& rules() const { return rules_; }

private:
    static constexpr std::size_t Slots = 1024;
    static constexpr std::uint16_t Free = UINT16_MAX;

    static std::size_t slotOf(Place parent, std::string_view name) {
        const std::size_t first = static_cast<unsigned char>(name.empty() ? '\0' : name.front());
        const std::size_t last = static_cast<unsigned char>(name.empty() ? '\0' : name.back());
        const std::size_t middle = static_cast<unsigned char>(name.empty() ? '\0' : name[name.size() / 2]);
        const std::size_t hash =
            static_cast<std::size_t>(parent) * 131 + name.size() * 31 + first * 7 + last * 61 + middle * 17;
        return hash % Slots;
    }

    [[nodiscard]] const Row* look(Place parent, std::string_view element) const {
        for (std::size_t slot = slotOf(parent, element);; slot = (slot + 1) % Slots) {
            if (slots_[slot] == Free) {
                return nullptr;
            }
            const Row& rule = rules_[slots_[slot]];
            if (rule.parent == parent && rule.element == element) {
                return &rule;
            }
        }
    }

    std::vector<Row> rules_;
    std::array<std::uint16_t, Slots> slots_;
};

/// Walks a tree in file order. `visit` takes the reading, the place of the node's parent and the node, does
/// what its rule says, and returns where the node leads; `hasRule` tells the trace whether there was one.
template <typename Reading>
void walk(Reading& reading, typename Reading::Place (*visit)(Reading& reading, typename Reading::Place parent,
                                                             const TagNode& node, bool& hasRule)) {
    const std::vector<TagNode>& nodes = reading.tree.nodes();
    std::vector<typename Reading::Place> places(nodes.size(), Reading::Place::Unknown);
    for (std::uint32_t i = 1; i < nodes.size(); ++i) {
        const TagNode& node = nodes[i];
        bool hasRule = false;
        reading.node = &node;
        if (reading.trace == nullptr) {
            places[i] = visit(reading, places[node.parent], node, hasRule);
        } else {
            reading.trace->enter(i, node.parent);
            places[i] = visit(reading, places[node.parent], node, hasRule);
            reading.trace->leave(hasRule);
        }
    }
}

/// Does what the rule for a node says, if there is one.
template <typename Reading>
typename Reading::Place apply(const RuleTable<Reading>& table, Reading& reading,
                              typename Reading::Place parent, const TagNode& node, bool& hasRule) {
    const Rule<Reading>* rule = table.find(parent, node.name);
    hasRule = rule != nullptr;
    if (rule == nullptr) {
        return Reading::Place::Unknown;
    }
    if (rule->apply != nullptr) {
        rule->apply(reading, node.text);
    }
    return rule->place;
}

/// The element made an entry; `alone`: and put away the former one.
inline void noteEntry(TagReading& reading, bool alone = false) {
    if (reading.trace != nullptr) {
        reading.trace->noteEntry(reading.node->name, alone);
    }
}

/// The element found no room in the record. `what`: such as "more than 13 components".
inline void reportLeftOut(TagReading& reading, std::string_view what) {
    if (reading.trace != nullptr) {
        reading.trace->noteLeftOut(what);
    }
    if (reading.findings != nullptr && reading.node != nullptr) {
        reading.findings->addLeftOut(*reading.node, what);
    }
}

/// Whether the text of the element was understood, where its letters alone do not tell.
inline void judge(TagReading& reading, bool understood) {
    if (reading.trace != nullptr) {
        reading.trace->judge(understood);
    }
}

/// The object whose list or reference a rule changes; null while there is none.
template <typename Record, typename Reading>
Record* ownerOf(Reading& reading) {
    const Record* kind = nullptr;
    return target(reading, kind);
}

/// The object whose field a rule is about to set.
template <const auto& F, typename Reading>
RecordOf<F>* targetOf(Reading& reading) {
    RecordOf<F>* object = ownerOf<RecordOf<F>>(reading);
    if (reading.trace != nullptr && object != nullptr) {
        reading.trace->template note<F>(*object, std::same_as<RecordOf<F>, typename Reading::File>);
    }
    return object;
}

inline constexpr std::string_view Yes = "yes";

inline void convert(std::string_view text, bool& value) {
    value = text == Yes;
}
inline void convert(std::string_view text, double& value) {
    value = toReal(text);
}
inline void convert(std::string_view text, float& value) {
    value = toFloat(text);
}
template <std::integral Integer>
void convert(std::string_view text, Integer& value) {
    value = toClamped<Integer>(text);
}
template <typename String>
requires std::is_assignable_v<String&, std::string_view>
void convert(std::string_view text, String& value) {
    value = text;
}

/// Sets fields from the element's text, by their types.
template <typename Reading, const auto&... Fields>
void set(Reading& reading, std::string_view text) {
    const auto setOne = [&]<const auto & F>() {
        if (auto* object = targetOf<F>(reading)) {
            if constexpr (F.kind == FieldKind::Image) {
                F.of(*object) = imageNameOf(text);
            } else {
                convert(text, F.of(*object));
            }
        }
    };
    (setOne.template operator()<Fields>(), ...);
}

} // namespace tag_rules

} // namespace varrocade
