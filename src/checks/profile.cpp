#include "checks/profile.h"

#include <charconv>
#include <filesystem>
#include <optional>
#include <vector>

#include "base/file_io.h"

namespace zentrel::checks {

namespace {

struct Threshold {
  std::string_view key;
  int Profile::*field;
  int min, max;
};

constexpr Threshold kThresholds[] = {
    {"title.max-pixels", &Profile::titleMaxPixels, 1, 100000},
    {"title.min-chars", &Profile::titleMinChars, 0, 100000},
    {"title.font-pixels", &Profile::titleFontPixels, 1, 1000},
    {"description.max-pixels", &Profile::descriptionMaxPixels, 1, 100000},
    {"description.min-chars", &Profile::descriptionMinChars, 0, 100000},
    {"description.font-pixels", &Profile::descriptionFontPixels, 1, 1000},
    {"charset.max-bytes", &Profile::charsetMaxBytes, 1, 1 << 30},
};

std::string_view TrimBlanks(std::string_view s) {
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!s.empty() && blank(s.front()))
    s.remove_prefix(1);
  while (!s.empty() && blank(s.back()))
    s.remove_suffix(1);
  return s;
}

class Reader {
 public:
  Reader(Profile& profile, const std::string& name) : profile_(profile), name_(name) {}

  void Line(std::string_view line, int number) {
    number_ = number;
    line = TrimBlanks(line.substr(0, line.find('#')));
    if (line.empty())
      return;
    const size_t eq = line.find('=');
    if (eq == std::string_view::npos)
      Fail("expected \"key = value\", not \"" + std::string(line) + "\"");
    const std::string_view key = TrimBlanks(line.substr(0, eq));
    const std::string_view value = TrimBlanks(line.substr(eq + 1));
    for (const std::string& seen : seen_) {
      if (seen == key)
        Fail("\"" + std::string(key) + "\" is given twice");
    }
    seen_.emplace_back(key);
    if (const std::optional<Rule> rule = RuleById(key)) {
      SetRule(*rule, value);
    } else {
      SetThreshold(key, value);
    }
  }

 private:
  void SetRule(Rule rule, std::string_view value) {
    RuleSetting& setting = profile_.rules[static_cast<size_t>(rule)];
    if (value == "off") {
      setting.enabled = false;
    } else if (const std::optional<Severity> severity = SeverityByName(value)) {
      setting = {true, *severity};
    } else {
      Fail("\"" + std::string(value) + "\" is no severity: use error, warning, notice or off");
    }
  }

  void SetThreshold(std::string_view key, std::string_view value) {
    for (const Threshold& t : kThresholds) {
      if (t.key != key)
        continue;
      int number = 0;
      const auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), number);
      if (value.empty() || ec != std::errc() || end != value.data() + value.size() ||
          number < t.min || number > t.max) {
        Fail(std::string(key) + " must be a whole number from " + std::to_string(t.min) + " to " +
             std::to_string(t.max) + ", not \"" + std::string(value) + "\"");
      }
      profile_.*t.field = number;
      return;
    }
    Fail("unknown key \"" + std::string(key) + "\"");
  }

  [[noreturn]] void Fail(const std::string& what) const {
    throw ProfileError(name_ + ":" + std::to_string(number_) + ": " + what);
  }

  Profile& profile_;
  const std::string& name_;
  int number_ = 0;
  std::vector<std::string> seen_;
};

}  // namespace

Profile DefaultProfile() {
  Profile profile;
  for (const RuleInfo& info : AllRules())
    profile.rules[static_cast<size_t>(info.rule)] = {true, info.severity};
  return profile;
}

Profile ParseProfile(std::string_view text, const std::string& name) {
  Profile profile = DefaultProfile();
  Reader reader(profile, name);
  int number = 1;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    reader.Line(text.substr(0, end), number++);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return profile;
}

Profile LoadProfile(const std::string& path) {
  std::string text;
  try {
    text = file_io::ReadWholeFile(path);
  } catch (const file_io::FileError& e) {
    throw ProfileError(e.what());
  }
  return ParseProfile(text, path);
}

std::string DefaultProfilePath(const std::string& programFolder) {
  return (std::filesystem::path(programFolder) / "profile" / "Zentrel_Checks.txt").string();
}

}  // namespace zentrel::checks
