#include "editors/form/form.h"

#include "data/format/texts.h"

#include <algorithm>

namespace varrocade {

std::string onOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\n') {
            line += ' ';
        } else if (c != '\r') {
            line += c;
        }
    }
    return line;
}

std::string notStoredText(std::span<const std::string> labels) {
    if (labels.empty()) {
        return {};
    }
    std::string text = "(" + labels.front();
    for (std::size_t i = 1; i < labels.size(); ++i) {
        text += (i + 1 < labels.size() ? ", " : " and ") + labels[i];
    }
    return text + (labels.size() > 1 ? " are" : " is") + " not stored in the file)";
}

std::vector<std::string> fittingChoices(std::span<const std::string> choices, std::string_view text) {
    std::vector<std::string> fitting(choices.begin(), choices.end());
    std::string words = loweredText(text);
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        const std::string word = words.substr(0, end);
        std::erase_if(fitting, [&](const std::string& choice) {
            return loweredText(choice).find(word) == std::string::npos;
        });
        words.erase(0, std::min(end + 1, words.size()));
    }
    return fitting;
}

void addUnknown(std::string& names, FormPort& port, int control, std::string_view label) {
    const std::string text = port.text(control);
    if (!text.empty() && !port.offers(control, text)) {
        names +=
            (names.empty() ? "Unknown, kept as it is: " : ", ") + std::string(label) + " \"" + text + "\"";
    }
}

} // namespace varrocade
