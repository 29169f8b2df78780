#include "app/windows/display/picture_prefetch.h"

#include "app/windows/application.h"
#include "app/windows/display/unit_display.h"
#include "data/reading/unit_reader.h"

#include <utility>

namespace varrocade {

namespace {

void addPictures(const std::string& name) {
    Application& app = application();
    Diagnostics diagnostics;
    const auto unit = readUnitFile(pathOf(app.workspace, name), name, diagnostics);
    if (!unit) {
        return;
    }
    DrawList drawing = drawingOf(*unit, {});
    app.prefetch.fit = wholeFit(drawing, app.display.drawingCanvas.size);
    for (DrawItem& item : drawing.items) {
        if (auto* picture = std::get_if<PictureItem>(&item)) {
            app.prefetch.pictures.push_back(std::move(*picture));
        }
    }
}

} // namespace

void startPrefetch() {
    Application& app = application();
    app.prefetch = {};
    if (openUnit(app.workspace) != nullptr) {
        app.prefetch.units = neighbourNames(app.workspace.list);
    }
}

bool prefetchStep() {
    Application& app = application();
    PicturePrefetch& prefetch = app.prefetch;
    if (!prefetch.pictures.empty()) {
        const SIZE size = app.display.drawingCanvas.size;
        preparePicture(prefetch.pictures.back(), {0, 0, size.cx, size.cy}, prefetch.fit, app.pictures);
        prefetch.pictures.pop_back();
        return true;
    }
    if (prefetch.units.empty()) {
        return false;
    }
    addPictures(prefetch.units.back());
    prefetch.units.pop_back();
    return true;
}

} // namespace varrocade
