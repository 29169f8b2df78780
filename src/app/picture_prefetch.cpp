#include "app/picture_prefetch.h"

#include "app/application.h"
#include "app/file_list.h"
#include "data/unit_reader.h"

#include <utility>

namespace varrocade {

namespace {

void addPictures(const std::string& name, std::vector<std::string>& pictures) {
    Application& app = application();
    Diagnostics diagnostics;
    const auto unit = readUnitFile(dataFilePath(baseFolder(), app.category, name), name, diagnostics);
    if (!unit) {
        return;
    }
    for (DrawItem& item : drawingOf(*unit, {}).items) {
        if (auto* picture = std::get_if<PictureItem>(&item)) {
            pictures.push_back(std::move(picture->path));
        }
    }
}

} // namespace

void startPrefetch() {
    Application& app = application();
    app.prefetch = {};
    if (app.openUnit) {
        app.prefetch.units = neighbouringEntries();
    }
}

bool prefetchStep() {
    Application& app = application();
    PicturePrefetch& prefetch = app.prefetch;
    if (!prefetch.pictures.empty()) {
        app.pictures.pixels(prefetch.pictures.back());
        prefetch.pictures.pop_back();
        return true;
    }
    if (prefetch.units.empty()) {
        return false;
    }
    addPictures(prefetch.units.back(), prefetch.pictures);
    prefetch.units.pop_back();
    return true;
}

} // namespace varrocade
