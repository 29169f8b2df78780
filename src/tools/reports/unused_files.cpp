#include "tools/reports/unused_files.h"

#include "data/unit/image_names.h"

#include <optional>

namespace varrocade {

std::vector<ModCheckRow> UnusedFiles::rows() {
    std::vector<ModCheckRow> rows;
    const auto add = [&](std::string_view folder, std::string_view ending, std::string_view reason,
                         std::optional<Category> category = {}) {
        for (const AssetFile& file : scan_.files().list(folder, ending)) {
            if (file.isOfMod && scan_.usersOf(file) == nullptr) {
                rows.push_back({file.below(), std::string(reason), file.path()});
                if (category) {
                    rows.back().users = {userOfFile(*category, file)};
                }
            }
        }
    };
    for (const std::string_view folder : pictureFolders()) {
        add(folder, ImageEnding, "no unit, no weapon and no nation shows this picture");
    }
    add(SoundFolder, SoundEnding, "no weapon and no aircraft makes this sound");
    add(categoryFolder({}, Category::Weapons), DataFileEnding, "no unit carries this weapon",
        Category::Weapons);
    return rows;
}

} // namespace varrocade
