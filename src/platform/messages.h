#pragma once
// The one seam through which the program speaks to its user in boxes and to its developer in debug lines.

#include <string>
#include <string_view>

namespace varrocade {

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Information, Warning, Error, Question };
enum class Answer { Ok, Cancel, Yes, No };

/// One message box.
struct Message {
    std::string text;
    std::string caption;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
};

using MessageHandler = Answer (*)(const Message&);

/// Shows a message and returns the answer. Without a handler (the command line) the text goes to standard
/// error and the answer is the one that does nothing.
Answer showMessage(const Message& message);

/// Puts `handler` in place of the present one, which is returned: the window's message boxes, or a test that
/// records what was shown and gives its answers.
MessageHandler setMessageHandler(MessageHandler handler);

/// "Couldn't load file": the path with the hint that most such failures come from.
void showCouldNotLoad(const std::string& path);

/// "Couldn't save file" with the full path, and with the reason where one is given.
void showCouldNotSave(const std::string& path, const std::string& reason = {});

/// Writes one line (a line feed is added) to the debugger, or to standard error where there is none.
void debugLine(std::string_view line);

} // namespace varrocade
