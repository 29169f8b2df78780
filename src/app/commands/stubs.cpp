#include "app/commands/stubs.h"

#include "platform/messages.h"

#include <string>
#include <utility>

namespace varrocade {

namespace {

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

void reduceImageSizes() {
    confirmThenAnnounce("Reduce image sizes",
                        "Are you sure you want to reduce the sizes\nof the vehicle's images?");
}

void generateThumbnails() {
    confirmThenAnnounce("Generate vehicle thumbnails",
                        "This will create PNGs of thumbnails of all the vehicles for each nationality");
}

} // namespace varrocade
