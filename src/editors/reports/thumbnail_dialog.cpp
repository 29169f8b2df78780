#include "editors/reports/thumbnail_dialog.h"

#include "data/codec.h"
#include "editors/form/dialog_frame_win32.h"
#include "resources/resource.h"

#include <cstdint>

namespace varrocade {

namespace {

constexpr std::int32_t UsualScale = 40; ///< pixels a metre

class ThumbnailDialog final : public DialogFrame {
public:
    ThumbnailDialog() : DialogFrame(IDD_THUMBNAILS, "Generate vehicle thumbnails") {}

    [[nodiscard]] const ThumbnailOptions& options() const { return options_; }

private:
    void init() override {
        port().setChecked(IDC_THUMBNAIL_FITTED, true);
        port().setText(IDC_THUMBNAIL_SIDE, std::to_string(options_.side));
        port().setText(IDC_THUMBNAIL_SCALE, std::to_string(UsualScale));
        follow();
    }

    bool accept() override {
        if (port().isChecked(IDC_THUMBNAIL_FITTED)) {
            return take(IDC_THUMBNAIL_SIDE, "Pixels of a side",
                        {.least = LeastThumbnailSide, .greatest = GreatestThumbnailSide}, options_.side);
        }
        std::int32_t scale = 0;
        const bool isTaken = take(IDC_THUMBNAIL_SCALE, "Pixels a metre",
                                  {.least = 1, .greatest = GreatestThumbnailScale}, scale);
        options_.scale = scale;
        return isTaken;
    }

    bool notice(int control, int notification) override {
        if (control == IDC_THUMBNAIL_SIDE || control == IDC_THUMBNAIL_SCALE) {
            if (isUserChange(notification)) {
                port().mark(control, {});
            }
        } else {
            follow();
        }
        return true;
    }

    void follow() {
        const bool isFitted = port().isChecked(IDC_THUMBNAIL_FITTED);
        port().setEnabled(IDC_THUMBNAIL_SIDE, isFitted);
        port().setEnabled(IDC_THUMBNAIL_SCALE, !isFitted);
    }

    bool take(int control, std::string_view label, NumberRange range, std::int32_t& value) {
        // Something out of range, so that what stands there is read anew.
        value = 0;
        const auto refusal =
            Codec<std::int32_t>::take(port().text(control), {.label = label, .range = range}, value);
        if (refusal) {
            FormError error;
            error.control = control;
            error.message = *refusal;
            refuse(error);
        }
        return !refusal;
    }

    ThumbnailOptions options_;
};

} // namespace

std::optional<ThumbnailOptions> askThumbnailOptions(HWND owner) {
    ThumbnailDialog dialog;
    return dialog.run(owner) ? std::optional(dialog.options()) : std::nullopt;
}

} // namespace varrocade
