#include "cli/command_line.h"
#include "platform/file_operations.h"
#include "tools/where_used.h"

namespace varrocade::cli {

namespace {

std::string lineOf(const NameUse& use) {
    std::string line = withSlashes(use.below);
    line += use.line > 0 ? ":" + std::to_string(use.line) + ":" + std::to_string(use.column) : std::string();
    return line + ": " + std::string(referenceWord(use.kind)) + " " + use.path + " = " + use.written + "\n";
}

} // namespace

int findCommand(Arguments arguments) {
    GameFolders folders;
    const std::vector<std::string> plain = withoutModOption(arguments, folders);
    if (plain.size() != 2 || plain[0].empty()) {
        complain(
            "find takes a name and the folder of a game, and --mod with a mod's folder where one counts");
        return CouldNot;
    }
    folders.program = asFolder(plain[1]);
    if (!isFolder(folders.program + std::string(DataFolder))) {
        complain(folders.program + ": holds no folder Data");
        return CouldNot;
    }
    NameSearch search(folders, {plain[0]});
    runJob(search);
    std::string out;
    for (const NameUse& use : search.uses()) {
        out += lineOf(use);
    }
    for (const FileFailure& failure : search.failures()) {
        // A game in the making need not have all five folders.
        if (!failure.path.ends_with('\\')) {
            complain(failure.path + ": " + failure.reason);
        }
    }
    return print(out) ? Done : CouldNot;
}

} // namespace varrocade::cli
