#include "cli/cli.h"

#include <algorithm>
#include <functional>
#include <optional>

#include "base/file_io.h"
#include "cli/cli_platform.h"
#include "cli/json_output.h"
#include "cli/lint_command.h"
#include "commands/control_table.h"
#include "commands/edit_meta_tags.h"
#include "commands/page_loading.h"
#include "commands/page_saving.h"
#include "commands/scan_keywords.h"
#include "commands/startup.h"
#include "commands/view_body_report.h"
#include "commands/word_filters.h"
#include "decode/decoder.h"
#include "decode/meta_tag_table.h"
#include "decode/section_validation.h"
#include "state/app_state.h"
#include "state/silent_platform.h"

namespace zentrel::cli {

namespace {

constexpr int kOk = 0;
constexpr int kPageFailed = 1;
constexpr int kUsage = 2;

constexpr const char* kUsageText =
    "usage: zentrel-cli report   [OPTIONS] PAGE...\n"
    "       zentrel-cli analyse  [OPTIONS] PAGE...\n"
    "       zentrel-cli validate [OPTIONS] PAGE...\n"
    "       zentrel-cli rebuild  [OPTIONS] PAGE (-o OUT | --diff | -o OUT --diff)\n"
    "                            [--tags FILE.tag] [--set NAME=VALUE]... [--force]\n"
    "       zentrel-cli apply    [OPTIONS] --tags FILE.tag [--set NAME=VALUE]... [--force]\n"
    "                            [--dry-run] PAGE...\n"
    "       zentrel-cli lint [--profile FILE] [--format text|json|sarif] [--jobs N] PATH...\n"
    "       zentrel-cli --version\n"
    "\n"
    "  report    the page report of each PAGE, as the \"Page Report\" tab shows it\n"
    "  analyse   one JSON object per PAGE with the report, the result boxes and the fields\n"
    "  validate  \"PAGE: OK\" or \"PAGE: \" and the section error; exit 1 when any page fails\n"
    "  rebuild   analyse PAGE, mark every META tag field, load FILE.tag, apply each --set,\n"
    "            and save to OUT; a section error is refused unless --force; --diff prints\n"
    "            what the save changes (lines removed \"-\", added \"+\", \"!\" for a tag\n"
    "            that disappears), instead of saving or, with -o, as well\n"
    "  apply     the same for each PAGE, saved over itself as the save button saves it;\n"
    "            --dry-run writes nothing and prints each page's changes\n"
    "  lint      check what search engines read from pages and folders of pages\n"
    "            (zentrel-cli lint --help tells more; the OPTIONS below do not apply)\n"
    "\n"
    "OPTIONS\n"
    "  --prefs FILE          read this preferences file instead of the program folder's\n"
    "                        Zentrel_Pref.txt (a missing file means all defaults); never written\n"
    "  --dictionary FILE     use FILE as the default filter dictionary\n"
    "  --keywords TEXT       the \"Additional Keywords\" text\n"
    "  --include-word-count  tick \"Include Word Count\"\n"
    "  --show-raw-body       tick \"Show Raw Body\"\n"
    "\n"
    "Exit status: 0 success; 1 a page failed (validation failed, rebuild refused, run-time\n"
    "error), or a run-time error while starting up (a filter dictionary, from --dictionary or\n"
    "the preferences file, of more words than its 16-bit count holds, say): the message goes\n"
    "to stderr and no page is read; 2 bad usage or a file that cannot be read.\n";

struct Options {
  std::string command;
  std::vector<std::string> pages;
  std::optional<std::string> prefs, dictionary, keywords, out, tags;
  std::vector<std::pair<std::string, std::string>> sets;
  bool includeWordCount = false, showRawBody = false, force = false, diff = false, help = false,
       dryRun = false;
};

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

Options Parse(const std::vector<std::string>& args) {
  Options o;
  auto value = [&](size_t& i) -> std::string {
    if (i + 1 >= args.size())
      throw UsageError(args[i] + " needs a value");
    return args[++i];
  };
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--help" || a == "-h") {
      o.help = true;
    } else if (a == "--prefs") {
      o.prefs = value(i);
    } else if (a == "--dictionary") {
      o.dictionary = value(i);
    } else if (a == "--keywords") {
      o.keywords = value(i);
    } else if (a == "--include-word-count") {
      o.includeWordCount = true;
    } else if (a == "--show-raw-body") {
      o.showRawBody = true;
    } else if (a == "-o") {
      o.out = value(i);
    } else if (a == "--tags") {
      o.tags = value(i);
    } else if (a == "--force") {
      o.force = true;
    } else if (a == "--diff") {
      o.diff = true;
    } else if (a == "--dry-run") {
      o.dryRun = true;
    } else if (a == "--set") {
      std::string pair = value(i);
      size_t eq = pair.find('=');
      if (eq == std::string::npos)
        throw UsageError("--set needs NAME=VALUE, not " + pair);
      o.sets.emplace_back(pair.substr(0, eq), pair.substr(eq + 1));
    } else if (a.size() > 1 && a[0] == '-') {
      throw UsageError("unknown option " + a);
    } else if (o.command.empty()) {
      o.command = a;
    } else {
      o.pages.push_back(a);
    }
  }
  return o;
}

void Validate_Options(const Options& o) {
  static const std::vector<std::string> commands = {"report", "analyse", "validate", "rebuild",
                                                    "apply"};
  if (std::find(commands.begin(), commands.end(), o.command) == commands.end()) {
    throw UsageError(o.command.empty() ? "no command given" : "unknown command " + o.command);
  }
  if (o.pages.empty())
    throw UsageError("no PAGE given");
  const bool rebuild = o.command == "rebuild", apply = o.command == "apply";
  if (rebuild && (o.pages.size() != 1 || (!o.out && !o.diff)))
    throw UsageError("rebuild takes one PAGE and -o OUT, --diff or both");
  if (!rebuild && (o.out || o.diff))
    throw UsageError("-o and --diff belong to rebuild");
  if (apply && !o.tags)
    throw UsageError("apply needs --tags FILE.tag");
  if (!apply && o.dryRun)
    throw UsageError("--dry-run belongs to apply");
  if (!rebuild && !apply && (o.tags || !o.sets.empty() || o.force))
    throw UsageError("--tags, --set and --force belong to rebuild and apply");
}

// A file the command line must be able to read; a clear message otherwise.
void Require_Readable(const std::string& path, const std::string& what) {
  try {
    file_io::ReadWholeFile(path);
  } catch (const file_io::FileError& e) {
    throw UsageError(what + ": " + e.what());
  }
}

void Apply_Options(AppState& s, const Options& o) {
  if (o.dictionary)
    commands::Load_Default_Word_Filters(s, *o.dictionary);
  if (o.keywords)
    commands::Set_Users_METATAGS_TextBox(s, *o.keywords);
  if (o.includeWordCount) {
    s.Form.PageReport_Export_WordCount_CheckBox = 1;
    commands::PageReport_Export_WordCount_CheckBox_Click(s);
  }
  if (o.showRawBody) {
    s.Form.ViewBody_ShowRAWBODY_CHeckBox = 1;
    commands::ViewBody_ShowRAWBODY_CHeckBox_Click(s);
  }
}

// A fresh session per page, brought up as the window would, with the options applied. Every
// command runs through the window's guarded path: a run-time error ends that command and is
// shown on stderr, as the window shows it in a message box.
class Session {
 public:
  Session(const Options& o, std::ostream& err, const std::string& folder)
      : platform_(err, folder, o.force), state_(platform_) {
    state_.PreferencesFileOverride = o.prefs.value_or("");
    platform_.SetSubject("zentrel-cli");
    started_ = commands::Form_Load(state_) &&
               !commands::Run_Guarded(state_, [&o](AppState& s) { Apply_Options(s, o); });
    platform_.SetSubject("");
  }

  // False when start-up or an option ended in an error (already on stderr).
  bool Started() const { return started_; }
  AppState& state() { return state_; }
  CliPlatform& platform() { return platform_; }

  // Loads as "Load Page" does (recent list untouched); false when the file cannot be read.
  // Only a rebuild reads the page back from the source editor: for the other commands its
  // copy of the page is let go at once.
  bool Load(const std::string& page, bool keepEditor) {
    page_ = page;
    int before = platform_.messagesShown();
    state_.DocumentLength = commands::Load_File_To_Cache(state_, page, 1);
    if (!keepEditor)
      std::string().swap(state_.Form.Html_Document_Editor);
    return platform_.messagesShown() == before;
  }

  // Runs a command on the loaded page; the message of the error that ended it, shown on stderr
  // after the page's name.
  std::optional<std::string> Run(const std::function<void(AppState&)>& command) {
    platform_.SetSubject(page_);
    std::optional<std::string> error = commands::Run_Guarded(state_, command);
    platform_.SetSubject("");
    return error;
  }

 private:
  CliPlatform platform_;
  AppState state_;
  bool started_ = false;
  std::string page_;
};

int Run_Page(Session& session, const Options& o, const std::string& page, std::ostream& out) {
  if (!session.Load(page, false))
    return kUsage;
  if (o.command == "validate") {
    std::string problem;
    if (session.Run([&problem](AppState& s) {
          decode::HTML_ReScan_Document(s);
          problem = decode::HTML_VALIDATE_Document_Sections(s);
        }))
      return kPageFailed;
    out << page << ": " << (problem.empty() ? "OK" : problem) << "\n";
    return problem.empty() ? kOk : kPageFailed;
  }
  const AppState& s = session.state();
  std::optional<std::string> error;
  if (s.DocumentLength != 0) {
    error = session.Run([&page](AppState& st) { commands::Meta_Tag_KeyWord_Scan(st, page); });
  }
  if (o.command == "report")
    out << s.Form.ReportTextBox;
  if (o.command == "analyse") {
    session.Run(commands::ViewBody_Show);
    Write_Analysis_Json(out, s, page, error);
  }
  return error ? kPageFailed : kOk;
}

// Saves to OUT, or with --diff alone only finds what the save would change; either way the
// changes go to `out` with --diff. Backups are the window's: the command line writes OUT alone.
bool Save_Or_Show(AppState& s, const Options& o, std::ostream& out) {
  s.SaveShowChanges = o.diff ? 1 : 0;
  s.SaveKeepBackup = 0;
  if (o.out)
    return commands::HTML_ENCODE_Document(s, *o.out, 0);
  std::optional<metatags::HeadDiff> diff = commands::Preview_Save(s);
  if (diff)
    out << diff->Text;
  return diff.has_value();
}

using FieldValues = std::vector<std::pair<int16_t, std::string>>;

// The fields that --set names, found in the META tag table alone; nothing (the message on err)
// when a name has no field.
std::optional<FieldValues> Set_Fields(const Options& o, std::ostream& err) {
  state::SilentPlatform quiet;
  AppState names(quiet);
  decode::Init_MetaTag_Table(names);
  FieldValues fields;
  for (const auto& [name, value] : o.sets) {
    int16_t i = decode::Find_MetaTag_Index(names, name);
    if (i < 0 || i >= state::kMetaTagFieldCount) {
      err << "zentrel-cli: --set: unknown META tag name " << name << "\n";
      return std::nullopt;
    }
    fields.emplace_back(i, value);
  }
  return fields;
}

// Loads and analyses the page, marks every field, loads FILE.tag and applies each --set; then
// `save` writes (or shows) the page. The exit status of the page.
int Fill_And_Save(const Options& o, const FieldValues& fields, const std::string& page,
                  std::ostream& err, const std::string& folder,
                  const std::function<bool(AppState&)>& save, std::ostream* changes = nullptr) {
  Session session(o, err, folder);
  if (!session.Started())
    return kPageFailed;
  session.platform().ShowChangesOn(changes);
  if (!session.Load(page, true))
    return kUsage;
  bool written = false;
  if (session.Run([&](AppState& s) {
        if (s.DocumentLength != 0)
          commands::Meta_Tag_KeyWord_Scan(s, page);
        commands::MetaTagFunctions_MArk_ALL_Checkboxes_Click(s);
        if (o.tags)
          commands::Apply_MetaTag_List_Text(s, file_io::ReadWholeFile(*o.tags));
        for (const auto& [i, value] : fields)
          commands::Set_MetaTag_TextBox(s, i, value);
        written = save(s);
      }))
    return kPageFailed;
  if (!written) {
    err << page << ": nothing written\n";
    return kPageFailed;
  }
  return kOk;
}

int Run_Rebuild(const Options& o, const FieldValues& fields, std::ostream& out, std::ostream& err,
                const std::string& folder) {
  return Fill_And_Save(
      o, fields, o.pages.front(), err, folder, [&](AppState& s) { return Save_Or_Show(s, o, out); },
      &out);
}

// Each page saved over itself as the save button saves it, or with --dry-run only its changes
// shown, under a "--- PAGE" and "+++ PAGE" header as a unified diff has. Every page is tried;
// the status is the worst of them.
int Run_Apply(const Options& o, const FieldValues& fields, std::ostream& out, std::ostream& err,
              const std::string& folder) {
  int status = kOk;
  for (const std::string& page : o.pages) {
    const int pageStatus = Fill_And_Save(o, fields, page, err, folder, [&](AppState& s) {
      s.SaveShowChanges = 0;
      s.SaveKeepBackup = 0;
      if (!o.dryRun)
        return commands::HTML_ENCODE_Document(s, page, 0);
      const std::optional<metatags::HeadDiff> diff = commands::Preview_Save(s);
      if (diff)
        out << "--- " << page << "\n+++ " << page << "\n" << diff->Text;
      return diff.has_value();
    });
    status = std::max(status, pageStatus);
  }
  return status;
}

}  // namespace

int Run_Cli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
            const std::string& executableFolder) {
  if (!args.empty() && args.front() == "lint")
    return Run_Lint({args.begin() + 1, args.end()}, out, err, executableFolder);
  if (args.size() == 1 && args.front() == "--version") {
    out << "zentrel-cli (" << commands::kProgramName << " " << commands::kProgramVersion << ")\n";
    return kOk;
  }
  Options o;
  try {
    o = Parse(args);
    if (o.help) {
      out << kUsageText;
      return kOk;
    }
    Validate_Options(o);
    // A missing preferences file means all defaults; one that is there must be readable.
    if (o.prefs && file_io::FileExists(*o.prefs))
      Require_Readable(*o.prefs, "--prefs");
    if (o.dictionary)
      Require_Readable(*o.dictionary, "--dictionary");
    if (o.tags)
      Require_Readable(*o.tags, "--tags");
  } catch (const UsageError& e) {
    err << "zentrel-cli: " << e.what() << "\n" << kUsageText;
    return kUsage;
  }
  if (o.command == "rebuild" || o.command == "apply") {
    const std::optional<FieldValues> fields = Set_Fields(o, err);
    if (!fields)
      return kUsage;
    return o.command == "rebuild" ? Run_Rebuild(o, *fields, out, err, executableFolder)
                                  : Run_Apply(o, *fields, out, err, executableFolder);
  }
  int status = kOk;
  for (const std::string& page : o.pages) {
    Session session(o, err, executableFolder);
    if (!session.Started())
      return kPageFailed;  // every page would meet the same error
    status = std::max(status, Run_Page(session, o, page, out));
  }
  return status;
}

}  // namespace zentrel::cli
