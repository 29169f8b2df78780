#include "app/windows/message_boxes.h"

#include "app/windows/application.h"
#include "platform/messages.h"

namespace varrocade {

namespace {

UINT styleOf(const Message& message) {
    UINT style = MB_OK;
    switch (message.buttons) {
    case MessageButtons::Ok:
        style = MB_OK;
        break;
    case MessageButtons::OkCancel:
        style = MB_OKCANCEL;
        break;
    case MessageButtons::YesNo:
        style = MB_YESNO;
        break;
    case MessageButtons::YesNoCancel:
        style = MB_YESNOCANCEL;
        break;
    }
    switch (message.icon) {
    case MessageIcon::None:
        break;
    case MessageIcon::Information:
        style |= MB_ICONINFORMATION;
        break;
    case MessageIcon::Warning:
        style |= MB_ICONEXCLAMATION;
        break;
    case MessageIcon::Error:
        style |= MB_ICONERROR;
        break;
    case MessageIcon::Question:
        style |= MB_ICONQUESTION;
        break;
    }
    return style;
}

Answer showBox(const Message& message) {
    HWND window = application().window;
    HWND owner = window == nullptr ? nullptr : GetLastActivePopup(window);
    switch (MessageBoxA(owner, message.text.c_str(), message.caption.c_str(), styleOf(message))) {
    case IDYES:
        return Answer::Yes;
    case IDNO:
        return Answer::No;
    case IDCANCEL:
        return Answer::Cancel;
    default:
        return message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
    }
}

} // namespace

void useMessageBoxes() {
    setMessageHandler(showBox);
}

} // namespace varrocade
