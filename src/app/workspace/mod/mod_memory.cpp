#include "app/workspace/mod/mod_memory.h"

#include "app/workspace/options_file.h"
#include "data/format/clean_text.h"
#include "data/format/tag_tree.h"
#include "data/format/texts.h"
#include "platform/messages.h"
#include "platform/safe_save.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr std::string_view EditorElement = "editor";
constexpr std::string_view GameUnitsElement = "show_game_units";
constexpr std::string_view ModElement = "mod";
constexpr std::string_view FlagSet = "yes";

std::string memoryPath(const Workspace& workspace) {
    return workspace.programFolder + std::string(ModMemoryFileName);
}

std::string elementLine(std::string_view name, std::string_view text) {
    return "\t<" + std::string(name) + ">" + std::string(text) + "</" + std::string(name) + ">\r\n";
}

std::string memoryText(const Workspace& workspace) {
    std::string text = "<" + std::string(EditorElement) + ">\r\n";
    if (workspace.showsGameUnits) {
        text += elementLine(GameUnitsElement, FlagSet);
    }
    for (const std::string& folder : workspace.otherMods) {
        if (canBeValue(folder)) {
            text += elementLine(ModElement, folder);
        }
    }
    return text + "</" + std::string(EditorElement) + ">\r\n";
}

/// Whether a text can be the folder of a mod that is not remembered yet.
bool isNewFolder(const std::vector<std::string>& known, const std::string& folder) {
    return folder.ends_with('\\') && folder.size() < MaxPathLength && known.size() < MostOtherMods &&
           std::none_of(known.begin(), known.end(),
                        [&](const std::string& other) { return equalsIgnoringCase(other, folder); });
}

} // namespace

void readModMemory(Workspace& workspace) {
    workspace.showsGameUnits = false;
    workspace.otherMods.clear();
    std::string content;
    if (!workspace.files->read(memoryPath(workspace), content)) {
        return;
    }
    TagTree tree;
    tree.parse(content);
    for (const TagNode& node : tree.nodes()) {
        const std::string text(node.text);
        if (node.name == GameUnitsElement) {
            workspace.showsGameUnits = text == FlagSet;
        } else if (node.name == ModElement && isNewFolder(workspace.otherMods, text)) {
            workspace.otherMods.push_back(text);
        }
    }
}

void keepModMemory(Workspace& workspace) {
    const std::string path = memoryPath(workspace);
    const std::string text = memoryText(workspace);
    std::string former;
    if (workspace.files->read(path, former) && former == text) {
        return;
    }
    if (const auto failure = saveFile(*workspace.files, path, text)) {
        debugLine("ERROR: " + failure->path + ": " + failure->reason);
    }
}

} // namespace varrocade
