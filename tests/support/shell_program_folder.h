#pragma once
// A scratch program folder holding copies of the real standard dictionary (under both
// spellings, whichever the loader opens).

#include <filesystem>
#include <string>

#include "test_files.h"

namespace zentrel::testing {

class ShellProgramFolder : public TempFolder {
 public:
  ShellProgramFolder() {
    const auto source = std::filesystem::path(TestDataPath("")) / ".." / ".." / "resources" /
                        "dictionary" / "Zentrel_Standard.txt";
    std::filesystem::create_directories(path() / "dictionary");
    for (const char* name : {"Zentrel_Standard.txt", "zentrel_standard.txt"})
      std::filesystem::copy_file(source, path() / "dictionary" / name);
  }
  std::string Path() const { return path().string(); }
};

}  // namespace zentrel::testing
