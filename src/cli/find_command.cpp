#include "cli/command_line.h"
#include "platform/file_operations.h"
#include "tools/where_used.h"

namespace varrocade::cli {

int findCommand(Arguments arguments) {
    if (arguments.size() != 2 || arguments[0].empty()) {
        complain("find takes a name and the folder of a game");
        return CouldNot;
    }
    const std::string base = asFolder(arguments[1]);
    if (!isFolder(base + std::string(DataFolder))) {
        complain(base + ": holds no folder Data");
        return CouldNot;
    }
    std::vector<FileFailure> failures;
    std::string out;
    for (const NameUse& use : usesOfName({.program = base}, arguments[0], failures)) {
        out += "Data/" + std::string(categoryName(use.file.category)) + "/" + use.file.name +
               std::string(DataFileEnding);
        out +=
            use.line > 0 ? ":" + std::to_string(use.line) + ":" + std::to_string(use.column) : std::string();
        out += ": " + std::string(referenceWord(use.kind)) + " " + use.path + " = " + use.written + "\n";
    }
    for (const FileFailure& failure : failures) {
        // A game in the making need not have all five folders.
        if (!failure.path.ends_with('\\')) {
            complain(failure.path + ": " + failure.reason);
        }
    }
    return print(out) ? Done : CouldNot;
}

} // namespace varrocade::cli
