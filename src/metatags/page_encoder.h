#pragma once
// Rebuilding the page with the fields of "Edit Meta Tags": the old TITLE and known META tags
// blanked in the cache, a fresh header block of one TITLE line and one META line per field
// written just inside the head, the result in RebuildBytes. Saving it is the save path's.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::metatags {

std::string Build_Meta_Tag(const AppState& s, const std::string& content, const std::string& name);
// Rescans the page so that only the tags found now get blanked; returns the first problem of
// its sections, or "" when they are in order.
std::string Rescan_For_Encoding(AppState& s);
// Rebuilds the rescanned page into RebuildBytes and returns the number of bytes written. A
// header block that does not fit twice the page's length is a run-time error; the cache then
// has lost its old tags.
int32_t Rebuild_Page(AppState& s);
// Copies the cache's bytes `from` to `to` inclusive, leaving out the blanked ones (zeros),
// into RebuildBytes at `destination`; returns the position after the last byte written.
// Nothing is copied when from >= to.
int32_t Html_Copy_Section_To_Temp(AppState& s, int32_t from, int32_t to, int32_t destination);

}  // namespace zentrel::metatags
