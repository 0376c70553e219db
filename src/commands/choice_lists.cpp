#include "commands/choice_lists.h"

#include <initializer_list>

#include "base/text.h"
#include "commands/edit_meta_tags.h"
#include "decode/meta_tag_table.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

void Fill(state::DropDown& box, const std::string& initialText,
          std::initializer_list<const char*> entries) {
  box.List.assign(entries.begin(), entries.end());
  box.Text = initialText;
}

// Numbers in the signed number form (" 10"), each followed by `unit`.
void Fill_Numbers(state::DropDown& box, const std::string& initialText, int from, int to, int step,
                  const std::string& unit) {
  box.List.clear();
  for (int n = from; n <= to; n += step)
    box.List.push_back(text::SignedNumber(n) + unit);
  box.Text = initialText;
}

void Set_Field(AppState& s, const std::string& name, const std::string& value) {
  Set_MetaTag_TextBox(s, decode::Find_MetaTag_Index(s, name), value);
}

}  // namespace

void Set_Drop_Downs(AppState& s) {
  state::FormModel& f = s.Form;
  Fill(f.PageMetaTags_Rating_DropDown, "Select", {"general", "14 years", "mature", "restricted"});
  Fill(f.PageMetaTags_Robots_DropDown, "Select",
       {"index", "all", "none", "index,follow", "index,nofollow", "noindex,nofollow",
        "noindex,follow"});
  Fill(f.PageMetaTags_Distribution_DropDown, "Select", {"global", "local", "iu"});
  Fill_Numbers(f.PageMetaTags_RevisitAfter_DropDown, "Select", 10, 100, 10, " days");
  Fill_Numbers(f.PageMetaTags_Expires_Day, "", 1, 31, 1, "");
  Fill(f.PageMetaTags_Expires_Month, "",
       {"January", "February", "March", "April", "May", "June", "July", "August", "September",
        "October", "November", "December"});
  Fill_Numbers(f.PageMetaTags_Expires_Year, "", 2001, 2101, 1, "");
  Fill(f.Defaults_Users_FileExtend_DropDown, s.DefaultFileExtension, {".html", ".htm", ".txt"});
}

void PageMetaTags_Rating_DropDown_Click(AppState& s) {
  Set_Field(s, "rating", s.Form.PageMetaTags_Rating_DropDown.Text);
}

void PageMetaTags_Robots_DropDown_Click(AppState& s) {
  Set_Field(s, "robots", s.Form.PageMetaTags_Robots_DropDown.Text);
}

void PageMetaTags_Distribution_DropDown_Click(AppState& s) {
  Set_Field(s, "distribution", s.Form.PageMetaTags_Distribution_DropDown.Text);
}

void PageMetaTags_RevisitAfter_DropDown_Click(AppState& s) {
  Set_Field(s, "revisit-after", text::Trim(s.Form.PageMetaTags_RevisitAfter_DropDown.Text));
}

// The lists are not checked against each other: "31 February 2001" stands as picked.
void PageMetaTags_Expires_SetDate_Click(AppState& s) {
  const state::FormModel& f = s.Form;
  Set_Field(s, "expires",
            text::Trim(f.PageMetaTags_Expires_Day.Text) + " " + f.PageMetaTags_Expires_Month.Text +
                " " + text::Trim(f.PageMetaTags_Expires_Year.Text));
}

}  // namespace zentrel::commands
