// zentrel-cli lint in process: the outputs against golden files, the order of pages whatever
// the number of threads, and the exit statuses.

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "base/text.h"
#include "cli/cli.h"
#include "test_files.h"

namespace zentrel::cli {

namespace {

namespace fs = std::filesystem;

struct Lint {
  int status;
  std::string out, err;
};

// Runs lint on the test site (its folder and a page that is not there) with the given options;
// the site's folder is cut from the output so it reads as if run beside the site.
Lint RunLint(std::vector<std::string> args, bool site = true) {
  const std::string folder = testing::TestDataPath("lint") + "/";
  if (site) {
    args.push_back(folder + "site");
    args.push_back(folder + "site/missing.html");
  }
  args.insert(args.begin(), "lint");
  std::ostringstream out, err;
  const int status = Run_Cli(args, out, err, fs::current_path().string());
  return {status, text::ReplaceAll(out.str(), folder, ""), err.str()};
}

TEST(Lint, JsonAndSarifEqualTheirGoldenFiles) {
  const Lint json = RunLint({"--format", "json", "--jobs", "2"});
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(json.out, testing::ReadTestData("lint_site.json"));
  const Lint sarif = RunLint({"--format", "sarif"});
  EXPECT_EQ(sarif.status, 1);
  EXPECT_EQ(sarif.out, testing::ReadTestData("lint_site.sarif"));
}

TEST(Lint, TextIsOneLinePerFindingInPathOrderWhateverTheJobs) {
  const Lint one = RunLint({"--jobs", "1"});
  EXPECT_EQ(one.status, 1);
  EXPECT_EQ(RunLint({"--jobs", "3"}).out, one.out);
  EXPECT_EQ(RunLint({}).out, one.out);
  std::istringstream lines(one.out);
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);)
    all.push_back(line);
  ASSERT_GE(all.size(), 4u);
  EXPECT_EQ(all.front(),
            "site/about.htm:1:1: warning: the html element has no lang attribute "
            "[lang-missing]");
  EXPECT_EQ(all[all.size() - 4],
            "site/missing.html: error: Cannot read \"site/missing.html\": opening failed: No such "
            "file or directory");
  EXPECT_EQ(all[all.size() - 3],
            "warning: 2 pages share the title \"Red Shoes & Boots\": "
            "site/about.htm, site/index.html [title-duplicate]");
  EXPECT_EQ(all.back(), "4 pages: 2 errors, 11 warnings, 10 notices");
}

TEST(Lint, ExitStatusFollowsTheProfileAndUsageErrorsAreTwo) {
  testing::TempFolder folder;
  const std::string quiet = folder.File("quiet.txt");
  testing::WriteFile(quiet, "head-ended-early = warning\n");
  const std::string page = testing::TestDataPath("lint/site/about.htm");
  EXPECT_EQ(RunLint({page}, false).status, 1);
  EXPECT_EQ(RunLint({"--profile", quiet, page}, false).status, 0);
  EXPECT_EQ(RunLint({testing::TestDataPath("lint/site/index.html")}, false).out,
            "1 page: 0 errors, 0 warnings, 0 notices\n");
  const std::string broken = folder.File("broken.txt");
  testing::WriteFile(broken, "title.max-pixels = wide\n");
  const std::vector<std::string> usage[] = {
      {}, {"--jobs", "0", page}, {"--format", "xml", page}, {"--jobs"}, {"--prefs", "x", page}};
  const Lint help = RunLint({"--help"}, false);
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.out.rfind("usage: zentrel-cli lint", 0), 0u);
  for (const std::vector<std::string>& args : usage) {
    const Lint r = RunLint(args, false);
    EXPECT_EQ(r.status, 2) << r.err;
    EXPECT_NE(r.err.find("usage: zentrel-cli lint"), std::string::npos);
  }
  for (const std::string& profile : {broken, folder.File("missing.txt")}) {
    const Lint r = RunLint({"--profile", profile, page}, false);
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err.rfind("zentrel-cli lint: unreadable profile: ", 0), 0u) << r.err;
    EXPECT_EQ(r.out, "");
  }
}

}  // namespace

}  // namespace zentrel::cli
