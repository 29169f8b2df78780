#include "data/losses/entry_pairs.h"

#include <map>
#include <string>
#include <tuple>

namespace varrocade {

namespace {

/// The entry around (of the saved file), the element's name, and the values of the key fields.
using EntryKey = std::tuple<std::uint32_t, std::string_view, std::string>;

bool isEntry(Fate fate) {
    return fate == Fate::Entry || fate == Fate::Item;
}

std::string keyText(const FieldHistory& history, std::span<const FieldId> keys, std::uint32_t entry) {
    std::string text;
    for (const FieldId key : keys) {
        if (const TracedValue* value = history.last(entry, key)) {
            // No text of a file holds a line feed.
            text += value->after + '\n';
        }
    }
    return text;
}

/// Entries that wait for a partner, in the order of their file.
class Waiting {
public:
    void add(const EntryKey& key, std::uint32_t entry) { entries_[key].entries.push_back(entry); }

    std::uint32_t next(const EntryKey& key, const std::vector<bool>& isTaken) {
        const auto found = entries_.find(key);
        if (found == entries_.end()) {
            return TagNode::None;
        }
        Queue& queue = found->second;
        while (queue.first < queue.entries.size() && isTaken[queue.entries[queue.first]]) {
            ++queue.first;
        }
        return queue.first < queue.entries.size() ? queue.entries[queue.first] : TagNode::None;
    }

private:
    struct Queue {
        std::vector<std::uint32_t> entries;
        std::size_t first = 0;
    };
    std::map<EntryKey, Queue> entries_;
};

} // namespace

EntryPairs::EntryPairs(const TracedFile& file, const FieldHistory& history, const TracedFile& saved,
                       const FieldHistory& savedHistory, std::span<const FieldId> keys)
    : partners_(file.tree.nodes().size(), TagNode::None) {
    const std::vector<TagNode>& nodes = file.tree.nodes();
    const std::vector<TagNode>& savedNodes = saved.tree.nodes();
    Waiting byKey;
    Waiting byOrder;
    for (std::uint32_t i = 1; i < savedNodes.size(); ++i) {
        if (isEntry(saved.trace.fateOf(i))) {
            const std::uint32_t around = saved.trace.entryAround(i);
            byKey.add({around, savedNodes[i].name, keyText(savedHistory, keys, i)}, i);
            byOrder.add({around, savedNodes[i].name, {}}, i);
        }
    }
    std::vector<bool> isTaken(savedNodes.size(), false);
    partners_[0] = 0;
    const auto pair = [&](std::uint32_t entry, std::uint32_t partner) {
        partners_[entry] = partner;
        if (partner != TagNode::None) {
            isTaken[partner] = true;
        }
    };
    // Entries with keys hold no further entries, so that those with partners by order only can wait.
    std::vector<std::uint32_t> unpaired;
    for (std::uint32_t i = 1; i < nodes.size(); ++i) {
        if (!isEntry(file.trace.fateOf(i)) || isGone(file.trace.entryAround(i))) {
            continue;
        }
        const std::uint32_t around = partnerOf(file.trace.entryAround(i));
        pair(i, byKey.next({around, nodes[i].name, keyText(history, keys, i)}, isTaken));
        if (isGone(i)) {
            unpaired.push_back(i);
        }
    }
    for (const std::uint32_t i : unpaired) {
        pair(i, byOrder.next({partnerOf(file.trace.entryAround(i)), nodes[i].name, {}}, isTaken));
    }
}

} // namespace varrocade
