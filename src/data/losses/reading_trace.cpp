#include "data/losses/reading_trace.h"

#include <algorithm>

namespace varrocade {

void ReadingTrace::enter(std::uint32_t node, std::uint32_t parent) {
    nodes_.resize(node + std::size_t{1});
    const NodeTrace& above = nodes_[parent];
    current().entry = above.fate == Fate::Entry ? parent : above.entry;
    open_.clear();
}

void ReadingTrace::leave(bool hasRule) {
    std::size_t value = values_.size() - open_.size();
    for (const OpenField& field : open_) {
        values_[value].after = field.textOf(field.value);
        ++value;
    }
    if (current().fate == Fate::Ignored && hasRule) {
        current().fate = open_.empty() ? Fate::Group : Fate::Value;
    }
    open_.clear();
}

void ReadingTrace::begin(const OpenField& field) {
    const auto isSame = [&](const OpenField& other) { return other.id == field.id; };
    if (std::any_of(open_.begin(), open_.end(), isSame)) {
        return;
    }
    open_.push_back(field);
    values_.push_back({.node = currentNode(),
                       .entry = field.ofFile ? 0 : current().entry,
                       .field = field.id,
                       .before = field.textOf(field.value),
                       .after = {}});
}

void ReadingTrace::noteEntry(std::string_view name, bool alone) {
    current().fate = Fate::Entry;
    if (!alone) {
        return;
    }
    const auto former = std::find_if(singles_.begin(), singles_.end(),
                                     [name](const Single& single) { return single.name == name; });
    if (former == singles_.end()) {
        singles_.push_back({std::string(name), currentNode()});
    } else {
        nodes_[former->node].fate = Fate::Replaced;
        former->node = currentNode();
    }
}

void ReadingTrace::noteItem(FieldId field, std::string_view value) {
    current().fate = Fate::Item;
    values_.push_back({.node = currentNode(),
                       .entry = currentNode(),
                       .field = field,
                       .before = {},
                       .after = std::string(value)});
}

void ReadingTrace::noteConverted(FieldId field, std::string_view value) {
    current().fate = Fate::Converted;
    values_.push_back({.node = currentNode(),
                       .entry = currentNode(),
                       .field = field,
                       .before = {},
                       .after = std::string(value)});
}

void ReadingTrace::noteLeftOut(std::string_view why) {
    current().fate = Fate::LeftOut;
    reasons_.push_back({currentNode(), std::string(why)});
}

void ReadingTrace::judge(bool understood) {
    current().understanding = understood ? Understanding::Understood : Understanding::NotUnderstood;
}

std::string_view ReadingTrace::reasonOf(std::uint32_t leftOut) const {
    const auto found =
        std::lower_bound(reasons_.begin(), reasons_.end(), leftOut,
                         [](const Reason& reason, std::uint32_t node) { return reason.node < node; });
    return found != reasons_.end() && found->node == leftOut ? std::string_view(found->why)
                                                             : std::string_view();
}

} // namespace varrocade
