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

TEST(TextCodec, EditorPositionsCountLineBreaksAndWideCharacters) {
  // "\xC3\xA9" is two bytes, the CR LF one break, the emoji two units in the editor.
  const std::string page = "a\xC3\xA9\r\nb\xF0\x9F\x98\x80x";
  for (const auto& [byte, unit] : {std::pair{3, 2}, {5, 3}, {10, 6}}) {
    EXPECT_EQ(ByteToEditor(page, Codec::Utf8, byte), unit) << byte;
    EXPECT_EQ(EditorToByte(page, Codec::Utf8, unit), static_cast<size_t>(byte)) << unit;
  }
  EXPECT_EQ(EditorToByte(page, Codec::Utf8, 99), page.size());
  EXPECT_EQ(ByteToEditor("\xE9\xE9\r\n!", Codec::Windows1252, 5), 4);
}

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

TEST_F(FormBindingTest, EditedPageSourceKeepsItsBytesAndLineEnds) {
  // A Windows-1252 page with CR LF line ends and a no-break space.
  s.Form.Html_Document_Editor = "<p>caf\xE9!\xA0\x81</p>\r\n<p>two</p>\r\n";
  QPlainTextEdit editor;
  bind.CodecSource(&s.Form.Html_Document_Editor);
  bind.TextArea(&editor, &s.Form.Html_Document_Editor);
  bind.Push();
  EXPECT_EQ(bind.PageCodec(), Codec::Windows1252);
  // toPlainText shows the no-break space as a space; the pull below must still give 0xA0.
  EXPECT_EQ(editor.toPlainText(), QString::fromUtf8("<p>caf\xC3\xA9! \xC2\x81</p>\n<p>two</p>\n"));

  QTextCursor c(editor.document());
  c.movePosition(QTextCursor::End);
  c.insertText(QStringLiteral("<p>\u00FCber</p>"));
  bind.Pull();
  EXPECT_EQ(s.Form.Html_Document_Editor,
            "<p>caf\xE9!\xA0\x81</p>\r\n<p>two</p>\r\n<p>\xFC"
            "ber</p>");
}

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
