#pragma once
// The checks of one page: what search engines and social sites read from it today. Works on the
// page's bytes alone with no shared state, so pages of any size can be checked side by side in
// threads, also pages that the keyword analysis cannot take.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/line_index.h"
#include "checks/page_text.h"
#include "checks/profile.h"

namespace zentrel::checks {

struct Finding {
  Rule rule;
  Severity severity;
  Position at;
  size_t offset = 0;    // the byte where the tag (or text) it is about starts
  std::string message;  // UTF-8
};

// The page's title or description as measured, and where its tag stands.
struct LocatedText {
  MeasuredText measured;
  Position at;
};

struct PageCheck {
  std::optional<LocatedText> title;        // the first TITLE, the one browsers use
  std::optional<LocatedText> description;  // the first META description
  std::vector<Finding> findings;           // in page order
};

PageCheck CheckPage(std::string_view page, const Profile& profile);

// Collects one page's findings under the profile: rules that are off are left out, each finding
// gets the profile's severity and its line and column.
class FindingList {
 public:
  FindingList(const Profile& profile, const LineIndex& lines);
  bool On(Rule rule) const { return profile_.Setting(rule).enabled; }
  void Add(Rule rule, size_t offset, std::string message);
  // "line 12" of an offset, for messages that point elsewhere.
  std::string LineOf(size_t offset) const;
  std::vector<Finding> Take();

 private:
  const Profile& profile_;
  const LineIndex& lines_;
  std::vector<Finding> findings_;
};

}  // namespace zentrel::checks
