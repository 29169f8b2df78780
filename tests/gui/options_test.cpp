// Start and end of the program: "options.dat" and the folder that it is started in.

#include "gui_test.h"

#include <cstdint>

namespace varrocade::gui {

namespace {

/// Version and length are little-endian, of 2 and 4 bytes.
std::string options(std::uint16_t version, std::uint32_t length, std::string_view text) {
    std::string content;
    for (unsigned i = 0; i < 2; ++i) {
        content += static_cast<char>(version >> (8 * i));
    }
    for (unsigned i = 0; i < 4; ++i) {
        content += static_cast<char>(length >> (8 * i));
    }
    return content.append(text);
}

} // namespace

class OptionsTest : public GuiTest {
    void SetUp() override {}
};

TEST_F(OptionsTest, AreWrittenAgainAtTheEnd) {
    const std::string longest = options(1000, 259, std::string(259, 'x'));
    // Empty, cut off in the header, of another version, with more behind, as long as can be.
    for (const auto& [before, after] : {std::pair(std::string(), options(1000, 0, "")),
                                        {"\xE8\x03\x04", options(1000, 0, "")},
                                        {options(7, 8, "C:\\Game\\"), options(1000, 8, "C:\\Game\\")},
                                        {options(1000, 8, "C:\\Game\\more"), options(1000, 8, "C:\\Game\\")},
                                        {longest, longest}}) {
        SCOPED_TRACE(before);
        game.write("options.dat", before);
        start();
        close();
        EXPECT_EQ(game.read("options.dat"), after);
    }
}

TEST_F(OptionsTest, TooLongATextEndsTheProgramAtOnce) {
    for (const std::uint32_t length : {260U, 0xFFFFFFFFU}) {
        const std::string before = options(1000, length, "C:\\Game\\");
        game.write("options.dat", before);
        editor = std::make_unique<EditorProcess>(game.path());
        EXPECT_FALSE(editor->waitForMainWindow());
        EXPECT_TRUE(editor->waitForExit());
        EXPECT_EQ(game.read("options.dat"), before);
        editor.reset();
    }
}

TEST_F(OptionsTest, ThatCannotBeWrittenAreReported) {
    game.write("options.dat", options(1000, 0, ""));
    const HeldFile held(game.path() + "options.dat", HeldFile::Others::CanRead);
    start();
    window.post(WM_CLOSE);
    answer({.caption = "Couldn't save file", .text = game.path() + "options.dat"});
    EXPECT_EQ(editor->waitForExit(), 0U);
}

TEST_F(OptionsTest, FolderWithoutDataHasEmptyLists) {
    start();
    for (const CategoryParts& category : Categories) {
        chooseCategory(category.button);
        EXPECT_TRUE(entries().empty()) << category.name;
        EXPECT_TRUE(isEnabled(NewId));
        for (const int button : {DuplicateId, RenameId, DeleteId}) {
            EXPECT_FALSE(isEnabled(button)) << category.name << ' ' << button;
        }
    }
    close();
    EXPECT_EQ(game.read("options.dat"), options(1000, 0, ""));
}

} // namespace varrocade::gui
