#include "data/field_files.h"

#include "data/unit/image_names.h"
#include "platform/file_operations.h"

namespace varrocade {

std::string fileNameOfValue(const FieldInfo& field, std::string_view value) {
    const bool isSound = field.kind == FieldKind::Sound;
    return std::string(isSound ? value : imageNameOf(value)) +
           std::string(isSound ? SoundEnding : ImageEnding);
}

std::string fileOfValue(const FieldInfo& field, std::string_view value, std::span<const std::string> bases) {
    const std::string name = fileNameOfValue(field, value);
    const auto find = [&](std::string_view folder) {
        for (const std::string& base : bases) {
            std::string path = base + std::string(folder) + name;
            if (systemFiles().exists(path)) {
                return path;
            }
        }
        return std::string();
    };
    if (field.kind == FieldKind::Sound) {
        return find(SoundFolder);
    }
    for (const ImageSource& source : field.images) {
        if (std::string path = find(source.folder); !path.empty()) {
            return path;
        }
    }
    // The generic pictures of units stand in for any other.
    return find(image_folder::Units);
}

} // namespace varrocade
