#include "data/finding_text.h"

#include "data/format/words.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// What the game writes itself, letter for letter.
struct GameLine {
    std::string_view key;
    std::string_view text;
    std::string_view behindValue; ///< where the value stands behind the text, what follows it
};

constexpr auto GameLines = std::to_array<GameLine>({
    // The name is not filled in. The game looks for unknown elements in heavy weapons only, and calls each a
    // mortar.
    {finding_key::UnknownElement,
     "\xF0\x9F\x92\xA5 ERROR: Game: createSquadOnSide() Unknown tag <%s> in <mortar>...</mortar>",
     {}},
    {finding_key::UnknownWeaponType,
     "\xF0\x9F\x92\xA5 ERROR: WeaponDataList: getListEntryForWeapon() unknown <type> in '", "'"},
});

/// As much of a text as a message shows.
std::string shownBetween(char before, std::string_view text, char after) {
    constexpr std::size_t mostShown = 60;
    std::string result(1, before);
    for (const char c : text.substr(0, mostShown)) {
        result += c >= '\0' && c < ' ' ? '?' : c;
    }
    if (text.size() > mostShown) {
        result += "...";
    }
    result += after;
    return result;
}

bool endsSentence(std::string_view text) {
    return !text.empty() && std::string_view(".!?").find(text.back()) != std::string_view::npos;
}

} // namespace

std::string_view severityWord(Severity severity) {
    constexpr std::array<std::string_view, 3> words = {"note", "warning", "error"};
    return words[static_cast<std::size_t>(severity)];
}

std::string severityCounts(std::span<const Severity> severities, bool tellsNone) {
    std::string text;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        const auto count =
            static_cast<std::size_t>(std::count(severities.begin(), severities.end(), severity));
        if (count > 0 || tellsNone) {
            text += (text.empty() ? "" : ", ") + counted(count, severityWord(severity));
        }
    }
    return text;
}

std::string debuggerLine(const Finding& finding) {
    const auto line = std::find_if(GameLines.begin(), GameLines.end(),
                                   [&](const GameLine& row) { return row.key == finding.key; });
    if (line == GameLines.end()) {
        return "ERROR: " + finding.file + ": line " + std::to_string(finding.line) + ": " + finding.message;
    }
    std::string text(line->text);
    if (!line->behindValue.empty()) {
        text.append(finding.value).append(line->behindValue);
    }
    return text;
}

std::string reportLine(const Finding& finding) {
    std::string text = finding.file;
    if (finding.line > 0) {
        text += ":" + std::to_string(finding.line);
    }
    if (finding.line > 0 && finding.column > 0) {
        text += ":" + std::to_string(finding.column);
    }
    text += text.empty() ? "" : ": ";
    text.append(severityWord(finding.severity)).append(": ").append(finding.message);
    return text.append(" [").append(finding.key).append("]");
}

std::string explanation(const Finding& finding) {
    std::string text = finding.line > 0 ? "line " + std::to_string(finding.line) + ": " : std::string();
    text += finding.message;
    if (!finding.hint.empty()) {
        text += " (" + finding.hint + ")";
    }
    return text;
}

std::string sentence(const Finding& finding) {
    std::string text = explanation(finding);
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return endsSentence(text) ? text : text + ".";
}

std::string sourceExcerpt(const Finding& finding, const LineIndex& lines) {
    constexpr std::size_t mostShown = 120;
    constexpr std::size_t leastBefore = 60; // of a line that is cut, what is left of the caret
    if (finding.line == 0) {
        return {};
    }
    std::string_view line = lines.line(finding.line);
    std::size_t before = std::min(finding.column > 0 ? finding.column - 1 : 0, line.size());
    if (line.size() > mostShown && before > leastBefore) {
        line.remove_prefix(before - leastBefore);
        before = leastBefore;
    }
    line = line.substr(0, mostShown);
    std::string text;
    std::string caretLine;
    for (const char c : line) {
        text += c >= '\0' && c < ' ' && c != '\t' ? '?' : c;
        // Tabs stay, so that the caret stands below its column however wide they are shown.
        if (caretLine.size() < before) {
            caretLine += c == '\t' ? '\t' : ' ';
        }
    }
    text += '\n';
    return finding.column > 0 ? text + caretLine + "^\n" : text;
}

std::string quoted(std::string_view text) {
    return shownBetween('"', text, '"');
}

std::string tagText(std::string_view name) {
    return shownBetween('<', name, '>');
}

std::string elementText(const TagNode& node) {
    return node.text.empty() ? tagText(node.name) : tagText(node.name) + " " + quoted(node.text);
}

Finding cannotRead(const FileFailure& failure) {
    return {.key = finding_key::CannotRead,
            .severity = Severity::Error,
            .file = failure.path,
            .message = failure.reason};
}

} // namespace varrocade
