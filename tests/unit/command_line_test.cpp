#include "cli/command_line.h"
#include "test_support.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

const std::string LooseSquad = "<squad><description><comment>c</comment></description>\n<man></man></squad>";

std::string cleanSquad() {
    return rewritten(Category::Infantry, LooseSquad);
}

} // namespace

TEST(CommandLine, AnswersByExample) {
    for (const TextCase& c : textCases("commands.txt")) {
        SCOPED_TRACE(c.heading);
        const TemporaryFolder folder;
        for (std::string_view files = std::string_view(c.text).substr(1); !files.empty();) {
            std::string_view content = takePart(files, "\n$");
            const std::string_view name = takePart(content, ": ");
            folder.write(name, content);
        }
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
    folder.write("in.txt", LooseSquad);
    folder.write("gun.txt", "<weapon><name>GUN</name><ammo><type></type></ammo></weapon>");
    folder.write("empty.txt", "");
    for (const char* call : {"",
                             "explode",
                             "rewrite",
                             "rewrite infantry $in.txt",
                             "rewrite infantry $in.txt $out.txt $out.txt",
                             "rewrite Infantry $in.txt $out.txt",
                             "rewrite tanks $in.txt $out.txt",
                             "tree",
                             "tree $in.txt $in.txt",
                             "tree $missing.txt",
                             "tree $",
                             "rewrite infantry $missing.txt $out.txt",
                             "rewrite --explain infantry $missing.txt $out.txt",
                             "rewrite vehicles $in.txt $out.txt",
                             "rewrite infantry $in.txt $missing\\out.txt",
                             "penetration",
                             "penetration $gun.txt",
                             "penetration $gun.txt 0 30",
                             "penetration $gun.txt 0 30 12 12",
                             "penetration $gun.txt 1 30 12",
                             "penetration $gun.txt -1 30 12",
                             "penetration $gun.txt  30 12",
                             "penetration $gun.txt 0x 30 12",
                             "penetration $gun.txt 99999999999999999999999 30 12",
                             "penetration $missing.txt 0 30 12",
                             "penetration $empty.txt 0 30 12",
                             "penetration --matrix",
                             "penetration --matrix $",
                             "penetration --matrix $ $"}) {
        expectRefused(folder, call);
    }
    EXPECT_EQ(folder.files().size(), 3U);
    EXPECT_NE(runCommand(folder, "").complaints.find("rewrite [--explain] CATEGORY IN OUT"),
              std::string::npos);
}

TEST(CommandLine, RewritesAFile) {
    const TemporaryFolder folder;
    folder.write("in.txt", LooseSquad);
    EXPECT_EQ(runCommand(folder, "rewrite infantry $in.txt $out.txt").status, cli::Done);
    EXPECT_EQ(folder.read("out.txt"), cleanSquad());
    EXPECT_EQ(folder.read("in.txt"), LooseSquad);
    // In place, and over what is there.
    EXPECT_EQ(runCommand(folder, "rewrite atguns $in.txt $in.txt").status, cli::Done);
    EXPECT_EQ(folder.read("in.txt"), cleanSquad());
    // Where a folder stands in the way.
    std::filesystem::create_directory(folder.nativePath("folder.txt"));
    EXPECT_EQ(runCommand(folder, "rewrite infantry $in.txt $folder.txt").status, cli::CouldNot);
    EXPECT_EQ(folder.files().size(), 2U) << "a temporary file was left";
}

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
    EXPECT_EQ(outcome.complaints.find("m.txt: cannot be read") == std::string::npos,
              static_cast<bool>(noSymbolicLinks));
    EXPECT_EQ(folder.read("out\\a.txt"), cleanSquad());
    EXPECT_EQ(folder.read("out\\d.TXT"), cleanSquad());
}

} // namespace varrocade::tests
