// Hostile inputs, each loaded through the window's own "Load Page" command with the scripted
// platform: every page ends in a report (or, empty, in nothing), and a good page loads normally
// right after each. The counts' limits (1001 repeats, 32768 words, 1002 keywords) are tested
// where they are raised, paths that are no page in the loading tests; times are measured in
// the benchmarks.

#include "heavy_inputs.h"
#include "started_program.h"

namespace zentrel {
namespace {

using namespace std::string_literals;
using bench::Repeat;

std::string Wrap(const std::string& body) {
  return "<html><head><title>Test </title></head><body>" + body + "</body></html>";
}

constexpr size_t k4M = 4 << 20;

struct Hostile : testing::Started {
  // Loads the page from a file and expects a report, or nothing for an empty file, without a
  // message; then a good page.
  void Expect_Report(const std::string& page) {
    platform.messages.clear();
    s.Form.ReportTextBox.clear();
    Load(Write("hostile.html", page));
    EXPECT_TRUE(platform.messages.empty()) << platform.messages.front();
    EXPECT_EQ(s.Form.ReportTextBox.find("Process Done") != std::string::npos, !page.empty());
    Expect_Good_Page_Still_Analyses();
  }
  void Expect_Good_Page_Still_Analyses() {
    platform.messages.clear();
    Load(Write("good.html", Wrap("good words and more good words")));
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_NE(s.Form.ScanKeyWords_DocumentWordCount_TextBox.find(" 2 - good"), std::string::npos);
  }
};

// Pages that would take quadratic time or deep recursion if handled naively, broken markup at
// the page's end, and bytes that are no HTML at all (arbitrary bytes are the fuzzers' part).
TEST(Hostile, EveryPageEndsInAReport) {
  const std::pair<const char*, std::string> pages[] = {
      {"four megabytes of <", std::string(k4M, '<')},
      {"100000 nested divs", Wrap(Repeat("<div>", 100000) + "deep words")},
      {"unterminated comment", Wrap("<!-- never closed " + Repeat("x ", 1000))},
      {"unterminated title", "<html><head><title>Never closed"},
      {"tag start last", Wrap("fish and chips") + "<"},
      {"a four megabyte word", Wrap(std::string(k4M, 'w'))},
      {"10000 META tags", Wrap(Repeat("<meta name=\"keywords\" content=\"alpha, beta\">", 10000))},
      {"1 MB title", "<html><head><title>" + Repeat("t", 1 << 20) + "</title></head></html>"},
      {"empty", ""},
      {"PNG", "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x10"s + Repeat("\x7f<\x01>", 4000)},
      {"100000 unclosed scripts", Wrap(Repeat("<script>", 100000))},
      {"100000 unclosed ALT quotes", Wrap(Repeat("<img alt=\"x>", 100000))},
      {"4 MB of entities", Wrap(Repeat("&nbsp;", k4M / 6))},
  };
  Hostile h;
  for (const auto& [name, page] : pages) {
    SCOPED_TRACE(name);
    h.Expect_Report(page);
  }
}

// Near-miss keywords, 1001 keywords on big pages in both scans, long phrases, a keyword
// repeated 1001 times with duplicates kept and a 4 MB preferences line, each with its
// preferences: every one ends in a report. bench/heavy.sh measures their time and memory.
TEST(Hostile, HeavyInputsEndInAReport) {
  for (const bench::Heavy_Input& input : bench::Heavy_Inputs()) {
    SCOPED_TRACE(input.name);
    testing::ShellProgramFolder folder;
    testing::WriteFile(folder.File("Zentrel_Pref.txt"), input.prefs());
    testing::FakePlatform platform(folder.Path());
    AppState s(platform);
    commands::Form_Load(s);
    testing::WriteFile(folder.File("heavy.html"), input.page());
    platform.AnswerOpen(folder.File("heavy.html"));
    commands::Dispatch(s, "Command1");
    EXPECT_TRUE(platform.messages.empty()) << platform.messages.front();
    EXPECT_NE(s.Form.ReportTextBox.find("Process Done"), std::string::npos);
  }
}

}  // namespace
}  // namespace zentrel
