#include "app/workspace/options.h"

#include "app/workspace/mod/mod_memory.h"
#include "app/workspace/options_file.h"
#include "platform/messages.h"
#include "platform/safe_save.h"

#include <utility>

namespace varrocade {

namespace {

std::string optionsPath(const Workspace& workspace) {
    return workspace.programFolder + std::string(OptionsFileName);
}

} // namespace

bool readOptions(Workspace& workspace) {
    workspace.gameFolder.clear();
    readModMemory(workspace);
    std::string content;
    if (!workspace.files->read(optionsPath(workspace), content)) {
        return true;
    }
    Options options = decodeOptions(content);
    if (options.isFatal) {
        return false;
    }
    workspace.gameFolder = std::move(options.gameFolder);
    return true;
}

int writeOptions(const Workspace& workspace) {
    const std::string path = optionsPath(workspace);
    if (saveFile(*workspace.files, path, encodeOptions(workspace.gameFolder))) {
        showCouldNotSave(path);
        return 0;
    }
    return 1;
}

} // namespace varrocade
