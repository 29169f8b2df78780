#include "data/losses/traced_file.h"

#include <algorithm>
#include <functional>

namespace varrocade {

namespace {

struct FieldKey {
    std::uint32_t entry;
    FieldId field;
};

bool isBefore(const FieldKey& a, const FieldKey& b) {
    return a.entry != b.entry ? a.entry < b.entry : std::less<>()(a.field, b.field);
}

FieldKey keyOf(const TracedValue* value) {
    return {value->entry, value->field};
}

} // namespace

FieldHistory::FieldHistory(const ReadingTrace& trace) {
    values_.reserve(trace.values().size());
    for (const TracedValue& value : trace.values()) {
        values_.push_back(&value);
    }
    std::stable_sort(values_.begin(), values_.end(),
                     [](const TracedValue* a, const TracedValue* b) { return isBefore(keyOf(a), keyOf(b)); });
}

const TracedValue* FieldHistory::first(std::uint32_t entry, FieldId field) const {
    const FieldKey key{entry, field};
    const auto found = std::lower_bound(
        values_.begin(), values_.end(), key,
        [](const TracedValue* value, const FieldKey& k) { return isBefore(keyOf(value), k); });
    return found != values_.end() && !isBefore(key, keyOf(*found)) ? *found : nullptr;
}

const TracedValue* FieldHistory::last(std::uint32_t entry, FieldId field) const {
    const FieldKey key{entry, field};
    const auto behind = std::upper_bound(
        values_.begin(), values_.end(), key,
        [](const FieldKey& k, const TracedValue* value) { return isBefore(k, keyOf(value)); });
    return behind != values_.begin() && !isBefore(keyOf(behind[-1]), key) ? behind[-1] : nullptr;
}

} // namespace varrocade
