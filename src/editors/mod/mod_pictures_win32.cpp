#include "editors/mod/mod_pictures_win32.h"

#include "data/unit/image_names.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/form.h"
#include "resources/resource.h"
#include "view/painting/gdi_device_win32.h"
#include "view/painting/painter_win32.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

constexpr UINT CaptionFormat = DT_SINGLELINE | DT_CENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
/// Names have no blanks to be broken at.
constexpr UINT NameFormat = DT_WORDBREAK | DT_EDITCONTROL | DT_CENTER | DT_NOPREFIX;
constexpr std::string_view NoPicture = "(none)";

void paintWords(HDC device, RECT area, const DrawingObjects& objects, const std::string& words, UINT format) {
    const Selection font(device, objects.smallFont.get());
    SetBkMode(device, TRANSPARENT);
    DrawTextA(device, words.c_str(), static_cast<int>(words.size()), &area, format);
}

int captionHeight(const DrawingObjects& objects) {
    constexpr int height = 16;
    return objects.scaled(height);
}

/// The pictures of some folders, small and with their names.
class PicturesDialog final : public DialogFrame {
public:
    PicturesDialog(const ModEdit& edit, std::span<const ImageSource> sources, std::string chosen)
        : DialogFrame(IDD_MOD_PICTURES, "Choose a picture"), edit_(edit), sources_(sources),
          names_(imageChoices(edit.imageBases, sources)), chosen_(std::move(chosen)) {
        std::sort(names_.begin(), names_.end());
    }

    [[nodiscard]] const std::string& chosen() const { return chosen_; }

private:
    [[nodiscard]] HWND list() { return GetDlgItem(handle(), IDC_MOD_PICTURES_LIST); }

    void init() override {
        constexpr int cellWidth = 104;
        SendMessageA(list(), LB_SETCOLUMNWIDTH, static_cast<WPARAM>(edit_.drawing.scaled(cellWidth)), 0);
        SendMessageA(list(), LB_SETITEMHEIGHT, 0, cellHeight());
        show();
    }

    /// Three rows, with the bar below them that there is with many.
    [[nodiscard]] LPARAM cellHeight() {
        constexpr int rows = 3;
        RECT area{};
        GetWindowRect(list(), &area);
        const int frame = 2 * GetSystemMetrics(SM_CYEDGE) + GetSystemMetrics(SM_CYHSCROLL);
        return (area.bottom - area.top - frame) / rows;
    }

    void show() {
        const std::vector<std::string> fitting = fittingChoices(names_, port().text(IDC_MOD_PICTURES_FILTER));
        SendMessageA(list(), WM_SETREDRAW, FALSE, 0);
        SendMessageA(list(), LB_RESETCONTENT, 0, 0);
        const std::string none(NoPicture);
        SendMessageA(list(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(none.c_str()));
        for (const std::string& name : fitting) {
            SendMessageA(list(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
        }
        const auto place = std::find(fitting.begin(), fitting.end(), chosen_);
        SendMessageA(list(), LB_SETCURSEL,
                     place == fitting.end() ? 0 : static_cast<WPARAM>(place - fitting.begin()) + 1, 0);
        SendMessageA(list(), WM_SETREDRAW, TRUE, 0);
        InvalidateRect(list(), nullptr, TRUE);
        tellChosen();
    }

    /// The name in full.
    void tellChosen() { port().setText(IDC_MOD_SUMMARY, nameAt(SendMessageA(list(), LB_GETCURSEL, 0, 0))); }

    [[nodiscard]] std::string nameAt(LRESULT row) {
        const LRESULT length = row > 0 ? SendMessageA(list(), LB_GETTEXTLEN, static_cast<WPARAM>(row), 0) : 0;
        std::string name(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, '\0');
        if (length > 0) {
            SendMessageA(list(), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(name.data()));
        }
        name.pop_back();
        return name;
    }

    bool accept() override {
        chosen_ = nameAt(SendMessageA(list(), LB_GETCURSEL, 0, 0));
        return true;
    }

    bool notice(int control, int notification) override {
        if (control == IDC_MOD_PICTURES_FILTER && notification == EN_CHANGE) {
            show();
        } else if (control == IDC_MOD_PICTURES_LIST && notification == LBN_SELCHANGE) {
            tellChosen();
        } else if (control == IDC_MOD_PICTURES_LIST && notification == LBN_DBLCLK && accept()) {
            end();
        }
        return false;
    }

    void paint(const DRAWITEMSTRUCT& item) override {
        if (item.itemID == static_cast<UINT>(-1)) {
            return;
        }
        const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
        FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        const std::string name = nameAt(static_cast<LRESULT>(item.itemID));
        constexpr int margin = 3;
        RECT area = item.rcItem;
        InflateRect(&area, -margin, -margin);
        RECT words = area;
        words.top = area.bottom = item.rcItem.bottom - 2 * captionHeight(edit_.drawing);
        words.bottom = item.rcItem.bottom;
        if (!name.empty()) {
            paintPictureInto(item.hDC, area, edit_, picturePath(edit_, sources_, name));
        }
        SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        paintWords(item.hDC, words, edit_.drawing, name.empty() ? std::string(NoPicture) : name, NameFormat);
        if ((item.itemState & ODS_FOCUS) != 0) {
            DrawFocusRect(item.hDC, &item.rcItem);
        }
    }

    const ModEdit& edit_;
    std::span<const ImageSource> sources_;
    std::vector<std::string> names_;
    std::string chosen_;
};

} // namespace

std::string picturePath(const ModEdit& edit, std::span<const ImageSource> sources, std::string_view name) {
    if (name.empty()) {
        return {};
    }
    for (const std::string& base : edit.imageBases) {
        for (const ImageSource& source : sources) {
            std::string path =
                base + std::string(source.folder) + std::string(name) + std::string(ImageEnding);
            if (edit.pictures.sizeOf(path)) {
                return path;
            }
        }
    }
    return {};
}

void paintPictureInto(HDC device, const RECT& area, const ModEdit& edit, const std::string& path) {
    GdiDevice paints(device, edit.drawing, &edit.pictures);
    const auto size = path.empty() ? std::nullopt : paints.pictureSize(path);
    if (!size || size->width <= 0 || size->height <= 0) {
        return;
    }
    const double scale = std::min({1.0, static_cast<double>(area.right - area.left) / size->width,
                                   static_cast<double>(area.bottom - area.top) / size->height});
    const double width = std::max(1.0, size->width * scale);
    const double height = std::max(1.0, size->height * scale);
    paints.picture(path,
                   {static_cast<int>((area.left + area.right - width) / 2),
                    static_cast<int>((area.top + area.bottom - height) / 2)},
                   {.width = width, .height = height});
}

void paintPictures(const DRAWITEMSTRUCT& item, const ModEdit& edit, std::span<const ShownPicture> pictures) {
    paintBuffered(item.hDC, item.rcItem, edit.drawing, [&](HDC device) {
        const auto count = static_cast<LONG>(pictures.size());
        const LONG width = item.rcItem.right / std::max<LONG>(count, 1);
        constexpr int margin = 4;
        for (LONG i = 0; i < count; ++i) {
            const ShownPicture& picture = pictures[static_cast<std::size_t>(i)];
            RECT area{i * width, 0, (i + 1) * width, item.rcItem.bottom};
            InflateRect(&area, -margin, -margin);
            RECT words = area;
            words.top = area.bottom = area.bottom - captionHeight(edit.drawing);
            words.bottom = item.rcItem.bottom;
            paintPictureInto(device, area, edit, picture.path);
            SetTextColor(device, colourRef(picture.path.empty() ? FaintInk : TextInk));
            const std::string_view missing = picture.isNamed ? ": not found" : ": none";
            paintWords(device, words, edit.drawing,
                       picture.label + std::string(picture.path.empty() ? missing : ""), CaptionFormat);
        }
    });
}

std::optional<std::string> choosePicture(HWND owner, const ModEdit& edit,
                                         std::span<const ImageSource> sources, const std::string& chosen) {
    PicturesDialog dialog(edit, sources, chosen);
    return dialog.run(owner) ? std::optional(dialog.chosen()) : std::nullopt;
}

} // namespace varrocade
