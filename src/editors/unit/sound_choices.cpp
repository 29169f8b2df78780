#include "editors/unit/sound_choices.h"

#include "data/format/texts.h"
#include "data/unit/image_folders.h"
#include "platform/file_operations.h"

#include <algorithm>

namespace varrocade {

std::vector<std::string> soundChoices(std::span<const std::string> bases) {
    std::vector<std::string> names;
    for (const std::string& base : bases) {
        std::vector<std::string> files;
        listFiles(base + std::string(SoundFolder), SoundEnding, files);
        for (const std::string& file : files) {
            names.push_back(file.substr(0, file.size() - SoundEnding.size()));
        }
    }
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return compareIgnoringCase(a, b) < 0;
    });
    names.erase(std::unique(names.begin(), names.end(), equalsIgnoringCase), names.end());
    return names;
}

std::string soundPath(std::span<const std::string> bases, std::string_view name) {
    for (const std::string& base : bases) {
        std::string path = base + std::string(SoundFolder) + std::string(name) + std::string(SoundEnding);
        if (!name.empty() && systemFiles().exists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace varrocade
