#include "test_support.h"

#include "cli/command_line.h"
#include "platform/file_operations.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

std::vector<Message>& recordedMessages() {
    static std::vector<Message> messages;
    return messages;
}

Answer record(const Message& message) {
    recordedMessages().push_back(message);
    return Answer::Ok;
}

std::string withBackslashes(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

bool startsLine(std::string_view line, std::string_view start) {
    const std::size_t tabs = line.find_first_not_of('\t');
    return tabs != std::string_view::npos && line.substr(tabs).starts_with(start);
}

} // namespace

std::string readText(const std::string& path) {
    std::string content;
    EXPECT_TRUE(readWholeFile(path, content)) << path;
    return content;
}

std::string goldenText(std::string_view name) {
    return readText("tests\\golden\\" + std::string(name));
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        if (end == std::string_view::npos) {
            ADD_FAILURE() << "the last line has no end: " << text;
            break;
        }
        lines.emplace_back(text.substr(0, end));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << "a stray line end";
        text.remove_prefix(end + 2);
    }
    return lines;
}

std::vector<std::string> linesBetween(std::string_view text, std::string_view first, std::string_view last) {
    const std::vector<std::string> lines = linesOf(text);
    const auto begin = std::find_if(lines.begin(), lines.end(),
                                    [&](const std::string& line) { return startsLine(line, first); });
    const auto end =
        std::find_if(begin, lines.end(), [&](const std::string& line) { return startsLine(line, last); });
    return end == lines.end() ? std::vector<std::string>() : std::vector<std::string>(begin, end + 1);
}

bool hasLine(std::string_view text, std::string_view line) {
    const std::vector<std::string> lines = linesOf(text);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

const std::vector<SampleFile>& sampleFiles() {
    static const std::vector<SampleFile> files = [] {
        std::vector<SampleFile> found;
        for (const Category category : AllCategories) {
            std::vector<std::string> names;
            EXPECT_TRUE(listFiles(categoryFolder(SampleBase, category), DataFileEnding, names));
            std::sort(names.begin(), names.end());
            for (std::string& name : names) {
                name.resize(name.size() - DataFileEnding.size());
                found.push_back({category, name, readText(dataFilePath(SampleBase, category, name))});
            }
        }
        return found;
    }();
    return files;
}

SquadRecord readUnitText(std::string_view content) {
    Diagnostics diagnostics;
    return readUnit(content, "unit", diagnostics);
}

CommandOutcome runCommand(const std::vector<std::string>& arguments) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    CommandOutcome outcome{cli::runCommandLine(arguments), {}, {}};
    outcome.output = ::testing::internal::GetCapturedStdout();
    outcome.complaints = ::testing::internal::GetCapturedStderr();
    std::erase(outcome.output, '\r');
    return outcome;
}

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    std::filesystem::path folder;
    do {
        folder = std::filesystem::temp_directory_path() / ("varrocade-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(folder));
    path_ = withBackslashes(folder.string()) + "\\";
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(nativePath(""), ignored);
}

std::string TemporaryFolder::nativePath(std::string_view below) const {
    std::string path = path_ + std::string(below);
    std::replace(path.begin(), path.end(), '\\',
                 static_cast<char>(std::filesystem::path::preferred_separator));
    return path;
}

void TemporaryFolder::write(std::string_view below, std::string_view content) const {
    const std::filesystem::path path = nativePath(below);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string TemporaryFolder::read(std::string_view below) const {
    return readText(path_ + std::string(below));
}

std::vector<std::string> TemporaryFolder::files() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(nativePath(""))) {
        if (!entry.is_directory()) {
            found.push_back(withBackslashes(entry.path().string()).substr(path_.size()));
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

MessageRecorder::MessageRecorder() : former_(setMessageHandler(record)) {
    recordedMessages().clear();
}

MessageRecorder::~MessageRecorder() {
    setMessageHandler(former_);
}

const std::vector<Message>& MessageRecorder::shown() {
    return recordedMessages();
}

} // namespace varrocade::tests
