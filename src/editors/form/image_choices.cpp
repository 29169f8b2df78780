#include "editors/form/image_choices.h"

#include "data/unit/image_names.h"
#include "platform/file_operations.h"

#include <algorithm>
#include <array>
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

std::vector<std::string> partChoices(std::span<const std::string> bases, std::span<const ImageSource> sources,
                                     std::string_view ending) {
    static constexpr auto partEndings = std::to_array<std::string_view>({" base", " gun", " rotor"});
    std::vector<std::string> choices = imageChoices(bases, sources);
    std::stable_partition(choices.begin(), choices.end(), [ending](std::string_view name) {
        const auto ends = [name](std::string_view each) { return name.ends_with(each); };
        return ending.empty() ? std::none_of(partEndings.begin(), partEndings.end(), ends) : ends(ending);
    });
    return choices;
}

} // namespace varrocade
