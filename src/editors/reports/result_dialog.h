#pragma once
// Tells what a job came to, with a way to the folder where it is, and what has failed.

#include "platform/file_operations.h"

#include <windows.h>

#include <string>
#include <vector>

namespace varrocade {

struct JobResult {
    std::string caption;
    std::string summary; ///< a sentence
    std::string folder;  ///< ends in a backslash
    std::string details; ///< lines, such as the files that were made and those that failed
};

void showJobResult(HWND owner, const JobResult& result);

/// Has the system show a folder, and tells in a box where it does not.
void openFolder(HWND owner, const std::string& folder, const std::string& caption);

/// Each failure on a line of its own.
std::string failureLines(const std::vector<FileFailure>& failures);

/// Tells failures in a box, below a text, as far as there is room.
void tellFailures(const std::string& caption, std::string text, const std::vector<FileFailure>& failures);

} // namespace varrocade
