#pragma once
// zentrel-cli: the same core as the window, with no display.

#include <ostream>
#include <string>
#include <vector>

namespace zentrel::cli {

// Runs the command line (args without the program name); returns the exit status.
int Run_Cli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
            const std::string& executableFolder);

}  // namespace zentrel::cli
