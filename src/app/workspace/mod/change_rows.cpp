#include "app/workspace/mod/change_rows.h"

#include "app/workspace/names/name_filter.h"
#include "data/format/words.h"
#include "mod/changes/changes_text.h"

#include <algorithm>

namespace varrocade {

namespace {

/// What stands in the columns of the game and of the mod for a file as a whole.
std::array<std::string, 3> fileCells(const FileChange& file) {
    const std::string name = std::string(categoryName(file.category)) + ": " + file.name;
    switch (file.kind) {
    case FileChangeKind::Added:
        return {name, "(none)", "added"};
    case FileChangeKind::Removed:
        return {name, "(there)", "taken out"};
    default:
        return {name, "",
                file.values.empty() ? "the same values, laid out otherwise"
                                    : counted(file.values.size(), "value") + " changed"};
    }
}

std::array<std::string, 3> valueCells(const ValueChange& value) {
    return {"        " + std::string(value.label) + "   (" + value.path + ")",
            shownValue(value.game, value.unit), shownValue(value.mod, value.unit)};
}

} // namespace

std::vector<ChangeRow> changeRows(const ModChanges& changes, std::string_view filter) {
    std::vector<ChangeRow> rows;
    for (std::size_t i = 0; i < changes.files.size(); ++i) {
        const FileChange& file = changes.files[i];
        if (!passesFilter(file.name, filter)) {
            continue;
        }
        rows.push_back({.file = i, .cells = fileCells(file)});
        for (std::size_t value = 0; value < file.values.size(); ++value) {
            rows.push_back({.file = i, .value = value, .cells = valueCells(file.values[value])});
        }
    }
    return rows;
}

std::string changesSummary(const ModChanges& changes) {
    std::string text = kindCounts(changes);
    if (!changes.same.empty()) {
        text += "; " + counted(changes.same.size(), "file") + " as the game has them";
    }
    if (!changes.failures.empty()) {
        text += "; " + std::to_string(changes.failures.size()) + " could not be read, such as " +
                changes.failures.front().path + " (" + changes.failures.front().reason + ")";
    }
    return text;
}

std::vector<WantedRevert> wantedReverts(const ModChanges& changes, const std::vector<ChangeRow>& rows,
                                        const std::vector<std::size_t>& chosen, bool areFiles) {
    std::vector<WantedRevert> wanted;
    const FileChange* whole = nullptr;
    for (const std::size_t place : chosen) {
        const ChangeRow& row = rows[place];
        const FileChange& file = changes.files[row.file];
        if (whole == &file) {
            continue;
        }
        if (areFiles || !row.value) {
            wanted.push_back({&file, nullptr});
            whole = &file;
        } else {
            wanted.push_back({&file, &file.values[*row.value]});
        }
    }
    return wanted;
}

} // namespace varrocade
