// The view's edge: the page codec on QString, editor positions, dialog filters, and the
// binding table's rule that only what the user changed goes back into the Form.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "fake_platform.h"
#include "state/app_state.h"
#include "ui/common_dialog.h"
#include "ui/form_binding.h"
#include "ui/text_codec.h"
#include "ui_test_support.h"

namespace zentrel::ui {

TEST(cCommonDialog, FilterTextBecomesQtNameFilters) {
  EXPECT_EQ(cCommonDialog::NameFilters("(*.html)|*.html|(*.*)|*.*|"),
            (QStringList{"(*.html)", "(*.*)"}));
  EXPECT_EQ(cCommonDialog::NameFilters("Tag lists|*.tag|Pages|*.htm;*.html|"),
            (QStringList{"Tag lists (*.tag)", "Pages (*.htm *.html)"}));
  EXPECT_EQ(cCommonDialog::PatternExtension("(*.tag)|*.tag|(*.*)|*.*|", 1), ".tag");
  EXPECT_EQ(cCommonDialog::PatternExtension("(*.tag)|*.tag|(*.*)|*.*|", 2), "");
}

class FormBindingTest : public ::testing::Test {
 protected:
  FormBindingTest() { zentrel::testing::App(); }
  zentrel::testing::FakePlatform platform;
  AppState s{platform};
  FormBinding bind{s};
};

TEST_F(FormBindingTest, OnlyWhatTheUserChangedGoesBackIntoTheForm) {
  s.Form.Html_Document_Editor = "plain ascii page";
  s.Form.MetaTag_TextBox[0] = "bad \xFF byte";  // not UTF-8: shown with a replacement mark
  QLineEdit field;
  QCheckBox mark;
  std::vector<std::string> setterCalls;
  bind.CodecSource(&s.Form.Html_Document_Editor);
  bind.LineEdit(&field, &s.Form.MetaTag_TextBox[0], [&](AppState& st, const std::string& text) {
    setterCalls.push_back(text);
    st.Form.MetaTag_TextBox[0] = text;
  });
  bind.CheckBox(&mark, &s.Form.MetaTag_Selection_CheckBox[0]);
  int userChanges = 0;
  bind.OnUserChange([&] {
    ++userChanges;
    bind.Pull();
    bind.Push();
  });
  bind.Push();
  bind.Pull();
  EXPECT_EQ(s.Form.MetaTag_TextBox[0], "bad \xFF byte");
  EXPECT_TRUE(setterCalls.empty());

  // Typing runs the field's setter at once; a tick waits for the next pull.
  field.clear();
  zentrel::testing::Type(&field, QStringLiteral("\u00E9t\u00E9"));
  EXPECT_EQ(userChanges, 3);
  ASSERT_FALSE(setterCalls.empty());
  EXPECT_EQ(setterCalls.back(), "\xC3\xA9t\xC3\xA9");
  mark.setChecked(true);
  EXPECT_EQ(s.Form.MetaTag_Selection_CheckBox[0], 0);
  bind.Pull();
  EXPECT_EQ(s.Form.MetaTag_Selection_CheckBox[0], 1);

  // What the core writes is shown, without running the setter again.
  const auto calls = setterCalls.size();
  s.Form.MetaTag_TextBox[0] = "from the core";
  s.Form.MetaTag_Selection_CheckBox[0] = 0;
  bind.Push();
  EXPECT_EQ(field.text(), QStringLiteral("from the core"));
  EXPECT_FALSE(mark.isChecked());
  EXPECT_EQ(setterCalls.size(), calls);
}

}  // namespace zentrel::ui
