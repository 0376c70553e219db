#pragma once
// The analysis of the loaded page: decode, count, match and report, in one fixed order. It
// computes; the texts for the window's boxes are left in the state's result fields, which the
// command that ran it shows.

namespace zentrel {
struct AppState;
}

namespace zentrel::analysis {

void Analyse_Page(AppState& s);

}  // namespace zentrel::analysis
