#include "cli/command_line.h"
#include "test_support.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

const std::string LooseSquad = "<squad><description><comment>c</comment></description>\n<man></man></squad>";

std::string cleanSquad() {
    return rewritten(Category::Infantry, LooseSquad);
}

} // namespace

TEST(CommandLine, RefusesWhatItDoesNotUnderstand) {
    const TemporaryFolder folder;
    folder.write("in.txt", LooseSquad);
    for (const char* call :
         {"", "explode", "rewrite", "rewrite infantry $in.txt", "rewrite infantry $in.txt $out.txt $out.txt",
          "rewrite Infantry $in.txt $out.txt", "rewrite tanks $in.txt $out.txt", "tree",
          "tree $in.txt $in.txt", "tree $missing.txt", "tree $", "rewrite infantry $missing.txt $out.txt",
          "rewrite vehicles $in.txt $out.txt", "rewrite infantry $in.txt $missing\\out.txt"}) {
        expectRefused(folder, call);
    }
    EXPECT_EQ(folder.files(), std::vector<std::string>{"in.txt"});
    EXPECT_NE(runCommand({}).complaints.find("rewrite [--explain] CATEGORY IN OUT"), std::string::npos);
}

TEST(CommandLine, RewritesAFile) {
    const TemporaryFolder folder;
    folder.write("in.txt", LooseSquad);
    const std::string in = folder.path() + "in.txt";
    EXPECT_EQ(runCommand({"rewrite", "infantry", in, folder.path() + "out.txt"}).status, cli::Done);
    EXPECT_EQ(folder.read("out.txt"), cleanSquad());
    EXPECT_EQ(folder.read("in.txt"), LooseSquad);
    // In place, and over what is there.
    EXPECT_EQ(runCommand({"rewrite", "atguns", in, in}).status, cli::Done);
    EXPECT_EQ(folder.read("in.txt"), cleanSquad());
    EXPECT_EQ(folder.files().size(), 2U);
    // Where a folder stands in the way.
    std::filesystem::create_directory(folder.nativePath("folder.txt"));
    EXPECT_EQ(runCommand({"rewrite", "infantry", in, folder.path() + "folder.txt"}).status, cli::CouldNot);
    EXPECT_EQ(folder.files().size(), 2U) << "a temporary file was left";
}

TEST(CommandLine, RewritesTheSampleFolders) {
    const TemporaryFolder folder;
    for (const Category category : AllCategories) {
        const std::string word(categoryWord(category));
        // With and without the closing backslash, into a folder that does not exist yet.
        const std::string in = categoryFolder(SampleBase, category);
        const std::string out = folder.path() + "out\\" + word;
        const bool isOdd = static_cast<int>(category) % 2 == 1;
        const CommandOutcome outcome =
            runCommand({"rewrite", word, isOdd ? in : in.substr(0, in.size() - 1), isOdd ? out : out + "\\"});
        EXPECT_EQ(outcome.status, cli::Done) << outcome.complaints;
    }
    EXPECT_EQ(folder.files().size(), sampleFiles().size());
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
    const CommandOutcome outcome =
        runCommand({"rewrite", "infantry", folder.path() + "in", folder.path() + "out"});
    EXPECT_EQ(outcome.status, cli::CouldNot);
    EXPECT_NE(outcome.complaints.find("c.txt"), std::string::npos);
    EXPECT_EQ(folder.read("out\\a.txt"), cleanSquad());
    EXPECT_EQ(folder.read("out\\d.TXT"), cleanSquad());

    // A file of another kind, and one that cannot be read.
    const TemporaryFolder mixed;
    mixed.write("in\\a.txt", LooseSquad);
    mixed.write("in\\z.txt", "<squad><vehicle></vehicle></squad>");
    std::error_code error;
    std::filesystem::create_symlink("nowhere", mixed.nativePath("in\\m.txt"), error);
    const CommandOutcome vehicles =
        runCommand({"rewrite", "vehicles", mixed.path() + "in", mixed.path() + "out"});
    EXPECT_EQ(vehicles.status, cli::CouldNot);
    EXPECT_NE(vehicles.complaints.find("a.txt: holds nothing"), std::string::npos);
    EXPECT_EQ(vehicles.complaints.find("m.txt: cannot be read") == std::string::npos,
              static_cast<bool>(error));
    EXPECT_EQ(mixed.read("out\\z.txt"), rewritten(Category::Vehicles, "<squad><vehicle></vehicle></squad>"));
}

TEST(CommandLine, TellsWhatAFileHoldsTooMuch) {
    const TemporaryFolder folder;
    folder.write("gun.txt", "<squad>\n<hmg></hmg>\n<hmg></hmg>\n</squad>");
    const CommandOutcome outcome =
        runCommand({"rewrite", "atguns", folder.path() + "gun.txt", folder.path() + "out.txt"});
    EXPECT_EQ(outcome.status, cli::Done);
    EXPECT_EQ(outcome.complaints, "varrocade-data: ERROR: gun: line 3: a second heavy weapon: left out\n");
}

TEST(CommandLine, PrintsHowAFileParses) {
    const TemporaryFolder folder;
    folder.write("tree.txt", "<a>\r\n\t<b> two words </b>// comment\r\n\t<c><d></d></c>\r\n</a>\r\n<e>1</e>");
    const CommandOutcome outcome = runCommand({"tree", folder.path() + "tree.txt"});
    EXPECT_EQ(outcome.status, cli::Done);
    EXPECT_EQ(outcome.output, "a\n  b =  two words \n  c\n    d\ne = 1\n");
    folder.write("empty.txt", "");
    EXPECT_EQ(runCommand({"tree", folder.path() + "empty.txt"}).status, cli::Done);
    EXPECT_TRUE(runCommand({"tree", folder.path() + "empty.txt"}).output.empty());
}

} // namespace varrocade::tests
