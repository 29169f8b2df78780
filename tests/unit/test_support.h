#pragma once
// What the tests share: texts and folders, recorded message boxes, the sample's files.

#include "data/category.h"
#include "data/reading/unit_reader.h"
#include "platform/messages.h"
#include "weapons/weapon_record.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade::tests {

/// The sample game's base folder, below the working directory.
inline const std::string SampleBase = "sample\\";

/// The content of a file; fails the test when it cannot be read.
std::string goldenText(std::string_view name);

std::string repeated(std::string_view text, std::size_t count);

/// "<n0><n1>...</n1></n0>"
std::string nestedInEachOther(std::size_t levels);

/// A content of the outer elements of a category's files, from line 2 on, in these; whole squads as they are.
std::string wholeFile(Category category, std::string_view content);

/// The file that a category's writer makes of a content read by its reader; empty when there is nothing to
/// write.
std::string rewritten(Category category, std::string_view content);

/// One case of a file of cases: its heading behind "== ", the text up to a line "--", the text behind that.
struct TextCase {
    std::string heading;
    std::string text;
    std::string expected;
};

/// The cases of a file in tests/golden; fails the test when there are none. In the texts, which end without a
/// line end, "\r", "\n" and "\t" stand for one character each.
std::vector<TextCase> textCases(std::string_view name);

/// Takes the part before `separator`, which goes too, off a text; all of it where there is no separator.
std::string_view takePart(std::string_view& text, std::string_view separator);

struct SampleFile {
    Category category;
    std::string name;
    std::string content;
};

/// Every data file of the sample, read once.
const std::vector<SampleFile>& sampleFiles();

/// Read a unit, or a weapon, without looking at its diagnostics.
SquadRecord readUnitText(std::string_view content);
WeaponRecord readWeaponText(std::string_view content);

/// What readers write to the debugger.
std::vector<std::string> debuggerLines(const Diagnostics& diagnostics);

/// A folder of its own for a test, gone with it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    /// Built with backslashes, one at its end.
    [[nodiscard]] const std::string& path() const { return path_; }
    /// The same as the system writes it.
    [[nodiscard]] std::string nativePath(std::string_view below) const;
    /// Writes a file, creating the folders above it. `below` is built with backslashes, as everywhere here.
    void write(std::string_view below, std::string_view content) const;
    [[nodiscard]] std::string read(std::string_view below) const;
    /// Every file below the folder, sorted.
    [[nodiscard]] std::vector<std::string> files() const;

private:
    std::string path_;
};

/// Takes the place of the message boxes while it lives. Boxes are answered OK where no answers were given.
class MessageRecorder {
public:
    MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;
    ~MessageRecorder();

    [[nodiscard]] static const std::vector<Message>& shown();

    /// How the next boxes are answered. Forgets those that were shown.
    static void answer(std::vector<Answer> answers);

private:
    MessageHandler former_;
};

} // namespace varrocade::tests
