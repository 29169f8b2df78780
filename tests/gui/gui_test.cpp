#include "gui_test.h"

#include <cstdio>

namespace varrocade::gui {

namespace {

constexpr DWORD TimeLimitMilliseconds = 60000;

} // namespace

std::string dataFile(std::string_view name, std::string_view category) {
    std::string path("Data\\");
    return path.append(category).append("\\").append(name).append(".txt");
}

std::string withReplaced(std::string text, std::string_view part, std::string_view replacement) {
    const std::size_t place = text.find(part);
    if (place == std::string::npos) {
        ADD_FAILURE() << "the text does not hold " << part;
        return text;
    }
    return text.replace(place, part.size(), replacement);
}

GuiTest::GuiTest() = default;
GuiTest::~GuiTest() = default;

void GuiTest::SetUp() {
    for (const CategoryParts& category : Categories) {
        if (category.button != WeaponsId) {
            game.copyFromSample("Data\\" + std::string(category.name));
        }
    }
}

void GuiTest::TearDown() {
    if (editor) {
        for (const Window dialog : editor->dialogs()) {
            ADD_FAILURE() << "still open: " << dialog.text();
        }
        if (!HasFailure() && window.exists()) {
            close();
        } else if (!HasFailure()) {
            EXPECT_EQ(editor->waitForExit(), 0U);
        }
    }
    if (timer_ != nullptr) {
        DeleteTimerQueueTimer(nullptr, timer_, INVALID_HANDLE_VALUE);
    }
    editor.reset();
}

void GuiTest::endLateTest(PVOID test, BOOLEAN) {
    std::printf("The test takes too long.\n");
    static_cast<GuiTest*>(test)->editor->terminate();
}

void GuiTest::start(const std::string& folder) {
    editor = std::make_unique<EditorProcess>(folder.empty() ? game.path() : folder);
    if (timer_ == nullptr) {
        CreateTimerQueueTimer(&timer_, nullptr, endLateTest, this, TimeLimitMilliseconds, 0,
                              WT_EXECUTEONLYONCE);
    }
    window = editor->waitForMainWindow();
    ASSERT_TRUE(window) << "no main window";
}

void GuiTest::close() {
    window.post(WM_CLOSE);
    EXPECT_EQ(editor->waitForExit(), 0U);
}

Window GuiTest::openDialog(int command, std::string_view caption) const {
    window.post(WM_COMMAND, MAKEWPARAM(command, 0));
    return editor->waitForDialog(caption);
}

void GuiTest::finish(Window dialog, int button) const {
    const Window owner = dialog.owner();
    dialog.startPress(button);
    expectGone(dialog, owner);
}

void GuiTest::dismiss(Window dialog) const {
    const Window owner = dialog.owner();
    dialog.post(WM_CLOSE);
    expectGone(dialog, owner);
}

void GuiTest::expectGone(Window dialog, Window owner) {
    EXPECT_TRUE(eventually([&] { return !dialog.exists(); })) << "it does not close";
    // The answer comes when the editor waits for its user again.
    DWORD_PTR result = 0;
    const auto patience = static_cast<UINT>(deadline() - GetTickCount64());
    EXPECT_TRUE(SendMessageTimeoutW(owner.handle(), WM_NULL, 0, 0, SMTO_ABORTIFHUNG, patience, &result) !=
                    0 ||
                !owner.exists())
        << "the editor does not answer";
}

void GuiTest::answer(const Box& expected, int button) const {
    const Window box = editor->waitForDialog(expected.caption);
    if (box) {
        EXPECT_EQ(contentOf(box), expected);
        finish(box, button);
    }
}

} // namespace varrocade::gui
