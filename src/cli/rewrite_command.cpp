#include "cli/command_line.h"
#include "data/category.h"
#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/losses/save_losses.h"
#include "data/reading/unit_reader.h"
#include "data/writing/unit_writers.h"
#include "platform/file_operations.h"
#include "platform/safe_save.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_losses.h"

#include <algorithm>
#include <vector>

namespace varrocade::cli {

namespace {

/// The file's name without its folder and without ".txt".
std::string_view stemOf(std::string_view path) {
    const std::size_t separator = path.find_last_of("\\/");
    if (separator != std::string_view::npos) {
        path.remove_prefix(separator + 1);
    }
    if (path.size() >= DataFileEnding.size() &&
        equalsIgnoringCase(path.substr(path.size() - DataFileEnding.size()), DataFileEnding)) {
        path.remove_suffix(DataFileEnding.size());
    }
    return path;
}

std::optional<std::string> rewritten(Category category, const std::string& content, std::string_view name) {
    Diagnostics diagnostics;
    std::optional<std::string> text;
    if (category == Category::Weapons) {
        text = weaponFileText(readWeapon(content, name, diagnostics));
    } else {
        text = unitFileText(category, readUnit(content, name, diagnostics));
    }
    for (const Finding& finding : diagnostics) {
        complain(debuggerLine(finding));
    }
    return text;
}

/// What to do with each file.
struct Task {
    Category category;
    bool explain; ///< print what is lost
};

/// Prints what the rewritten file loses; returns the exit status that follows from it.
int explainLosses(Category category, const std::string& path, const std::string& content) {
    const std::optional<std::vector<Finding>> losses =
        category == Category::Weapons ? weaponSaveLosses(content) : unitSaveLosses(category, content);
    if (!losses || losses->empty()) {
        return Done;
    }
    for (const Finding& loss : *losses) {
        print(path + ":" + lossText(loss) + "\n");
    }
    return Findings;
}

int rewriteFile(const Task& task, const std::string& in, const std::string& out) {
    std::string content;
    if (!readWholeFile(in, content)) {
        complain(in + ": cannot be read: " + systemFiles().lastError());
        return CouldNot;
    }
    const std::optional<std::string> text = rewritten(task.category, content, stemOf(in));
    if (!text) {
        complain(in + ": holds nothing that the writer of the " + std::string(categoryWord(task.category)) +
                 " writes");
        return CouldNot;
    }
    if (const auto failure = saveFile(systemFiles(), out, *text)) {
        complain(failure->path + ": cannot be written: " + failure->reason);
        return CouldNot;
    }
    return task.explain ? explainLosses(task.category, in, content) : Done;
}

int rewriteFolder(const Task& task, const std::string& in, const std::string& out) {
    std::vector<std::string> names;
    if (!listFiles(in, DataFileEnding, names)) {
        complain(in + ": cannot be listed: " + systemFiles().lastError());
        return CouldNot;
    }
    if (const auto failure = createFolders(systemFiles(), out)) {
        complain(failure->path + ": cannot be created: " + failure->reason);
        return CouldNot;
    }
    std::sort(names.begin(), names.end());
    int status = Done;
    for (const std::string& name : names) {
        status = std::max(status, rewriteFile(task, in + name, out + name));
    }
    return status;
}

} // namespace

int rewriteCommand(Arguments arguments) {
    const bool explain = !arguments.empty() && arguments[0] == "--explain";
    if (explain) {
        arguments = arguments.subspan(1);
    }
    if (arguments.size() != 3) {
        complain("rewrite takes a category, what to read and where to write");
        return CouldNot;
    }
    const std::optional<Category> category = categoryOfWord(arguments[0]);
    if (!category) {
        complain("unknown category '" + arguments[0] + "'");
        return CouldNot;
    }
    const Task task{*category, explain};
    if (isFolder(arguments[1])) {
        return rewriteFolder(task, asFolder(arguments[1]), asFolder(arguments[2]));
    }
    return rewriteFile(task, arguments[1], arguments[2]);
}

} // namespace varrocade::cli
