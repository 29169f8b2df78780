#pragma once
// Findings that somebody looked at and left as they are: by a comment in the file, by a list in the folder,
// or because they were there when a baseline was written.

#include "data/finding.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The list in a folder that is checked, beside "Data".
inline constexpr std::string_view SuppressionListName = "Checks.txt";

/// Drops from the findings of a file those that its comments `// ok: KEY reason` name. Such a comment behind
/// something is about its line, alone on a line about the next one, and before the first element about the
/// whole file. Several keys are separated by commas. Adds findings about comments that are of no use.
void applyComments(std::string_view content, const std::string& file, std::vector<Finding>& findings);

/// One line of the list: `KEY FILE: reason`. FILE counts from the folder, with slashes; `*` in it stands for
/// any characters.
class SuppressionList {
public:
    SuppressionList() = default;
    /// Lines that are no such line become findings of `problems`.
    SuppressionList(std::string_view content, std::vector<Finding>& problems);

    [[nodiscard]] bool covers(const Finding& finding) const;

private:
    struct Row {
        std::string key;
        std::string pattern;
    };
    std::vector<Row> rows_;
};

/// A list in which a file has another name, and the lines that name it.
struct RenamedInList {
    std::string text;
    std::vector<std::size_t> lines; ///< from 1; empty where none does
};

/// Changes the name of a file, "Data/Weapons/NAME.txt", in a list. A pattern with `*` stays: it may be about
/// others too.
RenamedInList renamedInList(std::string_view content, std::string_view from, std::string_view to);

/// Whether a name is one that a pattern with `*` stands for.
bool matchesPattern(std::string_view name, std::string_view pattern);

/// Findings that were there before, told by key, file, field and value: lines move.
class Baseline {
public:
    Baseline() = default;
    explicit Baseline(std::string_view content);
    /// The text of a baseline with these findings.
    static std::string text(const std::vector<Finding>& findings);
    /// Drops what was there before, each as often as it was.
    void apply(std::vector<Finding>& findings) const;

private:
    std::map<std::string, std::size_t, std::less<>> counts_;
};

} // namespace varrocade
