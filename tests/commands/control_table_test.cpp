// The table from control names to handlers.

#include "commands/control_table.h"

#include <gtest/gtest.h>

#include <new>
#include <set>

#include "commands/startup.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "state/app_state.h"

namespace zentrel::commands {
namespace {

using testing::CancellingPlatform;

TEST(Dispatch, EveryControlRunsOnAFreshlyStartedProgram) {
  testing::ShellProgramFolder folder;
  CancellingPlatform platform(folder.Path());
  AppState s(platform);
  Form_Load(s);
  std::set<std::string> names;
  for (const Control& c : Control_Table()) {
    EXPECT_TRUE(names.insert(c.Name).second) << "duplicate control " << c.Name;
    EXPECT_TRUE(Dispatch(s, c.Name)) << c.Name;
    EXPECT_EQ(platform.busyDepth, 0) << c.Name;
  }
  EXPECT_TRUE(names.count("mnu_file_QuickLoadFile5"));
  EXPECT_TRUE(s.Form.ProgramHasEnded);  // "&Quit" was among them
  EXPECT_FALSE(Dispatch(s, "No_Such_Control"));
  EXPECT_FALSE(Dispatch(s, "command1"));  // names are case-sensitive
}

TEST(Run_Guarded, AnErrorEndsTheCommandAndIsShownOnce) {
  testing::FakePlatform platform;
  AppState s(platform);
  EXPECT_EQ(Run_Guarded(s, [](AppState&) {}), std::nullopt);
  EXPECT_EQ(Run_Guarded(s, [](AppState&) { throw std::bad_alloc(); }),
            "Run-time error '7': Out of memory");
  EXPECT_EQ(platform.messages, std::vector<std::string>{"Run-time error '7': Out of memory"});
}

}  // namespace
}  // namespace zentrel::commands
