#include "cli/command_line.h"
#include "data/finding_text.h"
#include "tools/sheets/sheet_import.h"

#include <algorithm>
#include <vector>

namespace varrocade::cli {

namespace {

std::string_view nameOfPath(std::string_view path) {
    const std::size_t separator = path.find_last_of("\\/");
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

bool printChanges(const SheetImport& import) {
    std::string lines;
    for (const SheetChange& change : import.changes()) {
        lines += std::to_string(change.line) + "\t" + change.unit + "\t" + change.heading + "\t" +
                 change.before + "\t" + change.after + "\n";
    }
    return print(lines);
}

int importSheet(const std::string& path, const GameFolders& folders, bool isWritten) {
    std::string sheet;
    if (!readWholeFile(path, sheet)) {
        complain(path + ": " + systemFiles().lastError());
        return CouldNot;
    }
    SheetImport import(sheet, std::string(nameOfPath(path)), folders);
    runJob(import);
    for (const FileFailure& failure : import.failures()) {
        complain(failure.path + ": " + failure.reason);
    }
    for (const Finding& finding : import.findings()) {
        complain(reportLine(finding));
    }
    if (!printChanges(import)) {
        return CouldNot;
    }
    if (import.isRefused()) {
        complain("nothing is written");
        return Findings;
    }
    if (!isWritten) {
        return import.changes().empty() ? Done : Findings;
    }
    BackupKeeper backups;
    if (const auto failure = import.write(systemFiles(), backups)) {
        complain(failure->path + ": " + failure->reason);
        complain("nothing is written");
        return CouldNot;
    }
    if (!import.files().empty()) {
        // The table above is for programs, this is for people.
        complain(import.writtenText() + " What the files held before is in " +
                 withSlashes(import.backupFolder()));
    }
    return Done;
}

} // namespace

int importCommand(Arguments arguments) {
    GameFolders folders;
    std::vector<std::string> plain = withoutModOption(arguments, folders);
    const bool isWritten = std::erase(plain, std::string(WriteOption)) > 0;
    if (plain.size() != 2) {
        complain("import takes a spreadsheet, a game folder, --mod and a mod's folder where one counts, and "
                 "--write");
        return CouldNot;
    }
    folders.program = asFolder(plain[1]);
    return importSheet(plain[0], folders, isWritten);
}

} // namespace varrocade::cli
