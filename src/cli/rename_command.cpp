#include "cli/command_line.h"
#include "platform/file_operations.h"
#include "tools/renaming/rename_plan.h"

#include <algorithm>

namespace varrocade::cli {

namespace {

constexpr std::string_view DryRunOption = "--dry-run";

/// File, line, value, former and new name, tab separated; of the file's own name neither line nor value.
std::string changesText(const RenamePlan& plan) {
    std::string text;
    for (const NameChange& change : plan.changes) {
        text += withSlashes(change.file) + "\t" +
                (change.line > 0 ? std::to_string(change.line) : std::string()) + "\t" + change.path + "\t" +
                change.from + "\t" + change.to + "\n";
    }
    return text;
}

int rename(const RenameRequest& request, bool isDryRun) {
    const RenamePlan plan = planRenaming(request);
    for (const std::vector<std::string>* lines : {&plan.refusals, &plan.remarks}) {
        for (const std::string& line : *lines) {
            complain(line);
        }
    }
    if (!plan.isPossible()) {
        complain("nothing is renamed");
        return CouldNot;
    }
    if (!isDryRun) {
        BackupKeeper backups;
        if (const auto failure = applyRewrites(systemFiles(), backups, plan.base, plan.rewrites)) {
            complain(failure->path + ": " + failure->reason);
            complain("nothing is renamed");
            return CouldNot;
        }
    }
    return print(changesText(plan)) ? Done : CouldNot;
}

} // namespace

int renameCommand(Arguments arguments) {
    RenameRequest request;
    std::vector<std::string> plain = withoutModOption(arguments, request.folders);
    const bool isDryRun = std::erase(plain, std::string(DryRunOption)) > 0;
    const auto kind = plain.size() == 4 ? renameKindOf(plain[1]) : std::nullopt;
    if (!kind) {
        complain(
            "rename takes the folder of a game, weapon, picture, sound or unit, the present name and the "
            "new one, --mod and a mod's folder where one is to be changed, and --dry-run");
        return CouldNot;
    }
    request.folders.program = asFolder(plain[0]);
    request.kind = *kind;
    request.from = plain[2];
    request.to = plain[3];
    return rename(request, isDryRun);
}

} // namespace varrocade::cli
