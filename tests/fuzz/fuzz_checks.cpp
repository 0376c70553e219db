// Arbitrary bytes checked as a page by lint's checks. The properties: findings stand in page
// order, on lines the page has and at columns from 1; every text is valid UTF-8; a measured
// text's length is its number of characters.

#include "base/codec.h"
#include "checks/page_checks.h"
#include "fuzz_session.h"

using namespace zentrel;

namespace {

int64_t Lines(const std::string& page) {
  int64_t lines = 1;
  for (size_t i = 0; i < page.size(); ++i) {
    if (page[i] == '\n' || (page[i] == '\r' && (i + 1 == page.size() || page[i + 1] != '\n')))
      ++lines;
  }
  return lines;
}

void Check_Text(const std::optional<checks::LocatedText>& text) {
  if (!text)
    return;
  fuzz::Require(codec::IsValidUtf8(text->measured.text), "measured text is UTF-8");
  fuzz::Require(
      static_cast<int64_t>(codec::ToCodePoints(text->measured.text, codec::Codec::Utf8).size()) ==
          text->measured.chars,
      "length counts characters");
  fuzz::Require(text->measured.pixels >= 0, "width is not negative");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const checks::Profile profile = checks::DefaultProfile();
  const std::string page(reinterpret_cast<const char*>(data), size);
  const checks::PageCheck check = checks::CheckPage(page, profile);
  const int64_t lines = Lines(page);
  checks::Position last{1, 1};
  for (const checks::Finding& f : check.findings) {
    fuzz::Require(f.at.line >= 1 && f.at.line <= lines && f.at.column >= 1,
                  "finding on a line of the page");
    fuzz::Require(f.at.line > last.line || (f.at.line == last.line && f.at.column >= last.column),
                  "findings in page order");
    fuzz::Require(codec::IsValidUtf8(f.message), "message is UTF-8");
    last = f.at;
  }
  Check_Text(check.title);
  Check_Text(check.description);
  return 0;
}
