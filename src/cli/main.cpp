#include <iostream>

#include "app/silent_platform.h"
#include "cli/cli.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  return zentrel::cli::Run_Cli(args, std::cout, std::cerr, zentrel::app::Running_Program_Folder());
}
