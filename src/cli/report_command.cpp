#include "cli/report_command.h"

#include "platform/safe_save.h"
#include "tools/reports/duplicate_files.h"
#include "tools/reports/missing_voices.h"
#include "tools/reports/png_usage.h"
#include "tools/reports/unit_sheets.h"
#include "tools/reports/unused_files.h"

#include <algorithm>
#include <array>
#include <optional>

namespace varrocade::cli {

namespace {

/// As many threads as there are processors.
constexpr unsigned AllProcessors = 0;

template <typename Made>
int fileReport(const ReportRequest& request) {
    Made report(request.folders);
    return finishReport(report, request);
}

/// Prints a row a line: the file, why it is there, and who names it; `Findings` when there are any.
template <typename Check>
int modCheck(const ReportRequest& request) {
    Check check(request.folders);
    const int status = finishJob(check);
    std::string lines;
    for (const ModCheckRow& row : check.rows()) {
        lines += row.below + "\t" + row.reason;
        for (const ReferenceUser& user : row.users) {
            lines += (&user == &row.users.front() ? "\t" : "; ") + user.name;
        }
        lines += "\n";
    }
    return !print(lines) ? CouldNot : lines.empty() ? status : Findings;
}

constexpr auto Reports = std::to_array<Report>({
    {"sheets", false, {}, fileReport<UnitSheets>},
    {"png-usage", false, {}, fileReport<PngUsage>},
    {"duplicates", true, {}, modCheck<DuplicateFiles>},
    {"unused", true, {}, modCheck<UnusedFiles>},
    {"voices", true, {}, modCheck<MissingVoices>},
    {"thumbnails", false, {}, thumbnailsReport, ThumbnailValues},
    {"reduce", false, ReduceOptions, reduceReport, ReduceValues},
});

std::string reportNames() {
    std::string names;
    for (const Report& report : Reports) {
        names += (names.empty() ? "" : ", ") + std::string(report.name);
    }
    return names;
}

/// The options of a report, to go behind what else it takes.
std::string optionNames(const Report& report) {
    std::string names;
    for (const std::string_view option : report.options) {
        names += (names.empty() ? "; options: " : ", ") + std::string(option);
    }
    for (const std::string_view option : report.valueOptions) {
        names += (names.empty() ? "; options: " : ", ") + std::string(option) + " VALUE";
    }
    return names;
}

bool hasData(const std::string& base) {
    if (isFolder(base + std::string(DataFolder))) {
        return true;
    }
    complain(base + ": has no folder Data");
    return false;
}

/// What the arguments behind the report's name ask for; nothing where they do not fit.
std::optional<ReportRequest> requestOf(const Report& report, Arguments arguments) {
    ReportRequest request;
    std::vector<std::string> plain;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == ModOption && i + 1 < arguments.size()) {
            request.folders.mod = asFolder(arguments[++i]);
        } else if (std::find(report.options.begin(), report.options.end(), arguments[i]) !=
                   report.options.end()) {
            request.options.push_back(arguments[i]);
        } else if (i + 1 < arguments.size() &&
                   std::find(report.valueOptions.begin(), report.valueOptions.end(), arguments[i]) !=
                       report.valueOptions.end()) {
            request.values[arguments[i]] = arguments[i + 1];
            ++i;
        } else if (arguments[i].starts_with("--")) {
            return std::nullopt;
        } else {
            plain.push_back(arguments[i]);
        }
    }
    if (plain.empty() || plain.size() > 2 || (report.needsMod && request.folders.mod.empty())) {
        return std::nullopt;
    }
    request.folders.program = asFolder(plain[0]);
    const std::string& base = request.folders.mod.empty() ? request.folders.program : request.folders.mod;
    request.out = plain.size() > 1 ? asFolder(plain[1]) : base;
    return request;
}

} // namespace

int finishJob(Job& job) {
    job.run(AllProcessors);
    const std::vector<FileFailure> failures = job.failures();
    for (const FileFailure& failure : failures) {
        complain(failure.path + ": " + failure.reason);
    }
    return failures.empty() ? Done : Findings;
}

int finishReport(FileReport& report, const ReportRequest& request) {
    const int status = finishJob(report);
    if (const auto failure = createFolders(systemFiles(), request.out)) {
        complain(failure->path + ": " + failure->reason);
        return CouldNot;
    }
    const std::vector<ReportFile> files = report.files();
    const std::vector<FileFailure> unwritten = writeReport(systemFiles(), request.out, files);
    for (const FileFailure& failure : unwritten) {
        complain(failure.path + ": " + failure.reason);
    }
    for (const ReportFile& file : files) {
        const bool isWritten =
            std::none_of(unwritten.begin(), unwritten.end(),
                         [&](const FileFailure& failure) { return failure.path == request.out + file.name; });
        if (isWritten && !print(request.out + file.name + "\n")) {
            return CouldNot;
        }
    }
    return unwritten.empty() ? status : CouldNot;
}

int reportCommand(Arguments arguments) {
    const auto report = std::find_if(Reports.begin(), Reports.end(), [&](const Report& row) {
        return !arguments.empty() && row.name == arguments.front();
    });
    if (report == Reports.end()) {
        complain("report takes one of " + reportNames());
        return CouldNot;
    }
    const std::optional<ReportRequest> request = requestOf(*report, arguments.subspan(1));
    if (!request) {
        complain(
            "report " + std::string(report->name) + " takes a game folder, " +
            (report->needsMod ? "--mod and a mod's folder" : "--mod and a mod's folder where one counts") +
            ", and the folder that its files go to" + optionNames(*report));
        return CouldNot;
    }
    const bool hasBoth =
        hasData(request->folders.program) && (request->folders.mod.empty() || isFolder(request->folders.mod));
    return hasBoth ? report->run(*request) : CouldNot;
}

} // namespace varrocade::cli
