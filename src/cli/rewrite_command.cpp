#include "cli/command_line.h"
#include "data/category.h"
#include "data/finding_text.h"
#include "data/format/tag_tree.h"
#include "data/format/texts.h"
#include "data/losses/save_losses.h"
#include "data/reading/unit_reader.h"
#include "data/unit/elements.h"
#include "data/writing/unit_writers.h"
#include "platform/file_operations.h"
#include "platform/safe_save.h"
#include "weapons/weapon_elements.h"
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
    bool write;   ///< without it, only that
};

/// Whether a content has the outermost element of a category's files.
bool holdsOutermostOf(Category category, std::string_view content) {
    TagTree tree;
    tree.parse(content);
    return std::any_of(tree.nodes().begin(), tree.nodes().end(), [&](const TagNode& node) {
        return category == Category::Weapons ? node.name == weapon_element::Weapon
                                             : node.name == element::Squad || node.name == element::Aircraft;
    });
}

/// Why something at a path is not touched: only regular files are. Opening a pipe waits for its other end,
/// and a device or link that is replaced is gone.
std::string_view objectionTo(const PathStatus& status) {
    switch (status.kind) {
    case PathKind::Folder:
        return "it is a folder";
    case PathKind::Link:
        return "it is a link";
    case PathKind::Other:
        return "it is no regular file";
    case PathKind::Missing:
    case PathKind::File:
        break;
    }
    return {};
}

/// Complains where a file must not be read, or must not be written over.
bool mayRewrite(const Task& task, const std::string& in, const std::string& out) {
    const PathStatus source = statusOf(in);
    if (const std::string_view objection = objectionTo(source); !objection.empty()) {
        complain(in + ": cannot be read: " + std::string(objection));
        return false;
    }
    if (!task.write) {
        return true;
    }
    const PathStatus target = statusOf(out);
    std::string_view objection = objectionTo(target);
    if (target.isSameAs(source)) {
        objection = "it is the file that is read";
    } else if (objection.empty() && target.names > 1) {
        objection = "it has other names, which would keep the former content";
    }
    if (!objection.empty()) {
        complain(out + ": cannot be written: " + std::string(objection));
    }
    return objection.empty();
}

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
    if (!mayRewrite(task, in, out)) {
        return CouldNot;
    }
    std::string content;
    if (!readWholeFile(in, content)) {
        complain(in + ": cannot be read: " + systemFiles().lastError());
        return CouldNot;
    }
    const std::string_view name = stemOf(in);
    const std::optional<std::string> text = rewritten(task.category, content, name);
    if (!text) {
        complain(in + ": holds nothing that the writer of the " + std::string(categoryWord(task.category)) +
                 " writes");
        return CouldNot;
    }
    // Some elements are read without the outermost one around them.
    if (!holdsOutermostOf(task.category, content) && text == rewritten(task.category, {}, name)) {
        complain(in + ": holds nothing of the " + std::string(categoryWord(task.category)));
        return CouldNot;
    }
    if (task.write) {
        if (const auto failure = saveFile(systemFiles(), out, *text)) {
            complain(failure->path + ": cannot be written: " + failure->reason);
            return CouldNot;
        }
    }
    return task.explain ? explainLosses(task.category, in, content) : Done;
}

int rewriteFolder(const Task& task, const std::string& in, const std::string& out) {
    std::vector<std::string> names;
    if (!listFiles(in, DataFileEnding, names)) {
        complain(in + ": cannot be listed: " + systemFiles().lastError());
        return CouldNot;
    }
    if (task.write) {
        if (const auto failure = createFolders(systemFiles(), out)) {
            complain(failure->path + ": cannot be created: " + failure->reason);
            return CouldNot;
        }
        // Looked up through a link too: what is meant is the folder behind it.
        if (statusOf(out + ".").isSameAs(statusOf(in + "."))) {
            complain(out + ": cannot be written: it is the folder that is read");
            return CouldNot;
        }
    }
    std::sort(names.begin(), names.end());
    int status = Done;
    for (const std::string& name : names) {
        if (!isPlainName(name)) {
            complain(in + name + ": cannot be read: its name holds a separator of paths");
            status = CouldNot;
            continue;
        }
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
    const bool write = arguments.size() == 3;
    if (!write && !(explain && arguments.size() == 2)) {
        complain("rewrite takes a category, what to read and where to write");
        return CouldNot;
    }
    if (std::any_of(arguments.begin(), arguments.end(), [](const std::string& a) { return a.empty(); })) {
        complain("rewrite takes no empty names");
        return CouldNot;
    }
    const std::optional<Category> category = categoryOfWord(arguments[0]);
    if (!category) {
        complain("unknown category '" + arguments[0] + "'");
        return CouldNot;
    }
    const Task task{*category, explain, write};
    const std::string out = write ? arguments[2] : std::string();
    if (isFolder(arguments[1])) {
        return rewriteFolder(task, asFolder(arguments[1]), write ? asFolder(out) : out);
    }
    return rewriteFile(task, arguments[1], out);
}

} // namespace varrocade::cli
