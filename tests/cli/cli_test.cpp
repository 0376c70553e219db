#include "cli/cli.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "base/file_io.h"
#include "test_files.h"

namespace zentrel::cli {

namespace fs = std::filesystem;
using testing::ReadFile;
using testing::TempFolder;
using testing::WriteFile;

namespace {

// The tests run in the program folder of the build, where dictionary/ lies.
struct Result {
  int status;
  std::string out, err;
};

Result RunCli(std::vector<std::string> args) {
  std::ostringstream out, err;
  int status = Run_Cli(args, out, err, fs::current_path().string());
  return {status, out.str(), err.str()};
}

const char* kSanePage =
    "<html>\r\n<head>\r\n<title>Red Shoes</title>\r\n"
    "<meta name=\"keywords\" content=\"shoes, red shoes\">\r\n</head>\r\n"
    "<body>\r\nRed shoes and more red shoes for walking.\r\n</body>\r\n</html>\r\n";

}  // namespace

TEST(Cli, BadUsageExitsTwoWithAMessage) {
  const std::vector<std::string> usages[] = {{},
                                             {"report"},
                                             {"frobnicate", "x.html"},
                                             {"report", "--bogus", "x.html"},
                                             {"rebuild", "x.html"},  // no -o
                                             {"rebuild", "x.html", "y.html", "-o", "z"},
                                             {"report", "--force", "x.html"},
                                             {"rebuild", "x.html", "-o", "y", "--set", "title=x"}};
  for (const auto& args : usages) {
    Result r = RunCli(args);
    EXPECT_EQ(r.status, 2) << args.size();
    EXPECT_FALSE(r.err.empty());
  }
  EXPECT_NE(RunCli({"frobnicate"}).err.find("unknown command frobnicate"), std::string::npos);
  Result help = RunCli({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("zentrel-cli rebuild"), std::string::npos);
  Result missing = RunCli({"report", "/nonexistent/page.html"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_NE(missing.err.find("/nonexistent/page.html"), std::string::npos);
}

TEST(Cli, ValidatePrintsOkOrTheSectionMessage) {
  TempFolder dir;
  WriteFile(dir.File("good.html"), kSanePage);
  WriteFile(dir.File("bad.html"), "<head></head><body></body></html>");
  Result r = RunCli({"validate", dir.File("good.html"), dir.File("bad.html")});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, dir.File("good.html") + ": OK\n" + dir.File("bad.html") +
                       ": Page Is Missing Opening <HTML> TAG\n");
}

// The two hand-checked reports, made with a small filter dictionary; the second with the
// text scan, a minimum of one match, typed keywords and the word count table.
TEST(Cli, ReportEqualsTheHandCheckedReports) {
  TempFolder dir;
  WriteFile(dir.File("dict.txt"), "we\r\nthe\r\nour\r\nfor\r\neach\r\nare\r\nand\r\n");
  WriteFile(dir.File("prefs.txt"),
            "Keywords_MinMatches: 1\r\nKeywords_NumberOfMinMatches: 1\r\n"
            "Keywords_MatchingType: 0\r\n");
  const fs::path program = fs::current_path();
  fs::current_path(testing::TestDataPath(""));  // the reports name the page as given
  std::ostringstream out1, out2, err;
  int shoes = Run_Cli({"report", "--dictionary", dir.File("dict.txt"), "analysis_shoes.html"}, out1,
                      err, program.string());
  int widgets =
      Run_Cli({"report", "--dictionary", dir.File("dict.txt"), "--prefs", dir.File("prefs.txt"),
               "--keywords", "Sprockets, the ,", "--include-word-count", "analysis_widgets.html"},
              out2, err, program.string());
  fs::current_path(program);
  EXPECT_EQ(shoes, 0);
  EXPECT_EQ(widgets, 0);
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(out1.str(), testing::ReadTestData("analysis_shoes.report"));
  EXPECT_EQ(out2.str(), testing::ReadTestData("analysis_widgets.report"));
}

// The whole output for a page that ends in a run-time error and for a page with a
// Windows-1252 name, keywords typed in Windows-1252, and a control character, a quote, a
// backslash and a tab in its fields: one line of valid UTF-8 JSON each.
TEST(Cli, AnalyseEqualsTheGoldenJson) {
  TempFolder dir;
  WriteFile(dir.File("dict.txt"), "the\r\nand\r\nfor\r\n");
  WriteFile(dir.File("caf\xE9.html"), testing::ReadTestData("analyse_page.html"));
  std::string flood = "<html><head></head><body>";
  for (int i = 0; i < 1001; ++i)
    flood += "widget ";
  WriteFile(dir.File("flood.html"), flood + "</body></html>");
  const fs::path program = fs::current_path();
  fs::current_path(dir.path());  // the output names the pages as given
  std::ostringstream out, err;
  const int status = Run_Cli({"analyse", "--dictionary", "dict.txt", "--keywords",
                              "walking, caf\xE9", "flood.html", "caf\xE9.html"},
                             out, err, program.string());
  fs::current_path(program);
  EXPECT_EQ(status, 1);
  EXPECT_EQ(err.str(), "flood.html: Run-time error '9': Subscript out of range\n");
  EXPECT_EQ(out.str(), testing::ReadTestData("analyse_page.json"));
}

// A filter dictionary of more words than its 16-bit count holds, as an option or from the
// preferences file: the Overflow is reported once, and no page is read.
TEST(Cli, ARunTimeErrorWhileStartingUpEndsTheRunWithStatusOne) {
  TempFolder dir;
  WriteFile(dir.File("big.txt"), testing::OversizedFilterDictionary());
  WriteFile(dir.File("prefs.txt"), "DefaultWordFilterDictionary:" + dir.File("big.txt") + "\r\n");
  WriteFile(dir.File("page.html"), kSanePage);
  const std::string page = dir.File("page.html");
  for (const auto& args :
       {std::vector<std::string>{"report", "--dictionary", dir.File("big.txt"), page, page},
        {"rebuild", "--prefs", dir.File("prefs.txt"), page, "-o", dir.File("out.html")}}) {
    Result r = RunCli(args);
    EXPECT_EQ(r.status, 1) << args[0];
    EXPECT_EQ(r.err, "zentrel-cli: Run-time error '6': Overflow\n");
    EXPECT_EQ(r.out, "");
  }
  EXPECT_FALSE(fs::exists(dir.File("out.html")));
}

TEST(Cli, RebuildWritesTheFieldsAndRefusesSectionErrorsWithoutForce) {
  TempFolder dir;
  WriteFile(dir.File("page.html"), kSanePage);
  WriteFile(dir.File("set.tag"), "author:Ann&coma& Bo\r\n");
  Result r = RunCli({"rebuild", dir.File("page.html"), "-o", dir.File("out.html"), "--tags",
                     dir.File("set.tag"), "--set", "description=Shoes for all"});
  ASSERT_EQ(r.status, 0) << r.err;
  std::string out = ReadFile(dir.File("out.html"));
  EXPECT_NE(out.find("<META content=\"Shoes for all\" name=\"description\">\r\n"),
            std::string::npos);
  EXPECT_NE(out.find("<META content=\"Ann, Bo\" name=\"author\">\r\n"), std::string::npos);
  EXPECT_EQ(ReadFile(dir.File("page.html")), kSanePage) << "the page itself is untouched";

  WriteFile(dir.File("bad.html"), "<p>no sections</p>");
  Result refused = RunCli({"rebuild", dir.File("bad.html"), "-o", dir.File("bad-out.html")});
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(refused.err.find("WARNING - Page Is Missing Opening <HTML> TAG - IGNORE this ERROR "
                             "and SAVE ANYWAY ? "),
            std::string::npos);
  EXPECT_FALSE(fs::exists(dir.File("bad-out.html")));
  EXPECT_EQ(
      RunCli({"rebuild", dir.File("bad.html"), "-o", dir.File("bad-out.html"), "--force"}).status,
      0);
  EXPECT_TRUE(fs::exists(dir.File("bad-out.html")));
}

// --diff alone shows what the save would change and writes nothing; with -o it does both.
TEST(Cli, RebuildDiffShowsTheChangesWithOrWithoutWriting) {
  TempFolder dir;
  WriteFile(dir.File("page.html"), kSanePage);
  Result shown = RunCli({"rebuild", dir.File("page.html"), "--diff", "--set", "keywords="});
  ASSERT_EQ(shown.status, 0) << shown.err;
  EXPECT_NE(shown.out.find("\n-<meta name=\"keywords\" content=\"shoes, red shoes\">\n"),
            std::string::npos);
  EXPECT_NE(shown.out.find("\n+<head><TITLE>Red Shoes</TITLE>\n"), std::string::npos);
  EXPECT_TRUE(shown.out.ends_with("! META keywords disappears\n"));
  EXPECT_EQ(ReadFile(dir.File("page.html")), kSanePage);
  EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()), 1);

  Result both = RunCli({"rebuild", dir.File("page.html"), "--diff", "--set", "keywords=", "-o",
                        dir.File("out.html")});
  ASSERT_EQ(both.status, 0) << both.err;
  EXPECT_EQ(both.out, shown.out);
  EXPECT_EQ(ReadFile(dir.File("out.html")).find("keywords"), std::string::npos);
}

// What cannot be read (a FIFO with no writer, an endless device, a file over the ceiling)
// ends the command at once with status 2 and names the file.
TEST(Cli, FilesThatCannotBeReadEndTheCommandAtOnce) {
  TempFolder dir;
  WriteFile(dir.File("page.html"), kSanePage);
  const std::string page = dir.File("page.html"), fifo = dir.File("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0644), 0);
  WriteFile(dir.File("huge.html"), "");
  fs::resize_file(dir.File("huge.html"), static_cast<uintmax_t>(file_io::kMaxReadBytes) + 1);
  std::vector<std::vector<std::string>> runs = {
      {"report", fifo},
      {"report", dir.File("huge.html")},
      {"report", "--prefs", fifo, page},
      {"report", "--dictionary", fifo, page},
      {"rebuild", page, "-o", dir.File("out.html"), "--tags", fifo}};
  if (::geteuid() == 0) {
    ASSERT_EQ(::mknod(dir.File("zero").c_str(), S_IFCHR | 0444, makedev(1, 5)), 0);
    runs.push_back({"report", dir.File("zero")});
  }
  for (const auto& args : runs) {
    Result r = RunCli(args);
    EXPECT_EQ(r.status, 2) << args[1];
    EXPECT_NE(r.err.find("\"" + (args.size() == 2 ? args[1] : fifo) + "\""), std::string::npos)
        << r.err;
    EXPECT_EQ(r.out, "");
  }
}

TEST(Cli, TheRealBinaryRuns) {
  TempFolder dir;
  WriteFile(dir.File("good.html"), kSanePage);
  std::string command = (fs::current_path() / "zentrel-cli").string() + " validate " +
                        dir.File("good.html") + " > " + dir.File("out.txt");
  ASSERT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(ReadFile(dir.File("out.txt")), dir.File("good.html") + ": OK\n");
}

}  // namespace zentrel::cli
