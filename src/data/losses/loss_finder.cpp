#include "data/losses/loss_finder.h"

#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/losses/entry_pairs.h"
#include "data/losses/loss_list.h"
#include "data/losses/lost_text.h"
#include "data/losses/value_meaning.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view ReadBack = " will be read back as ";

class LossFinder {
public:
    LossFinder(const TracedFile& file, const TracedFile& saved, const LossKnowledge& knowledge)
        : file_(file), saved_(saved), knowledge_(knowledge), places_(file.tree, file.content),
          history_(file.trace), savedHistory_(saved.trace),
          pairs_(file, history_, saved, savedHistory_, knowledge.keys), nodes_(file.tree.nodes().size()) {}

    std::vector<Finding> run() {
        findLostComments(places_, file_.content, saved_.content, losses_);
        findBrokenNesting(places_, file_.tree, losses_);
        judgeValues();
        foldLostGroups();
        reportNodes();
        return losses_.take();
    }

private:
    /// What became of a node's values, and of those below it.
    struct NodeState {
        bool isLost = false; ///< the node's own value is not in the saved file
        std::uint32_t kept = 0;
        std::uint32_t lost = 0;
        bool isWhole = false;  ///< reported with everything in it
        bool isSilent = false; ///< stands in one that is
    };

    using Values = std::span<const TracedValue>;

    [[nodiscard]] const TagNode& node(std::uint32_t index) const { return file_.tree.nodes()[index]; }
    void add(std::uint32_t index, LossKind kind, std::string message) {
        const std::string_view name = node(index).name;
        losses_.add(places_.placeOf(node(index)), kind, std::move(message),
                    knowledge_.isElement(name) ? name : std::string_view());
    }
    [[nodiscard]] std::string placeOf(std::uint32_t index) const {
        const std::uint32_t parent = node(index).parent;
        return parent == 0 ? std::string(" at the top of the file") : " in " + tagText(node(parent).name);
    }

    void judgeValues();
    void judgeConverted(const TracedValue& value);
    void judgeNode(Values values);
    void judgeEffective(std::uint32_t index, const std::vector<const TracedValue*>& effective);
    void judgeWritten(std::uint32_t index, const std::vector<const TracedValue*>& effective);
    [[nodiscard]] bool isDefault(const TracedValue& value) const;
    [[nodiscard]] const TracedValue* savedValue(const TracedValue& value) const {
        return savedHistory_.last(pairs_.partnerOf(value.entry), value.field);
    }
    void foldLostGroups();
    /// The groups of the saved file, each by the entry it stands in.
    using Groups = std::set<std::pair<std::uint32_t, std::string_view>>;
    [[nodiscard]] Groups savedGroups() const;
    void reportNodes();
    void reportEntry(std::uint32_t index);

    const TracedFile& file_;
    const TracedFile& saved_;
    const LossKnowledge& knowledge_;
    SourceMap places_;
    FieldHistory history_;
    FieldHistory savedHistory_;
    EntryPairs pairs_;
    std::vector<NodeState> nodes_;
    LossList losses_;
};

void LossFinder::judgeValues() {
    const Values values = file_.trace.values();
    for (std::size_t begin = 0; begin < values.size();) {
        std::size_t end = begin + 1;
        while (end < values.size() && values[end].node == values[begin].node) {
            ++end;
        }
        judgeNode(values.subspan(begin, end - begin));
        begin = end;
    }
}

void LossFinder::judgeNode(Values values) {
    const std::uint32_t index = values.front().node;
    const Fate fate = file_.trace.fateOf(index);
    if (fate == Fate::Converted) {
        judgeConverted(values.front());
        return;
    }
    if (fate == Fate::LeftOut) {
        return;
    }
    std::vector<const TracedValue*> effective;
    const TracedValue* overwriting = nullptr;
    for (const TracedValue& value : values) {
        if (pairs_.isGone(value.entry)) {
            continue;
        }
        const TracedValue* last = history_.last(value.entry, value.field);
        if (last == &value) {
            effective.push_back(&value);
        } else if (last->after != value.after) {
            overwriting = last;
        }
    }
    if (!effective.empty()) {
        judgeEffective(index, effective);
    } else if (overwriting != nullptr) {
        add(index, LossKind::Dropped,
            elementText(node(index)) + " is overwritten by " + elementText(node(overwriting->node)) +
                " on line " + std::to_string(places_.placeOf(node(overwriting->node)).line));
    }
}

void LossFinder::judgeConverted(const TracedValue& value) {
    const TagNode& quarter = node(value.node);
    if (!means(quarter.text, value)) {
        add(value.node, LossKind::Changed, elementText(quarter) + " is read as " + quoted(value.after));
    }
    NodeState& block = nodes_[quarter.parent];
    if (block.kept++ == 0) {
        add(quarter.parent, LossKind::Respelt,
            tagText(node(quarter.parent).name) + " is written as dated points of availability");
    }
}

bool LossFinder::isDefault(const TracedValue& value) const {
    return value.after == history_.first(value.entry, value.field)->before ||
           knowledge_.goesWithoutSaying(history_, value);
}

void LossFinder::judgeEffective(std::uint32_t index, const std::vector<const TracedValue*>& effective) {
    const auto isWritten = [this](const TracedValue* value) { return savedValue(*value) != nullptr; };
    const auto isLost = [&](const TracedValue* value) { return !isWritten(value) && !isDefault(*value); };
    if (std::any_of(effective.begin(), effective.end(), isWritten)) {
        nodes_[index].kept = 1;
        judgeWritten(index, effective);
        findJoinedLines(places_, file_.tree, node(index), losses_);
    } else if (std::any_of(effective.begin(), effective.end(), isLost)) {
        nodes_[index].isLost = true;
        nodes_[index].lost = 1;
    } else if (const TracedValue& value = *effective.front();
               !node(index).text.empty() &&
               !means(node(index).text, value, file_.trace.understandingOf(index))) {
        add(index, LossKind::Changed, elementText(node(index)) + " " + misreadText(node(index).text, value));
    }
}

/// For an element some of whose values the saved file has: whether there they are the same, and in what
/// words.
void LossFinder::judgeWritten(std::uint32_t index, const std::vector<const TracedValue*>& effective) {
    const TagNode& element = node(index);
    const std::vector<TagNode>& savedNodes = saved_.tree.nodes();
    std::vector<const TagNode*> written;
    for (const TracedValue* value : effective) {
        const TracedValue* saved = savedValue(*value);
        const bool countsOtherWay = saved != nullptr && savedNodes[saved->node].name != element.name &&
                                    meansOpposite(element.text, *value);
        if (!countsOtherWay && !means(element.text, *value, file_.trace.understandingOf(index))) {
            add(index, LossKind::Changed, elementText(element) + " " + misreadText(element.text, *value));
            return;
        }
        if (saved == nullptr) {
            continue;
        }
        if (saved->after != value->after) {
            add(index, LossKind::Changed,
                elementText(element) + std::string(ReadBack) + quoted(saved->after));
            return;
        }
        if (std::find(written.begin(), written.end(), &savedNodes[saved->node]) == written.end()) {
            written.push_back(&savedNodes[saved->node]);
        }
    }
    const TagNode& first = *written.front();
    const std::string_view savedGroup = savedNodes[first.parent].name;
    if (written.size() == 1 && first.name == element.name && first.text == element.text) {
        if (savedGroup != node(element.parent).name) {
            add(index, LossKind::Respelt,
                elementText(element) + placeOf(index) + " is written in " + tagText(savedGroup));
        }
        return;
    }
    if (written.size() == 1 && first.name == element.name) {
        add(index, LossKind::Respelt, elementText(element) + " is written as " + quoted(first.text));
        return;
    }
    std::string text;
    for (const TagNode* savedNode : written) {
        text.append(text.empty() ? "" : " and ").append(elementText(*savedNode));
    }
    add(index, LossKind::Respelt, elementText(element) + " is written as " + text);
}

LossFinder::Groups LossFinder::savedGroups() const {
    Groups groups;
    const std::vector<TagNode>& savedNodes = saved_.tree.nodes();
    for (std::uint32_t i = 1; i < savedNodes.size(); ++i) {
        if (saved_.trace.fateOf(i) == Fate::Group) {
            groups.emplace(saved_.trace.entryAround(i), savedNodes[i].name);
        }
    }
    return groups;
}

/// A group that the saved file does not have is one loss, not as many as it has values.
void LossFinder::foldLostGroups() {
    constexpr std::uint32_t fewest = 2;
    const Groups groups = savedGroups();
    for (auto i = static_cast<std::uint32_t>(nodes_.size()); i-- > 1;) {
        NodeState& state = nodes_[i];
        const std::uint32_t entry = file_.trace.entryAround(i);
        state.isWhole = file_.trace.fateOf(i) == Fate::Group && state.kept == 0 && state.lost >= fewest &&
                        !groups.contains({pairs_.partnerOf(entry), node(i).name});
        NodeState& above = nodes_[node(i).parent];
        above.kept += state.kept;
        above.lost += state.lost;
    }
}

void LossFinder::reportEntry(std::uint32_t index) {
    const Fate fate = file_.trace.fateOf(index);
    nodes_[index].isWhole = true;
    add(index, fate == Fate::Replaced ? LossKind::Unread : LossKind::Dropped,
        elementText(node(index)) + (fate == Fate::Replaced ? ": a later one takes its place"
                                                           : " is not written in files of this kind"));
}

void LossFinder::reportNodes() {
    for (std::uint32_t i = 1; i < nodes_.size(); ++i) {
        NodeState& state = nodes_[i];
        const Fate fate = file_.trace.fateOf(i);
        const std::uint32_t parent = node(i).parent;
        // A unit is read wherever it stands, also in an element that nobody knows.
        const bool isReadAnyway = file_.trace.fateOf(parent) == Fate::Ignored && fate != Fate::Ignored;
        state.isSilent = parent != 0 && !isReadAnyway && (nodes_[parent].isSilent || nodes_[parent].isWhole);
        if (state.isSilent) {
            continue;
        }
        const bool isEntry = fate == Fate::Entry || fate == Fate::Replaced || fate == Fate::Item;
        if (fate == Fate::Ignored) {
            state.isWhole = true;
            add(i, LossKind::Unread,
                elementText(node(i)) + placeOf(i) +
                    (knowledge_.isElement(node(i).name) ? " is in the wrong place" : " is not known"));
        } else if (fate == Fate::LeftOut) {
            state.isWhole = true;
            add(i, LossKind::Dropped,
                elementText(node(i)) + " is left out: " + std::string(file_.trace.reasonOf(i)));
        } else if (isEntry && pairs_.isGone(i)) {
            reportEntry(i);
        } else if ((fate == Fate::Group || fate == Fate::Entry) && !node(i).text.empty()) {
            add(i, LossKind::Unread, elementText(node(i)) + " begins with text where elements should be");
        } else if (state.isLost) {
            add(i, LossKind::Dropped, elementText(node(i)) + placeOf(i) + " is not written");
        } else if (state.isWhole) {
            add(i, LossKind::Dropped,
                tagText(node(i).name) + placeOf(i) + " is not written, with the " +
                    std::to_string(state.lost) + " values in it");
        }
    }
}

} // namespace

std::vector<Finding> findLosses(const TracedFile& file, const TracedFile& saved,
                                const LossKnowledge& knowledge) {
    return LossFinder(file, saved, knowledge).run();
}

namespace {

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    line.remove_suffix(line.ends_with('\r') ? 1 : 0);
    text.remove_prefix(std::min(end + 1, text.size()));
    return trimmed(line);
}

/// The first line that holds what a written line says; 1 where none does.
std::size_t lineOf(std::string_view fileContent, std::string_view writtenLine) {
    const std::size_t at = writtenLine.empty() ? std::string_view::npos : fileContent.find(writtenLine);
    const std::size_t end = at == std::string_view::npos ? 0 : at;
    return 1 + static_cast<std::size_t>(std::count(
                   fileContent.begin(), fileContent.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
}

} // namespace

void addReadBack(std::string_view fileContent, std::string_view saved, std::string_view savedAgain,
                 std::vector<Finding>& losses) {
    const bool isTold = std::any_of(losses.begin(), losses.end(), [](const Finding& loss) {
        return loss.message.find(ReadBack) != std::string::npos;
    });
    // Where nothing else is lost, values that go without saying are all that is written otherwise.
    if (losses.empty() || isTold || saved == savedAgain) {
        return;
    }
    std::string_view written;
    std::string_view readBack;
    do {
        written = takeLine(saved);
        readBack = takeLine(savedAgain);
    } while (written == readBack && !(saved.empty() && savedAgain.empty()));
    LossList list;
    list.add({.line = lineOf(fileContent, written)}, LossKind::Changed,
             "what is written as " + quoted(written) + std::string(ReadBack) + quoted(readBack));
    const std::vector<Finding> added = list.take();
    const auto place = std::upper_bound(losses.begin(), losses.end(), added.front(),
                                        [](const Finding& a, const Finding& b) { return a.line < b.line; });
    losses.insert(place, added.front());
}

} // namespace varrocade
