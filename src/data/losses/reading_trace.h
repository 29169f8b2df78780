#pragma once
// What a reader did with each element of a file. A trace is kept only where somebody asks what saving the
// file would lose; reading for the window goes without.

#include "data/format/fixed_string.h"
#include "data/unit/unit_record.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace varrocade {

/// Tells the members of the records apart.
using FieldId = const char*;

// Not constant: linkers may fold equal constants into one.
template <auto Member>
inline char fieldMark = 0;

template <auto Member>
FieldId fieldId() {
    return &fieldMark<Member>;
}

/// How the text of an element stands for its value.
enum class ValueKind : std::uint8_t { String, Image, Number, Flag, Plate, Word };

/// A value as text: numbers in their shortest form, flags as "yes" and "no", image names without ".png".
std::string valueText(bool value);
std::string valueText(std::int32_t value);
std::string valueText(float value);
std::string valueText(double value);
std::string valueText(std::string_view value);
std::string valueText(const ArmourPlate& value);
/// Rear by its name too, although no file needs it.
std::string valueText(EngineMount value);

template <typename Field>
constexpr ValueKind kindOfField() {
    if constexpr (std::same_as<Field, bool>) {
        return ValueKind::Flag;
    } else if constexpr (std::is_arithmetic_v<Field>) {
        return ValueKind::Number;
    } else if constexpr (std::is_enum_v<Field>) {
        return ValueKind::Word;
    } else if constexpr (std::same_as<Field, ArmourPlate>) {
        return ValueKind::Plate;
    } else {
        return ValueKind::String;
    }
}

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
    ValueKind kind;
    std::string before; ///< the field's value until then; its default, when this is the first to set it
    std::string after;
};

class ReadingTrace {
public:
    /// Begins with a node, whose parent was left before. Nodes come in the tree's order.
    void enter(std::uint32_t node, std::uint32_t parent);
    /// Ends it: takes the values that its fields have now.
    void leave(bool hasRule);

    /// The element is about to set a member of `object`. `ofFile`: the object is the record of the whole
    /// file.
    template <auto Member, typename Object>
    void note(const Object& object, bool ofFile, ValueKind kind) {
        using Field = std::remove_cvref_t<decltype(object.*Member)>;
        const auto textOf = [](const void* field) { return asText(*static_cast<const Field*>(field)); };
        begin({fieldId<Member>(), &(object.*Member), textOf, kind, ofFile});
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
        const void* field;
        std::string (*textOf)(const void*);
        ValueKind kind;
        bool ofFile;
    };
    struct Reason {
        std::uint32_t node;
        std::string why;
    };

    template <typename Value>
    static std::string asText(const Value& value) {
        if constexpr (std::integral<Value> && !std::same_as<Value, bool>) {
            return valueText(std::int32_t{value});
        } else if constexpr (std::convertible_to<const Value&, std::string_view>) {
            return valueText(std::string_view(value));
        } else {
            return valueText(value);
        }
    }

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
