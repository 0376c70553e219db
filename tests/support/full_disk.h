#pragma once
// A file system whose disk is full: every write of a save fails, so tests can check that a
// failed save keeps the old file and leaves no temporary file beside it.

#include <cerrno>
#include <filesystem>
#include <iterator>

#include "base/file_io.h"

namespace zentrel::testing {

class FullDisk : public file_io::FileSystem {
 public:
  ssize_t Write(int, const char*, size_t) override {
    ++failedWrites;
    errno = ENOSPC;
    return -1;
  }
  int failedWrites = 0;
};

inline size_t EntriesIn(const std::filesystem::path& folder) {
  return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                           std::filesystem::directory_iterator()));
}

}  // namespace zentrel::testing
