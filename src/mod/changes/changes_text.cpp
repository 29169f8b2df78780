#include "mod/changes/changes_text.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr std::array<std::string_view, 3> KindWords = {"added", "changed", "removed"};

std::string_view wordOf(FileChangeKind kind) {
    return KindWords.at(static_cast<std::size_t>(kind));
}

/// Text within a table's cell, or a line, of Markdown.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (std::string_view("\\|*_`<>[]#").find(c) != std::string_view::npos) {
            result += '\\';
        }
        result += c;
    }
    return result;
}

void appendText(std::string& out, const FileChange& file) {
    out += "  " + std::string(wordOf(file.kind)) + ": " + file.name + "\n";
    for (const ValueChange& value : file.values) {
        out += "    " + value.path + ": " + shownValue(value.game, value.unit) + " -> " +
               shownValue(value.mod, value.unit) + "\n";
    }
    if (file.kind == FileChangeKind::Changed && file.values.empty()) {
        out += "    the same values, laid out otherwise\n";
    }
}

void appendMarkdown(std::string& out, const FileChange& file) {
    out += "\n### " + escaped(file.name) + " (" + std::string(wordOf(file.kind)) + ")\n";
    if (file.kind == FileChangeKind::Changed && file.values.empty()) {
        out += "\nThe same values, laid out otherwise.\n";
    } else if (!file.values.empty()) {
        out += "\n| value | where | game | mod |\n|---|---|---|---|\n";
    }
    for (const ValueChange& value : file.values) {
        out += "| " + escaped(value.label) + " | `" + value.path + "` | " +
               escaped(shownValue(value.game, value.unit)) + " | " +
               escaped(shownValue(value.mod, value.unit)) + " |\n";
    }
}

} // namespace

std::string kindCounts(const ModChanges& changes) {
    std::string summary;
    for (const FileChangeKind kind :
         {FileChangeKind::Added, FileChangeKind::Changed, FileChangeKind::Removed}) {
        const auto count = std::count_if(changes.files.begin(), changes.files.end(),
                                         [&](const FileChange& file) { return file.kind == kind; });
        summary += (summary.empty() ? "" : ", ") + std::to_string(count) + " " + std::string(wordOf(kind));
    }
    return summary;
}

std::string shownValue(const std::optional<std::string>& value, std::string_view unit) {
    if (!value) {
        return "-";
    }
    if (value->empty()) {
        return "\"\"";
    }
    return unit.empty() ? *value : *value + " " + std::string(unit);
}

std::string changesText(const ModChanges& changes, ChangesFormat format, std::string_view title) {
    const bool isMarkdown = format == ChangesFormat::Markdown;
    std::string out = isMarkdown ? "# " + escaped(title) + "\n\n" + kindCounts(changes) + "\n"
                                 : std::string(title) + ": " + kindCounts(changes) + "\n";
    const FileChange* former = nullptr;
    for (const FileChange& file : changes.files) {
        if (former == nullptr || former->category != file.category) {
            const std::string name(categoryName(file.category));
            out += isMarkdown ? "\n## " + name + "\n" : "\n" + name + "\n";
        }
        isMarkdown ? appendMarkdown(out, file) : appendText(out, file);
        former = &file;
    }
    return out;
}

} // namespace varrocade
