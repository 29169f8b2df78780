#include "platform/messages.h"

#include <cstdio>

namespace varrocade {

namespace {

Answer printMessage(const Message& message) {
    std::fprintf(stderr, "%s: %s\n", message.caption.c_str(), message.text.c_str());
    switch (message.buttons) {
    case MessageButtons::Ok:
        return Answer::Ok;
    case MessageButtons::YesNo:
        return Answer::No;
    case MessageButtons::OkCancel:
    case MessageButtons::YesNoCancel:
        break;
    }
    return Answer::Cancel;
}

MessageHandler currentHandler = printMessage;

} // namespace

Answer showMessage(const Message& message) {
    return currentHandler(message);
}

MessageHandler setMessageHandler(MessageHandler handler) {
    const MessageHandler former = currentHandler;
    currentHandler = handler != nullptr ? handler : printMessage;
    return former;
}

void showCouldNotLoad(const std::string& path) {
    showMessage({.text = path + "\n\nCheck that the filename is made of ASCII characters and not Unicode",
                 .caption = "Couldn't load file",
                 .icon = MessageIcon::Warning});
}

void showCouldNotSave(const std::string& path, const std::string& reason) {
    showMessage({.text = reason.empty() ? path : path + "\n\n" + reason,
                 .caption = "Couldn't save file",
                 .icon = MessageIcon::Warning});
}

} // namespace varrocade
