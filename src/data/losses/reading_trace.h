#pragma once
// What a reader did with each element of a file. A trace is kept only where somebody asks what saving the
// file would lose; reading for the window goes without.

#include "data/field.h"
#include "data/field_text.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace varrocade {

/// What became of an element.
enum class Fate : std::uint8_t {
    Ignored,   ///< no rule knows it in its place
    Group,     ///< only holds others
    Entry,     ///< made an entry of its own, such as a turret or a man
    Replaced,  ///< made an entry that a later element put away
    Value,     ///< set fields
    Item,      ///< made an entry and is its value, such as a personal weapon
    Converted, ///< was turned into something else: an older quarter year
    LeftOut    ///< the record had no room for it
};

/// Whether the text of an element was understood, where the reader knows better than its letters tell.
enum class Understanding : std::uint8_t { ByText, Understood, NotUnderstood };

/// One field that one element set.
struct TracedValue {
    std::uint32_t node;  ///< of the tree
    std::uint32_t entry; ///< the node of the entry that the field belongs to; 0 for those of the whole file
    FieldId field;
    std::string before; ///< the field's value until then; its default, when this is the first to set it
    std::string after;
};

class ReadingTrace {
public:
    /// Begins with a node, whose parent was left before. Nodes come in the tree's order.
    void enter(std::uint32_t node, std::uint32_t parent);
    /// Ends it: takes the values that its fields have now.
    void leave(bool hasRule);

    /// The element is about to set a field of `object`. `ofFile`: the object is the record of the whole file.
    template <const auto& F>
    void note(const RecordOf<F>& object, bool ofFile) {
        const auto textOf = [](const void* value) {
            return textOfValue(*static_cast<const ValueOf<F>*>(value));
        };
        begin({&F, &F.of(object), textOf, ofFile});
    }
    /// The element made an entry. `alone`: there is at most one, so the former of the same name is put away.
    void noteEntry(std::string_view name, bool alone);
    /// The element appended a value to the list `field`.
    void noteItem(FieldId field, std::string_view value);
    /// The element was turned into something else; `value` is its number as the reader took it.
    void noteConverted(FieldId field, std::string_view value);
    void noteLeftOut(std::string_view why);
    void judge(bool understood);

    [[nodiscard]] Fate fateOf(std::uint32_t node) const { return nodes_[node].fate; }
    [[nodiscard]] Understanding understandingOf(std::uint32_t node) const {
        return nodes_[node].understanding;
    }
    /// The entry that a node stands in, or 0.
    [[nodiscard]] std::uint32_t entryAround(std::uint32_t node) const { return nodes_[node].entry; }
    /// In the order of the nodes.
    [[nodiscard]] const std::vector<TracedValue>& values() const { return values_; }
    [[nodiscard]] std::string_view reasonOf(std::uint32_t leftOut) const;

private:
    struct NodeTrace {
        std::uint32_t entry = 0;
        Fate fate = Fate::Ignored;
        Understanding understanding = Understanding::ByText;
    };
    struct OpenField {
        FieldId id;
        const void* value;
        std::string (*textOf)(const void*);
        bool ofFile;
    };
    struct Reason {
        std::uint32_t node;
        std::string why;
    };

    void begin(const OpenField& field);
    NodeTrace& current() { return nodes_.back(); }
    [[nodiscard]] std::uint32_t currentNode() const { return static_cast<std::uint32_t>(nodes_.size() - 1); }

    std::vector<NodeTrace> nodes_ = std::vector<NodeTrace>(1);
    std::vector<TracedValue> values_;
    std::vector<OpenField> open_; ///< the current element's fields, whose values are at the end of `values_`
    std::vector<Reason> reasons_;
    struct Single {
        std::string name;
        std::uint32_t node;
    };
    std::vector<Single> singles_;
};

} // namespace varrocade
