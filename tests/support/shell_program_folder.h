#pragma once
// A scratch program folder for the shell's scenario tests: its path is lower case (the
// standard dictionary's path is lower-cased before it is opened) and it holds copies of the
// real standard dictionary. Removed with everything in it when the object goes.

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>

#include "test_files.h"

namespace zentrel::testing {

class ShellProgramFolder {
 public:
  ShellProgramFolder() {
    static std::atomic<int> counter{0};
    path_ = std::filesystem::temp_directory_path() /
            ("zentrel-shell-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_ / "dictionary");
    // Under both spellings, whichever the loader opens.
    std::filesystem::copy_file(StandardDictionarySource(), path_ / "dictionary" / kDictionary);
    std::filesystem::copy_file(StandardDictionarySource(),
                               path_ / "dictionary" / "zentrel_standard.txt");
  }
  ~ShellProgramFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  ShellProgramFolder(const ShellProgramFolder&) = delete;
  ShellProgramFolder& operator=(const ShellProgramFolder&) = delete;

  std::string Path() const { return path_.string(); }
  std::string File(const std::string& name) const { return (path_ / name).string(); }
  static std::string StandardDictionarySource() {
    return (std::filesystem::path(TestDataPath("")) / ".." / ".." / "resources" / "dictionary" /
            kDictionary)
        .lexically_normal()
        .string();
  }

 private:
  static constexpr const char* kDictionary = "Zentrel_Standard.txt";
  std::filesystem::path path_;
};

}  // namespace zentrel::testing
