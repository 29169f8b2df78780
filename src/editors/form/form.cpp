#include "editors/form/form.h"

namespace varrocade {

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

void addUnknown(std::string& names, FormPort& port, int control, std::string_view label) {
    const std::string text = port.text(control);
    if (!text.empty() && !port.offers(control, text)) {
        names +=
            (names.empty() ? "Unknown, kept as it is: " : ", ") + std::string(label) + " \"" + text + "\"";
    }
}

} // namespace varrocade
