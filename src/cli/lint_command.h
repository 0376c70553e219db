#pragma once
// `zentrel-cli lint`: the checks over pages and folders of pages, in parallel.

#include <ostream>
#include <string>
#include <vector>

namespace zentrel::cli {

extern const char* const kLintUsageText;

// Runs lint with its arguments (those after "lint"); returns the exit status: 1 when any
// finding is an error or a page could not be read, 0 otherwise, 2 for bad usage or a profile
// that cannot be read.
int Run_Lint(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
             const std::string& programFolder);

}  // namespace zentrel::cli
