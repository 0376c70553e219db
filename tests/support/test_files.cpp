#include "test_files.h"

#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace zentrel::testing {

std::string TestDataPath(const std::string& name) {
  const char* dir = std::getenv("ZENTREL_TEST_DATA");
  return (std::filesystem::path(dir ? dir : ZENTREL_TEST_DATA_DIR) / name).string();
}

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in)
    throw std::runtime_error("cannot read " + path.string());
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

std::string ReadTestData(const std::string& name) {
  return ReadFile(TestDataPath(name));
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string OversizedFilterDictionary() {
  std::string words;
  for (int i = 0; i < 32767; ++i) {
    words += 'w';
    for (int n = i; n > 0; n /= 26)
      words += static_cast<char>('a' + n % 26);
    words += "\r\n";
  }
  return words;
}

// Lower case (the standard dictionary's path is lower-cased before it is opened) and unique
// to the process and the folder.
TempFolder::TempFolder() {
  static std::atomic<int> counter{0};
  path_ = std::filesystem::temp_directory_path() /
          ("zentrel-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
  std::filesystem::remove_all(path_);
  std::filesystem::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code ec;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                               std::filesystem::perm_options::add, ec);
  std::filesystem::remove_all(path_, ec);
}

}  // namespace zentrel::testing
