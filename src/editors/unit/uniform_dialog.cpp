#include "editors/unit/uniform_dialog.h"

#include "editors/form/form_dialog_win32.h"
#include "editors/unit/uniform_form.h"
#include "resources/resource.h"
#include "view/painting/gdi_device_win32.h"
#include "view/painting/painter_win32.h"

#include <algorithm>
#include <variant>

namespace varrocade {

namespace {

/// Paints the pictures of a uniform with what each is below it, as large as the area allows.
class UniformPainter {
public:
    UniformPainter(GdiDevice& device, const RECT& area, const DrawList& list)
        : device_(device), top_(area.top), bottom_(area.bottom),
          scale_(std::min((area.bottom - area.top - 2 * device.lineHeight(TextFont::Small)) / list.greatest.y,
                          (area.right - area.left) / list.greatest.x)) {}

    void operator()(const PictureItem& item) const {
        const auto size = device_.pictureSize(item.path);
        const double width = item.width * scale_;
        const double height = item.height * scale_;
        const PixelPoint corner{static_cast<int>(item.centre.x * scale_ - width / 2),
                                static_cast<int>(middle() - height / 2)};
        if (size) {
            device_.picture(item.path, corner, {.width = width, .height = height});
        }
    }
    void operator()(const PlaceholderItem& item) const {
        const auto left = static_cast<int>((item.centre.x - item.width / 2) * scale_);
        device_.brokenText(item.label, left, left + static_cast<int>(item.width * scale_),
                           static_cast<int>(middle()) - device_.lineHeight(TextFont::Small), TextFont::Small,
                           FaintInk);
    }
    void operator()(const LabelItem& item) const {
        device_.text(item.text,
                     {static_cast<int>(item.top.x * scale_),
                      static_cast<int>(bottom_) - device_.lineHeight(TextFont::Small)},
                     TextFont::Small, TextInk, TextSide::Centre);
    }
    template <typename Other>
    void operator()(const Other&) const {}

private:
    [[nodiscard]] double middle() const {
        return static_cast<double>(top_ + bottom_ - device_.lineHeight(TextFont::Small)) / 2;
    }

    GdiDevice& device_;
    LONG top_;
    LONG bottom_;
    double scale_;
};

class UniformDialog final : public FormDialog {
public:
    UniformDialog(EditContext& edit, SquadRecord& work)
        : FormDialog({.dialogTemplate = IDD_UNIFORM,
                      .caption = "Uniform",
                      .imageBases = edit.imageBases,
                      .focus = edit.focus.field},
                     form_),
          edit_(edit), work_(work), form_(work, uniformShape()) {}

private:
    void follow() override { InvalidateRect(GetDlgItem(handle(), IDC_UNIFORM_PICTURES), nullptr, FALSE); }
    void paint(const DRAWITEMSTRUCT& item) override {
        SquadRecord shown = work_;
        readPossible(port(), uniformShape(), shown);
        const DrawList list = uniformPictures(shown, edit_.imageBases, *edit_.pictures);
        paintBuffered(item.hDC, item.rcItem, edit_.drawing, [&](HDC device) {
            GdiDevice paints(device, edit_.drawing, edit_.pictures);
            const UniformPainter painter(paints, item.rcItem, list);
            for (const DrawItem& piece : list.items) {
                std::visit(painter, piece);
            }
        });
    }

    EditContext& edit_;
    SquadRecord& work_;
    RecordForm<SquadRecord> form_;
};

} // namespace

bool editUniform(HWND owner, EditContext& edit) {
    SquadRecord work = edit.record;
    if (!UniformDialog(edit, work).run(owner) || work == edit.record) {
        return false;
    }
    edit.record = std::move(work);
    return true;
}

} // namespace varrocade
