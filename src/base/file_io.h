#pragma once
// Whole-file reads, the file-exists test, comma-delimited list input, and the atomic writer
// through which every file the program writes is replaced: written in full to a temporary
// file beside the target, flushed, then renamed over it, so a failed save never loses the
// old file. The system calls it makes go through FileSystem so tests can make them fail.

#include <sys/types.h>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace zentrel::file_io {

// A file that could not be read or written; the message names the file, the operation and
// the cause ("Cannot save "/a/b.html": writing failed: No space left on device").
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The system calls of the atomic writer. Each returns what the POSIX call returns and leaves
// errno set on failure.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual int MakeTemp(std::string& path_template);  // mkstemp; fills in the name
  virtual ssize_t Write(int fd, const char* data, size_t size);
  virtual int Fsync(int fd);
  virtual int Close(int fd);
  virtual int Rename(const std::string& from, const std::string& to);
  virtual int Unlink(const std::string& path);
  virtual int CheckWritable(const std::string& path);  // access(path, W_OK)
};

FileSystem& RealFileSystem();

// True exactly when the path's attributes can be read (a folder, a device or a FIFO counts);
// never throws.
bool FileExists(const std::string& path);

// The largest file the program reads: far beyond any real page, list or dictionary, and the
// bound on what an endless or runaway input can cost.
inline constexpr int64_t kMaxReadBytes = int64_t{1} << 30;  // 1 GiB

// Throws FileError when path is there but is not a file the reader takes: not a regular file
// (a folder, device, FIFO or socket) or larger than kMaxReadBytes. Never opens the path; a
// missing or inaccessible path passes, for the reader to report.
void CheckReadableKind(const std::string& path);

// The bytes of a regular file of at most kMaxReadBytes; throws FileError for anything else
// (missing, unreadable, a folder, device, FIFO or socket, too large). Never blocks on a FIFO
// and never reads past the ceiling, even from a file that grows meanwhile.
std::string ReadWholeFile(const std::string& path);

// Replaces (or creates) path with bytes atomically. Only regular files are replaced: a
// folder, device, FIFO or socket there is refused, as is a symbolic link that dangles, loops
// or leads to one of those. A symbolic link to a file is kept and its target replaced; an
// existing file keeps its permissions, and its owner and group where the process may set
// them; a read-only file is not replaced. Throws
// FileError; on failure the old file is untouched and no temporary file is left behind. A
// save killed before its rename leaves its temporary file: a later successful save of the same
// file removes such leftovers once they are older than kStaleTempSeconds.
inline constexpr int kStaleTempSeconds = 60;
void WriteFileAtomic(const std::string& path, std::string_view bytes,
                     FileSystem& fs = RealFileSystem());

// Reads items the way comma-delimited text input does: leading blanks skipped, a value in
// double quotes taken without them (commas included), otherwise the item ends at a comma or
// at the end of the line (CR LF, LF or CR) with trailing blanks dropped. Calls `each` with
// every item in order, as a view into content: a file of millions of items costs no copies.
void ReadListItems(std::string_view content, const std::function<void(std::string_view)>& each);

// An item of a "key:value" list (the preferences file, a META tag list): the key with its ":"
// and the value after it, as views into the item; both empty when the item has fewer than 2
// characters or no ":".
std::pair<std::string_view, std::string_view> SplitPreferenceLine(std::string_view line);

}  // namespace zentrel::file_io
