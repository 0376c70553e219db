#include "commands/edit_page.h"

#include <string>

#include "base/run_time_error.h"
#include "base/text.h"
#include "document/document_cache.h"
#include "state/app_state.h"

namespace zentrel::commands {

int32_t HtmlEdit_Search_For_String(AppState& s, int32_t start) {
  // With "Match Case" off both sides are lower-cased, so a change of letter case alone is not
  // a new search text.
  const bool matchCase = s.Form.EditHtml_SearchCaseFlag != 0;
  std::string folded;
  if (matchCase) {
    s.EditorFindPreviousText = s.EditorFindText;
    s.EditorFindText = s.Form.Html_Document_Editor_SearchText;
  } else {
    s.EditorFindPreviousText = text::LCase(s.EditorFindText);
    s.EditorFindText = text::LCase(s.Form.Html_Document_Editor_SearchText);
    folded = text::LCase(s.DocumentText);
  }
  const std::string& haystack = matchCase ? s.DocumentText : folded;
  const std::string& needle = s.EditorFindText;
  if (needle.empty()) {
    s.Form.StatusBar_Text = "Type the text to search for";
    return 0;
  }

  if (needle != s.EditorFindPreviousText)
    start = 1;
  if (start < 1 || static_cast<size_t>(start) > haystack.size())
    start = 1;

  auto find_from = [&](int32_t from) -> int32_t {
    size_t at = haystack.find(needle, static_cast<size_t>(from - 1));
    return at == std::string::npos ? 0 : ToInt32(static_cast<int64_t>(at) + 1);
  };
  auto select = [&](int32_t p) {
    s.Form.Html_Document_Editor_SelStart = p - 1;
    s.Form.Html_Document_Editor_SelLength = ToInt32(static_cast<int64_t>(needle.size()));
  };
  auto caret_at_top = [&] {
    s.Form.Html_Document_Editor_SelStart = 0;
    s.Form.Html_Document_Editor_SelLength = 0;
  };

  int32_t p = find_from(start);
  if (p >= 1) {
    select(p);
  } else if (start == 1) {
    caret_at_top();
    s.Form.StatusBar_Text = "\"" + s.Form.Html_Document_Editor_SearchText + "\" not found";
  } else {
    // Past the last occurrence: wrap to the top.
    p = find_from(1);
    s.Form.StatusBar_Text = "Search went on from the top";
    if (p >= 1)
      select(p);
    else
      caret_at_top();  // the page lost every occurrence since the last click
  }
  return p + 1;
}

void Html_Document_Editor_Find_Click(AppState& s) {
  s.DocumentLength = document::Reload_File_From_Memory_TO_Cache(s);
  s.EditorFindPosition = HtmlEdit_Search_For_String(s, 1);
}

void Html_Document_Editor_DOFindNext_Click(AppState& s) {
  s.DocumentLength = document::Reload_File_From_Memory_TO_Cache(s);
  s.EditorFindPosition = HtmlEdit_Search_For_String(s, s.EditorFindPosition);
}

}  // namespace zentrel::commands
