#include "tools/reports/png_usage.h"

#include "data/unit/image_names.h"

namespace varrocade {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view MissingHeading = "Named, but not there:";

} // namespace

std::vector<ReportFile> PngUsage::files() {
    std::string used;
    std::string unused;
    const bool isOfMod = !scan_.files().bases().mod.empty();
    for (const std::string_view folder : pictureFolders()) {
        for (const AssetFile& file : scan_.files().list(folder, ImageEnding)) {
            if (file.isOfMod != isOfMod) {
                continue;
            }
            const std::vector<std::size_t>* users = scan_.usersOf(file);
            std::string& list = users == nullptr ? unused : used;
            list.append(file.folder).append(file.name).append(LineEnd);
            if (users != nullptr) {
                appendUsers(used, scan_, *users);
            }
        }
    }
    bool hasHeading = false;
    for (const MissingFile& file : scan_.missing()) {
        if (file.kind == ReferenceKind::Picture || file.kind == ReferenceKind::Uniform) {
            if (!hasHeading) {
                used.append(LineEnd).append(MissingHeading).append(LineEnd);
                hasHeading = true;
            }
            used += file.below;
            used += LineEnd;
            appendUsers(used, scan_, file.users);
        }
    }
    return {{std::string(UnusedPngsFile), std::move(unused)}, {std::string(UsedPngsFile), std::move(used)}};
}

} // namespace varrocade
