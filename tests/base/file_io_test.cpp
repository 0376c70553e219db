#include "base/file_io.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>

#include "full_disk.h"
#include "test_files.h"

namespace zentrel::file_io {

namespace fs = std::filesystem;
using testing::ReadFile;
using testing::TempFolder;
using testing::WriteFile;

namespace {

// Fails one chosen system call with a chosen errno; or makes the first write short (one byte)
// or interrupted, and the later ones whole.
class FailingFileSystem : public FileSystem {
 public:
  enum Step { kMakeTemp, kWrite, kShortWrite, kInterrupted, kFsync, kClose, kRename, kReadOnly };
  FailingFileSystem(Step step, int err) : step_(step), err_(err) {}
  int MakeTemp(std::string& t) override { return Fail(kMakeTemp) ? -1 : FileSystem::MakeTemp(t); }
  ssize_t Write(int fd, const char* d, size_t n) override {
    if (writes_++ == 0 && step_ == kShortWrite)
      return FileSystem::Write(fd, d, 1);
    if (writes_ == 1 && Fail(kInterrupted))
      return -1;
    return Fail(kWrite) ? -1 : FileSystem::Write(fd, d, n);
  }
  int CheckWritable(const std::string& p) override {
    return Fail(kReadOnly) ? -1 : FileSystem::CheckWritable(p);
  }
  int Fsync(int fd) override { return Fail(kFsync) ? -1 : FileSystem::Fsync(fd); }
  int Close(int fd) override {
    const int closed = FileSystem::Close(fd);
    return Fail(kClose) ? -1 : closed;
  }
  int Rename(const std::string& a, const std::string& b) override {
    return Fail(kRename) ? -1 : FileSystem::Rename(a, b);
  }

 private:
  bool Fail(Step s) {
    if (s != step_)
      return false;
    errno = err_;
    return true;
  }
  Step step_;
  int err_;
  int writes_ = 0;
};

}  // namespace

// The file is replaced with its mode (and, for root, its owner) kept, through a chain of
// symbolic links, and under a name as long as the folder allows.
TEST(WriteFileAtomic, ReplacesTheFileKeepingItsModeOwnerAndLinks) {
  TempFolder dir;
  std::string page = dir.File(std::string(250, 'p') + ".html");
  WriteFile(page, "old");
  const bool root = ::geteuid() == 0;
  if (root) {
    ASSERT_EQ(::chown(page.c_str(), 4321, 4322), 0);
  }
  ::chmod(page.c_str(), 02750);  // set-group: lost if the owner were set after the mode
  fs::create_symlink(fs::path(page).filename(), dir.File("link.html"));  // relative
  fs::create_symlink(dir.File("link.html"), dir.File("outer.html"));
  WriteFileAtomic(page, "new bytes");
  WriteFileAtomic(dir.File("outer.html"), "through the links");
  EXPECT_EQ(ReadFile(page), "through the links");
  EXPECT_TRUE(fs::is_symlink(dir.File("outer.html")) && fs::is_symlink(dir.File("link.html")));
  struct stat st {};
  ::stat(page.c_str(), &st);
  EXPECT_EQ(st.st_mode & 07777, 02750u);
  if (root) {
    EXPECT_EQ(st.st_uid, 4321u);
    EXPECT_EQ(st.st_gid, 4322u);
  }
  EXPECT_EQ(testing::EntriesIn(dir.path()), 3u);
}

TEST(WriteFileAtomic, OnlyRegularFilesAreReplaced) {
  TempFolder dir;
  const std::string fifo = dir.File("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0644), 0);
  fs::create_directory(dir.File("folder"));
  fs::create_symlink("nowhere.html", dir.File("dangling"));
  fs::create_symlink(dir.File("loop"), dir.File("loop"));
  fs::create_symlink(fifo, dir.File("to-fifo"));
  std::vector<std::pair<std::string, std::string>> targets = {{"fifo", "FIFO"},
                                                              {"folder", "folder"},
                                                              {"dangling", "missing"},
                                                              {"loop", "loop"},
                                                              {"to-fifo", "links to a FIFO"}};
  const size_t files = testing::EntriesIn(dir.path());
  for (const auto& [name, kind] : targets) {
    const std::string path = dir.File(name);
    struct stat before {
    }, after{};
    ::lstat(path.c_str(), &before);
    try {
      WriteFileAtomic(path, "a page");
      ADD_FAILURE() << name << " was replaced";
    } catch (const FileError& e) {
      const std::string message = e.what();
      EXPECT_NE(message.find("\"" + path + "\": it"), std::string::npos) << message;
      EXPECT_NE(message.find(kind), std::string::npos) << message;
    }
    ::lstat(path.c_str(), &after);
    EXPECT_EQ(after.st_ino, before.st_ino) << name;
    EXPECT_EQ(after.st_mode, before.st_mode) << name;
  }
  EXPECT_EQ(testing::EntriesIn(dir.path()), files) << "a temporary file was left behind";
}

TEST(WriteFileAtomic, EveryFailingStepLeavesTheOldFileAndNoTemporary) {
  struct Case {
    FailingFileSystem::Step step;
    int err;
    const char* operation;
  };
  const Case cases[] = {{FailingFileSystem::kMakeTemp, EACCES, "creating a temporary file"},
                        {FailingFileSystem::kWrite, ENOSPC, "writing"},
                        {FailingFileSystem::kWrite, EIO, "writing"},
                        {FailingFileSystem::kFsync, EIO, "flushing"},
                        {FailingFileSystem::kClose, EIO, "closing"},
                        {FailingFileSystem::kRename, EXDEV, "renaming"},
                        {FailingFileSystem::kReadOnly, EACCES, "read-only"}};
  for (const Case& c : cases) {
    TempFolder dir;
    std::string page = dir.File("page.html");
    WriteFile(page, "the author's page");
    FailingFileSystem failing(c.step, c.err);
    try {
      WriteFileAtomic(page, "replacement", failing);
      ADD_FAILURE() << "no error for step " << c.step;
    } catch (const FileError& e) {
      std::string message = e.what();
      EXPECT_NE(message.find(page), std::string::npos) << message;
      EXPECT_NE(message.find(c.operation), std::string::npos) << message;
      EXPECT_NE(message.find(std::strerror(c.err)), std::string::npos) << message;
    }
    EXPECT_EQ(ReadFile(page), "the author's page");
    EXPECT_EQ(testing::EntriesIn(dir.path()), 1u) << "a temporary file was left behind";
  }
}

// The writer goes on after a short write and after an interrupted one.
TEST(WriteFileAtomic, ShortAndInterruptedWritesAreContinued) {
  TempFolder dir;
  std::string page = dir.File("page.html");
  for (auto step : {FailingFileSystem::kShortWrite, FailingFileSystem::kInterrupted}) {
    FailingFileSystem first(step, EINTR);
    WriteFileAtomic(page, "all of the new bytes " + std::to_string(step), first);
    EXPECT_EQ(ReadFile(page), "all of the new bytes " + std::to_string(step));
  }
  EXPECT_EQ(testing::EntriesIn(dir.path()), 1u);
}

TEST(WriteFileAtomic, StaleTemporariesOfKilledSavesAreRemovedByTheNextSave) {
  TempFolder dir;
  std::string page = dir.File("page.html");
  WriteFile(page, "old");
  const auto old = fs::file_time_type::clock::now() - std::chrono::minutes(5);
  for (const char* name : {".page.html.zentrel-Ab12Cd", ".other.html.zentrel-Ab12Cd",
                           ".page.html.zentrel-toolong", ".page.html.zentrel-Fresh1"}) {
    WriteFile(dir.File(name), "left by a killed save");
    if (std::string(name) != ".page.html.zentrel-Fresh1")
      fs::last_write_time(dir.File(name), old);
  }
  WriteFileAtomic(page, "new");
  EXPECT_EQ(ReadFile(page), "new");
  EXPECT_FALSE(fs::exists(dir.File(".page.html.zentrel-Ab12Cd")));
  // Another file's leftovers, names not of this writer and fresh ones (perhaps a save still
  // running) stay.
  EXPECT_TRUE(fs::exists(dir.File(".other.html.zentrel-Ab12Cd")));
  EXPECT_TRUE(fs::exists(dir.File(".page.html.zentrel-toolong")));
  EXPECT_TRUE(fs::exists(dir.File(".page.html.zentrel-Fresh1")));
}

TEST(ReadWholeFile, ClearMessagesForMissingFilesFoldersAndFailedReads) {
  TempFolder dir;
  EXPECT_FALSE(FileExists(dir.File("missing")));
  EXPECT_TRUE(FileExists(dir.path().string()));  // a folder has attributes too
  try {
    ReadWholeFile(dir.File("missing"));
    FAIL();
  } catch (const FileError& e) {
    EXPECT_NE(std::string(e.what()).find("No such file"), std::string::npos);
  }
  EXPECT_THROW(ReadWholeFile(dir.path().string()), FileError);
  // Every read closes what it opened.
  WriteFile(dir.File("page.html"), "bytes");
  const size_t open = testing::EntriesIn("/proc/self/fd");
  EXPECT_EQ(ReadWholeFile(dir.File("page.html")), "bytes");
  EXPECT_EQ(testing::EntriesIn("/proc/self/fd"), open);
  // A read that fails once the file is open: the kernel refuses to read address 0.
  try {
    ReadWholeFile("/proc/self/mem");
    FAIL();
  } catch (const FileError& e) {
    EXPECT_NE(std::string(e.what()).find("reading"), std::string::npos) << e.what();
  }
}

TEST(ReadListItems, FollowsCommaDelimitedInput) {
  using V = std::vector<std::string>;
  auto items = [](std::string_view content) {
    V all;
    ReadListItems(content, [&all](std::string_view item) { all.emplace_back(item); });
    return all;
  };
  EXPECT_EQ(items("a, b\r\n  c d \nx\ry\r\rz"), (V{"a", "b", "c d", "x", "y", "", "z"}));
  EXPECT_EQ(items("\"quoted, with comma\" rest,next\r\n"), (V{"quoted, with comma", "next"}));
  EXPECT_EQ(items("FileLoaded:C:\\a,b.html\r\n"), (V{"FileLoaded:C:\\a", "b.html"}));
  EXPECT_EQ(items(""), V{});
}

}  // namespace zentrel::file_io
