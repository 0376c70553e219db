#include "document/tag_scanner.h"

#include "base/run_time_error.h"
#include "started_program.h"

namespace zentrel::document {
namespace {

struct Scanner : testing::Started {
  explicit Scanner(const std::string& page) {
    Put(page);
    s.ScanEndPosition = s.DocumentLength - 1;
  }
};

TEST(Scan_Tag_List, MatchesWholeOpeningTextsIgnoringCase) {
  Scanner t("");
  const std::pair<const char*, int16_t> kinds[] = {{"<META", 1}, {"<Script", 2}, {"<scripts", 0},
                                                   {"<A", 2},    {"<abbr", 0},   {"<?PHP", 2}};
  for (const auto& [tag, kind] : kinds)
    EXPECT_EQ(Scan_Tag_List(t.s, tag), kind) << tag;
  for (int i = t.s.TagListCount; i <= 500; ++i)
    Add_Tag_Ignore(t.s, "<x", 3);
  EXPECT_THROW(Add_Tag_Ignore(t.s, "<y", 1), RunTimeError);
}

TEST(Find_Close_Of_This_Html_Tag, QuotesShieldTheTagEndOnlyHere) {
  const std::string page = "<meta content=\"a>b\" name=\"x\">text";
  Scanner t(page);
  EXPECT_EQ(Get_This_MetaTags_Variables(t.s, "<meta"), " content=\"a");
  Find_Close_Of_This_Html_Tag(t.s, "<meta");
  EXPECT_EQ(t.s.ScanPosition, static_cast<int32_t>(page.find("text")));

  Scanner u("<p class=\"x>");
  Find_Close_Of_This_Html_Tag(u.s, "<p");
  EXPECT_EQ(u.s.ScanPosition, u.s.ScanEndPosition + 1);
}

TEST(Find_Closing_Html_Tag, MatchesCaseInsensitivelyButStrictly) {
  Scanner t("<Script>x</Script >y</SCRIPT>z");
  EXPECT_EQ(Find_Closing_Html_Tag(t.s, "<Script"), 20);  // not the one with a space
  EXPECT_EQ(t.s.ScanPosition, 29);
  Scanner last("<script>x</script>");  // ends on the last byte
  EXPECT_EQ(Find_Closing_Html_Tag(last.s, "<script"), -1);
  Scanner php("<?php x ?> </?php>.");
  EXPECT_EQ(Find_Closing_Html_Tag(php.s, "<?php"), 11);
}

// Remembered searches must give what a fresh search gives, for every start in a walk.
TEST(Find_Closing_Html_Tag, RememberedSearchesAgreeWithFreshOnes) {
  const std::string page =
      "<a>1</a> <a <script> </a><title>t</title> </A> <a> x </script> <a> tail  ";
  Scanner fresh(page), memo(page);
  const ClosingTagMemoScope scope(memo.s);
  for (const std::string open : {"<a", "<script", "<title"}) {
    for (int32_t p = 0; p < fresh.s.DocumentLength; ++p) {
      fresh.s.ScanPosition = memo.s.ScanPosition = p;
      ASSERT_EQ(Find_Closing_Html_Tag(memo.s, open), Find_Closing_Html_Tag(fresh.s, open))
          << open << " from " << p;
      ASSERT_EQ(memo.s.ScanPosition, fresh.s.ScanPosition);
    }
  }
}

}  // namespace
}  // namespace zentrel::document
