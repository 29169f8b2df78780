#pragma once
// "Where Used": the files that name something, as links that open them.

#include "app/workspace/names/used_names.h"
#include "editors/form/dialog_frame_win32.h"
#include "tools/where_used.h"

#include <memory>
#include <string>
#include <vector>

namespace varrocade {

/// Stands beside the main window, so that one place after the other can be gone to.
class WhereUsedWindow final : public DialogFrame {
public:
    WhereUsedWindow();

    /// Shows where the name of the selected part, or of the open record, is used.
    void showChosen(HWND owner);

private:
    void init() override;
    bool accept() override { return false; }
    bool notice(int control, int notification) override;
    bool receive(UINT message, WPARAM parameter, LPARAM detail) override;

    void fill();
    void search();
    void work();
    void addRows();
    void showSummary(bool isOver);
    void updateButtons();
    void showSelected();
    void renameShown();
    void copy();
    [[nodiscard]] const NameUse* selectedUse() const;

    std::vector<UsedName> names_; ///< that are offered
    UsedName shown_;
    std::unique_ptr<NameSearch> search_;
    std::size_t rows_ = 0; ///< of the uses that are in the table
};

/// "Where used...": opens the window, or brings it to the front.
void showWhereUsed();
bool canShowWhereUsed();

} // namespace varrocade
