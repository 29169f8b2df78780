#include "editors/form/image_choices.h"

#include "data/unit/image_names.h"
#include "platform/file_operations.h"

#include <set>

namespace varrocade {

std::vector<std::string> imageChoices(std::span<const std::string> bases,
                                      std::span<const ImageSource> sources) {
    std::vector<std::string> choices;
    std::set<std::string, std::less<>> seen;
    for (const ImageSource& source : sources) {
        for (const std::string& base : bases) {
            std::vector<std::string> names;
            listFiles(base + std::string(source.folder), ImageEnding, names);
            for (const std::string& file : names) {
                std::string name(imageNameOf(file));
                if (name.starts_with(source.prefix) && seen.insert(name).second) {
                    choices.push_back(std::move(name));
                }
            }
        }
    }
    return choices;
}

} // namespace varrocade
