// The table from control names to handlers.

#include "app/control_table.h"

#include <gtest/gtest.h>

#include <set>

#include "app/app_state.h"
#include "app/startup.h"
#include "fake_platform.h"
#include "shell_program_folder.h"

namespace zentrel::app {
namespace {

// Cancels every dialog and answers No to every question, so any control can be clicked.
class CancellingPlatform : public testing::FakePlatform {
 public:
  using FakePlatform::FakePlatform;
  bool ShowOpen(FileDialog& dialog) override {
    dialogs.push_back(dialog);
    return false;
  }
  bool ShowSave(FileDialog& dialog) override {
    dialogs.push_back(dialog);
    return false;
  }
  bool AskYesNo(const std::string& title, const std::string& text) override {
    questions.push_back(title + ": " + text);
    return false;
  }
};

TEST(Control_Table, NamesAreUniqueAndUnknownNamesAreRefused) {
  std::set<std::string> names;
  for (const Control& c : Control_Table()) {
    EXPECT_TRUE(names.insert(c.Name).second) << "duplicate control " << c.Name;
    EXPECT_TRUE(static_cast<bool>(c.Handler)) << c.Name;
  }
  EXPECT_TRUE(names.count("mnu_file_QuickLoadFile5"));
  testing::FakePlatform platform;
  AppState s(platform);
  EXPECT_FALSE(Dispatch(s, "No_Such_Control"));
  EXPECT_FALSE(Dispatch(s, ""));
  EXPECT_FALSE(Dispatch(s, "command1"));  // names are case-sensitive
}

TEST(Dispatch, EveryControlRunsOnAFreshlyStartedProgram) {
  testing::ShellProgramFolder folder;
  CancellingPlatform platform(folder.Path());
  AppState s(platform);
  Form_Load(s);
  for (const Control& c : Control_Table()) {
    EXPECT_TRUE(Dispatch(s, c.Name)) << c.Name;
    EXPECT_EQ(platform.busyDepth, 0) << c.Name;
  }
  EXPECT_TRUE(s.Form.ProgramHasEnded);  // "&Quit" was among them
}

}  // namespace
}  // namespace zentrel::app
