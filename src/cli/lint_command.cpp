#include "cli/lint_command.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <thread>
#include <unordered_set>

#include "base/file_io.h"
#include "base/text.h"
#include "checks/profile.h"
#include "cli/lint_output.h"

namespace zentrel::cli {

const char* const kLintUsageText =
    "usage: zentrel-cli lint [--profile FILE] [--format text|json|sarif] [--jobs N] PATH...\n"
    "\n"
    "  Checks what search engines and social sites read from each page: title, description,\n"
    "  robots, canonical link, viewport, encoding, language, headings, images, cards, and tags\n"
    "  that a browser puts in the body. PATH is a page or a folder searched for *.html and\n"
    "  *.htm (symbolic links to folders are not followed); pages that share a title or a\n"
    "  description are reported after all pages.\n"
    "\n"
    "  --profile FILE  rules and thresholds (default: profile/Zentrel_Checks.txt in the\n"
    "                  program folder, which documents every key)\n"
    "  --format        text (default, one line per finding), json or sarif (SARIF 2.1.0)\n"
    "  --jobs N        pages checked at once (default: the number of cores)\n"
    "\n"
    "Exit status: 1 when any finding is an error or a page cannot be read, else 0; 2 bad\n"
    "usage or a profile that cannot be read.\n";

namespace {

constexpr int kOk = 0;
constexpr int kErrors = 1;
constexpr int kUsage = 2;

namespace fs = std::filesystem;

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct LintOptions {
  std::optional<std::string> profile;
  std::string format = "text";
  unsigned jobs = 0;
  std::vector<std::string> paths;
  bool help = false;
};

unsigned JobsOf(const std::string& value) {
  unsigned n = 0;
  const auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), n);
  if (value.empty() || ec != std::errc() || end != value.data() + value.size() || n == 0 ||
      n > 1024)
    throw UsageError("--jobs needs a number from 1 to 1024, not " + value);
  return n;
}

LintOptions Parse(const std::vector<std::string>& args) {
  LintOptions o;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--help" || a == "-h") {
      o.help = true;
      continue;
    }
    if (a.size() < 2 || a[0] != '-') {
      o.paths.push_back(a);
      continue;
    }
    if (a != "--profile" && a != "--format" && a != "--jobs")
      throw UsageError("unknown option " + a);
    if (++i == args.size())
      throw UsageError(a + " needs a value");
    const std::string& v = args[i];
    if (a == "--profile") {
      o.profile = v;
    } else if (a == "--jobs") {
      o.jobs = JobsOf(v);
    } else if (v == "text" || v == "json" || v == "sarif") {
      o.format = v;
    } else {
      throw UsageError("--format takes text, json or sarif, not " + v);
    }
  }
  if (o.paths.empty() && !o.help)
    throw UsageError("no PATH given");
  return o;
}

bool IsPageName(const fs::path& path) {
  const std::string extension = text::LCase(path.extension().string());
  return extension == ".html" || extension == ".htm";
}

// The pages of a folder and its subfolders, in path order; folders behind symbolic links and
// folders that cannot be read are left out.
void AddFolder(const std::string& folder, std::vector<std::string>& pages) {
  std::vector<std::string> found;
  std::error_code ec;
  fs::recursive_directory_iterator it(folder, fs::directory_options::skip_permission_denied, ec);
  for (; !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
    std::error_code kind;
    if (it->is_regular_file(kind) && IsPageName(it->path()))
      found.push_back(it->path().string());
  }
  std::sort(found.begin(), found.end());
  pages.insert(pages.end(), found.begin(), found.end());
}

// Every page named by the paths, each once, in the order given; a path that is no folder is
// taken as a page (one that cannot be read is reported as such).
std::vector<std::string> PagesOf(const std::vector<std::string>& paths) {
  std::vector<std::string> pages;
  for (const std::string& path : paths) {
    std::error_code ec;
    if (fs::is_directory(path, ec)) {
      AddFolder(path, pages);
    } else {
      pages.push_back(path);
    }
  }
  std::unordered_set<std::string> seen;
  std::erase_if(pages, [&seen](const std::string& page) { return !seen.insert(page).second; });
  return pages;
}

void LintPage(LintedPage& page, const checks::Profile& profile) {
  try {
    page.check = checks::CheckPage(file_io::ReadWholeFile(page.path), profile);
  } catch (const std::exception& e) {  // a file that cannot be read, or memory running out
    page.error = e.what();
  }
}

// Checks the pages with `jobs` threads; each takes the next unchecked page, so the results
// stand in page order whatever the threads' timing.
void LintAll(std::vector<LintedPage>& pages, const checks::Profile& profile, unsigned jobs) {
  std::atomic<size_t> next{0};
  const auto work = [&] {
    for (size_t i = next++; i < pages.size(); i = next++)
      LintPage(pages[i], profile);
  };
  std::vector<std::thread> threads;
  const size_t workers = std::max<size_t>(1, std::min<size_t>(jobs, pages.size()));
  for (size_t t = 1; t < workers; ++t)
    threads.emplace_back(work);
  work();
  for (std::thread& t : threads)
    t.join();
}

checks::Profile ProfileOf(const LintOptions& o, const std::string& programFolder) {
  if (o.profile)
    return checks::LoadProfile(*o.profile);
  // The shipped profile, or its defaults when it has been removed.
  const std::string shipped = checks::DefaultProfilePath(programFolder);
  return file_io::FileExists(shipped) ? checks::LoadProfile(shipped) : checks::DefaultProfile();
}

}  // namespace

int Run_Lint(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
             const std::string& programFolder) {
  LintOptions o;
  try {
    o = Parse(args);
  } catch (const UsageError& e) {
    err << "zentrel-cli lint: " << e.what() << "\n" << kLintUsageText;
    return kUsage;
  }
  if (o.help) {
    out << kLintUsageText;
    return kOk;
  }
  std::optional<checks::Profile> profile;
  try {
    profile = ProfileOf(o, programFolder);
  } catch (const checks::ProfileError& e) {
    err << "zentrel-cli lint: unreadable profile: " << e.what() << "\n";
    return kUsage;
  }
  LintRun run{*profile, {}, {}};
  for (std::string& path : PagesOf(o.paths))
    run.pages.push_back({std::move(path), std::nullopt, {}});
  const unsigned cores = std::max(1u, std::thread::hardware_concurrency());
  LintAll(run.pages, *profile, o.jobs == 0 ? cores : o.jobs);
  std::vector<const checks::PageCheck*> checked;
  for (const LintedPage& page : run.pages)
    checked.push_back(page.error ? nullptr : &page.check);
  run.site = checks::CheckSite(checked, *profile);
  if (o.format == "json") {
    Write_Lint_Json(out, run);
  } else if (o.format == "sarif") {
    Write_Lint_Sarif(out, run);
  } else {
    Write_Lint_Text(out, run);
  }
  return Summarize(run).errors > 0 ? kErrors : kOk;
}

}  // namespace zentrel::cli
