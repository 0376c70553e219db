#include <filesystem>
#include <iostream>

#include "cli/cli.h"

int main(int argc, char** argv) {
  std::error_code ec;
  std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  std::string folder = ec ? std::string(".") : exe.parent_path().string();
  std::vector<std::string> args(argv + 1, argv + argc);
  return zentrel::cli::Run_Cli(args, std::cout, std::cerr, folder);
}
