#include "analysis/page_report.h"

#include <gtest/gtest.h>

#include <string>

#include "app/app_state.h"
#include "fake_platform.h"

namespace zentrel::analysis {
namespace {

const std::string kRule = "*=" + std::string(70, '-') + "=*";

struct Writer {
  testing::FakePlatform platform;
  AppState s{platform};
  Writer() { Reset_Report(s); }
};

TEST(Report_Center, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(Report_Center_Pad(19), 28);  // 27.5
  EXPECT_EQ(Report_Center_Pad(21), 26);  // 26.5
  EXPECT_EQ(Report_Center_Pad(23), 26);  // 25.5
  EXPECT_EQ(Report_Center_Pad(20), 27);
  EXPECT_EQ(Report_Center_Pad(0), 37);
  EXPECT_EQ(Report_Center_Pad(74), 0);
  EXPECT_EQ(Report_Center_Pad(75), 0);  // -0.5 goes to 0
  EXPECT_EQ(Report_Center_Pad(77), 0);  // negative: no spaces
  EXPECT_EQ(Report_Center_AddString("abc"), std::string(36, ' ') + "abc");

  Writer w;
  Report_Center(w.s, std::string(80, 'x'));
  Report_Center(w.s, "Title Character Length: 25 Characters");
  EXPECT_EQ(Report_Text(w.s), std::string(80, 'x') + "\r\n" + std::string(18, ' ') +
                                  "Title Character Length: 25 Characters\r\n ");
}

TEST(Report_Section_Break, RuleLinesAndUnderlinedTitles) {
  Writer w;
  Report_Section_Break(w.s, "Zentrel Page Report");
  Report_Title(w.s, "-= KeyWord Count =-");
  Report(w.s, "");
  Reports_Colour_Warnings(w.s);
  const std::string pad(28, ' ');
  EXPECT_EQ(Report_Text(w.s), kRule + "\r\n" + pad + "Zentrel Page Report\r\n" + kRule + "\r\n" +
                                  pad + "-= KeyWord Count =-\r\n" + pad + std::string(19, '=') +
                                  "\r\n\r\n ");
  EXPECT_EQ(w.s.ReportWritePos, static_cast<int32_t>(Report_Text(w.s).size()));
}

TEST(Report, GrowsTheBufferByStepsAndLosesNothing) {
  Writer w;
  std::string expected;
  const std::string line(98, 'r');  // 100 characters with CR LF
  for (int i = 0; i < 999; ++i) {
    Report(w.s, line);
    expected += line + "\r\n";
  }
  EXPECT_EQ(w.s.ReportBufferSize, 100000);  // 99901 + 100 would reach the end
  Report(w.s, line);
  expected += line + "\r\n";
  EXPECT_EQ(w.s.ReportBufferSize, 125000);
  EXPECT_EQ(w.s.ReportWritePos, 100001);
  // One line longer than a step still lands whole.
  const std::string longLine(60000, 'L');
  Report(w.s, longLine);
  expected += longLine + "\r\n";
  EXPECT_EQ(w.s.ReportBufferSize, 175000);
  EXPECT_EQ(Report_Text(w.s), expected + " ");

  Reset_Report(w.s);
  EXPECT_EQ(Report_Text(w.s), " ");
  EXPECT_EQ(w.s.ReportBufferSize, 100000);
}

}  // namespace
}  // namespace zentrel::analysis
