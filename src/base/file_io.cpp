#include "base/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace zentrel::file_io {

namespace fs = std::filesystem;

int FileSystem::MakeTemp(std::string& path_template) {
  return ::mkstemp(path_template.data());
}
ssize_t FileSystem::Write(int fd, const char* data, size_t size) {
  return ::write(fd, data, size);
}
int FileSystem::Fsync(int fd) {
  return ::fsync(fd);
}
int FileSystem::Close(int fd) {
  return ::close(fd);
}
int FileSystem::Rename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str());
}
int FileSystem::Unlink(const std::string& path) {
  return ::unlink(path.c_str());
}
int FileSystem::CheckWritable(const std::string& path) {
  return ::access(path.c_str(), W_OK);
}

FileSystem& RealFileSystem() {
  static FileSystem real;
  return real;
}

namespace {

[[noreturn]] void Fail(const std::string& verb, const std::string& path, const std::string& step,
                       int err) {
  throw FileError("Cannot " + verb + " \"" + path + "\": " + step +
                  " failed: " + std::strerror(err));
}

// The file a save really replaces: the final target of a symbolic link, so the link stays.
std::string ResolveTarget(const std::string& path) {
  std::error_code ec;
  if (fs::is_symlink(fs::symlink_status(path, ec))) {
    fs::path target = fs::weakly_canonical(fs::path(path), ec);
    if (!ec)
      return target.string();
  }
  return path;
}

void WriteAll(FileSystem& fsys, int fd, std::string_view bytes, const std::string& path,
              const std::string& temp) {
  size_t done = 0;
  while (done < bytes.size()) {
    ssize_t n = fsys.Write(fd, bytes.data() + done, bytes.size() - done);
    if (n < 0 && errno == EINTR)
      continue;
    if (n <= 0) {
      int err = n == 0 ? ENOSPC : errno;
      fsys.Close(fd);
      fsys.Unlink(temp);
      Fail("save", path, "writing", err);
    }
    done += static_cast<size_t>(n);
  }
}

constexpr std::string_view kTempInfix = ".zentrel-";
constexpr size_t kTempRandomLength = 6;  // the XXXXXX of mkstemp
constexpr size_t kMaxNameLength = 255;   // NAME_MAX of the usual Linux file systems

// The temporary's name before its random part: the target's name, cut short where the whole
// name would pass the longest name a folder can hold, so long page names can still be saved.
std::string TempPrefix(const std::string& fileName) {
  const size_t room = kMaxNameLength - 1 - kTempInfix.size() - kTempRandomLength;
  return "." + fileName.substr(0, room) + std::string(kTempInfix);
}

// Removes temporary files of earlier saves of this target that were killed before their
// rename. Only names this writer makes, and only old ones: a fresh one may be another
// program's save in progress.
void RemoveStaleTemps(FileSystem& fsys, const fs::path& dir, const std::string& fileName) {
  const std::string prefix = TempPrefix(fileName);
  std::error_code ec;
  const auto now = fs::file_time_type::clock::now();
  for (fs::directory_iterator it(dir.empty() ? fs::path(".") : dir, ec), end; !ec && it != end;
       it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (name.size() != prefix.size() + kTempRandomLength ||
        name.compare(0, prefix.size(), prefix) != 0)
      continue;
    std::error_code statError;
    if (!it->is_regular_file(statError) || statError)
      continue;
    const auto written = it->last_write_time(statError);
    if (!statError && now - written > std::chrono::seconds(kStaleTempSeconds))
      fsys.Unlink(it->path().string());
  }
}

}  // namespace

bool FileExists(const std::string& path) {
  struct stat st {};
  return !path.empty() && ::stat(path.c_str(), &st) == 0;
}

std::string ReadWholeFile(const std::string& path) {
  std::error_code ec;
  if (fs::is_directory(path, ec)) {
    throw FileError("Cannot read \"" + path + "\": it is a folder, not a file");
  }
  int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0)
    Fail("read", path, "opening", errno);
  // Read straight into the string, sized from the file's length: a large page is neither
  // copied through a buffer nor given twice the room it needs. A file that grows meanwhile
  // is read on to its end.
  std::string bytes;
  struct stat info {};
  size_t expected = 0;
  if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && info.st_size > 0)
    expected = static_cast<size_t>(info.st_size);
  size_t used = 0;
  bytes.resize(expected + 1);
  while (true) {
    if (used == bytes.size())
      bytes.resize(bytes.size() * 2);
    ssize_t n = ::read(fd, bytes.data() + used, bytes.size() - used);
    if (n < 0 && errno == EINTR)
      continue;
    if (n < 0) {
      int err = errno;
      ::close(fd);
      Fail("read", path, "reading", err);
    }
    if (n == 0)
      break;
    used += static_cast<size_t>(n);
  }
  ::close(fd);
  bytes.resize(used);
  return bytes;
}

void WriteFileAtomic(const std::string& path, std::string_view bytes, FileSystem& fsys) {
  const std::string target = ResolveTarget(path);
  std::error_code ec;
  if (fs::is_directory(target, ec)) {
    throw FileError("Cannot save \"" + path + "\": it is a folder, not a file");
  }
  struct stat old {};
  const bool existed = ::stat(target.c_str(), &old) == 0;
  if (existed && fsys.CheckWritable(target) != 0) {
    const int err = errno;
    throw FileError("Cannot save \"" + path + "\": the file is read-only: " + std::strerror(err));
  }

  fs::path dir = fs::path(target).parent_path();
  std::string temp = (dir.empty() ? fs::path(".") : dir).string() + "/" +
                     TempPrefix(fs::path(target).filename().string()) + "XXXXXX";
  int fd = fsys.MakeTemp(temp);
  if (fd < 0)
    Fail("save", path, "creating a temporary file", errno);

  WriteAll(fsys, fd, bytes, path, temp);
  // mkstemp makes the file 0600; a replaced page keeps its mode, a new one gets the usual one.
  mode_t mode = existed ? (old.st_mode & 07777) : 0644;
  if (!existed) {
    mode_t mask = ::umask(0);
    ::umask(mask);
    mode = 0666 & ~mask;
  }
  ::fchmod(fd, mode);
  if (fsys.Fsync(fd) != 0) {
    int err = errno;
    fsys.Close(fd);
    fsys.Unlink(temp);
    Fail("save", path, "flushing", err);
  }
  if (fsys.Close(fd) != 0) {
    int err = errno;
    fsys.Unlink(temp);
    Fail("save", path, "closing", err);
  }
  if (fsys.Rename(temp, target) != 0) {
    int err = errno;
    fsys.Unlink(temp);
    Fail("save", path, "renaming the temporary file", err);
  }
  RemoveStaleTemps(fsys, dir, fs::path(target).filename().string());
}

void ReadListItems(std::string_view content, const std::function<void(std::string_view)>& each) {
  size_t i = 0;
  const size_t n = content.size();
  auto at_line_end = [&](size_t k) { return content[k] == '\r' || content[k] == '\n'; };
  auto skip_line_end = [&]() {
    if (i < n && content[i] == '\r')
      ++i;
    if (i < n && content[i] == '\n')
      ++i;
  };
  while (i < n) {
    while (i < n && (content[i] == ' ' || content[i] == '\t'))
      ++i;
    std::string_view item;
    if (i < n && content[i] == '"') {
      size_t close = content.find('"', i + 1);
      if (close == std::string_view::npos)
        close = n;
      item = content.substr(i + 1, close - i - 1);
      i = close < n ? close + 1 : n;
      while (i < n && content[i] != ',' && !at_line_end(i))
        ++i;  // rest after the quote
    } else {
      size_t start = i;
      while (i < n && content[i] != ',' && !at_line_end(i))
        ++i;
      item = content.substr(start, i - start);
      while (!item.empty() && (item.back() == ' ' || item.back() == '\t'))
        item.remove_suffix(1);
    }
    each(item);
    if (i < n && content[i] == ',') {
      ++i;
      if (i == n)
        each({});
    } else {
      skip_line_end();
    }
  }
}

}  // namespace zentrel::file_io
