#include "editors/reports/reduction_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/table_win32.h"
#include "editors/reports/progress_dialog.h"
#include "editors/reports/reduction_form.h"
#include "editors/reports/result_dialog.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/painting/painter_win32.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, ReductionHeads.size()> ReductionColumns = {{
    {ReductionHeads[0], 240},
    {ReductionHeads[1], 134},
    {ReductionHeads[2], 76, true},
    {ReductionHeads[3], 76, true},
    {ReductionHeads[4], 92},
    {ReductionHeads[5], 200},
}};

class ReductionDialog final : public DialogFrame {
public:
    explicit ReductionDialog(const ReductionTools& tools)
        : DialogFrame(IDD_REDUCE_PICTURES, "Reduce image sizes"), tools_(tools) {
        onButton(IDC_REDUCE_SCALE, [this] { chooseScaling(); });
        onButton(IDC_REDUCE_SELECTED, [this] { write(selectedRows()); });
        onButton(IDC_COPY_TABLE, [this] { copyToClipboard(handle(), reductionTable(rows_)); });
    }

    /// Finds out what could be done; false where the user cancelled it.
    bool prepare(HWND owner, bool isScaling) {
        ReductionJob job;
        job.start(tools_.folders, {.vehicle = tools_.vehicle, .scalesDown = isScaling}, tools_.open);
        if (!runJobInWindow(owner, caption(), job)) {
            return false;
        }
        sets_ = std::move(job.results());
        unread_ = job.failures();
        return true;
    }

    [[nodiscard]] bool hasWritten() const { return written_.count > 0; }

private:
    void init() override {
        prepareTable(table(), ReductionColumns);
        list();
        tellUnread();
    }

    /// OK writes all.
    bool accept() override {
        write(rows_);
        return false;
    }
    bool notice(int, int) override { return true; }
    void paint(const DRAWITEMSTRUCT& item) override;
    bool receive(UINT message, WPARAM parameter, LPARAM detail) override;

    [[nodiscard]] HWND table() const { return GetDlgItem(handle(), IDC_REDUCE_ROWS); }

    void list();
    void tellUnread();
    void chooseScaling();
    [[nodiscard]] std::vector<ReductionRow> selectedRows() const;
    void write(const std::vector<ReductionRow>& rows);
    void followSelection();
    [[nodiscard]] Pixmap decoded(std::string content, const std::string& path);

    const ReductionTools& tools_;
    ReducedSets sets_;
    std::vector<FileFailure> unread_; ///< units
    std::vector<ReductionRow> rows_;
    PictureDecoder decoder_;
    Pixmap before_;
    Pixmap after_;
    WrittenPictures written_;
};

void ReductionDialog::list() {
    rows_ = reductionRows(sets_);
    ListView_DeleteAllItems(table());
    for (ReductionRow& row : rows_) {
        addTableRow(table(), row.cells);
    }
    port().setText(IDC_REDUCE_SUMMARY, reductionSummary(sets_, written_));
    port().setEnabled(IDOK, !setsToWrite(sets_, rows_).empty());
    ListView_SetItemState(table(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    followSelection();
}

void ReductionDialog::tellUnread() {
    if (!unread_.empty()) {
        tellFailures(caption(), "These files could not be read. While that is so nothing is scaled:\n",
                     unread_);
    }
}

void ReductionDialog::chooseScaling() {
    const bool isScaling = port().isChecked(IDC_REDUCE_SCALE);
    if (prepare(handle(), isScaling)) {
        list();
        tellUnread();
    } else {
        port().setChecked(IDC_REDUCE_SCALE, !isScaling);
    }
}

std::vector<ReductionRow> ReductionDialog::selectedRows() const {
    std::vector<ReductionRow> selected;
    for (int row = ListView_GetNextItem(table(), -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(table(), row, LVNI_SELECTED)) {
        selected.push_back(rows_[static_cast<std::size_t>(row)]);
    }
    return selected;
}

/// Asks, and writes the sets that rows belong to. What was written leaves the table.
void ReductionDialog::write(const std::vector<ReductionRow>& rows) {
    const std::vector<std::size_t> chosen = setsToWrite(sets_, rows);
    if (chosen.empty() || showMessage({.text = reductionQuestion(sets_, chosen),
                                       .caption = caption(),
                                       .buttons = MessageButtons::YesNo,
                                       .icon = MessageIcon::Question}) != Answer::Yes) {
        return;
    }
    std::vector<std::vector<ReducedPicture>*> written;
    std::transform(chosen.begin(), chosen.end(), std::back_inserter(written),
                   [this](std::size_t set) { return &sets_[set]; });
    const GameFolders& folders = tools_.folders;
    ReductionWriter writer(tools_.files, tools_.backups, folders.mod.empty() ? folders.program : folders.mod,
                           std::move(written));
    runJobInWindow(handle(), caption(), writer);
    std::vector<bool> isGone(sets_.size());
    for (std::size_t i = 0; i < writer.done(); ++i) {
        const auto& set = sets_[chosen[i]];
        const bool isWritten = std::none_of(set.begin(), set.end(), [](const ReducedPicture& each) {
            return !each.content.empty() && each.outcome == ReductionOutcome::Failed;
        });
        isGone[chosen[i]] = isWritten;
        for (const ReducedPicture& picture : set) {
            if (isWritten && !picture.content.empty()) {
                ++written_.count;
                written_.bytesBefore += picture.bytesBefore;
                written_.bytesAfter += picture.bytesAfter;
            }
        }
    }
    ReducedSets left;
    for (std::size_t i = 0; i < sets_.size(); ++i) {
        if (!isGone[i]) {
            left.push_back(std::move(sets_[i]));
        }
    }
    sets_ = std::move(left);
    list();
    if (const auto failures = writer.failures(); failures.size() == 1) {
        showCouldNotSave(failures.front().path);
    } else if (!failures.empty()) {
        tellFailures(caption(), "These pictures could not be written and are as they were:\n", failures);
    }
}

/// The pixels of a content, or of a file where that is empty; none where they cannot be shown.
Pixmap ReductionDialog::decoded(std::string content, const std::string& path) {
    const auto size = readPngSize(path);
    const bool isTooLarge =
        !size || static_cast<std::uint64_t>(size->width) * static_cast<std::uint64_t>(size->height) >
                     MostPicturePixels;
    if (isTooLarge || (content.empty() && !readWholeFile(path, content))) {
        return {};
    }
    return decoder_.decode(std::move(content));
}

void ReductionDialog::followSelection() {
    const std::vector<ReductionRow> selected = selectedRows();
    port().setEnabled(IDC_REDUCE_SELECTED, !setsToWrite(sets_, selected).empty());
    before_ = after_ = {};
    std::string beforeText;
    std::string afterText;
    if (selected.size() == 1) {
        const ReducedPicture& picture = sets_[selected[0].set][selected[0].picture];
        before_ = decoded(picture.former, picture.path);
        after_ = picture.content.empty() ? before_ : decoded(picture.content, picture.path);
        beforeText = pictureCaption("Now", picture.sizeBefore, picture.bytesBefore);
        afterText = pictureCaption("Then", picture.sizeAfter, picture.bytesAfter);
    }
    port().setText(IDC_REDUCE_DETAIL, selected.size() == 1 ? reductionDetail(selected[0]) : std::string());
    port().setText(IDC_REDUCE_BEFORE_TEXT, beforeText);
    port().setText(IDC_REDUCE_AFTER_TEXT, afterText);
    InvalidateRect(GetDlgItem(handle(), IDC_REDUCE_BEFORE), nullptr, FALSE);
    InvalidateRect(GetDlgItem(handle(), IDC_REDUCE_AFTER), nullptr, FALSE);
}

/// Both pictures take the same room, so that what scaling does to them is seen.
void ReductionDialog::paint(const DRAWITEMSTRUCT& item) {
    const Pixmap& shown = item.CtlID == IDC_REDUCE_BEFORE ? before_ : after_;
    paintBuffered(item.hDC, item.rcItem, tools_.drawing, [&](HDC device) {
        if (before_.pixels.empty() || shown.pixels.empty()) {
            return;
        }
        constexpr double greatestZoom = 4;
        const double width = item.rcItem.right;
        const double height = item.rcItem.bottom;
        const double zoom = std::min({greatestZoom, width / before_.width, height / before_.height});
        const PixmapPlacement placement{.width = before_.width * zoom, .height = before_.height * zoom};
        PlacedBitmap placed;
        placed.box = boxOf(placement);
        std::span<std::uint32_t> pixels;
        placed.bitmap = pixelBitmap(placed.box.width, placed.box.height, pixels);
        if (!pixels.empty()) {
            placePixmap(shown, placement, placed.box, pixels);
            blend(device, item.rcItem.right / 2, item.rcItem.bottom / 2, placed);
        }
    });
}

bool ReductionDialog::receive(UINT message, WPARAM, LPARAM detail) {
    if (message != WM_NOTIFY) {
        return false;
    }
    const auto* change = reinterpret_cast<const NMLISTVIEW*>(detail);
    const bool isSelection = change->hdr.idFrom == IDC_REDUCE_ROWS && change->hdr.code == LVN_ITEMCHANGED &&
                             ((change->uNewState ^ change->uOldState) & LVIS_SELECTED) != 0;
    if (isSelection) {
        followSelection();
    }
    return true;
}

} // namespace

bool reducePictures(HWND owner, const ReductionTools& tools) {
    ReductionDialog dialog(tools);
    if (dialog.prepare(owner, false)) {
        dialog.run(owner);
    }
    return dialog.hasWritten();
}

} // namespace varrocade
