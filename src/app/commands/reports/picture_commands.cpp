#include "app/commands/reports/picture_commands.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "editors/reports/progress_dialog.h"
#include "editors/reports/reduction_dialog.h"
#include "editors/reports/result_dialog.h"
#include "editors/reports/thumbnail_dialog.h"
#include "platform/messages.h"

#include <string>
#include <utility>

namespace varrocade {

namespace {

bool isConfirmed(std::string caption, std::string text) {
    return showMessage({.text = std::move(text),
                        .caption = std::move(caption),
                        .buttons = MessageButtons::YesNo,
                        .icon = MessageIcon::Question}) == Answer::Yes;
}

/// `vehicle` is the open one's name, or empty for all pictures.
void reduce(const std::string& vehicle, std::string question) {
    if (!isConfirmed("Reduce image sizes", std::move(question))) {
        return;
    }
    Workspace& workspace = theWorkspace();
    ReductionTools tools{.files = *workspace.files,
                         .backups = workspace.backups,
                         .drawing = application().drawing,
                         .folders = gameFolders(workspace),
                         .vehicle = vehicle,
                         .open = std::nullopt};
    if (const SquadRecord* unit = openUnit(workspace);
        unit != nullptr && workspace.category == Category::Vehicles) {
        tools.open = *unit;
    }
    if (reducePictures(application().window, tools)) {
        application().pictures.clear();
        refreshAll(workspace);
    }
}

} // namespace

void generateThumbnails() {
    const std::string caption = "Generate vehicle thumbnails";
    if (!isConfirmed(caption,
                     "This will create PNGs of thumbnails of all the vehicles for each nationality")) {
        return;
    }
    HWND window = application().window;
    const std::optional<ThumbnailOptions> options = askThumbnailOptions(window);
    if (!options) {
        return;
    }
    Workspace& workspace = theWorkspace();
    const std::string folder = baseFolder(workspace) + std::string(ThumbnailFolder);
    ThumbnailJob job(gameFolders(workspace), *options, folder);
    const bool isDone = runJobInWindow(window, caption, job);
    if (!isDone && job.written() == 0) {
        return;
    }
    std::string details;
    for (const PlannedSheet& sheet : job.sheets()) {
        details += isDone ? sheetFile(sheet) + ": " + std::to_string(sheet.count) +
                                (sheet.count == 1 ? " vehicle\n" : " vehicles\n")
                          : std::string();
    }
    if (const std::vector<FileFailure> failures = job.failures(); !failures.empty()) {
        details += "\nThese failed:\n" + failureLines(failures);
    }
    showJobResult(window, {.caption = "Vehicle thumbnails",
                           .summary = std::string(isDone ? "" : "Cancelled. ") + "Created " +
                                      std::to_string(job.written()) + " PNGs in the folder:",
                           .folder = folder,
                           .details = std::move(details)});
}

void reduceOpenVehicle() {
    reduce(openFileName(theWorkspace()),
           "Are you sure you want to reduce the sizes\nof the vehicle's images?");
}

void reduceAllPictures() {
    reduce({}, "Are you sure you want to reduce the sizes\nof all images?");
}

} // namespace varrocade
