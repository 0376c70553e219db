#include "metatags/head_diff.h"

#include <gtest/gtest.h>

#include <random>

#include "base/codec.h"

namespace zentrel::metatags {
namespace {

std::vector<std::string> Lines_Of(const std::string& text) {
  std::vector<std::string> lines;
  size_t from = 0;
  while (from < text.size()) {
    const size_t end = text.find('\n', from);
    lines.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return lines;
}

// Applies the hunks of `diff` to the lines of `before` (pages of "\n"-ended lines).
std::string Apply(const std::string& before, const std::string& diff) {
  const std::vector<std::string> a = Lines_Of(before);
  std::string result;
  size_t next = 0;  // the first line of a not yet copied
  for (const std::string& line : Lines_Of(diff)) {
    if (line.starts_with("@@ -")) {
      size_t start = std::stoul(line.substr(4));
      size_t count = std::stoul(line.substr(line.find(',') + 1));
      size_t first = count == 0 ? start : start - 1;
      for (; next < first; ++next)
        result += a.at(next) + "\n";
      next = first + count;
    } else if (line.starts_with("+")) {
      result += line.substr(1) + "\n";
    }
  }
  for (; next < a.size(); ++next)
    result += a.at(next) + "\n";
  return result;
}

TEST(Diff_Pages, HunksCarryLineNumbersAndLongLinesAreCutWhole) {
  EXPECT_EQ(Diff_Pages("a\r\nb\n", "a\r\nb\n").Text, "");
  EXPECT_EQ(Diff_Pages("a\nb\nc\nd\n", "a\nB\r\nc\nd\nE").Text,
            "@@ -2,1 +2,1 @@\n-b\n+B\n@@ -4,0 +5,1 @@\n+E\n");
  std::string wide;
  for (int i = 0; i < 300; ++i)
    wide += "\xc3\xa9";  // é, two bytes
  const std::string shown = Diff_Pages("x\n", wide + "\n").Text;
  ASSERT_TRUE(shown.ends_with("...\n"));
  EXPECT_LE(shown.size(), std::string("@@ -1,1 +1,1 @@\n-x\n+...\n").size() + kShownLineBytes);
  EXPECT_TRUE(codec::IsValidUtf8(shown));
}

// The hunks turn the old page into the new one, for small pages of few distinct lines (many
// equal lines, the hard case for the search) and for one past the search's limit of edits.
TEST(Diff_Pages, TheHunksRebuildTheNewPage) {
  std::mt19937 random(7);
  auto page = [&random](int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i)
      text += std::string(1, static_cast<char>('x' + random() % 3)) + "\n";
    return text;
  };
  for (int round = 0; round < 400; ++round) {
    const std::string a = page(static_cast<int>(random() % 25));
    const std::string b = page(static_cast<int>(random() % 25));
    ASSERT_EQ(Apply(a, Diff_Pages(a, b).Text), b) << a << "->\n" << b;
  }
  std::string a, b;
  for (int i = 0; i < 3000; ++i) {
    a += "line " + std::to_string(i) + "\n";
    b += (i % 2 == 0 ? "changed " : "line ") + std::to_string(i) + "\n";
  }
  EXPECT_EQ(Apply(a, Diff_Pages(a, b).Text), b);
}

TEST(Diff_Pages, NamesTheTagsThatNoAddedLineHas) {
  const std::string before =
      "<head>\n<title>Old</title>\n<meta name=\"Keywords\" content=\"a\">\n"
      "<META NAME=description content=\"b\">\n<meta http-equiv='refresh' content=5>\n"
      "<meta charset=\"utf-8\">\n</head>\n";
  const std::string after =
      "<head><TITLE>New</TITLE>\n<META content=\"c\" name=\"description\">\n\n\n\n\n"
      "<meta charset=\"utf-8\">\n</head>\n";
  const HeadDiff diff = Diff_Pages(before, after);
  EXPECT_EQ(diff.Vanishing, (std::vector<std::string>{"META keywords", "META refresh"}));
  EXPECT_TRUE(diff.Text.ends_with("! META keywords disappears\n! META refresh disappears\n"));
}

}  // namespace
}  // namespace zentrel::metatags
