// zentrel-cli apply: one META set written into many pages, each saved over itself exactly as
// rebuild -o writes it; --dry-run shows each page's changes and writes nothing.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "cli/cli.h"
#include "test_files.h"

namespace zentrel::cli {
namespace {

namespace fs = std::filesystem;
using testing::ReadFile;
using testing::TempFolder;
using testing::WriteFile;

struct Result {
  int status;
  std::string out, err;
};

Result RunCli(const std::vector<std::string>& args) {
  std::ostringstream out, err;
  const int status = Run_Cli(args, out, err, fs::current_path().string());
  return {status, out.str(), err.str()};
}

// Every file of the folder with its bytes.
std::map<std::string, std::string> Files(const TempFolder& dir) {
  std::map<std::string, std::string> files;
  for (const fs::directory_entry& e : fs::directory_iterator(dir.path()))
    files[e.path().filename().string()] = ReadFile(e.path());
  return files;
}

class Apply : public ::testing::Test {
 protected:
  Apply() {
    // Bodies long enough for the header block: a rebuild may at most double a page.
    const std::string body(200, 'x');
    WriteFile(site.File("a.html"),
              "<html>\r\n<head>\r\n<title>Red Shoes</title>\r\n"
              "<meta name=\"author\" content=\"Old\">\r\n</head>\r\n<body>" +
                  body + "</body>\r\n</html>\r\n");
    WriteFile(site.File("b.htm"),
              "<html><head><title>Blue</title></head>\n<body>" + body + "</body></html>\n");
    WriteFile(site.File("bad.html"), "<p>no sections</p>" + body);
    WriteFile(tags.File("set.tag"), "author:Ann&coma& Bo\r\nrobots:noindex\r\n");
  }
  std::vector<std::string> Args(const std::string& command, std::vector<std::string> pages) {
    std::vector<std::string> args = {command, "--tags", tags.File("set.tag"), "--set",
                                     "description=Shoes for all"};
    args.insert(args.end(), pages.begin(), pages.end());
    return args;
  }

  TempFolder site, tags;
};

TEST_F(Apply, SavesEachPageAsRebuildWritesItAndDryRunWritesNothing) {
  std::map<std::string, std::string> rebuilt;
  for (const char* name : {"a.html", "b.htm"}) {
    std::vector<std::string> args = Args("rebuild", {site.File(name)});
    args.insert(args.end(), {"-o", tags.File(name)});
    ASSERT_EQ(RunCli(args).status, 0);
    rebuilt[name] = ReadFile(tags.File(name));
  }
  const std::map<std::string, std::string> before = Files(site);

  const Result shown =
      RunCli(Args("apply", {site.File("a.html"), site.File("b.htm"), "--dry-run"}));
  EXPECT_EQ(shown.status, 0) << shown.err;
  EXPECT_EQ(Files(site), before);
  EXPECT_TRUE(shown.out.starts_with("--- " + site.File("a.html") + "\n+++ "));
  const size_t b = shown.out.find("--- " + site.File("b.htm") + "\n+++ " + site.File("b.htm"));
  ASSERT_NE(b, std::string::npos) << shown.out;
  EXPECT_NE(shown.out.find("\n-<meta name=\"author\" content=\"Old\">\n"), std::string::npos);
  EXPECT_NE(shown.out.find("+<META content=\"Ann, Bo\" name=\"author\">", b), std::string::npos)
      << "the second page gets the set too";

  // The page without sections is refused and kept; the others are saved over themselves.
  const Result saved =
      RunCli(Args("apply", {site.File("a.html"), site.File("bad.html"), site.File("b.htm")}));
  EXPECT_EQ(saved.status, 1);
  EXPECT_NE(saved.err.find("SAVE ANYWAY"), std::string::npos) << saved.err;
  std::map<std::string, std::string> after = Files(site);
  EXPECT_EQ(after.size(), before.size()) << "no file left beside the pages";
  EXPECT_EQ(after["a.html"], rebuilt["a.html"]);
  EXPECT_EQ(after["b.htm"], rebuilt["b.htm"]);
  EXPECT_EQ(after["bad.html"], before.at("bad.html"));

  EXPECT_EQ(RunCli(Args("apply", {site.File("bad.html"), "--force"})).status, 0);
  EXPECT_NE(ReadFile(site.File("bad.html")), before.at("bad.html"));
}

TEST_F(Apply, BadUsageAndUnreadablePages) {
  const std::string page = site.File("a.html");
  const std::vector<std::string> usages[] = {
      {"apply", page}, {"report", "--dry-run", page}, Args("apply", {page, "--set", "nosuch=x"})};
  for (const auto& args : usages)
    EXPECT_EQ(RunCli(args).status, 2);
  EXPECT_EQ(Files(site).at("a.html").find("Shoes for all"), std::string::npos);

  // A page that cannot be read is named; the others are still saved.
  const Result r = RunCli(Args("apply", {site.File("missing.html"), page}));
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find("missing.html"), std::string::npos);
  EXPECT_NE(ReadFile(page).find("Shoes for all"), std::string::npos);
}

}  // namespace
}  // namespace zentrel::cli
