#include "metatags/page_encoder.h"

#include <algorithm>
#include <filesystem>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/decoder.h"
#include "decode/meta_tag_table.h"
#include "decode/section_validation.h"
#include "document/document_cache.h"
#include "state/app_state.h"

namespace zentrel::metatags {

namespace {

constexpr const char* kRebuildSuffix = " - IGNORE this ERROR and REBUILD ANYWAY ? ";
constexpr const char* kSaveSuffix = " - IGNORE this ERROR and SAVE ANYWAY ? ";

int32_t Position(const std::string& decimal) {
  return ToInt32(static_cast<int64_t>(text::Val(decimal)));
}

// Once the encoder starts blanking tags in the cache, a failure must not leave the user with a
// half-blanked page: the cache is rebuilt from the text, which the blanking never touches.
class CacheRestore {
 public:
  explicit CacheRestore(AppState& s) : s_(s) {}
  ~CacheRestore() {
    if (!armed_)
      return;
    s_.DocumentBytes.clear();
    s_.DocumentBytes.reserve(s_.DocumentText.size() + 1);
    const auto* data = reinterpret_cast<const uint8_t*>(s_.DocumentText.data());
    s_.DocumentBytes.assign(data, data + s_.DocumentText.size());
    s_.DocumentBytes.push_back(0);
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

// The rescan records positions only for the tags it finds; a row keeps what an earlier decode
// (of this or another page) left. Forgetting them first means only tags found now get blanked.
void Forget_Recorded_Tag_Positions(AppState& s) {
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    state::MetaTagRow& row = At(s.MetaTags, i);
    row.MetaTagStart = "-1";
    row.MetaTagEnd = "-1";
  }
}

std::string Build_Header_Block(AppState& s) {
  std::string block = "<TITLE>" + text::Trim(At(s.Form.MetaTag_TextBox, 0)) + "</TITLE>";
  block += text::kCrLf;
  for (int16_t i = 0; i < state::kMetaTagFieldCount; ++i) {
    const state::MetaTagRow& row = At(s.MetaTags, i);
    if (text::Val(row.MetaTagIsMeta) != 1)
      continue;
    std::string content = text::Trim(At(s.Form.MetaTag_TextBox, i));
    if (!content.empty())
      block += Build_Meta_Tag(s, content, row.MetaTagName);
  }
  if (s.Form.TagsOption_USE_META_TITLE == 1) {
    // The optional META title is cleared before it is read, so the option adds no line.
    decode::Set_MetaTag_Value(s, "title", "");
    std::string title = decode::Get_MetaTag_Value(s, "title");
    if (!title.empty())
      block += Build_Meta_Tag(s, title, "title");
  }
  return block;
}

void Blank_Old_Tags(AppState& s) {
  int16_t titleRow = decode::Find_MetaTag_Index(s, "pagetitle");
  bool titleFound = titleRow >= 0 && Position(At(s.MetaTags, titleRow).MetaTagStart) >= 0;
  if (titleFound)
    document::Html_Clear_Cache_Section(s, s.TitleStart, s.TitleEnd + 1);
  for (int16_t i = 0; i < s.MetaTagCount; ++i) {
    const state::MetaTagRow& row = At(s.MetaTags, i);
    document::Html_Clear_Cache_Section(s, Position(row.MetaTagStart), Position(row.MetaTagEnd));
  }
}

// The kept page with the header block after `insertAt`, in RebuildBytes; returns its length.
int32_t Rebuild_Into_Buffer(AppState& s, const std::string& block, int32_t insertAt) {
  // The buffer holds twice the page; a header block that does not fit then is an error. When
  // the page and the block fit for sure, only that much is set up.
  const int64_t limit = ToInt32(2 * static_cast<int64_t>(s.DocumentLength));
  const int64_t enough = int64_t{s.DocumentLength} + 1 + static_cast<int64_t>(block.size());
  s.RebuildBytes.clear();
  s.RebuildBytes.resize(static_cast<size_t>(std::min(limit, enough)));
  int32_t next = decode::Html_Copy_Section_To_Temp(s, 0, insertAt, 0);
  for (char c : block) {
    At(s.RebuildBytes, next) = static_cast<uint8_t>(c);
    ++next;
  }
  int32_t restFrom = insertAt < 1 ? insertAt : insertAt + 1;
  next = decode::Html_Copy_Section_To_Temp(s, restFrom, s.DocumentLength, next);
  s.RebuildBytes.resize(static_cast<size_t>(next));
  return next;
}

}  // namespace

std::string Build_Meta_Tag(const AppState& s, const std::string& content, const std::string& name) {
  std::string line;
  if (s.EncodeSwapContentAndNameOrder == 0)
    line = "<META content=\"" + text::Trim(content) + "\" name=\"" + name + "\">";
  else
    line = "<META name=\"" + text::Trim(name) + "\" content=\"" + content + "\">";
  line += text::kCrLf;
  return line;
}

bool HTML_ENCODE_Document(AppState& s, const std::string& fileName, int16_t rebuildFlag) {
  state::BusyCursor busy(*s.platform);
  s.DocumentLength = document::Reload_File_From_Memory_TO_Cache(s);
  if (fileName.empty() || s.DocumentLength == 0)
    return false;

  Forget_Recorded_Tag_Positions(s);
  decode::HTML_ReScan_Document(s);
  std::string error = decode::HTML_VALIDATE_Document_Sections(s);
  if (!error.empty()) {
    const char* suffix = rebuildFlag != 0 ? kRebuildSuffix : kSaveSuffix;
    if (!s.platform->AskYesNo("WARNING", "WARNING - " + error + suffix))
      return false;
  }

  // The insertion point comes from the sections as found: clearing the header values below
  // turns a missing head into position 0, which would put the block inside the page's text.
  int32_t insertAt = decode::Html_Get_Starting_HeaderByte_For_Tag_Encoding(s);
  decode::Clear_HTML_BODY_AND_HEADER_VALUES(s);
  decode::Set_MetaTag_Value(s, "pagetitle", s.TitleText);

  const std::string target =
      rebuildFlag == 1 ? s.ProgramFolder + "/" + kTempDataFileName : fileName;
  TempFileRemover removeTemp(*s.files, rebuildFlag == 1 ? target : std::string());
  CacheRestore restore(s);

  std::string block = Build_Header_Block(s);
  Blank_Old_Tags(s);
  int32_t written = Rebuild_Into_Buffer(s, block, insertAt);

  const std::vector<uint8_t>& out = s.RebuildBytes;
  file_io::WriteFileAtomic(
      target, std::string_view(reinterpret_cast<const char*>(out.data()), out.size()), *s.files);
  document::DO_LOAD_File_TO_CACHE(s, target);
  s.DocumentLength = written;
  restore.Dismiss();
  return true;
}

void MetaTagEncodePref_SwapContentAndNameOrder_CheckBox_Click(AppState& s) {
  s.EncodeSwapContentAndNameOrder = s.Form.MetaTagEncodePref_SwapContentAndNameOrder_CheckBox;
}

void MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox_Click(AppState& s) {
  s.EncodeComaSpaceBetweenKeywords = s.Form.MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox;
}

// The encoder reads this box itself at each run.
void TagsOption_USE_META_TITLE_Click(AppState&) {}

// "Replace Known META TAGS" is shown only: the encoder always replaces the known tags.
void Check2_Click(AppState&) {}

}  // namespace zentrel::metatags
