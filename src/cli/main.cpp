#include <iostream>

#include "cli/cli.h"
#include "state/silent_platform.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  return zentrel::cli::Run_Cli(args, std::cout, std::cerr,
                               zentrel::state::Running_Program_Folder());
}
