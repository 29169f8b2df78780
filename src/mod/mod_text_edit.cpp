#include "mod/mod_text_edit.h"

#include "data/format/source_map.h"
#include "mod/mod_elements.h"
#include "mod/mod_text.h"
#include "mod/text_document.h"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <optional>
#include <set>

namespace varrocade {

namespace {

namespace me = mod_element;
using Index = std::uint32_t;
using Indices = std::vector<Index>;

/// Elements that may stand more than once, each an entry of a list. All others are values, or groups of
/// which the parts count together.
constexpr auto EntryElements =
    std::to_array<std::string_view>({me::CreditLine, me::Nationality, me::Allegiance, me::Surname,
                                     me::Uniform, me::Rank, me::Equipment, me::Unit});

bool isEntry(std::string_view name) {
    return std::find(EntryElements.begin(), EntryElements.end(), name) != EntryElements.end();
}

/// The positions in `places` (which must differ, but for those below 0) of a longest run that rises from
/// front to back.
std::vector<bool> longestRise(const std::vector<std::ptrdiff_t>& places) {
    std::vector<std::size_t> ends; // by the length of a rise, where the one with the least end has it
    std::vector<std::optional<std::size_t>> before(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] < 0) {
            continue;
        }
        const auto longer =
            std::lower_bound(ends.begin(), ends.end(), places[i],
                             [&](std::size_t end, std::ptrdiff_t place) { return places[end] < place; });
        if (longer != ends.begin()) {
            before[i] = *(longer - 1);
        }
        if (longer == ends.end()) {
            ends.push_back(i);
        } else {
            *longer = i;
        }
    }
    std::vector<bool> rises(places.size());
    for (std::optional<std::size_t> i = ends.empty() ? std::nullopt : std::optional(ends.back()); i;
         i = before[*i]) {
        rises[*i] = true;
    }
    return rises;
}

/// Brings a file from what it says to what it shall say. Both are texts of the writer, so a value that is the
/// same has the same text in both, and one that goes without saying has none.
class Merge {
public:
    Merge(const TextDocument& source, const TextDocument& former, const TextDocument& wanted)
        : source_(source), former_(former), wanted_(wanted) {}

    /// The text with all changes; nothing where the file has no settings, or does not nest as they do.
    std::optional<std::string> run() {
        const Indices mods = named(source_, source_.children(0), me::Mod);
        if (mods.empty()) {
            return std::nullopt;
        }
        group(mods, named(former_, former_.children(0), me::Mod).front(),
              named(wanted_, wanted_.children(0), me::Mod).front());
        if (isBroken_) {
            return std::nullopt;
        }
        return edits_.applied(source_.source(), {0, source_.source().size()});
    }

private:
    static Indices named(const TextDocument& document, const Indices& nodes, std::string_view name) {
        Indices found;
        std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(found),
                     [&](Index node) { return document.node(node).name == name; });
        return found;
    }
    static Indices childrenOf(const TextDocument& document, std::optional<Index> node) {
        return node ? document.children(*node) : Indices();
    }
    static std::string_view textOf(const TextDocument& document, Index node) {
        const TextRange range = document.rangeOf(node);
        return document.source().substr(range.begin, range.end - range.begin);
    }

    /// `here`: the elements of the file that are this group, in their order.
    void group(const Indices& here, std::optional<Index> former, std::optional<Index> wanted) {
        Indices present;
        for (const Index node : here) {
            const Indices children = source_.children(node);
            present.insert(present.end(), children.begin(), children.end());
        }
        const Indices before = childrenOf(former_, former);
        const Indices after = childrenOf(wanted_, wanted);
        std::vector<std::string_view> names;
        const auto collect = [&](const TextDocument& document, const Indices& nodes) {
            for (const Index node : nodes) {
                if (std::find(names.begin(), names.end(), document.node(node).name) == names.end()) {
                    names.push_back(document.node(node).name);
                }
            }
        };
        collect(wanted_, after);
        collect(former_, before);
        std::optional<Index> anchor;
        for (const std::string_view name : names) {
            const Indices found = named(source_, present, name);
            part(here, anchor, found, named(former_, before, name), named(wanted_, after, name));
            for (const Index node : found) {
                anchor = gone_.contains(node) ? anchor : node;
            }
        }
    }

    void part(const Indices& here, std::optional<Index> anchor, const Indices& found, const Indices& before,
              const Indices& after) {
        const bool isList =
            isEntry(before.empty() ? wanted_.node(after.front()).name : former_.node(before.front()).name);
        if (isList) {
            entries(here, anchor, found, before, after);
        } else if (found.empty()) {
            // What goes without saying in the file may be always written.
            const bool isSame = !before.empty() && !after.empty() &&
                                textOf(former_, before.front()) == textOf(wanted_, after.front());
            if (!after.empty() && !isSame) {
                insert(here, anchor, after.front());
            }
        } else {
            single(found, before.empty() ? std::nullopt : std::optional(before.front()),
                   after.empty() ? std::nullopt : std::optional(after.front()));
        }
    }

    /// A value or a group that stands in the file; of several the last one counts as the value.
    void single(const Indices& found, std::optional<Index> before, std::optional<Index> after) {
        if (before && after && textOf(former_, *before) == textOf(wanted_, *after)) {
            return;
        }
        const bool isGroup = (before && former_.node(*before).childCount > 0) ||
                             (after && wanted_.node(*after).childCount > 0);
        if (isGroup) {
            group(found, before, after);
        } else if (after) {
            setText(found.back(), wanted_.node(*after).text);
        } else {
            for (const Index node : found) {
                remove(node);
            }
        }
    }

    void setText(Index node, std::string_view text) {
        std::string first(text);
        for (const TextRange& piece : source_.textPiecesOf(node)) {
            edits_.replace(piece, std::move(first));
            first.clear();
        }
    }

    void remove(Index node) {
        gone_.insert(node);
        const TextRange range = source_.rangeOf(node);
        const bool hasLines = source_.isLineFresh(range.begin) && source_.isLineOver(range.end);
        const std::string_view rest =
            source_.source().substr(range.end, source_.lineStop(range.end) - range.end);
        if (hasLines && rest.find_first_not_of(" \t") == std::string_view::npos) {
            edits_.replace({source_.lineBegin(range.begin), source_.nextLine(range.end)}, {});
        } else {
            edits_.replace(range, {});
        }
    }

    // ---- entries of lists

    [[nodiscard]] static std::string_view keyOf(const TextDocument& document, Index node) {
        const TagNode& entry = document.node(node);
        return entry.firstChild == TagNode::None ? std::string_view() : document.node(entry.firstChild).text;
    }

    /// For each wanted entry the place of the one that it was among the former ones, or -1: the same text
    /// first, then what is called the same, then the one that follows on its neighbour.
    [[nodiscard]] std::vector<std::ptrdiff_t> matches(const Indices& before, const Indices& after) const {
        std::vector<std::ptrdiff_t> match(after.size(), -1);
        std::vector<bool> taken(before.size());
        const auto pair = [&](auto&& wordOf) {
            std::map<std::string_view, std::deque<std::size_t>> places;
            for (std::size_t i = 0; i < before.size(); ++i) {
                if (!taken[i]) {
                    places[wordOf(former_, before[i])].push_back(i);
                }
            }
            for (std::size_t j = 0; j < after.size(); ++j) {
                const std::string_view word = wordOf(wanted_, after[j]);
                const auto place = places.find(word);
                if (match[j] < 0 && !word.empty() && place != places.end() && !place->second.empty()) {
                    match[j] = static_cast<std::ptrdiff_t>(place->second.front());
                    taken[place->second.front()] = true;
                    place->second.pop_front();
                }
            }
        };
        pair(textOf);
        pair(keyOf);
        for (std::size_t j = 0; j < after.size(); ++j) {
            const auto next = static_cast<std::size_t>(j == 0 ? 0 : match[j - 1] + 1);
            if (match[j] < 0 && (j == 0 || match[j - 1] >= 0) && next < before.size() && !taken[next]) {
                match[j] = static_cast<std::ptrdiff_t>(next);
                taken[next] = true;
            }
        }
        return match;
    }

    void entries(const Indices& here, std::optional<Index> anchor, const Indices& found,
                 const Indices& before, const Indices& after) {
        if (found.size() != before.size()) {
            isBroken_ = true;
            return;
        }
        const std::vector<std::ptrdiff_t> match = matches(before, after);
        const std::vector<bool> stays = longestRise(match);
        std::vector<bool> isKept(before.size());
        for (const std::ptrdiff_t place : match) {
            if (place >= 0) {
                isKept[static_cast<std::size_t>(place)] = true;
            }
        }
        for (std::size_t i = 0; i < before.size(); ++i) {
            if (!isKept[i]) {
                remove(found[i]);
            }
        }
        for (std::size_t j = 0; j < after.size(); ++j) {
            if (match[j] < 0) {
                insert(here, anchor, after[j]);
                continue;
            }
            const auto place = static_cast<std::size_t>(match[j]);
            const std::size_t editsBefore = edits_.count();
            single({found[place]}, before[place], after[j]);
            if (stays[j]) {
                anchor = found[place];
            } else {
                move(here, anchor, found[place], edits_.takeFrom(editsBefore));
            }
        }
    }

    // ---- places of what is new

    struct Spot {
        std::size_t at = 0;
        bool hasLines = false; ///< of its own
        std::string indent = {};
    };

    [[nodiscard]] Spot spotBehind(const Indices& here, std::optional<Index> anchor) const {
        if (anchor) {
            const TextRange range = source_.rangeOf(*anchor);
            return source_.isLineOver(range.end)
                       ? Spot{source_.lineStop(range.end), true, std::string(source_.indentAt(range.begin))}
                       : Spot{range.end};
        }
        const TextRange content = source_.contentOf(here.front());
        if (!source_.isLineOver(content.begin)) {
            return {content.begin};
        }
        return {source_.lineStop(content.begin), true,
                std::string(source_.indentAt(source_.rangeOf(here.front()).begin)) + '\t'};
    }

    void insert(const Indices& here, std::optional<Index> anchor, Index wanted) {
        if (here.empty()) {
            isBroken_ = true;
            return;
        }
        const Spot spot = spotBehind(here, anchor);
        const std::string_view lineEnd = source_.lineEnd();
        const std::string_view indent = wanted_.indentAt(wanted_.rangeOf(wanted).begin);
        std::string text = spot.hasLines ? std::string(lineEnd) + spot.indent : std::string();
        std::string_view body = textOf(wanted_, wanted);
        for (std::size_t end = body.find("\r\n"); end != std::string_view::npos; end = body.find("\r\n")) {
            text += body.substr(0, end);
            text += lineEnd;
            text += spot.indent;
            body.remove_prefix(end + 2);
            body.remove_prefix(body.starts_with(indent) ? indent.size() : 0);
        }
        edits_.insert(spot.at, text += body);
    }

    /// Takes an entry with its changes, the comments behind it and those on the lines right above along.
    void move(const Indices& here, std::optional<Index> anchor, Index node, const TextEdits& changes) {
        gone_.insert(node);
        TextRange range = source_.rangeOf(node);
        const Spot spot = spotBehind(here, anchor);
        const bool hasLines = source_.isLineFresh(range.begin) && source_.isLineOver(range.end);
        if (!hasLines || !spot.hasLines) {
            edits_.replace(range, {});
            edits_.insert(spot.at, (spot.hasLines ? std::string(source_.lineEnd()) + spot.indent : "") +
                                       changes.applied(source_.source(), range));
            return;
        }
        range = {source_.lineBegin(range.begin), source_.lineStop(range.end)};
        while (range.begin > 0) {
            const std::size_t above =
                source_.lineBegin(range.begin - 1 - (source_.lineEnd().size() == 2 ? 1 : 0));
            const std::size_t first = above + source_.indentAt(above).size();
            if (above >= range.begin || !source_.source().substr(first).starts_with("//")) {
                break;
            }
            range.begin = above;
        }
        edits_.replace({range.begin, source_.nextLine(range.end)}, {});
        edits_.insert(spot.at, std::string(source_.lineEnd()) + changes.applied(source_.source(), range));
    }

    const TextDocument& source_;
    const TextDocument& former_;
    const TextDocument& wanted_;
    TextEdits edits_;
    std::set<Index> gone_; ///< from its place
    bool isBroken_ = false;
};

/// A text that cannot be changed in place, each line of it a comment.
std::string asComments(std::string_view source) {
    std::string text;
    const LineIndex lines(source);
    for (std::size_t offset = 0, number = 1; offset < source.size(); ++number) {
        const std::string_view line = lines.line(number);
        text += line.empty() ? "" : "// " + std::string(line);
        text += "\r\n";
        offset += line.size();
        offset += source.substr(offset).starts_with("\r\n") ? 2 : 1;
    }
    return text;
}

} // namespace

std::string editedModText(std::string_view source, const ModSettings& settings) {
    const std::string wanted = modSettingsText(settings);
    const std::string former = modSettingsText(readModSettings(source));
    if (wanted == former) {
        return std::string(source);
    }
    const TextDocument document(source);
    const TextDocument formerDocument(former);
    const TextDocument wantedDocument(wanted);
    std::optional<std::string> edited = Merge(document, formerDocument, wantedDocument).run();
    if (!edited) {
        const bool endsLine = source.empty() || source.ends_with('\n') || source.ends_with('\r');
        edited = std::string(source) + (endsLine ? "" : "\r\n") + wanted;
    }
    return readModSettings(*edited) == readModSettings(wanted) ? *edited : wanted + asComments(source);
}

} // namespace varrocade
