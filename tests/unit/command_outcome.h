#pragma once

#include "cli/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varrocade::tests {

/// What a call of the command line came to.
struct Outcome {
    int status;
    std::string output;
    std::string complaints;
};

inline Outcome run(const std::vector<std::string>& arguments) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    Outcome outcome{cli::runCommandLine(arguments), {}, {}};
    outcome.output = ::testing::internal::GetCapturedStdout();
    outcome.complaints = ::testing::internal::GetCapturedStderr();
    // A test's own output has the line ends of the system.
    std::erase(outcome.output, '\r');
    return outcome;
}

} // namespace varrocade::tests
