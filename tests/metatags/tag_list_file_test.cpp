#include "metatags/tag_list_file.h"

#include "base/run_time_error.h"
#include "commands/edit_meta_tags.h"
#include "started_program.h"

namespace zentrel::metatags {
namespace {

using commands::Apply_MetaTag_List_Text;
using commands::Load_MetaTagList;
using commands::Save_MetaTag_List;
using commands::Set_MetaTag_TextBox;
using testing::ReadFile;

struct Panel : testing::Started {
  std::string path = folder.File("set.tag");
  void Field(int16_t i, const std::string& text, int16_t marked) {
    Set_MetaTag_TextBox(s, i, text);
    s.Form.MetaTag_Selection_CheckBox[static_cast<size_t>(i)] = marked;
  }
  const std::string& Text(size_t i) const { return s.Form.MetaTag_TextBox[i]; }
};

TEST(Save_MetaTag_List, MarkedNonEmptyFieldsOneLineEachWithCommasEncoded) {
  Panel p;
  testing::WriteFile(p.path, "old contents\r\n");
  p.Field(0, " Title, with comma ", 1);
  p.Field(4, "   ", 1);      // marked but blank
  p.Field(6, "Someone", 0);  // not marked
  p.Field(10, "30 days", 1);
  p.platform.AnswerSave(p.path);
  Save_MetaTag_List(p.s);
  EXPECT_EQ(ReadFile(p.path), "pagetitle:Title&coma& with comma\r\nrevisit-after:30 days\r\n");
  EXPECT_EQ(p.platform.dialogs.at(0).Filter, "(*.tag)|*.tag|(*.*)|*.*|");

  // Back into the marked fields; the unmarked one keeps its text though the file names it.
  p.Field(0, "", 1);
  p.Field(6, "kept", 0);
  testing::WriteFile(p.path, ReadFile(p.path) + "author:x\r\n");
  p.platform.AnswerOpen(p.path);
  Load_MetaTagList(p.s);
  EXPECT_EQ(p.Text(0), "Title, with comma");
  EXPECT_EQ(p.Text(6), "kept");
}

// CR-only line ends among the others.
TEST(Apply_MetaTag_List_Text, SkipsUnknownNamesAndLeavesUnnamedFields) {
  Panel p;
  p.Field(1, "old", 1);
  p.Field(2, "kept abstract", 1);  // marked, not named
  p.Field(3, "", 1);
  Apply_MetaTag_List_Text(p.s,
                          "description:a&coma& b\rbogus:1\r\nnocolon\rKeywords:upper\r\n"
                          "keywords:k\n");
  EXPECT_EQ(p.Text(1), "a, b");
  EXPECT_EQ(p.Text(2), "kept abstract");
  EXPECT_EQ(p.Text(3), "k");

  // A missing file or a cancelled dialog changes nothing.
  p.platform.AnswerOpen(p.folder.File("missing.tag"));
  Load_MetaTagList(p.s);
  p.platform.CancelDialog();
  Load_MetaTagList(p.s);
  EXPECT_EQ(p.Text(1), "a, b");

  // "zentrel" has no field, so there is no mark to look at.
  EXPECT_THROW(Apply_MetaTag_List_Text(p.s, "zentrel:x\r\n"), RunTimeError);
}

}  // namespace
}  // namespace zentrel::metatags
