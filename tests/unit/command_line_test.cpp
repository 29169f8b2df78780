#include "cli/command_line.h"
#include "test_support.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

const std::string LooseSquad = "<squad><description><comment>c</comment></description>\n<man></man></squad>";

std::string cleanSquad() {
    return rewritten(Category::Infantry, LooseSquad);
}

/// What `varrocade-data` did: its exit status, and what it printed, with line ends of one character.
struct CommandOutcome {
    int status;
    std::string output;
    std::string complaints;
};

/// Calls `varrocade-data`. Its arguments stand between blanks; those with a "$" before them are paths below
/// the folder, for which a "$" stands in what is printed too.
CommandOutcome runCommand(const TemporaryFolder& folder, std::string_view call) {
    std::vector<std::string> arguments;
    while (!call.empty()) {
        const std::string_view argument = takePart(call, " ");
        arguments.push_back((argument.starts_with('$') ? folder.path() : "") +
                            std::string(argument.substr(argument.starts_with('$') ? 1 : 0)));
    }
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    CommandOutcome outcome{cli::runCommandLine(arguments), {}, {}};
    outcome.output = ::testing::internal::GetCapturedStdout();
    outcome.complaints = ::testing::internal::GetCapturedStderr();
    for (std::string* printed : {&outcome.output, &outcome.complaints}) {
        std::erase(*printed, '\r');
        for (std::size_t at = 0; (at = printed->find(folder.path(), at)) != std::string::npos;) {
            printed->replace(at, folder.path().size(), "$");
        }
    }
    return outcome;
}

/// Writes the files of a case, each as "$name: content".
void writeFiles(const TemporaryFolder& folder, std::string_view files) {
    for (files.remove_prefix(1); !files.empty();) {
        std::string_view content = takePart(files, "\n$");
        const std::string_view name = takePart(content, ": ");
        folder.write(name, content);
    }
}

} // namespace

TEST(CommandLine, AnswersByExample) {
    for (const TextCase& c : textCases("commands.txt")) {
        SCOPED_TRACE(c.heading);
        const TemporaryFolder folder;
        writeFiles(folder, c.text);
        const std::vector<std::string> before = folder.files();
        std::string_view call = c.heading;
        const std::string_view status = takePart(call, " ");
        const CommandOutcome outcome = runCommand(folder, call);
        EXPECT_EQ(std::to_string(outcome.status), status);
        std::vector<std::string> added;
        std::ranges::set_difference(folder.files(), before, std::back_inserter(added));
        std::string result = outcome.output + outcome.complaints;
        for (const std::string& name : added) {
            result += "+ " + name + "\n";
        }
        EXPECT_EQ(result, c.expected + (c.expected.empty() ? "" : "\n"));
    }
}

TEST(CommandLine, RefusesWhatItDoesNotUnderstand) {
    const TemporaryFolder folder;
    const TextCase refused = textCases("refusals.txt").front();
    writeFiles(folder, refused.text);
    const std::vector<std::string> before = folder.files();
    std::string_view calls = refused.expected;
    do {
        const std::string_view call = takePart(calls, "\n");
        const CommandOutcome outcome = runCommand(folder, call);
        EXPECT_EQ(outcome.status, cli::CouldNot) << call;
        EXPECT_TRUE(outcome.output.empty() && !outcome.complaints.empty()) << call;
    } while (!calls.empty());
    EXPECT_EQ(folder.files(), before);
    const CommandOutcome usage = runCommand(folder, "");
    EXPECT_EQ(usage.status, cli::CouldNot);
    EXPECT_NE(usage.complaints.find("rewrite [--explain] CATEGORY IN OUT"), std::string::npos);
}

TEST(CommandLine, TellsWhatAnImportWrote) {
    const TemporaryFolder folder;
    folder.write("Data\\Vehicles\\Car.txt", "<squad><vehicle></vehicle></squad>");
    folder.write("sheet.csv", "Vehicles\tWeight [kg]\nCar\t7\n");
    const CommandOutcome shown = runCommand(folder, "import $sheet.csv $");
    EXPECT_EQ(shown.status, cli::Findings);
    EXPECT_EQ(shown.output, "2\tCar\tWeight [kg]\t0\t7\n");
    EXPECT_EQ(shown.complaints, "");
    const CommandOutcome written = runCommand(folder, "import $sheet.csv $ --write");
    EXPECT_EQ(written.status, cli::Done);
    EXPECT_EQ(written.output, shown.output);
    EXPECT_NE(written.complaints.find("1 value of 1 file was changed."), std::string::npos);
    EXPECT_TRUE(written.complaints.ends_with("Backups/Data/Vehicles/\n")) << written.complaints;
    EXPECT_EQ(runCommand(folder, "import $sheet.csv $ --write").complaints, "");
}

TEST(CommandLine, RewritesAFile) {
    const TemporaryFolder folder;
    folder.write("in.txt", LooseSquad);
    EXPECT_EQ(runCommand(folder, "rewrite infantry $in.txt $out.txt").status, cli::Done);
    EXPECT_EQ(folder.read("out.txt"), cleanSquad());
    EXPECT_EQ(folder.read("in.txt"), LooseSquad);
    // Over what is there.
    folder.write("out.txt", "x");
    EXPECT_EQ(runCommand(folder, "rewrite atguns $in.txt $out.txt").status, cli::Done);
    EXPECT_EQ(folder.read("out.txt"), cleanSquad());
    // Where a folder stands in the way.
    std::filesystem::create_directory(folder.nativePath("folder.txt"));
    EXPECT_EQ(runCommand(folder, "rewrite infantry $in.txt $folder.txt").status, cli::CouldNot);
    EXPECT_EQ(folder.files().size(), 2U) << "a temporary file was left";
}

#ifndef _WIN32
// What other systems make of links, pipes, modes and backslashes.
TEST(CommandLine, RewritesRegularFilesOnlyAndKeepsWhoMayReadThem) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    folder.write("in\\a.txt", LooseSquad);
    folder.write("victim.txt", LooseSquad);
    fs::create_directory(folder.nativePath("out"));
    std::ofstream(folder.nativePath("in") + "/..\\victim.txt") << LooseSquad;
    ASSERT_EQ(::mkfifo((folder.nativePath("in") + "/pipe.txt").c_str(), 0600), 0);
    fs::create_symlink("a.txt", folder.nativePath("in\\link.txt"));
    const CommandOutcome outcome = runCommand(folder, "rewrite infantry $in $out");
    EXPECT_EQ(outcome.status, cli::CouldNot);
    EXPECT_EQ(outcome.complaints,
              "varrocade-data: $in\\..\\victim.txt: cannot be read: its name holds a separator of paths\n"
              "varrocade-data: $in\\link.txt: cannot be read: it is a link\n"
              "varrocade-data: $in\\pipe.txt: cannot be read: it is no regular file\n");
    EXPECT_EQ(folder.read("victim.txt"), LooseSquad);
    EXPECT_EQ(folder.read("out\\a.txt"), cleanSquad());

    folder.write("named.txt", "x");
    fs::create_hard_link(folder.nativePath("named.txt"), folder.nativePath("other name.txt"));
    fs::create_symlink("named.txt", folder.nativePath("link.txt"));
    fs::create_directory_symlink("in", folder.nativePath("same"));
    for (const std::string call :
         {"$in\\a.txt $named.txt", "$in\\a.txt $link.txt", "$in\\a.txt $in\\pipe.txt", "$in\\a.txt /dev/null",
          "/dev/null $new.txt", "$in $same"}) {
        const CommandOutcome refused = runCommand(folder, "rewrite infantry " + call);
        EXPECT_EQ(refused.status, cli::CouldNot) << call;
        EXPECT_NE(refused.complaints.find(": it "), std::string::npos) << refused.complaints;
    }
    EXPECT_EQ(folder.read("named.txt"), "x");
    EXPECT_TRUE(fs::is_symlink(folder.nativePath("link.txt")) && fs::exists("/dev/null"));

    folder.write("mode.txt", "x");
    constexpr auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(folder.nativePath("mode.txt"), mode);
    EXPECT_EQ(runCommand(folder, "rewrite infantry $in\\a.txt $mode.txt").status, cli::Done);
    EXPECT_EQ(fs::status(folder.nativePath("mode.txt")).permissions(), mode);
    // The reason is that of what was tried first. Who is root meets no such folder.
    fs::permissions(folder.nativePath("out"), fs::perms::owner_read | fs::perms::owner_exec);
    if (::geteuid() != 0) {
        EXPECT_NE(runCommand(folder, "rewrite infantry $in\\a.txt $out\\b.txt").complaints.find("ermission"),
                  std::string::npos);
    }
    fs::permissions(folder.nativePath("out"), fs::perms::owner_all);
}
#endif

TEST(CommandLine, RewritesTheSampleFolders) {
    const TemporaryFolder folder;
    for (const Category category : AllCategories) {
        const std::string word(categoryWord(category));
        for (const SampleFile& file : sampleFiles()) {
            if (file.category == category) {
                folder.write(word + "\\" + file.name + ".txt", file.content);
            }
        }
        const CommandOutcome outcome =
            runCommand(folder, "rewrite " + word + " $" + word + " $out\\" + word + "\\");
        EXPECT_EQ(outcome.status, cli::Done) << outcome.complaints;
    }
    EXPECT_EQ(folder.files().size(), 2 * sampleFiles().size());
    for (const SampleFile& file : sampleFiles()) {
        const std::string below = std::string(categoryWord(file.category)) + "\\" + file.name + ".txt";
        EXPECT_EQ(folder.read("out\\" + below), rewritten(file.category, file.content)) << file.name;
    }
}

TEST(CommandLine, GoesOnBehindAFileItCannotRewrite) {
    const TemporaryFolder folder;
    folder.write("in\\a.txt", LooseSquad);
    folder.write("in\\b not text.md", "x");
    folder.write("in\\d.TXT", LooseSquad);
    // This one stands in its own way.
    folder.write("in\\c.txt", LooseSquad);
    folder.write("out\\c.txt\\file", "");
    std::error_code noSymbolicLinks;
    std::filesystem::create_symlink("nowhere", folder.nativePath("in\\m.txt"), noSymbolicLinks);
    const CommandOutcome outcome = runCommand(folder, "rewrite infantry $in $out");
    EXPECT_EQ(outcome.status, cli::CouldNot);
    EXPECT_NE(outcome.complaints.find("c.txt"), std::string::npos);
    EXPECT_EQ(outcome.complaints.find("m.txt: cannot be read: it is a link") == std::string::npos,
              static_cast<bool>(noSymbolicLinks));
    EXPECT_EQ(folder.read("out\\a.txt"), cleanSquad());
    EXPECT_EQ(folder.read("out\\d.TXT"), cleanSquad());
}

} // namespace varrocade::tests
