#include "commands/page_saving.h"

#include <filesystem>
#include <string_view>

#include "base/file_io.h"
#include "commands/page_loading.h"
#include "commands/startup.h"
#include "document/document_cache.h"
#include "metatags/head_diff.h"
#include "metatags/page_encoder.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

constexpr const char* kRebuildSuffix = " - IGNORE this ERROR and REBUILD ANYWAY ? ";
constexpr const char* kSaveSuffix = " - IGNORE this ERROR and SAVE ANYWAY ? ";

// Once the encoder starts blanking tags in the cache, a failure must not leave the user with a
// half-blanked page: the cache is rebuilt from the text, which the blanking never touches.
class CacheRestore {
 public:
  explicit CacheRestore(AppState& s) : s_(s) {}
  ~CacheRestore() {
    if (!armed_)
      return;
    document::Fill_Document_Cache(s_, s_.DocumentText, 1);
    s_.DocumentLength = static_cast<int32_t>(s_.DocumentText.size());
  }
  CacheRestore(const CacheRestore&) = delete;
  CacheRestore& operator=(const CacheRestore&) = delete;
  void Dismiss() { armed_ = false; }

 private:
  AppState& s_;
  bool armed_ = true;
};

// The rebuild's carrier file goes on every way out, errors included; something else standing
// in its place (a FIFO, a device), which the writer refused to replace, stays.
class TempFileRemover {
 public:
  TempFileRemover(file_io::FileSystem& fs, std::string path) : fs_(fs), path_(std::move(path)) {}
  ~TempFileRemover() {
    std::error_code ec;
    if (!path_.empty() && std::filesystem::is_regular_file(path_, ec))
      fs_.Unlink(path_);
  }
  TempFileRemover(const TempFileRemover&) = delete;
  TempFileRemover& operator=(const TempFileRemover&) = delete;

 private:
  file_io::FileSystem& fs_;
  std::string path_;
};

// The bytes just written are the current document: the text, the cache and the page source
// editor take them from memory, as reading the file back would give them.
void Take_Written_Page(AppState& s, int32_t written) {
  const std::vector<uint8_t>& page = s.RebuildBytes;
  s.DocumentText.assign(reinterpret_cast<const char*>(page.data()), page.size());
  document::Fill_Document_Cache(s, s.DocumentText, 1);
  s.DocumentLength = written;
  s.Form.Html_Document_Editor = s.DocumentText;
}

// The page from the source editor, its sections checked: false when there is nothing to
// write (no file name, an empty page) or the WARNING question was answered No.
bool Ready_To_Encode(AppState& s, bool named, int16_t rebuildFlag) {
  s.DocumentLength = document::Reload_File_From_Memory_TO_Cache(s);
  if (!named || s.DocumentLength == 0)
    return false;
  const std::string error = metatags::Rescan_For_Encoding(s);
  if (error.empty())
    return true;
  const char* suffix = rebuildFlag != 0 ? kRebuildSuffix : kSaveSuffix;
  return s.platform->AskYesNo("WARNING", "WARNING - " + error + suffix);
}

// The file a save replaces, kept beside it as FILE.bak (itself replaced atomically).
void Keep_Backup(AppState& s, const std::string& target) {
  std::error_code ec;
  if (std::filesystem::is_regular_file(target, ec))
    file_io::WriteFileAtomic(target + ".bak", file_io::ReadWholeFile(target), *s.files);
}

}  // namespace

bool HTML_ENCODE_Document(AppState& s, const std::string& fileName, int16_t rebuildFlag) {
  state::BusyCursor busy(*s.platform);
  if (!Ready_To_Encode(s, !fileName.empty(), rebuildFlag))
    return false;
  const bool save = rebuildFlag == 0;
  const std::string target = save ? fileName : s.ProgramFolder + "/" + kTempDataFileName;
  TempFileRemover removeTemp(*s.files, save ? std::string() : target);
  CacheRestore restore(s);
  const int32_t written = metatags::Rebuild_Page(s);
  if (save && s.SaveShowChanges == 1) {
    const metatags::HeadDiff diff = metatags::Head_Diff(s);
    if (!diff.Text.empty() && !s.platform->ConfirmChanges(diff.Text, diff.Vanishing))
      return false;
  }
  if (save && s.SaveKeepBackup == 1)
    Keep_Backup(s, target);
  const std::vector<uint8_t>& page = s.RebuildBytes;
  file_io::WriteFileAtomic(
      target, std::string_view(reinterpret_cast<const char*>(page.data()), page.size()), *s.files);
  Take_Written_Page(s, written);
  restore.Dismiss();
  return true;
}

std::optional<metatags::HeadDiff> Preview_Save(AppState& s) {
  state::BusyCursor busy(*s.platform);
  if (!Ready_To_Encode(s, true, 0))
    return std::nullopt;
  CacheRestore restore(s);
  metatags::Rebuild_Page(s);
  return metatags::Head_Diff(s);
}

void Do_save(AppState& s) {
  if (s.DocumentLength == 0)
    return;
  const std::optional<std::string> path = Choose_Page_File(s, true);
  if (!path || path->empty())
    return;
  if (HTML_ENCODE_Document(s, *path, 0)) {
    s.CurrentFileName = *path;
    SET_PROGRAM_TITLE(s, *path);
  }
}

std::string Do_Select_Save_File(AppState& s, const std::string& fileName, const std::string& filter,
                                int16_t filterIndex, const std::string& defaultExt) {
  state::FileDialog dialog{fileName, filter, filterIndex, defaultExt};
  if (!s.platform->ShowSave(dialog))
    return {};
  return dialog.FileName;
}

}  // namespace zentrel::commands
