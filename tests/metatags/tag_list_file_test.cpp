#include "metatags/tag_list_file.h"

#include <gtest/gtest.h>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "decode/meta_tag_table.h"
#include "fake_platform.h"
#include "metatags/meta_tag_panel.h"
#include "test_files.h"

namespace zentrel::metatags {
namespace {

using testing::ReadFile;

struct Panel {
  Panel() : platform(folder.path().string()), s(platform) { decode::Init_MetaTag_Table(s); }
  void Field(int16_t i, const std::string& text, int16_t marked) {
    Set_MetaTag_TextBox(s, i, text);
    s.Form.MetaTag_Selection_CheckBox[static_cast<size_t>(i)] = marked;
  }
  testing::TempFolder folder;
  testing::FakePlatform platform;
  AppState s;
};

TEST(MetaTag_List_Text, MarkedNonEmptyFieldsWithCommasEncoded) {
  Panel p;
  p.Field(1, " A page, described ", 1);
  p.Field(3, "meta, tags", 1);
  p.Field(4, "   ", 1);      // marked but blank
  p.Field(6, "Someone", 0);  // not marked
  p.Field(10, " x ", 1);
  EXPECT_EQ(MetaTag_List_Text(p.s),
            "description:A page&coma& described\r\nkeywords:meta&coma& tags\r\n"
            "revisit-after:x\r\n");
}

TEST(Save_MetaTag_List, WritesThroughTheDialogAndNothingMarkedEmptiesTheFile) {
  Panel p;
  std::string path = p.folder.File("set.tag");
  testing::WriteFile(path, "old contents\r\n");
  p.Field(7, "(c) me", 1);
  p.platform.AnswerSave(path);
  Save_MetaTag_List(p.s);
  EXPECT_EQ(ReadFile(path), "copyright:(c) me\r\n");
  ASSERT_EQ(p.platform.dialogs.size(), 1u);
  EXPECT_EQ(p.platform.dialogs[0].FileName, "");
  EXPECT_EQ(p.platform.dialogs[0].Filter, "(*.tag)|*.tag|(*.*)|*.*|");

  p.s.Form.MetaTag_Selection_CheckBox[7] = 0;
  p.platform.AnswerSave(path);
  Save_MetaTag_List(p.s);
  EXPECT_EQ(ReadFile(path), "");

  p.platform.CancelDialog();
  Save_MetaTag_List(p.s);  // nothing to write to
}

TEST(Load_MetaTagList, OnlyMarkedFieldsTakeValuesAndUnknownNamesAreSkipped) {
  Panel p;
  std::string path = p.folder.File("set.tag");
  testing::WriteFile(path,
                     "description:a&coma& b\r\nauthor:Me\r\nbogus:1\r\nnocolon\r\n"
                     "Keywords:upper\r\nkeywords:k\n");
  p.Field(1, "old description", 1);
  p.Field(2, "kept abstract", 1);  // marked, not named by the file
  p.Field(3, "", 1);
  p.Field(6, "kept author", 0);  // named, not marked
  p.platform.AnswerOpen(path);
  Load_MetaTagList(p.s);
  EXPECT_EQ(p.s.Form.MetaTag_TextBox[1], "a, b");
  EXPECT_EQ(p.s.Form.MetaTag_TextBox[2], "kept abstract");
  EXPECT_EQ(p.s.Form.MetaTag_TextBox[3], "k");
  EXPECT_EQ(p.s.Form.MetaTag_TextBox[6], "kept author");

  p.platform.AnswerOpen(p.folder.File("missing.tag"));
  Load_MetaTagList(p.s);
  p.platform.CancelDialog();
  Load_MetaTagList(p.s);
  EXPECT_EQ(p.s.Form.MetaTag_TextBox[1], "a, b");
}

TEST(Load_MetaTagList, RoundTripsEveryMarkedField) {
  Panel p;
  const char* values[] = {
      "Title, with comma", "d",       "a",      "k1, k2, k3", "g", "p", "au", "c", "general",
      "index,follow",      "30 days", "global", "1 May 2020"};
  for (int16_t i = 0; i < 13; ++i)
    p.Field(i, values[i], 1);
  std::string text = MetaTag_List_Text(p.s);
  for (int16_t i = 0; i < 13; ++i)
    p.Field(i, "", 1);
  Apply_MetaTag_List_Text(p.s, text);
  for (size_t i = 0; i < 13; ++i)
    EXPECT_EQ(p.s.Form.MetaTag_TextBox[i], values[i]) << i;
}

TEST(Apply_MetaTag_List_Text, AFieldlessNameIsARunTimeError) {
  Panel p;
  try {
    Apply_MetaTag_List_Text(p.s, "zentrel:x\r\n");
    ADD_FAILURE() << "no run-time error";
  } catch (const RunTimeError& e) {
    EXPECT_EQ(e.Code(), 9);
  }
}

}  // namespace
}  // namespace zentrel::metatags
