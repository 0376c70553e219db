// Arbitrary page text and search strings through "Find First" and "Find Next": the selection
// always lies inside the text.

#include "base/run_time_error.h"
#include "commands/edit_page.h"
#include "fuzz_session.h"

using namespace zentrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input in(data, size);
  AppState& s = fuzz::Started_State();
  s.Form.EditHtml_SearchCaseFlag = in.Byte() & 1;
  std::string needles[3] = {in.Piece(8), in.Piece(8), in.Piece(8)};
  fuzz::Put_Page(s, in.Rest());
  for (int round = 0; round < 6; ++round) {
    s.Form.Html_Document_Editor_SearchText = needles[round % 3];
    if (round == 0) {
      commands::Html_Document_Editor_Find_Click(s);
    } else {
      commands::Html_Document_Editor_DOFindNext_Click(s);
    }
    const auto start = s.Form.Html_Document_Editor_SelStart;
    const auto length = s.Form.Html_Document_Editor_SelLength;
    fuzz::Require(start >= 0 && length >= 0 &&
                      static_cast<size_t>(start) + static_cast<size_t>(length) <=
                          s.Form.Html_Document_Editor.size(),
                  "the selection lies inside the text");
  }
  return 0;
}
