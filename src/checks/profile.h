#pragma once
// The profile of the checks: each rule's severity or "off", and every threshold. A profile file
// holds "key = value" lines and "#" comments; keys it leaves out keep their defaults. The
// window and the command line read the same file.

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

#include "checks/rule_catalogue.h"

namespace zentrel::checks {

// A profile that cannot be read or holds an unknown key or a bad value; the message names the
// file and line.
class ProfileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct RuleSetting {
  bool enabled = true;
  Severity severity = Severity::Warning;
  bool operator==(const RuleSetting&) const = default;
};

inline constexpr size_t kRuleCount = static_cast<size_t>(Rule::DescriptionDuplicate) + 1;

struct Profile {
  std::array<RuleSetting, kRuleCount> rules{};
  int titleMaxPixels = 600;
  int titleMinChars = 10;
  int titleFontPixels = 20;
  int descriptionMaxPixels = 920;
  int descriptionMinChars = 50;
  int descriptionFontPixels = 14;
  int charsetMaxBytes = 1024;

  const RuleSetting& Setting(Rule rule) const { return rules[static_cast<size_t>(rule)]; }
  bool operator==(const Profile&) const = default;
};

// Every rule on at its default severity, every threshold at its default.
Profile DefaultProfile();

// Reads a profile's text over the defaults; `name` goes into the messages.
Profile ParseProfile(std::string_view text, const std::string& name);

// Reads the profile file through the program's file reader; throws ProfileError.
Profile LoadProfile(const std::string& path);

// The profile shipped beside the dictionary in the program folder.
std::string DefaultProfilePath(const std::string& programFolder);

}  // namespace zentrel::checks
