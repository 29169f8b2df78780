#include "cli/command_line.h"
#include "platform/file_operations.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/folder_check.h"
#include "tools/checks/output/check_reports.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

namespace varrocade::cli {

namespace {

struct CheckOptions {
    std::string folder;
    std::string mod;
    ReportFormat format = ReportFormat::Plain;
    Severity least = Severity::Note;
    std::vector<std::string> only;
    std::string baseline;
    std::string newBaseline;
    bool looksIntoPictures = false;
};

constexpr std::string_view PicturesOption = "--pictures";

constexpr auto FormatWords = std::to_array<std::pair<std::string_view, ReportFormat>>({
    {"text", ReportFormat::Plain},
    {"json", ReportFormat::Json},
    {"sarif", ReportFormat::Sarif},
    {"github", ReportFormat::GitHub},
});

bool takeFormat(CheckOptions& options, const std::string& word) {
    const auto row = std::find_if(FormatWords.begin(), FormatWords.end(),
                                  [&](const auto& format) { return format.first == word; });
    if (row == FormatWords.end()) {
        complain("unknown format '" + word + "': text, json, sarif or github");
        return false;
    }
    options.format = row->second;
    return true;
}

bool takeSeverity(CheckOptions& options, const std::string& word) {
    const auto severity = severityOfWord(word);
    if (!severity) {
        complain("unknown severity '" + word + "': note, warning or error");
        return false;
    }
    options.least = *severity;
    return true;
}

bool takeKeys(CheckOptions& options, std::string_view keys) {
    while (!keys.empty()) {
        const std::size_t comma = std::min(keys.find(','), keys.size());
        const std::string_view key = keys.substr(0, comma);
        keys.remove_prefix(std::min(comma + 1, keys.size()));
        if (findCheckRule(key) == nullptr) {
            complain("unknown rule '" + std::string(key) + "'");
            return false;
        }
        options.only.emplace_back(key);
    }
    return true;
}

struct OptionRow {
    std::string_view name;
    bool (*take)(CheckOptions& options, const std::string& value);
};

constexpr auto CheckOptionRows = std::to_array<OptionRow>({
    {"--mod", [](CheckOptions& options, const std::string& value) { return !(options.mod = value).empty(); }},
    {"--format", takeFormat},
    {"--severity", takeSeverity},
    {"--only", [](CheckOptions& options, const std::string& value) { return takeKeys(options, value); }},
    {"--baseline",
     [](CheckOptions& options, const std::string& value) { return !(options.baseline = value).empty(); }},
    {"--write-baseline",
     [](CheckOptions& options, const std::string& value) { return !(options.newBaseline = value).empty(); }},
});

std::optional<CheckOptions> checkOptions(Arguments arguments) {
    CheckOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (!argument.starts_with("--")) {
            if (!options.folder.empty()) {
                complain("check takes one folder, not also '" + argument + "'");
                return std::nullopt;
            }
            options.folder = argument;
            continue;
        }
        if (argument == PicturesOption) {
            options.looksIntoPictures = true;
            continue;
        }
        // Both "--format json" and "--format=json".
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        const auto row = std::find_if(CheckOptionRows.begin(), CheckOptionRows.end(),
                                      [&](const OptionRow& option) { return option.name == name; });
        const bool hasValue = equals != std::string::npos || i + 1 < arguments.size();
        if (row == CheckOptionRows.end() || !hasValue) {
            complain(row == CheckOptionRows.end() ? "unknown option '" + name + "'"
                                                  : name + " needs a value");
            return std::nullopt;
        }
        if (!row->take(options, equals != std::string::npos ? argument.substr(equals + 1) : arguments[++i])) {
            return std::nullopt;
        }
    }
    if (options.folder.empty()) {
        complain("check takes the folder of a game, which holds Data, Images and Sounds");
        return std::nullopt;
    }
    return options;
}

bool writeText(const std::string& path, std::string_view text) {
    FileOperations& files = systemFiles();
    const std::string temporary = path + ".tmp";
    files.remove(temporary);
    std::unique_ptr<OutputFile> file = files.createNew(temporary);
    bool isWritten = file != nullptr;
    while (isWritten && !text.empty()) {
        const std::size_t length = file->write(text);
        isWritten = length > 0;
        text.remove_prefix(length);
    }
    return isWritten && file->flush() && file->close() && files.replace(temporary, path);
}

std::string reportOf(const CheckOptions& options, const std::vector<Finding>& findings,
                     const FolderCheck& check) {
    switch (options.format) {
    case ReportFormat::Json:
        return checkReportJson(findings);
    case ReportFormat::Sarif:
        return checkReportSarif(findings);
    case ReportFormat::GitHub:
        return checkReportGitHub(findings);
    case ReportFormat::Plain:
        break;
    }
    return checkReportText(findings, [&](std::string_view file) { return check.contentOf(file); });
}

/// Whether a finding is one of those that were asked for.
bool isWanted(const CheckOptions& options, const Finding& finding) {
    return finding.severity >= options.least &&
           (options.only.empty() ||
            std::find(options.only.begin(), options.only.end(), finding.key) != options.only.end());
}

} // namespace

int checkCommand(Arguments arguments) {
    const std::optional<CheckOptions> options = checkOptions(arguments);
    if (!options) {
        return CouldNot;
    }
    std::string baseline;
    if (!options->baseline.empty() && !readWholeFile(options->baseline, baseline)) {
        complain(options->baseline + ": " + systemFiles().lastError());
        return CouldNot;
    }
    GameFolders folders{.program = asFolder(options->folder)};
    folders.mod = options->mod.empty() ? std::string() : asFolder(options->mod);
    for (const std::string& folder : {folders.program, folders.mod}) {
        if (!folder.empty() && !isFolder(folder + std::string(DataFolder))) {
            complain(folder + ": holds no folder Data");
            return CouldNot;
        }
    }
    FolderCheck check(folders, options->looksIntoPictures);
    if (check.failure()) {
        complain(check.failure()->path + ": " + check.failure()->reason);
        return CouldNot;
    }
    check.run();
    std::vector<Finding> findings = check.findings();
    std::erase_if(findings, [&](const Finding& finding) { return !isWanted(*options, finding); });
    if (!options->newBaseline.empty()) {
        if (!writeText(options->newBaseline, Baseline::text(findings))) {
            complain(options->newBaseline + ": " + systemFiles().lastError());
            return CouldNot;
        }
        return Done;
    }
    Baseline(baseline).apply(findings);
    if (!print(reportOf(*options, findings, check))) {
        return CouldNot;
    }
    return findings.empty() ? Done : Findings;
}

} // namespace varrocade::cli
