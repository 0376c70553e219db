// "Find First" and "Find Next" on the "Edit Page" tab.

#include "app/source_search.h"

#include <gtest/gtest.h>

#include "app/app_state.h"
#include "app/control_table.h"
#include "fake_platform.h"

namespace zentrel::app {
namespace {

using testing::FakePlatform;

struct Editor {
  FakePlatform platform;
  AppState s{platform};

  explicit Editor(const std::string& page) { Show(page); }
  // The page as loaded: the editor shows the same text as the cache.
  void Show(const std::string& page) {
    s.DocumentText = page;
    s.DocumentBytes.assign(page.begin(), page.end());
    s.DocumentBytes.push_back(0);
    s.DocumentLength = static_cast<int32_t>(page.size());
    s.Form.Html_Document_Editor = page;
  }
  // Runs a button; returns the selection as "start/length".
  std::string Click(const char* button, const std::string& search) {
    s.Form.Html_Document_Editor_SearchText = search;
    EXPECT_TRUE(Dispatch(s, button));
    return std::to_string(s.Form.Html_Document_Editor_SelStart) + "/" +
           std::to_string(s.Form.Html_Document_Editor_SelLength);
  }
  std::string First(const std::string& search) {
    return Click("Html_Document_Editor_Find", search);
  }
  std::string Next(const std::string& search) {
    return Click("Html_Document_Editor_DOFindNext", search);
  }
};

TEST(HtmlEdit_Search_For_String, MatchCaseDecidesWhetherLetterCaseCounts) {
  Editor e("<html><title>Tools</title>");
  EXPECT_EQ(e.First("TITLE"), "7/5");
  EXPECT_EQ(e.s.EditorFindPosition, 9);  // one past the 1-based match
  EXPECT_EQ(e.s.EditorFindText, "title");
  // Changing only the case with "Match Case" off is the same search: it goes on.
  EXPECT_EQ(e.Next("Title"), "20/5");

  e.s.Form.EditHtml_SearchCaseFlag = 1;
  EXPECT_EQ(e.First("TITLE"), "0/0");  // not found: caret at the top
  EXPECT_EQ(e.s.EditorFindPosition, 1);
  EXPECT_EQ(e.First("Tools"), "13/5");
}

TEST(HtmlEdit_Search_For_String, FindNextWrapsAndANewTextStartsAtTheTop) {
  Editor e("ab ab ab b");
  EXPECT_EQ(e.First("ab"), "0/2");
  EXPECT_EQ(e.Next("ab"), "3/2");
  EXPECT_EQ(e.Next("ab"), "6/2");
  EXPECT_EQ(e.Next("ab"), "0/2");  // wrapped
  EXPECT_EQ(e.Next("ab"), "3/2");
  EXPECT_EQ(e.Next("b"), "1/1");  // a new text: from the top, not from position 4
}

TEST(HtmlEdit_Search_For_String, OverlappingOccurrencesAreEachFound) {
  Editor e("aaa");
  EXPECT_EQ(e.First("aa"), "0/2");
  EXPECT_EQ(e.Next("aa"), "1/2");
  EXPECT_EQ(e.Next("aa"), "0/2");
}

TEST(HtmlEdit_Search_For_String, EmptySearchTextChangesNothingAndRestarts) {
  Editor e("one two one");
  EXPECT_EQ(e.First("one"), "0/3");
  EXPECT_EQ(e.Next("one"), "8/3");
  EXPECT_EQ(e.Next(""), "8/3");
  EXPECT_EQ(e.s.EditorFindPosition, 0);
  EXPECT_EQ(e.Next("one"), "0/3");  // behaves as a first search
}

TEST(HtmlEdit_Search_For_String, APageThatLostTheTextNeverGivesANegativeSelection) {
  Editor e("xx needle yy");
  EXPECT_EQ(e.First("needle"), "3/6");
  e.Show("xx yy xx yy xx");  // edited since the last click
  EXPECT_EQ(e.Next("needle"), "0/0");
  EXPECT_EQ(e.s.EditorFindPosition, 1);
  // A stored start past the end of a shorter page restarts at the top.
  e.Show("needle");
  e.s.EditorFindPosition = 50;
  EXPECT_EQ(e.Next("needle"), "0/6");
}

TEST(Html_Document_Editor_Find_Click, SearchesTheTextAsEdited) {
  Editor e("<p>old</p>");
  e.s.Form.Html_Document_Editor = "<p>new</p>";
  EXPECT_EQ(e.First("new"), "3/3");
  EXPECT_EQ(e.s.DocumentText, "<p>new</p>");
}

}  // namespace
}  // namespace zentrel::app
