// Hostile inputs, each loaded through the window's own "Load Page" command with the scripted
// platform: every case ends in its expected outcome (a report, the system's run-time error,
// a clear file message, or nothing for a file the system ignores), and a good page loads
// normally right after it. Times are printed for the record; they are measured in the
// benchmarks, not asserted here.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>
#include <optional>

#include "commands/control_table.h"
#include "commands/preferences.h"
#include "commands/startup.h"
#include "fake_platform.h"
#include "heavy_inputs.h"
#include "state/app_state.h"
#include "test_files.h"

namespace zentrel {

namespace fs = std::filesystem;
using namespace std::string_literals;
using bench::Repeat;
using testing::FakePlatform;
using testing::TempFolder;
using testing::WriteFile;

namespace {

enum class Outcome { Report, Overflow, Subscript, FileMessage, Nothing };
constexpr const char* kOutcomeNames[] = {"report", "run-time error 6", "run-time error 9",
                                         "file message", "nothing"};

struct Case {
  const char* name;
  std::function<std::string()> page;  // bytes of the page file
  Outcome outcome;
};

std::string Wrap(const std::string& body) {
  return "<html><head><title>Test </title></head><body>" + body + "</body></html>";
}

std::string Distinct_Words(int count) {
  std::string body;
  for (int i = 0; i < count; ++i) {
    std::string w;
    for (int n = i + 26 * 26; n > 0; n /= 26)
      w += static_cast<char>('a' + n % 26);
    body += w + " ";
  }
  return Wrap(body);
}

constexpr size_t k4M = 4 << 20;

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"four megabytes of <", [] { return std::string(k4M, '<'); }, Outcome::Report},
      {"100000 nested divs", [] { return Wrap(Repeat("<div>", 100000) + "deep words"); },
       Outcome::Report},
      {"unterminated comment", [] { return Wrap("<!-- never closed " + Repeat("x ", 1000)); },
       Outcome::Report},
      {"unterminated script", [] { return Wrap("<script> var a = 1; " + Repeat("b ", 1000)); },
       Outcome::Report},
      {"unterminated title", [] { return "<html><head><title>Never closed"; }, Outcome::Report},
      {"unterminated attribute quote", [] { return Wrap("<a href=\"x>text<p class=\"y>more"); },
       Outcome::Report},
      {"closing script split in a string",
       [] { return Wrap("<script>var s = \"</scr\" + \"ipt>\";</script>after words"); },
       Outcome::Report},
      {"ampersand as the last byte", [] { return Wrap("fish and chips") + "&"; }, Outcome::Report},
      {"tag start as the last byte", [] { return Wrap("fish and chips") + "<"; }, Outcome::Report},
      {"a four megabyte single word", [] { return Wrap(std::string(k4M, 'w')); }, Outcome::Report},
      {"one word 500000 times", [] { return Wrap(Repeat("widget ", 500000)); }, Outcome::Overflow},
      {"one word 1001 times", [] { return Wrap(Repeat("widget ", 1001)); }, Outcome::Subscript},
      {"one word 1000 times", [] { return Wrap(Repeat("widget ", 1000)); }, Outcome::Report},
      {"40000 distinct words", [] { return Distinct_Words(40000); }, Outcome::Overflow},
      {"32767 distinct words", [] { return Distinct_Words(32767); }, Outcome::Report},
      {"NUL bytes", [] { return Wrap("a\0b\0c words\0"s); }, Outcome::Report},
      {"invalid UTF-8", [] { return Wrap("caf\xC3 \xFF\xFE words \xE2\x82"); }, Outcome::Report},
      {"UTF-16 with a byte order mark",
       [] {
         std::string s = "\xFF\xFE";
         for (char c : Wrap("hello world"))
           s += std::string(1, c) + '\0';
         return s;
       },
       Outcome::Report},
      {"CR-only line ends", [] { return Wrap("one\rtwo\rthree\r"); }, Outcome::Report},
      {"mixed line ends", [] { return Wrap("one\r\ntwo\nthree\rfour\n\r"); }, Outcome::Report},
      {"no html, head or body", [] { return std::string("just some words here"); },
       Outcome::Report},
      {"two heads", [] { return "<html><head></head><head></head><body>x</body></html>"; },
       Outcome::Report},
      {"two titles", [] { return "<html><head><title>a</title><title>b</title></head></html>"; },
       Outcome::Report},
      {"two bodies", [] { return "<html><body>one</body><body>two</body></html>"; },
       Outcome::Report},
      {"10000 META tags",
       [] { return Wrap(Repeat("<meta name=\"keywords\" content=\"alpha, beta\">\r\n", 10000)); },
       Outcome::Report},
      {"a one megabyte META content",
       [] { return Wrap("<meta name=\"description\" content=\"" + Repeat("d", 1 << 20) + "\">"); },
       Outcome::Report},
      {"a one megabyte title",
       [] { return "<html><head><title>" + Repeat("t", 1 << 20) + "</title></head></html>"; },
       Outcome::Report},
      {"a keywords value with 2000 commas",
       [] { return Wrap("<meta name=\"keywords\" content=\"" + Repeat("k,", 2000) + "\">"); },
       Outcome::Subscript},
      {"21 keywords",
       [] { return Wrap("<meta name=\"keywords\" content=\"" + Repeat("kw, ", 21) + "\">"); },
       Outcome::Report},
      {"an empty file", [] { return std::string(); }, Outcome::Nothing},
      {"a one-byte file", [] { return std::string("x"); }, Outcome::Report},
      {"a PNG renamed .html",
       [] { return "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x10"s + Repeat("\x7f<\x01>", 4000); },
       Outcome::Report},
      {"a ZIP renamed .html",
       [] { return "PK\x03\x04\x14\0\0\0\x08\0"s + Repeat("\xc3>\x8b<\0", 4000); },
       Outcome::Report},
      {"100000 unclosed titles", [] { return Wrap(Repeat("<title>", 100000)); }, Outcome::Report},
      {"100000 unclosed scripts", [] { return Wrap(Repeat("<script>", 100000)); }, Outcome::Report},
      {"100000 images without a closing quote",
       [] { return Wrap(Repeat("<img alt=\"x>", 100000)); }, Outcome::Report},
      {"four megabytes of entities", [] { return Wrap(Repeat("&nbsp;", k4M / 6)); },
       Outcome::Report},
      {"white space only", [] { return std::string(k4M, ' '); }, Outcome::Report},
      {"a 100 MB file", [] { return Wrap(std::string(100u << 20, ' ') + "last words"); },
       Outcome::Report},
  };
  return cases;
}

void Expect_Outcome(const FakePlatform& p, const AppState& s, Outcome outcome) {
  auto only_message = [&](const std::string& text) {
    ASSERT_EQ(p.messages.size(), 1u);
    EXPECT_NE(p.messages[0].find(text), std::string::npos) << p.messages[0];
  };
  switch (outcome) {
    case Outcome::Report:
      EXPECT_TRUE(p.messages.empty()) << p.messages.front();
      EXPECT_NE(s.Form.ReportTextBox.find("Process Done"), std::string::npos);
      break;
    case Outcome::Overflow:
      only_message("Run-time error '6': Overflow");
      break;
    case Outcome::Subscript:
      only_message("Run-time error '9': Subscript out of range");
      break;
    case Outcome::FileMessage:
      only_message("Cannot read");
      break;
    case Outcome::Nothing:
      EXPECT_TRUE(p.messages.empty());
      EXPECT_EQ(s.Form.ReportTextBox, "");
      break;
  }
}

// A program folder of its own, with the standard dictionary, for each case.
class Hostile : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::copy(fs::current_path() / "dictionary", dir_.path() / "dictionary",
             fs::copy_options::recursive);
    state_.emplace(platform_);
    commands::Form_Load(*state_);
  }

  // "Load Page" through the window's command, answering the dialog with path.
  void Load(const std::string& path) {
    platform_.AnswerOpen(path);
    commands::Dispatch(*state_, "Command1");
  }

  // Loads the page from a file, prints how long it took, expects its outcome, and then
  // expects a good page to load normally.
  void Load_Timed(const char* name, const std::string& page, Outcome outcome) {
    std::string path = dir_.File("hostile.html");
    WriteFile(path, page);
    platform_.messages.clear();
    state_->Form.ReportTextBox.clear();
    auto start = std::chrono::steady_clock::now();
    Load(path);
    auto ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start);
    std::cout << "[ hostile  ] " << name << ": " << kOutcomeNames[static_cast<int>(outcome)] << ", "
              << ms.count() << " ms\n";
    Expect_Outcome(platform_, *state_, outcome);
    Expect_Good_Page_Still_Analyses();
  }

  void Expect_Good_Page_Still_Analyses() {
    WriteFile(dir_.File("good.html"),
              "<html><head><title>Shop </title></head><body>good words and more good words"
              "</body></html>");
    platform_.messages.clear();
    Load(dir_.File("good.html"));
    EXPECT_TRUE(platform_.messages.empty());
    EXPECT_NE(state_->Form.ReportTextBox.find("Process Done"), std::string::npos);
    EXPECT_NE(state_->Form.ScanKeyWords_DocumentWordCount_TextBox.find(" 2 - good"),
              std::string::npos);
  }

  TempFolder dir_;
  FakePlatform platform_{dir_.path().string()};
  std::optional<AppState> state_;
};

}  // namespace

TEST_F(Hostile, EveryPageEndsInItsDefinedOutcome) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE(c.name);
    Load_Timed(c.name, c.page(), c.outcome);
  }
}

// Near-miss keywords, 1001 keywords on big pages in both scans, long phrases, a keyword
// repeated 1001 times with duplicates kept and a 4 MB preferences line, each with its
// preferences: every one ends in a report. bench/heavy.sh measures their time and memory.
TEST_F(Hostile, HeavyInputsEndInAReport) {
  for (const bench::Heavy_Input& input : bench::Heavy_Inputs()) {
    SCOPED_TRACE(input.name);
    WriteFile(dir_.File("Zentrel_Pref.txt"), input.prefs());
    state_.emplace(platform_);
    commands::Form_Load(*state_);
    Load_Timed(input.name, input.page(), Outcome::Report);
  }
}

TEST_F(Hostile, PathsThatAreNotPagesGiveAMessageOrNothing) {
  fs::create_directory(dir_.File("folder.html"));
  Load(dir_.File("folder.html"));
  Expect_Outcome(platform_, *state_, Outcome::FileMessage);

  platform_.messages.clear();
  Load(dir_.File("missing.html"));
  Expect_Outcome(platform_, *state_, Outcome::Nothing);

  fs::create_symlink(dir_.File("loop-b"), dir_.File("loop-a"));
  fs::create_symlink(dir_.File("loop-a"), dir_.File("loop-b"));
  Load(dir_.File("loop-a"));
  Expect_Outcome(platform_, *state_, Outcome::Nothing);

  if (::geteuid() != 0) {
    WriteFile(dir_.File("locked.html"), "<html></html>");
    ::chmod(dir_.File("locked.html").c_str(), 0);
    Load(dir_.File("locked.html"));
    Expect_Outcome(platform_, *state_, Outcome::FileMessage);
  }
  Expect_Good_Page_Still_Analyses();
}

TEST_F(Hostile, PreferencesFilesNeverStopTheProgram) {
  std::string prefs = dir_.File("Zentrel_Pref.txt");
  WriteFile(prefs, Repeat("FileLoaded:/x/page.html\r\n", 10000) + "Keywords_Sorted: 99999\r\n" +
                       "Keywords_MinMatches: 3\r\n");
  AppState s(platform_);
  commands::Form_Load(s);
  EXPECT_EQ(s.RecentFileCount, 5);
  EXPECT_EQ(s.KeywordsSortList, 1) << "the overflowing line keeps the default";
  EXPECT_EQ(s.KeywordsUseMinMatches, 3);
  ASSERT_FALSE(platform_.messages.empty());
  EXPECT_NE(platform_.messages.back().find("Overflow"), std::string::npos);
}

}  // namespace zentrel
