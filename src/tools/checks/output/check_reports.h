#pragma once
// Findings as files and lines that other programs read, and as text for people.

#include "data/finding.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

enum class ReportFormat : std::uint8_t { Plain, Json, Sarif, GitHub };

/// The content of a file by what findings call it; empty where it is not at hand.
using ContentOf = std::function<std::string_view(std::string_view file)>;

/// Where, how bad and what; the line with a caret below the place; what was expected, and how to mend it.
/// A line at the end counts.
std::string checkReportText(const std::vector<Finding>& findings, const ContentOf& contentOf);

/// A list of objects with file, line, column, severity, key, field, message and hint.
std::string checkReportJson(const std::vector<Finding>& findings);

/// SARIF 2.1.0 (OASIS), for the tools that show findings of programs that check.
std::string checkReportSarif(const std::vector<Finding>& findings);

/// A line each as GitHub's workflows take it, to show findings beside the changed lines.
std::string checkReportGitHub(const std::vector<Finding>& findings);

} // namespace varrocade
