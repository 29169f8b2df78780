#include "analysis/penetration.h"
#include "cli/command_line.h"
#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "platform/file_operations.h"
#include "tools/penetration_matrix.h"
#include "weapons/weapon_files.h"

#include <charconv>
#include <optional>
#include <system_error>

namespace varrocade::cli {

namespace {

constexpr std::string_view MatrixOption = "--matrix";

int printMatrix(const std::string& base) {
    PenetrationMatrix matrix;
    const bool isRead = matrix.read({.program = base});
    for (const Finding& problem : matrix.problems()) {
        complain(problem.file + ": " + explanation(problem));
    }
    for (const Finding& finding : matrix.diagnostics()) {
        complain(debuggerLine(finding));
    }
    if (!isRead || !matrix.write(print)) {
        return CouldNot;
    }
    return matrix.problems().empty() ? Done : Findings;
}

std::optional<std::size_t> indexOf(std::string_view text) {
    std::size_t index = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, index);
    return error == std::errc() && stopped == end ? std::optional(index) : std::nullopt;
}

int printTable(const std::string& path, std::string_view shellText, double angle, double drag) {
    Diagnostics diagnostics;
    const std::optional<WeaponRecord> weapon = readWeaponFile(path, path, diagnostics);
    if (!weapon) {
        complain(path + ": cannot be read: " + systemFiles().lastError());
        return CouldNot;
    }
    for (const Finding& finding : diagnostics) {
        complain(debuggerLine(finding));
    }
    const std::optional<std::size_t> shell = indexOf(shellText);
    if (!shell || *shell >= weapon->ammoTypes.size()) {
        complain("there is no ammunition type '" + std::string(shellText) + "': " + path + " has " +
                 std::to_string(weapon->ammoTypes.size()) + ", counted from 0");
        return CouldNot;
    }
    std::string lines;
    for (const PenetrationRow& row :
         penetrationRows(projectileOf(*weapon, weapon->ammoTypes[*shell]), drag, angle)) {
        appendInteger(lines, row.range);
        lines += " m\t" + row.penetration + "\t" + row.velocity + "\n";
    }
    return print(lines) ? Done : CouldNot;
}

} // namespace

int penetrationCommand(Arguments arguments) {
    if (arguments.size() == 2 && arguments[0] == MatrixOption) {
        return printMatrix(asFolder(arguments[1]));
    }
    if (arguments.size() != 4) {
        complain(
            "penetration takes a weapon file, the number of the ammunition type, the angle of the armour and "
            "the drag coefficient, or --matrix and a game folder");
        return CouldNot;
    }
    return printTable(arguments[0], arguments[1], toReal(arguments[2]), toReal(arguments[3]));
}

} // namespace varrocade::cli
