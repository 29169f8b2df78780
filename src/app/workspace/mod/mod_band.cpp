#include "app/workspace/mod/mod_band.h"

namespace varrocade {

ModBand modBand(const Workspace& workspace) {
    if (!workspace.modMode) {
        return {};
    }
    // The window asks for the text at each painting, and a file may hold a name of any length.
    constexpr std::size_t longest = 255;
    const std::string name = workspace.modSettings ? workspace.modSettings->name.substr(0, longest) : "";
    ModBand band{.name = "Mod: " + (name.empty() ? "(no name)" : name)};
    const OpenRecord& open = workspace.open;
    if (open.isOpen() && open.base == workspace.programFolder) {
        const std::string path = dataFilePath(workspace.modFolder, open.category, openFileName(workspace));
        band.remark =
            std::string(open.isUnsaved() ? "The game's file, with changes that are going to be saved as "
                                         : "The game's file. What is changed is saved as ") +
            path;
        band.isAboutGameFile = true;
    } else if (workspace.hasStartedInMod) {
        band.remark = "The editor has started in the mod that is in " + workspace.modFolder +
                      "    Mod > Mod Mode goes to the game.";
    } else {
        band.remark = workspace.modFolder;
    }
    return band;
}

} // namespace varrocade
