#pragma once
// What a rebuild changes: the lines of the page before it against the lines of the rebuilt
// page, as a compact line diff, and the tags the rebuild makes disappear. The rebuild touches
// the head (a fresh TITLE and META block, the old tags blanked), so the diff is in practice the
// head's; a known tag the decoder found outside the head is blanked too, and shows as well.

#include <string>
#include <string_view>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::metatags {

struct HeadDiff {
  // Hunks without context, each "@@ -OLD,COUNT +NEW,COUNT @@" (1-based line numbers) followed
  // by its removed lines ("-" and the line) and added lines ("+" and the line), every line
  // ended by "\n". Lines are the page's bytes without their line end, cut at kShownLineBytes
  // (then ending in "..."). After the hunks, one line "! TAG disappears" for each tag of
  // Vanishing. Empty when the rebuild changes nothing.
  std::string Text;
  // The tags found in removed lines and in no added line, in page order, each named once:
  // "TITLE", or "META " and the tag's name (its name=, else http-equiv=, else property=
  // value, lower-cased), or "META" alone for a tag with none of them.
  std::vector<std::string> Vanishing;
};

inline constexpr size_t kShownLineBytes = 400;

// The diff of a page against its rebuild. Linear in the pages' lengths for the few changes a
// rebuild makes; past a few thousand changed lines the changed stretch is shown whole.
HeadDiff Diff_Pages(std::string_view before, std::string_view after);

// After Rebuild_Page: the page as it stood (DocumentText, which the rebuild leaves alone)
// against the rebuilt page (RebuildBytes).
HeadDiff Head_Diff(const AppState& s);

}  // namespace zentrel::metatags
