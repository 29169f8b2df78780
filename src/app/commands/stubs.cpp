#include "app/commands/stubs.h"

#include "app/windows/application.h"
#include "editors/form/form_port_win32.h"
#include "platform/messages.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

/// A dialog whose template says what is still to come.
INT_PTR CALLBACK announcementProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM) {
    if (message == WM_INITDIALOG) {
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(parameter) == IDOK || LOWORD(parameter) == IDCANCEL)) {
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}

void announce(int dialogTemplate) {
    runDialog(application().window, dialogTemplate, announcementProcedure, nullptr);
}

void confirmThenAnnounce(std::string caption, std::string text) {
    const Answer answer = showMessage({.text = std::move(text),
                                       .caption = caption,
                                       .buttons = MessageButtons::YesNo,
                                       .icon = MessageIcon::Question});
    if (answer == Answer::Yes) {
        showMessage({.text = "This version cannot do this yet. Nothing has been changed.",
                     .caption = std::move(caption),
                     .icon = MessageIcon::Information});
    }
}

} // namespace

void editModSettings() {
    announce(IDD_EDIT_MOD);
}

void checkDuplicateFiles() {
    announce(IDD_CHECK_DUPLICATES);
}

void checkUnusedFiles() {
    announce(IDD_CHECK_UNUSED);
}

void checkVoiceFiles() {
    announce(IDD_CHECK_VOICES);
}

void reduceImageSizes() {
    confirmThenAnnounce("Reduce image sizes",
                        "Are you sure you want to reduce the sizes\nof the vehicle's images?");
}

void generateThumbnails() {
    confirmThenAnnounce("Generate vehicle thumbnails",
                        "This will create PNGs of thumbnails of all the vehicles for each nationality");
}

void generateSpreadsheets() {
    confirmThenAnnounce(
        "Generate unit spreadsheets",
        "This will create the tab separated .csv files:\n\n    Vehicles.csv\n    Infantry.csv\n    AT "
        "Guns.csv\n\ncontaining the unit data");
}

void generatePngUsage() {
    confirmThenAnnounce(
        "Create PNG usage files",
        "This will create a .txt file showing which vehicle PNGs are not being used, and which PNGs are "
        "used by which vehicles");
}

} // namespace varrocade
