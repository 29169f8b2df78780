#pragma once
// What all dialogs of the form engine do alike: they open beside the drawing, end with OK or Cancel, refuse
// with a box and a marked control, and complete what is chosen from drop-down lists.

#include "editors/form/form_port_win32.h"
#include "view/painting/gdi_object_win32.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// A dialog. What derives from it says what it is filled with and what OK takes.
class DialogFrame {
public:
    DialogFrame(const DialogFrame&) = delete;
    DialogFrame& operator=(const DialogFrame&) = delete;
    virtual ~DialogFrame() = default;

    /// Shows the dialog until it is ended; true when OK ended it.
    bool run(HWND owner);

    /// Shows the dialog beside its owner, which can be worked with meanwhile; brings one that is open to the
    /// front. It opens again where it was closed.
    void open(HWND owner);
    [[nodiscard]] bool isOpen() const { return dialog_ != nullptr; }
    /// Whether a message is a key that moves within one of the dialogs that stand beside the main window.
    /// Their thread's message loop asks before it hands a message on.
    static bool isNavigation(MSG& message);

protected:
    /// `caption` is of the boxes with refusals, `title` of the window where it is not the template's.
    DialogFrame(int dialogTemplate, std::string_view caption, std::string title = {})
        : template_(dialogTemplate), caption_(caption), title_(std::move(title)) {}

    [[nodiscard]] HWND handle() const { return dialog_; }
    [[nodiscard]] DialogPort& port() { return *port_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }

    /// What a button of this dialog does, told before it runs.
    void onButton(int control, std::function<void()> press);
    /// Ends the dialog as OK does.
    void end() { finish(1); }
    /// Says why the form cannot be taken: in a box, in the control, which gets the keyboard.
    void refuse(const FormError& error);

    /// Follows a drop-down list of names that is typed into: the place of the name that was chosen or typed
    /// to its end, where that is another than `present`. When the keyboard leaves a half typed name, the
    /// present one is back.
    [[nodiscard]] std::optional<std::size_t> followNames(int control, int notification, std::size_t present);

    /// Fills the dialog when it opens.
    virtual void init() = 0;
    /// The control that has the keyboard first; 0: that of the template.
    virtual int firstFocus() { return 0; }
    /// What comes as soon as the dialog is there to be seen, such as a further one.
    virtual void opened() {}
    /// Takes the dialog over; false, after telling why, leaves it open.
    virtual bool accept() = 0;
    /// What else than its buttons the dialog follows; an edit or a drop-down list has its new text already.
    /// False leaves the notification to the system.
    virtual bool notice(int control, int notification) = 0;
    /// Paints a control that the dialog draws itself.
    virtual void paint(const DRAWITEMSTRUCT&) {}
    /// The private messages of a dialog.
    virtual bool receive(UINT, WPARAM, LPARAM) { return false; }

private:
    struct Button {
        int control;
        std::function<void()> press;
    };

    static INT_PTR CALLBACK frameProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer);
    void finish(INT_PTR result);
    void place();
    void leave();
    INT_PTR handleMessage(UINT message, WPARAM parameter, LPARAM pointer);
    bool handleCommand(int control, int notification);
    bool giveFocus();
    void followCombo(int control, int notification);
    void keepOpenedText(int control);
    INT_PTR colourEdit(HDC device, HWND edit);

    int template_;
    std::string caption_;
    std::string title_;
    std::vector<Button> buttons_;
    bool isModeless_ = false;
    std::optional<POINT> lastPlace_; ///< of a modeless one that was closed
    HWND dialog_ = nullptr;
    std::optional<DialogPort> port_;
    GdiObject<HBRUSH> refusedBrush_;
    std::string openedWith_; ///< the text of the drop-down list that was opened last
};

} // namespace varrocade
