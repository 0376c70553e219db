#include "base/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <tuple>

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

// Closes the descriptor on every way out.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0)
      ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }

 private:
  int fd_;
};

std::string KindOf(mode_t mode) {
  if (S_ISDIR(mode))
    return "a folder";
  if (S_ISCHR(mode) || S_ISBLK(mode))
    return "a device";
  if (S_ISFIFO(mode))
    return "a FIFO (named pipe)";
  if (S_ISSOCK(mode))
    return "a socket";
  return "a special file";
}

[[noreturn]] void RefuseTooLarge(const std::string& path) {
  throw FileError("Cannot read \"" + path + "\": it is larger than " +
                  std::to_string(kMaxReadBytes >> 30) + " GiB, the largest file Zentrel reads");
}

// Only regular files within the ceiling are read.
void RefuseUnreadable(const std::string& path, const struct stat& info) {
  if (!S_ISREG(info.st_mode)) {
    throw FileError("Cannot read \"" + path + "\": it is " + KindOf(info.st_mode) +
                    ", not a regular file");
  }
  if (info.st_size > kMaxReadBytes)
    RefuseTooLarge(path);
}

// The file a save really replaces and what stands there now.
struct Target {
  std::string path;
  bool viaLink = false;
  bool existed = false;
  struct stat old {};
};

// Only a regular file (or nothing) may be replaced; through a link the message says so.
void RefuseSpecial(const std::string& path, const Target& target) {
  if (target.existed && !S_ISREG(target.old.st_mode)) {
    throw FileError("Cannot save \"" + path + "\": it " + (target.viaLink ? "links to " : "is ") +
                    KindOf(target.old.st_mode) + ", not a regular file");
  }
}

// A symbolic link is followed to its final file, so the link stays; one that dangles or loops
// has no file to replace.
Target ResolveTarget(const std::string& path) {
  Target target{path};
  target.existed = ::lstat(path.c_str(), &target.old) == 0;
  target.viaLink = target.existed && S_ISLNK(target.old.st_mode);
  if (target.viaLink) {
    char* real = ::realpath(path.c_str(), nullptr);
    if (real == nullptr) {
      const int err = errno;
      if (err == ENOENT || err == ENOTDIR)
        throw FileError("Cannot save \"" + path + "\": it is a symbolic link to a missing file");
      if (err == ELOOP)
        throw FileError("Cannot save \"" + path + "\": its symbolic links go round in a loop");
      Fail("save", path, "following the symbolic link", err);
    }
    target.path = real;
    std::free(real);
    target.existed = ::lstat(target.path.c_str(), &target.old) == 0;
  }
  RefuseSpecial(path, target);
  return target;
}

// mkstemp makes the file 0600 and the saver's own: a replaced file keeps its owner, group and
// mode, a new one gets the usual mode. Only root (or an owner keeping one of its own groups)
// may set the owner; otherwise the saver's stays, as the mode does where a file system
// refuses it. The owner goes first: changing it clears the set-user and set-group bits.
void KeepOwnerAndMode(int fd, const Target& target) {
  mode_t mode = target.old.st_mode & 07777;
  if (target.existed) {
    std::ignore = ::fchown(fd, target.old.st_uid, target.old.st_gid);
  } else {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    mode = 0666 & ~mask;
  }
  ::fchmod(fd, mode);
}

// Something other than a regular file may have taken the target's place while the temporary
// was written; the rename would replace it.
void RecheckBeforeRename(FileSystem& fsys, const std::string& path, const Target& target,
                         const std::string& temp) {
  Target now = target;
  now.existed = ::lstat(target.path.c_str(), &now.old) == 0;
  try {
    RefuseSpecial(path, now);
  } catch (const FileError&) {
    fsys.Unlink(temp);
    throw;
  }
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

void CheckReadableKind(const std::string& path) {
  struct stat info {};
  if (!path.empty() && ::stat(path.c_str(), &info) == 0)
    RefuseUnreadable(path, info);
}

std::string ReadWholeFile(const std::string& path) {
  // Checked before opening, so no device is even opened; then the opened file itself is
  // checked, in case the path changed in between. Not blocking: a FIFO with no writer would
  // otherwise hold the open forever.
  CheckReadableKind(path);
  Descriptor fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  if (fd.get() < 0)
    Fail("read", path, "opening", errno);
  struct stat info {};
  if (::fstat(fd.get(), &info) != 0)
    Fail("read", path, "reading the file's attributes", errno);
  RefuseUnreadable(path, info);
  // Read straight into the string, sized from the file's length: a large page is neither
  // copied through a buffer nor given twice the room it needs. A file that grows meanwhile
  // is read on to its end, but never past the ceiling.
  constexpr size_t kCeiling = static_cast<size_t>(kMaxReadBytes);
  std::string bytes;
  size_t used = 0;
  bytes.resize(static_cast<size_t>(info.st_size) + 1);
  while (true) {
    if (used == bytes.size()) {
      if (used > kCeiling)
        RefuseTooLarge(path);
      bytes.resize(std::min(bytes.size() * 2, kCeiling + 1));
    }
    ssize_t n = ::read(fd.get(), bytes.data() + used, bytes.size() - used);
    if (n < 0 && errno == EINTR)
      continue;
    if (n < 0)
      Fail("read", path, "reading", errno);
    if (n == 0)
      break;
    used += static_cast<size_t>(n);
  }
  bytes.resize(used);
  return bytes;
}

void WriteFileAtomic(const std::string& path, std::string_view bytes, FileSystem& fsys) {
  const Target target = ResolveTarget(path);
  if (target.existed && fsys.CheckWritable(target.path) != 0) {
    const int err = errno;
    throw FileError("Cannot save \"" + path + "\": the file is read-only: " + std::strerror(err));
  }

  fs::path dir = fs::path(target.path).parent_path();
  std::string temp = (dir.empty() ? fs::path(".") : dir).string() + "/" +
                     TempPrefix(fs::path(target.path).filename().string()) + "XXXXXX";
  int fd = fsys.MakeTemp(temp);
  if (fd < 0)
    Fail("save", path, "creating a temporary file", errno);

  WriteAll(fsys, fd, bytes, path, temp);
  KeepOwnerAndMode(fd, target);
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
  RecheckBeforeRename(fsys, path, target, temp);
  if (fsys.Rename(temp, target.path) != 0) {
    int err = errno;
    fsys.Unlink(temp);
    Fail("save", path, "renaming the temporary file", err);
  }
  RemoveStaleTemps(fsys, dir, fs::path(target.path).filename().string());
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

std::pair<std::string_view, std::string_view> SplitPreferenceLine(std::string_view line) {
  if (line.size() < 2)
    return {};
  size_t colon = line.find(':');
  if (colon == std::string_view::npos)
    return {};
  return {line.substr(0, colon + 1), line.substr(colon + 1)};
}

}  // namespace zentrel::file_io
