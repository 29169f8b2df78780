#include "app/workspace/names/list_notice.h"

#include "data/format/words.h"

namespace varrocade {

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
    return {category + ": there are none yet in\n" +
            categoryFolder(baseFolder(workspace), workspace.category)};
}

} // namespace varrocade
