#pragma once
// The fields of the page checks as the window shows them (commands/checks): every finding of
// the loaded page, and the profile's limits of the title and description fields.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/codec.h"
#include "state/form_model.h"

namespace zentrel::state {

// How long a title or description may be, from the profile; 0 is no limit (the rule is off).
struct LengthLimits {
  int32_t MaxPixels = 0;
  int32_t MinChars = 0;
  int32_t FontPixels = 1;
};

// The findings the window keeps of each severity: a page of a million images has as many
// findings, and a table of the first thousands says as much.
inline constexpr size_t kFindingsKept = 5000;

struct ChecksFields {
  // The first kFindingsKept findings of each severity of the last check, in page order, and
  // how many of each (error, warning, notice) there were.
  std::vector<CheckFinding> PageFindings;
  std::array<int64_t, 3> SeverityCounts{};
  codec::Codec CheckedCodec = codec::Codec::Utf8;  // the codec of the page checked last
  LengthLimits TitleLimits, DescriptionLimits;
  std::string ProfileProblem;  // why the profile could not be read, when it could not
};

}  // namespace zentrel::state
