#include "app/workspace/names/list_notice.h"

#include "data/format/words.h"

#include <array>

namespace varrocade {

std::string_view remedyText(ListRemedy remedy) {
    constexpr std::array<std::string_view, 4> texts = {"", "Show all", "Choose folder...", "Show the game's"};
    return texts.at(static_cast<std::size_t>(remedy));
}

ListNotice listNotice(const Workspace& workspace) {
    const NameList& list = workspace.list;
    if (!list.shown.empty()) {
        return {};
    }
    const std::string category(categoryName(workspace.category));
    if (!list.all.empty()) {
        const std::string hidden = list.all.size() == 1
                                       ? "the only one"
                                       : "all " + grouped(static_cast<std::int32_t>(list.all.size()));
        return {category + ": the filter \"" + list.filter + "\" hides " + hidden + ".", ListRemedy::ShowAll};
    }
    if (!isFolder(workspace.programFolder + std::string(DataFolder))) {
        return {"There is no game here: the folder\n" + workspace.programFolder +
                    "\nhas no \"Data\" in it. Choose the folder that holds the game's Data and Images.",
                ListRemedy::ChooseFolder};
    }
    const std::string none =
        category + ": there are none yet in\n" + categoryFolder(baseFolder(workspace), workspace.category);
    if (workspace.modMode && !workspace.showsGameUnits &&
        !namesOfGameAlone(workspace, workspace.category).empty()) {
        return {none +
                    "\nThe game's can be shown here, in grey. What is changed of them is saved in the mod.",
                ListRemedy::ShowGameUnits};
    }
    return {none};
}

} // namespace varrocade
