// Arbitrary page bytes and field values, rebuilt and saved. The property, for pages whose
// sections are in order and that hold no 0 byte: the bytes after the rewritten part are
// unchanged. (A second rebuild giving the same page is tested on the encoder's golden pages.)

#include <algorithm>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "commands/edit_meta_tags.h"
#include "commands/page_saving.h"
#include "decode/decoder.h"
#include "decode/section_validation.h"
#include "fuzz_session.h"
#include "metatags/page_encoder.h"

using namespace zentrel;

namespace {

// Where the rebuild may change bytes: the head and every tag the rescan found, plus the white
// space the blanking eats after each.
int32_t End_Of_Rewritten_Part(const AppState& s) {
  int32_t cut = std::max(s.HeadEnd, s.TitleEnd + 34);
  for (int i = 0; i < s.MetaTagCount; ++i) {
    cut = std::max(cut, std::atoi(s.MetaTags[static_cast<size_t>(i)].MetaTagEnd.c_str()) + 34);
  }
  return cut;
}

std::string Rebuild(AppState& s, const std::string& target) {
  if (!commands::HTML_ENCODE_Document(s, target, 0))
    return {};
  return file_io::ReadWholeFile(target);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input in(data, size);
  AppState& s = fuzz::Started_State();
  s.EncodeSwapContentAndNameOrder = in.Byte() & 1;
  std::array<std::string, 13> fields;
  for (auto& f : fields)
    f = in.Piece(40);
  const std::string page = in.Rest();
  fuzz::Put_Page(s, page);
  for (int16_t i = 0; i < 13; ++i)
    commands::Set_MetaTag_TextBox(s, i, fields[static_cast<size_t>(i)]);
  const std::string target = fuzz::Scratch_Path("rebuild.html");
  try {
    decode::HTML_ReScan_Document(s);
    const bool sane = decode::HTML_VALIDATE_Document_Sections(s).empty() &&
                      page.find('\0') == std::string::npos && s.DocumentLength > 0;
    const int32_t cut = End_Of_Rewritten_Part(s);
    const std::string once = Rebuild(s, target);
    if (!sane || once.empty())
      return 0;
    if (cut >= 0 && static_cast<size_t>(cut) < page.size()) {
      const std::string tail = page.substr(static_cast<size_t>(cut));
      fuzz::Require(once.size() >= tail.size() &&
                        once.compare(once.size() - tail.size(), tail.size(), tail) == 0,
                    "bytes after the rewritten head are unchanged");
    }
  } catch (const RunTimeError&) {
  } catch (const file_io::FileError&) {
  }
  return 0;
}
