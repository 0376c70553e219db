#include "analysis/page_report.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "state/app_state.h"

namespace zentrel::analysis {

void Reset_Report(AppState& s) {
  s.ReportBuffer.clear();
  s.ReportBufferSize = kReportBufferStart;
  s.ReportWritePos = 1;
}

namespace {

void Advance(AppState& s, size_t textLength) {
  const int64_t length = static_cast<int64_t>(textLength) + 2;
  // A line longer than one step still fits whole: the buffer grows until it does.
  while (int64_t{s.ReportWritePos} + length >= s.ReportBufferSize)
    s.ReportBufferSize = ToInt32(int64_t{s.ReportBufferSize} + kReportBufferStep);
  s.ReportWritePos = ToInt32(int64_t{s.ReportWritePos} + length);
}

}  // namespace

void Report(AppState& s, const std::string& text) {
  Advance(s, text.size());
  s.ReportBuffer += text;
  s.ReportBuffer += text::kCrLf;
}

void Report(AppState& s, std::string&& text) {
  Advance(s, text.size());
  // A line longer than all before it, with room for them, takes them in at its front: the
  // report then holds its one copy of a huge line (such as the duplicates text).
  const size_t whole = s.ReportBuffer.size() + text.size() + text::kCrLf.size();
  if (text.size() > s.ReportBuffer.size() && text.capacity() >= whole) {
    text.insert(0, s.ReportBuffer);
    s.ReportBuffer = std::move(text);
  } else {
    s.ReportBuffer += text;
  }
  s.ReportBuffer += text::kCrLf;
}

int32_t Report_Center_Pad(size_t length) {
  // 74/2 - length/2, halves going to the even neighbour.
  const int64_t twice = kReportWidth - static_cast<int64_t>(length);
  int64_t pad;
  if (twice % 2 == 0) {
    pad = twice / 2;
  } else {
    const int64_t below = (twice - 1) / 2;  // twice is odd, so this is exact
    pad = below % 2 == 0 ? below : below + 1;
  }
  return pad < 0 ? 0 : static_cast<int32_t>(pad);
}

std::string Report_Center_AddString(const std::string& text) {
  return std::string(static_cast<size_t>(Report_Center_Pad(text.size())), ' ') + text;
}

void Report_Center(AppState& s, std::string text) {
  text.insert(0, static_cast<size_t>(Report_Center_Pad(text.size())), ' ');
  Report(s, std::move(text));
}

void Report_Section_Break(AppState& s, const std::string& text) {
  Report(s, kReportRule);
  Report_Center(s, text);
  Report(s, kReportRule);
}

void Report_Title(AppState& s, const std::string& text) {
  const std::string pad(static_cast<size_t>(Report_Center_Pad(text.size())), ' ');
  Report(s, pad + text);
  Report(s, pad + std::string(text.size(), '='));
}

std::string Report_Text(AppState& s) {
  s.ReportBuffer += ' ';
  return std::move(s.ReportBuffer);
}

}  // namespace zentrel::analysis
