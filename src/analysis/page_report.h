#pragma once
// The page report buffer and its line writers.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::analysis {

inline constexpr int32_t kReportBufferStart = 100000;
inline constexpr int32_t kReportBufferStep = 25000;

inline constexpr const char* kReportRule =
    "*=----------------------------------------------------------------------=*";
inline constexpr int32_t kReportWidth = 74;

void Reset_Report(AppState& s);
void Report(AppState& s, const std::string& text);
void Report(AppState& s, std::string&& text);
void Report_Center(AppState& s, std::string text);
std::string Report_Center_AddString(const std::string& text);
void Report_Section_Break(AppState& s, const std::string& text);
void Report_Title(AppState& s, const std::string& text);
// The spaces that centre a text of this length on the 74-character report width.
int32_t Report_Center_Pad(size_t length);
// The finished report, handed over without a copy: the first ReportWritePos characters of
// the buffer, that is everything written and one trailing space. The buffer is left empty.
std::string Report_Text(AppState& s);

}  // namespace zentrel::analysis
