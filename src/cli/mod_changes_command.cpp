#include "cli/command_line.h"
#include "data/finding_text.h"
#include "mod/changes/changes_text.h"
#include "mod/mod_settings.h"
#include "tools/checks/engine/mod_file_check.h"

#include <optional>

namespace varrocade::cli {

namespace {

constexpr std::string_view FormatOption = "--format";

struct ModChangesCall {
    std::string game;
    std::string mod;
    ChangesFormat format = ChangesFormat::Plain;
};

std::optional<ModChangesCall> modChangesCall(Arguments arguments) {
    ModChangesCall call;
    std::size_t folders = 0;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == FormatOption) {
            const std::string format = ++i < arguments.size() ? arguments[i] : "";
            if (format != "text" && format != "markdown") {
                return std::nullopt;
            }
            call.format = format == "text" ? ChangesFormat::Plain : ChangesFormat::Markdown;
        } else if (folders < 2) {
            (folders++ == 0 ? call.game : call.mod) = asFolder(arguments[i]);
        } else {
            return std::nullopt;
        }
    }
    return folders == 2 ? std::optional(std::move(call)) : std::nullopt;
}

} // namespace

int modChangesCommand(Arguments arguments) {
    const std::optional<ModChangesCall> call = modChangesCall(arguments);
    if (!call) {
        complain("mod-changes takes a game folder, a mod folder, and --format text or markdown");
        return CouldNot;
    }
    for (const std::string& folder : {call->game, call->mod}) {
        if (!isFolder(folder)) {
            complain(folder + ": is no folder");
            return CouldNot;
        }
    }
    const ModChanges changes = findModChanges(call->game, call->mod);
    for (const FileFailure& failure : changes.failures) {
        complain(failure.path + ": " + failure.reason);
    }
    for (const Finding& finding : checkModFileOf(call->mod)) {
        complain(reportLine(finding));
    }
    const std::optional<ModSettings> settings = loadModSettings(call->mod);
    if (!print(changesText(changes, call->format, settings ? settings->name : "Mod")) ||
        !changes.failures.empty()) {
        return CouldNot;
    }
    return changes.files.empty() ? Done : Findings;
}

} // namespace varrocade::cli
