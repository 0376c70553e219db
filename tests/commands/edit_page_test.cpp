// "Find First" and "Find Next" on the "Edit Page" tab.

#include "commands/edit_page.h"

#include <gtest/gtest.h>

#include "commands/control_table.h"
#include "fake_platform.h"
#include "state/app_state.h"

namespace zentrel::commands {
namespace {

// One click of a search button and the selection it leaves as "start/length". A step may
// first edit the page or turn "Match Case" on.
struct Step {
  bool next;
  std::string search, selection, page = "";
  int16_t matchCase = 0;
};

// Every page is typed into the editor only: each click must search the text as edited.
void Search(const std::string& name, const std::string& page, const std::vector<Step>& steps) {
  testing::FakePlatform platform;
  AppState s(platform);
  s.Form.Html_Document_Editor = page;
  int n = 0;
  for (const Step& step : steps) {
    SCOPED_TRACE(name + " step " + std::to_string(++n));
    if (!step.page.empty())
      s.Form.Html_Document_Editor = step.page;
    s.Form.EditHtml_SearchCaseFlag = step.matchCase;
    s.Form.Html_Document_Editor_SearchText = step.search;
    ASSERT_TRUE(
        Dispatch(s, step.next ? "Html_Document_Editor_DOFindNext" : "Html_Document_Editor_Find"));
    EXPECT_EQ(std::to_string(s.Form.Html_Document_Editor_SelStart) + "/" +
                  std::to_string(s.Form.Html_Document_Editor_SelLength),
              step.selection);
    EXPECT_EQ(s.DocumentLength, static_cast<int32_t>(s.Form.Html_Document_Editor.size()));
  }
}

TEST(HtmlEdit_Search_For_String, FindFirstAndFindNext) {
  // Without "Match Case" a change of case only is the same search and goes on.
  Search("case", "<html><title>Tools</title>",
         {{false, "TITLE", "7/5"},
          {true, "Title", "20/5"},
          {false, "TITLE", "0/0", "", 1},  // not found: caret at the top
          {false, "Tools", "13/5", "", 1}});
  Search("wrap", "ab ab ab b",
         {{false, "ab", "0/2"},
          {true, "ab", "3/2"},
          {true, "ab", "6/2"},
          {true, "ab", "0/2"},
          {true, "b", "1/1"}});  // a new text starts at the top
  Search("overlap", "aaa", {{false, "aa", "0/2"}, {true, "aa", "1/2"}, {true, "aa", "0/2"}});
  Search("empty", "one two one",
         {{false, "one", "0/3"},
          {true, "one", "8/3"},
          {true, "", "8/3"},       // nothing changes
          {true, "one", "0/3"}});  // and the next search starts again
  // A page that lost the text since the last click never gives a negative selection.
  Search("lost", "xx needle yy",
         {{false, "needle", "3/6"}, {true, "needle", "0/0", "xx yy xx yy xx"}});
  Search("shorter", "xx needle yy", {{false, "needle", "3/6"}, {true, "needle", "0/6", "needle"}});
  Search("grown", "ab ab",
         {{false, "ab", "0/2"}, {true, "ab", "3/2"}, {true, "ab", "4/2", "xxxxab ab"}});
}

}  // namespace
}  // namespace zentrel::commands
