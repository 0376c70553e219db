#include "decode/section_validation.h"

#include "base/run_time_error.h"
#include "state/app_state.h"

namespace zentrel::decode {

namespace {

constexpr int32_t kOpenTagLength = 5;  // "<head" and "<html"

// Strictly between, on both sides.
bool Between(int32_t low, int32_t x, int32_t high) {
  return low < x && x < high;
}

}  // namespace

std::string HTML_VALIDATE_Document_Sections(const AppState& s) {
  const int32_t htmlStart = s.HtmlStart, htmlEnd = s.HtmlEnd;
  const int32_t headStart = s.HeadStart, headEnd = s.HeadEnd;
  const int32_t bodyStart = s.BodyStart, bodyEnd = s.BodyEnd;
  if (htmlStart < 0)
    return "Page Is Missing Opening <HTML> TAG";
  if (htmlEnd < 0)
    return "Page Is Missing Closing </HTML> TAG";
  if (htmlStart > htmlEnd)
    return "Closing </HTML> TAG is BEFORE the opening <HTML> tag";
  if (headStart < 0)
    return "Page Is Missing Opening <HEAD> TAG";
  if (headEnd < 0)
    return "Page Is Missing Closing </HEAD> TAG";
  // The head and body messages of these two order checks are crossed; users know them so.
  if (headStart > headEnd)
    return "Closing </BODY> TAG is BEFORE the opening <BODY> tag";
  if (bodyStart < 0)
    return "Page Is Missing Opening <BODY> TAG";
  if (bodyEnd < 0)
    return "Page Is Missing Closing </BODY> TAG";
  if (bodyStart > bodyEnd)
    return "Closing </HEAD> TAG is BEFORE the opening <HEAD> tag";
  if (headStart < htmlStart || headEnd < htmlStart)
    return "Header Tags <HEAD> & </HEAD> are NOT allowed BEFORE the opening <HTML> tag";
  if (headStart > htmlEnd || headEnd > htmlEnd)
    return "Header Tags <HEAD> & </HEAD> are NOT allowed AFTER the closing </HTML> Tag";
  if (bodyStart < htmlStart || bodyEnd < htmlStart)
    return "BODY Tags <BODY> & </BODY> are NOT allowed BEFORE the opening <HTML> tag";
  if (bodyStart > htmlEnd || bodyEnd > htmlEnd)
    return "BODY Tags <BODY> & </BODY> are NOT allowed AFTER the closing </HTML> Tag";
  if (Between(headStart, bodyStart, headEnd))
    return "BODY Tag <BODY> NOT allowed Between <HEAD> & </HEAD> tags";
  if (Between(headStart, bodyEnd, headEnd))
    return "BODY Tag </BODY> NOT allowed Between <HEAD> & </HEAD> tags";
  if (Between(bodyStart, headStart, bodyEnd))
    return "HEAD Tag <HEAD> NOT allowed Between <BODY> & </BODY> tags";
  if (Between(bodyStart, headEnd, bodyEnd))
    return "HEAD Tag </HEAD> NOT allowed Between <BODY> & </BODY> tags";
  return {};
}

int32_t Html_Get_Starting_HeaderByte_For_Tag_Encoding(const AppState& s) {
  if (s.HeadStart >= 0)
    return ToInt32(static_cast<int64_t>(s.HeadStart) + kOpenTagLength);
  if (s.HtmlStart >= 0)
    return ToInt32(static_cast<int64_t>(s.HtmlStart) + kOpenTagLength);
  return 0;
}

int32_t Html_Get_Ending_HeaderByte_For_Tag_Encoding(const AppState& s) {
  if (s.HeadEnd >= 0)
    return s.HeadEnd;
  return ToInt32(static_cast<int64_t>(s.DocumentLength) + 1);
}

}  // namespace zentrel::decode
