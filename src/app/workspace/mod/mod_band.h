#pragma once
// The band below the menu that tells which mod is worked on.

#include "app/workspace/workspace.h"

#include <string>

namespace varrocade {

struct ModBand {
    std::string name = {};        ///< "Mod: NAME"; empty outside mod mode, when there is no band
    std::string remark = {};      ///< where the mod lies, or what is to be told of what is open
    bool isAboutGameFile = false; ///< the open file is the game's and is going to be the mod's
    bool operator==(const ModBand&) const = default;
};

/// What the band says now.
ModBand modBand(const Workspace& workspace);

} // namespace varrocade
