#include "editors/reports/import_form.h"

#include "data/finding_text.h"

#include <algorithm>

namespace varrocade {

namespace {

std::string counted(std::size_t count, std::string_view word) {
    return std::to_string(count) + " " + std::string(word) + (count == 1 ? "" : "s");
}

template <typename Cells>
void addLine(std::string& text, const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        text.append(i == 0 ? "" : "\t").append(cells[i]);
    }
    text += "\r\n";
}

} // namespace

std::array<std::string, SheetChangeHeads.size()> changeCells(const SheetChange& change) {
    return {std::to_string(change.line), change.unit, change.heading, change.before, change.after};
}

std::string changedValues(const SheetChange& change) {
    return std::string(SheetChangeHeads[3]) + ": " + change.before + "\r\n" +
           std::string(SheetChangeHeads[4]) + ": " + change.after;
}

std::vector<std::array<std::string, SheetNoteHeads.size()>> importNotes(const SheetImport& import) {
    std::vector<std::array<std::string, SheetNoteHeads.size()>> notes;
    for (const FileFailure& failure : import.failures()) {
        notes.push_back({"", "refused: " + failure.path + ": " + failure.reason});
    }
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        for (const Finding& finding : import.findings()) {
            if (finding.severity == severity) {
                const std::string_view kind =
                    severity == Severity::Error ? "refused" : severityWord(severity);
                notes.push_back({finding.line == 0 ? std::string() : std::to_string(finding.line),
                                 std::string(kind) + ": " + finding.message});
            }
        }
    }
    return notes;
}

bool canWrite(const SheetImport& import) {
    return !import.isRefused() && !import.files().empty();
}

std::string importSummary(const SheetImport& import) {
    if (import.isRefused()) {
        const auto refused = static_cast<std::size_t>(
            std::count_if(import.findings().begin(), import.findings().end(),
                          [](const Finding& finding) { return finding.severity == Severity::Error; }));
        return "Nothing can be written: " + counted(refused + import.failures().size(), "refusal") +
               ", below. Mend the sheet and import it again.";
    }
    if (import.changes().empty()) {
        return "Nothing would change: the sheet says what the files hold.";
    }
    return counted(import.changes().size(), "value") + " of " + counted(import.files().size(), "file") +
           " would change. What the files hold now is kept in the folder Backups.";
}

std::string importTable(const SheetImport& import) {
    std::string text;
    addLine(text, SheetChangeHeads);
    for (const SheetChange& change : import.changes()) {
        addLine(text, changeCells(change));
    }
    const auto notes = importNotes(import);
    if (!notes.empty()) {
        text += "\r\n";
        addLine(text, SheetNoteHeads);
    }
    for (const auto& note : notes) {
        addLine(text, note);
    }
    return text;
}

} // namespace varrocade
