#include "commands/checks.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "checks/page_checks.h"
#include "checks/profile.h"
#include "commands/scan_keywords.h"
#include "decode/meta_tag_table.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

state::LengthLimits LimitsOf(const checks::Profile& p, checks::Rule tooLong, checks::Rule tooShort,
                             int maxPixels, int minChars, int fontPixels) {
  return {p.Setting(tooLong).enabled ? maxPixels : 0, p.Setting(tooShort).enabled ? minChars : 0,
          fontPixels};
}

// The profile as lint reads it by default; its limits go into the state for the labels.
checks::Profile Read_Profile(AppState& s) {
  checks::Profile profile = checks::DefaultProfile();
  s.ProfileProblem.clear();
  const std::string path = checks::DefaultProfilePath(s.ProgramFolder);
  try {
    if (file_io::FileExists(path))
      profile = checks::LoadProfile(path);
  } catch (const checks::ProfileError& e) {
    s.ProfileProblem =
        std::string("The checks' profile cannot be read, so its defaults apply: ") + e.what();
  }
  using checks::Rule;
  s.TitleLimits = LimitsOf(profile, Rule::TitleTooLong, Rule::TitleTooShort, profile.titleMaxPixels,
                           profile.titleMinChars, profile.titleFontPixels);
  s.DescriptionLimits = LimitsOf(profile, Rule::DescriptionTooLong, Rule::DescriptionTooShort,
                                 profile.descriptionMaxPixels, profile.descriptionMinChars,
                                 profile.descriptionFontPixels);
  return profile;
}

constexpr std::array<checks::Severity, 3> kSeverities = {
    checks::Severity::Error, checks::Severity::Warning, checks::Severity::Notice};

std::array<int16_t*, 3> SeverityBoxes(state::FormModel& f) {
  return {&f.Checks_ShowErrors_CheckBox, &f.Checks_ShowWarnings_CheckBox,
          &f.Checks_ShowNotices_CheckBox};
}

std::string Counted(int64_t n, const char* one) {
  return std::to_string(n) + " " + one + (n == 1 ? "" : "s");
}

size_t SeverityIndex(const std::string& name) {
  size_t k = 0;
  while (k + 1 < kSeverities.size() && name != checks::SeverityName(kSeverities[k]))
    ++k;
  return k;
}

// The rows of the severities ticked, and the counts of all above them.
void Show_Findings(AppState& s) {
  state::FormModel& f = s.Form;
  const std::array<int16_t*, 3> boxes = SeverityBoxes(f);
  f.Checks_Findings_Table.clear();
  for (const state::CheckFinding& finding : s.PageFindings) {
    if (*boxes[SeverityIndex(finding.Severity)] != 0)
      f.Checks_Findings_Table.push_back(finding);
  }
  const std::array<int64_t, 3>& n = s.SeverityCounts;
  const int64_t total = n[0] + n[1] + n[2];
  std::string summary;
  if (s.DocumentLength != 0) {
    summary = total == 0 ? std::string("No findings: the page passes every check.")
                         : Counted(n[0], "error") + ", " + Counted(n[1], "warning") + ", " +
                               Counted(n[2], "notice");
    if (static_cast<int64_t>(f.Checks_Findings_Table.size()) != total)
      summary += "; " + std::to_string(f.Checks_Findings_Table.size()) + " shown";
    if (s.PageFindings.size() != static_cast<size_t>(total))
      summary += " (at most the first " + std::to_string(state::kFindingsKept) + " of each)";
  }
  f.Checks_Summary_Label = s.ProfileProblem.empty() ? summary : s.ProfileProblem + "\n" + summary;
}

// The bytes a finding points at: its tag up to the closing ">", or its text up to the next
// tag or line end.
size_t SpanAt(std::string_view page, size_t begin) {
  const bool tag = begin < page.size() && page[begin] == '<';
  const size_t end = tag ? page.find('>', begin) : page.find_first_of("<\r\n", begin);
  if (end == std::string_view::npos)
    return std::min(page.find_first_of("\r\n", begin), page.size()) - begin;
  return end - begin + (tag ? 1 : 0);
}

void Show_Length_Labels(AppState& s) {
  for (const char* name : {"pagetitle", "description"}) {
    const int16_t i = decode::Find_MetaTag_Index(s, name);
    if (i >= 0 && i < state::kMetaTagFieldCount)
      Show_MetaTag_Length(s, i);
  }
}

}  // namespace

void Init_Checks(AppState& s) {
  for (int16_t* box : SeverityBoxes(s.Form))
    *box = 1;
  Read_Profile(s);
  Show_Findings(s);
  Show_Length_Labels(s);
}

void Check_Page(AppState& s) {
  const checks::Profile profile = Read_Profile(s);
  const std::string_view page(reinterpret_cast<const char*>(s.DocumentBytes.data()),
                              static_cast<size_t>(std::max(s.DocumentLength, 0)));
  s.CheckedCodec = codec::DetectCodec(page);
  s.PageFindings.clear();
  s.SeverityCounts = {};
  if (!page.empty()) {
    for (checks::Finding& finding : checks::CheckPage(page, profile).findings) {
      const auto k = static_cast<size_t>(finding.severity);
      if (static_cast<size_t>(s.SeverityCounts[k]++) >= state::kFindingsKept)
        continue;
      s.PageFindings.push_back({std::string(checks::SeverityName(finding.severity)),
                                std::string(checks::InfoOf(finding.rule).id),
                                std::move(finding.message), finding.at.line, finding.at.column,
                                static_cast<int64_t>(finding.offset)});
    }
  }
  Show_Findings(s);
  Show_Length_Labels(s);
}

void Check_And_Scan(AppState& s, const std::string& fileName) {
  Check_Page(s);
  Meta_Tag_KeyWord_Scan(s, fileName);
}

void Clear_Page_Checks(AppState& s) {
  s.PageFindings.clear();
  s.SeverityCounts = {};
  s.CheckedCodec = codec::DetectCodec("");
  Show_Findings(s);
}

void Checks_Severity_CheckBox_Click(AppState& s) {
  Show_Findings(s);
}

void Checks_Findings_Table_DblClick(AppState& s) {
  state::FormModel& f = s.Form;
  const int32_t row = f.Checks_Findings_Table_Row;
  if (row < 0 || static_cast<size_t>(row) >= f.Checks_Findings_Table.size())
    return;
  // The page may have been edited since the check: the selection stays inside it.
  const std::string_view page = f.Html_Document_Editor;
  const size_t begin =
      std::min(static_cast<size_t>(f.Checks_Findings_Table[row].Offset), page.size());
  f.Html_Document_Editor_SelStart = ToInt32(static_cast<int64_t>(begin));
  f.Html_Document_Editor_SelLength = ToInt32(static_cast<int64_t>(SpanAt(page, begin)));
  f.SelectedTab = state::kEditPageTab;
}

void Show_MetaTag_Length(AppState& s, int16_t i) {
  const bool title = i == decode::Find_MetaTag_Index(s, "pagetitle");
  if (!title && i != decode::Find_MetaTag_Index(s, "description"))
    return;
  const state::LengthLimits& limits = title ? s.TitleLimits : s.DescriptionLimits;
  const checks::MeasuredText m =
      checks::Measure(At(s.Form.MetaTag_TextBox, i), s.CheckedCodec, limits.FontPixels);
  const size_t label = title ? 0 : 1;
  s.Form.MetaTag_Length_Label[label] =
      std::to_string(m.chars) + " chars, " + std::to_string(m.pixels) + " px";
  using state::LengthLevel;
  s.Form.MetaTag_Length_Level[label] = limits.MaxPixels > 0 && m.pixels > limits.MaxPixels
                                           ? LengthLevel::Over
                                       : m.chars < limits.MinChars ? LengthLevel::Under
                                                                   : LengthLevel::Within;
}

}  // namespace zentrel::commands
