#include "test_support.h"

#include "data/finding_text.h"
#include "data/writing/unit_writers.h"
#include "platform/file_operations.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <array>
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

std::vector<Answer>& nextAnswers() {
    static std::vector<Answer> answers;
    return answers;
}

Answer record(const Message& message) {
    recordedMessages().push_back(message);
    const std::size_t number = recordedMessages().size();
    return number <= nextAnswers().size() ? nextAnswers()[number - 1] : Answer::Ok;
}

std::string withBackslashes(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t code = text[i] == '\\' ? std::string_view("rnt").find(text.substr(i + 1, 1)) : 3;
        result += code < 3 ? "\r\n\t"[code] : text[i];
        i += code < 3 ? 1 : 0;
    }
    return result;
}

std::string readText(const std::string& path) {
    std::string content;
    EXPECT_TRUE(readWholeFile(path, content)) << path;
    return content;
}

} // namespace

std::string repeated(std::string_view text, std::size_t count) {
    std::string out;
    out.reserve(text.size() * count);
    while (count-- > 0) {
        out += text;
    }
    return out;
}

std::string nestedInEachOther(std::size_t levels) {
    std::string opening;
    std::string closing;
    for (std::size_t i = 0; i < levels; ++i) {
        opening += "<n" + std::to_string(i) + ">";
        closing += "</n" + std::to_string(levels - 1 - i) + ">";
    }
    return opening + closing;
}

std::string wholeFile(Category category, std::string_view content) {
    using Tags = std::pair<std::string_view, std::string_view>;
    static constexpr std::array<Tags, CategoryCount> roots = {{{"<squad><vehicle>\n", "</vehicle></squad>"},
                                                               {"<squad>\n", "</squad>"},
                                                               {"<squad>\n", "</squad>"},
                                                               {"<aircraft>\n", "</aircraft>"},
                                                               {"<weapon>\n", "</weapon>"}}};
    const auto& [begin, end] = roots[static_cast<std::size_t>(category)];
    return content.starts_with("<squad>") ? std::string(content)
                                          : std::string(begin).append(content).append(end);
}

std::string goldenText(std::string_view name) {
    return readText("tests\\golden\\" + std::string(name));
}

std::string_view takePart(std::string_view& text, std::string_view separator) {
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + separator.size());
    return part;
}

std::vector<TextCase> textCases(std::string_view name) {
    std::string content = goldenText(name);
    std::erase(content, '\r');
    std::string_view rest = content;
    takePart(rest, "== ");
    std::vector<TextCase> cases;
    while (!rest.empty()) {
        std::string_view block = takePart(rest, "\n== ");
        const std::string_view heading = takePart(block, "\n");
        const std::string_view text = takePart(block, "--\n");
        const std::string_view expected = block.substr(0, block.find_last_not_of('\n') + 1);
        cases.push_back({std::string(heading), unescaped(text.substr(0, text.find_last_not_of('\n') + 1)),
                         unescaped(expected)});
    }
    EXPECT_FALSE(cases.empty()) << name;
    return cases;
}

std::string rewritten(Category category, std::string_view content) {
    if (category == Category::Weapons) {
        return weaponFileText(readWeaponText(content));
    }
    return unitFileText(category, readUnitText(content)).value_or("");
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

WeaponRecord readWeaponText(std::string_view content) {
    Diagnostics diagnostics;
    return readWeapon(content, "weapon", diagnostics);
}

std::vector<std::string> debuggerLines(const Diagnostics& diagnostics) {
    std::vector<std::string> lines(diagnostics.size());
    std::transform(diagnostics.begin(), diagnostics.end(), lines.begin(), debuggerLine);
    return lines;
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
    answer({});
}

void MessageRecorder::answer(std::vector<Answer> answers) {
    recordedMessages().clear();
    nextAnswers() = std::move(answers);
}

MessageRecorder::~MessageRecorder() {
    setMessageHandler(former_);
}

const std::vector<Message>& MessageRecorder::shown() {
    return recordedMessages();
}

} // namespace varrocade::tests
