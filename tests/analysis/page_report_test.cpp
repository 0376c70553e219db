#include "analysis/page_report.h"

#include "started_program.h"

namespace zentrel::analysis {
namespace {

TEST(Report_Center, HalvesGoToTheEvenNeighbour) {
  const std::pair<size_t, int32_t> pads[] = {{19, 28}, {21, 26}, {23, 26}, {20, 27},
                                             {0, 37},  {75, 0},  {77, 0}};
  for (const auto& [length, pad] : pads)
    EXPECT_EQ(Report_Center_Pad(length), pad) << length;
  testing::Started w;
  Reset_Report(w.s);
  Report_Center(w.s, std::string(80, 'x'));
  Report_Center(w.s, "abc");
  EXPECT_EQ(Report_Text(w.s), std::string(80, 'x') + "\r\n" + std::string(36, ' ') + "abc\r\n ");
}

TEST(Report, GrowsTheBufferByStepsAndLosesNothing) {
  testing::Started w;
  Reset_Report(w.s);
  const std::string line(98, 'r');  // 100 characters with CR LF
  std::string expected;
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(w.s.ReportBufferSize, 100000);  // the 1000th line would reach the end
    Report(w.s, line);
    expected += line + "\r\n";
  }
  EXPECT_EQ(w.s.ReportBufferSize, 125000);
  const std::string longLine(60000, 'L');  // longer than a step, still lands whole
  Report(w.s, longLine);
  EXPECT_EQ(w.s.ReportBufferSize, 175000);
  std::string huge(200000, 'H');  // longer than all before it and with room: taken in whole
  huge.reserve(400000);
  Report(w.s, std::move(huge));
  Report(w.s, "after");
  EXPECT_EQ(Report_Text(w.s),
            expected + longLine + "\r\n" + std::string(200000, 'H') + "\r\nafter\r\n ");
}

}  // namespace
}  // namespace zentrel::analysis
