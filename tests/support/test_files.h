#pragma once
// Test data and scratch folders.

#include <filesystem>
#include <string>

namespace zentrel::testing {

// A file of tests/data, read whole as bytes.
std::string ReadTestData(const std::string& name);
std::string TestDataPath(const std::string& name);
std::string ReadFile(const std::filesystem::path& path);
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

// A filter dictionary of more words (32767, one a line) than the filter list's 16-bit count
// holds; the words are "w" followed by letters: "w", "wb", "wc", ...
std::string OversizedFilterDictionary();

// A fresh folder removed with everything in it when the object goes.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace zentrel::testing
