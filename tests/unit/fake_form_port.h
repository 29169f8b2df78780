#pragma once

#include "editors/form/form_port.h"

#include <algorithm>
#include <map>
#include <set>

namespace varrocade::tests {

/// A dialog's controls without a dialog.
class FakeFormPort : public FormPort {
public:
    std::string text(int control) override { return texts[control]; }
    void setText(int control, std::string_view text) override { texts[control] = text; }
    bool isChecked(int control) override { return checked.contains(control); }
    void setChecked(int control, bool isOn) override {
        if (isOn) {
            checked.insert(control);
        } else {
            checked.erase(control);
        }
    }
    void setEnabled(int control, bool enabled) override {
        if (enabled) {
            disabled.erase(control);
        } else {
            disabled.insert(control);
        }
    }
    void setChoices(int control, std::span<const std::string> entries) override {
        choices[control].assign(entries.begin(), entries.end());
    }
    bool offers(int control, std::string_view text) override {
        return std::find(choices[control].begin(), choices[control].end(), text) != choices[control].end();
    }
    void setLimit(int control, std::size_t characters) override { limits[control] = characters; }
    void focus(int control) override { focused = control; }
    void mark(int control, std::string_view refusal) override {
        if (refusal.empty()) {
            marks.erase(control);
        } else {
            marks[control] = refusal;
        }
    }

    std::map<int, std::string> texts;
    std::set<int> checked;
    std::set<int> disabled;
    std::map<int, std::vector<std::string>> choices;
    std::map<int, std::size_t> limits;
    std::map<int, std::string> marks;
    int focused = 0;
};

} // namespace varrocade::tests
