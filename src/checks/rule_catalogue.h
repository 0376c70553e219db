#pragma once
// The rules of the checks: their ids (which the command line's outputs and the profile name),
// default severities, one-line summaries and why each matters, with the source that says so.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zentrel::checks {

enum class Severity { Error, Warning, Notice };

enum class Rule {
  TitleMissing,
  TitleEmpty,
  TitleMultiple,
  TitleTooLong,
  TitleTooShort,
  DescriptionMissing,
  DescriptionMultiple,
  DescriptionTooLong,
  DescriptionTooShort,
  HeadEndedEarly,
  MetaDuplicate,
  RobotsNoindex,
  RobotsInvalid,
  RobotsConflict,
  CanonicalMissing,
  CanonicalMultiple,
  CanonicalRelative,
  ViewportMissing,
  CharsetMissing,
  CharsetLate,
  LangMissing,
  H1Missing,
  H1Multiple,
  ImgAltMissing,
  OgMissing,
  TwitterCardMissing,
  LegacyMeta,
  TitleDuplicate,
  DescriptionDuplicate,
};

struct RuleInfo {
  Rule rule;
  std::string_view id;
  Severity severity;  // the default, which a profile may change
  std::string_view summary;
  std::string_view why;     // in plain words
  std::string_view source;  // who says so
  std::string_view url;     // where they say it
};

// Every rule, in the order of the Rule values.
std::span<const RuleInfo> AllRules();
const RuleInfo& InfoOf(Rule rule);
std::optional<Rule> RuleById(std::string_view id);

// "error", "warning", "notice".
std::string_view SeverityName(Severity severity);
std::optional<Severity> SeverityByName(std::string_view name);

// The "why" of a finding: the reason and its source in one text.
std::string WhyText(const RuleInfo& info);

}  // namespace zentrel::checks
