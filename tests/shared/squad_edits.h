#pragma once
// The cases of tests/golden/squad_edits.txt: what is typed in which form, and the lines of the file that
// change. They are tried without a window and in the window.

#include "editors/form/form.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade::tests {

struct SquadEdit {
    std::string unit; ///< the file's name
    std::string form; ///< "man 3 ammo 1": which form, and which of its kind
    std::string field;
    std::string value;
    std::string changed; ///< as `changedLines` gives them
};

inline std::vector<SquadEdit> squadEdits(std::string_view cases) {
    std::vector<SquadEdit> edits;
    std::string unit;
    std::istringstream lines{std::string(cases)};
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("== ")) {
            unit = line.substr(3);
        } else if (line.starts_with("  ")) {
            edits.back().changed += line + "\n";
        } else {
            const std::size_t field = line.find(": ") + 2;
            const std::size_t value = line.find(" = ", field) + 3;
            edits.push_back({unit,
                             line.substr(0, field - 2),
                             line.substr(field, value - 3 - field),
                             line.substr(value),
                             {}});
        }
    }
    return edits;
}

/// The lines that one text has in place of the other's: "  - former", "  + new".
inline std::string changedLines(std::string_view former, std::string_view present) {
    const auto linesOf = [](std::string_view text) {
        std::vector<std::string> lines;
        std::istringstream in{std::string(text)};
        for (std::string line; std::getline(in, line);) {
            lines.push_back(line.substr(0, line.find('\r')));
        }
        return lines;
    };
    std::vector<std::string> before = linesOf(former);
    std::vector<std::string> after = linesOf(present);
    const auto [a, b] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    before.erase(before.begin(), a);
    after.erase(after.begin(), b);
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before.pop_back();
        after.pop_back();
    }
    std::string text;
    for (const std::string& line : before) {
        text += "  - " + line + "\n";
    }
    for (const std::string& line : after) {
        text += "  + " + line + "\n";
    }
    return text;
}

/// The control of a field that is named by its element or, without one, by its label; 0 where there is none.
template <typename Record>
int controlOf(const FormShape<Record>& shape, std::string_view field) {
    const auto row = std::find_if(shape.rows.begin(), shape.rows.end(), [&](const FormRow<Record>& each) {
        return (each.field->element.empty() ? each.field->label : each.field->element) == field;
    });
    return row == shape.rows.end() ? 0 : row->control;
}

} // namespace varrocade::tests
