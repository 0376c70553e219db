#pragma once
// The "Checks" tab: the findings of the loaded page under the checks' profile (the file the
// command line reads too), filtered by severity; a double click shows a finding's tag on "Edit
// Page". And the length labels of the title and description fields on "Edit Meta Tags".

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

// Start-up: every severity shown; the profile beside the dictionary (its defaults when there is
// none) read for the length labels. A profile that cannot be read is named above the findings,
// and its defaults apply.
void Init_Checks(AppState& s);
// Checks the page in the cache under the profile, read afresh, and shows the findings.
void Check_Page(AppState& s);
// The window's analysis of the page: the checks first, so a page whose analysis ends in an
// error still gets its findings, then Meta_Tag_KeyWord_Scan. (The command line's report and
// rebuild run the analysis alone.)
void Check_And_Scan(AppState& s, const std::string& fileName);
// No page: no findings.
void Clear_Page_Checks(AppState& s);

// "Errors", "Warnings", "Notices": which findings the table shows.
void Checks_Severity_CheckBox_Click(AppState& s);
// Brings "Edit Page" forward with the tag of the finding double-clicked selected.
void Checks_Findings_Table_DblClick(AppState& s);

// The length of field i in characters and pixels against the profile's limits, when the field
// is the title or the description.
void Show_MetaTag_Length(AppState& s, int16_t i);

}  // namespace zentrel::commands
