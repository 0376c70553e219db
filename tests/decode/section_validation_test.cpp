#include "decode/section_validation.h"

#include <gtest/gtest.h>

#include <sstream>

#include "decode/decoder.h"
#include "decode_fixture.h"
#include "document/document_cache.h"
#include "test_files.h"

namespace zentrel::decode {
namespace {

using testing::DecodeState;

std::string Validate(DecodeState& d, const std::string& page) {
  d.Put(page);
  HTML_ReScan_Document(d.s);
  return HTML_VALIDATE_Document_Sections(d.s);
}

// Each test page fails exactly the check its line names; the sane page passes.
TEST(HTML_VALIDATE_Document_Sections, TestPagesGiveTheirMessages) {
  DecodeState d;
  std::istringstream lines(testing::ReadTestData("decode_invalid_messages.txt") +
                           "decode_valid.html: ");
  std::string line;
  int pages = 0;
  while (std::getline(lines, line)) {
    if (!line.empty() && line.back() == '\r')
      line.pop_back();
    const size_t colon = line.find(": ");
    ASSERT_NE(colon, std::string::npos) << line;
    SCOPED_TRACE(line);
    EXPECT_EQ(Validate(d, testing::ReadTestData(line.substr(0, colon))), line.substr(colon + 2));
    ++pages;
  }
  EXPECT_EQ(pages, 18);
}

TEST(HTML_VALIDATE_Document_Sections, FirstFailingCheckWinsAndComparisonsAreStrict) {
  DecodeState d;
  // Both order faults: the head one comes first, with its crossed message.
  EXPECT_EQ(Validate(d, "<html></head><head></body><body></html>"),
            "Closing </BODY> TAG is BEFORE the opening <BODY> tag");
  // A body that starts right where the head closes is fine.
  AppState& s = d.s;
  s.HtmlStart = 0, s.HeadStart = 6, s.HeadEnd = 20, s.BodyStart = 20, s.BodyEnd = 40,
  s.HtmlEnd = 50;
  EXPECT_EQ(HTML_VALIDATE_Document_Sections(s), "");
  // No page can reach the last check (its positions would have to coincide).
  s.HeadStart = s.BodyStart = 10;
  s.HeadEnd = 30;
  EXPECT_EQ(HTML_VALIDATE_Document_Sections(s),
            "HEAD Tag </HEAD> NOT allowed Between <BODY> & </BODY> tags");
}

}  // namespace
}  // namespace zentrel::decode
