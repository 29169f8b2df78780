// Checks any bytes as a unit and as a weapon: each finding has a rule, a line of the file and a column of the
// line, every format of reports takes it, and mending it changes the text.

#include "data/format/source_map.h"
#include "round_trip.h"
#include "tools/checks/engine/check_file.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/fixes/quick_fixes.h"
#include "tools/checks/output/check_reports.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string content(reinterpret_cast<const char*>(data), size);
    static const CheckKnowledge knowledge;
    for (const Category category : AllCategories) {
        const auto found = checkFile(
            knowledge, {.category = category, .name = "Any", .shown = "Data/Any.txt", .content = content});
        const LineIndex lines(content);
        for (const Finding& finding : found) {
            fuzz::require(findCheckRule(finding.key) != nullptr, "no rule of this key", content,
                          std::string(finding.key));
            fuzz::require(!finding.message.empty(), "a finding without a message", content, "");
            fuzz::require(finding.line > 0 && finding.column > 0 &&
                              finding.column <= lines.line(finding.line).size() + 2,
                          "a finding outside of its file", content, finding.message);
        }
        constexpr std::size_t mostFixed = 20;
        const std::span<const Finding> some = std::span(found).first(std::min(found.size(), mostFixed));
        const FixedText fixed = fixText(knowledge, category, "Any", content, some);
        fuzz::require((fixed.fixed > 0) == (fixed.text != content), "a fix that changes nothing", content,
                      fixed.text);
        checkReportText(found, [&](std::string_view) { return std::string_view(content); });
        for (const std::string& text :
             {checkReportJson(found), checkReportSarif(found), checkReportGitHub(found)}) {
            fuzz::require(text.find('\0') == std::string::npos, "a report that ends early", content, text);
        }
    }
    return 0;
}
