#include "analysis/keyword_matching.h"

#include <cmath>
#include <cstdio>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "app/app_state.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "words/word_extraction.h"

namespace zentrel::analysis {

namespace {

std::string UnderCaseRule(const AppState& s, std::string_view t) {
  return s.KeywordsForceSameCase != 0 ? text::UCase(t) : std::string(t);
}

// Occurrences of needle in haystack, each search starting one character after the last hit,
// so overlapping occurrences all count. An empty needle is found at every position up to one
// past the end, as the position search reports it.
int16_t CountOverlapping(std::string_view haystack, std::string_view needle, int16_t start) {
  int16_t n = start;
  if (needle.empty())
    return ToInt16(int64_t{n} + static_cast<int64_t>(haystack.size()) + 1);
  size_t p = haystack.find(needle);
  while (p != std::string_view::npos) {
    n = ToInt16(int32_t{n} + 1);
    p = haystack.find(needle, p + 1);
  }
  return n;
}

// The keyword cut into its words at runs of spaces; an empty keyword is one empty word.
std::vector<std::string> SplitAtSpaces(const std::string& phrase) {
  std::vector<std::string> out;
  size_t i = 0;
  while (true) {
    size_t end = phrase.find(' ', i);
    out.push_back(phrase.substr(i, end == std::string::npos ? std::string::npos : end - i));
    if (end == std::string::npos)
      break;
    i = phrase.find_first_not_of(' ', end);
    if (i == std::string::npos)
      break;
  }
  return out;
}

void PrepareKeywordWords(AppState& s) {
  const size_t slots = static_cast<size_t>(s.KeywordCapacity) + 1;
  s.KeywordWords.assign(slots, std::vector<std::string>());
  s.KeywordLastWordIndex.assign(slots, 0);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    s.CurrentKeyword = words::MakeStringSingleSpaced(UnderCaseRule(s, At(s.KeywordList, i)));
    const std::string phrase = text::Trim(s.CurrentKeyword);
    std::vector<std::string> parts = SplitAtSpaces(phrase);
    const int16_t last = ToInt16(static_cast<int64_t>(parts.size()) - 1);
    if (last >= s.KeywordWordsSize)
      s.KeywordWordsSize = ToInt16(int32_t{last} + 1);
    At(s.KeywordPhrase, i) = phrase;
    At(s.KeywordLastWordIndex, i) = last;
    At(s.KeywordWords, i) = std::move(parts);
  }
}

void ScanText(AppState& s) {
  const std::string body = UnderCaseRule(s, s.DocumentText);
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    s.platform->DoEvents();  // each keyword is a search of the whole page
    s.CurrentKeyword = UnderCaseRule(s, At(s.KeywordList, i));
    int16_t& matches = At(s.KeywordBodyMatches, i);
    matches = CountOverlapping(body, s.CurrentKeyword, matches);
  }
}

void ScanWords(AppState& s) {
  PrepareKeywordWords(s);
  const int32_t count = s.DocumentWordCount;
  // W holds the words and, one past the last, the empty slot that the scan also visits.
  std::vector<std::string> w(static_cast<size_t>(count) + 1);
  std::unordered_map<std::string_view, std::vector<int32_t>> positions;
  for (int32_t k = 0; k < count; ++k)
    w[static_cast<size_t>(k)] = UnderCaseRule(s, At(s.DocumentWords, k));
  for (int32_t k = 0; k <= count; ++k) {
    if ((k & 4095) == 4095)
      s.platform->DoEvents();
    positions[w[static_cast<size_t>(k)]].push_back(k);
  }

  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const std::vector<std::string>& kw = At(s.KeywordWords, i);
    const int16_t last = At(s.KeywordLastWordIndex, i);
    auto hit = positions.find(kw[0]);
    if (hit == positions.end())
      continue;
    int16_t& matches = At(s.KeywordBodyMatches, i);
    for (int32_t k : hit->second) {
      if (last == 0) {
        matches = ToInt16(int32_t{matches} + 1);
        continue;
      }
      // A phrase matches only where all of its words follow one another inside the list.
      bool whole = true;
      for (int32_t j = 0; j <= last && whole; ++j)
        whole = k + j < count && kw[static_cast<size_t>(j)] == w[static_cast<size_t>(k + j)];
      if (whole)
        matches = ToInt16(int32_t{matches} + 1);
    }
  }
}

void FillBodyView(AppState& s) {
  if (s.ViewBodyShowRaw == 1)
    return;
  std::string view;
  for (int32_t k = 0; k < s.DocumentWordCount; ++k) {
    if (k > 0)
      view += ", ";
    view += At(s.DocumentWords, k);
  }
  s.Form.ScanKeyWords_StrippedHTMLDocument_TextBox = std::move(view);
}

}  // namespace

int16_t Tally_Current_TITLE_Keyword_Matches(AppState& s) {
  const std::string title = UnderCaseRule(s, s.TitleText);
  int16_t n = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const std::string keyword = UnderCaseRule(s, At(s.KeywordList, i));
    int16_t& matches = At(s.KeywordTitleMatches, i);
    matches = CountOverlapping(title, keyword, 0);
    if (matches > 0)
      n = ToInt16(int32_t{n} + 1);
  }
  return n;
}

void Tally_Current_Documents_Keyword_Matches(AppState& s) {
  if (s.KeywordsMatchScanType == 0)
    ScanText(s);
  else if (s.KeywordsMatchScanType == 1)
    ScanWords(s);
  FillBodyView(s);
}

std::string Check_Percentage_String(const std::string& value) {
  std::string s = text::Trim(value);
  if (text::Val(s) == 0.0)
    s = "0.0000000000";
  const size_t minus = s.find('-');
  if (minus != std::string::npos) {
    const double e = text::Val(std::string_view(s).substr(minus + 1));
    if (e < 0)
      RaiseInvalidProcedureCall();
    // Only four characters are kept, so a few zeros stand for any longer run.
    const size_t zeros = e > 8 ? 8 : static_cast<size_t>(e);
    s = "." + std::string(zeros, '0') + text::ReplaceAll(s, ".", "");
  }
  if (!s.empty() && s[0] == '.')
    s = "0" + s;
  return s.substr(0, 4);
}

int32_t Calc_Total_Length_Of_Documents_Words(const AppState& s) {
  int64_t total = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i)
    total += static_cast<int64_t>(At(s.KeywordList, i).size());
  return ToInt32(total);
}

std::string Double_To_Text(double value) {
  if (value == 0.0)
    return " 0";
  if (!std::isfinite(value))
    RaiseOverflow();
  const std::string sign = value < 0 ? "-" : " ";
  // Fifteen significant digits in exponent form: "d.dddddddddddddde+XX".
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.14e", std::fabs(value));
  const std::string formatted = buf;
  const size_t ePos = formatted.find('e');
  std::string digits = formatted.substr(0, 1) + formatted.substr(2, ePos - 2);
  const int exponent = std::stoi(formatted.substr(ePos + 1));
  while (digits.size() > 1 && digits.back() == '0')
    digits.pop_back();

  if (exponent < -4 || exponent >= 15) {
    std::string mantissa = digits.substr(0, 1);
    if (digits.size() > 1)
      mantissa += "." + digits.substr(1);
    char exp[16];
    std::snprintf(exp, sizeof exp, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return sign + mantissa + exp;
  }
  std::string out;
  if (exponent < 0) {
    out = "." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
  } else {
    const size_t intDigits = static_cast<size_t>(exponent) + 1;
    if (digits.size() <= intDigits) {
      out = digits + std::string(intDigits - digits.size(), '0');
    } else {
      out = digits.substr(0, intDigits) + "." + digits.substr(intDigits);
    }
  }
  return sign + out;
}

std::string Keyword_Density_Text(const AppState& s, int16_t i) {
  if (s.DocumentWordCount <= 0)
    return Check_Percentage_String("");
  const double density = static_cast<double>(At(s.KeywordBodyMatches, i)) /
                         static_cast<double>(s.DocumentWordCount) * 100.0;
  return Check_Percentage_String(Double_To_Text(density));
}

}  // namespace zentrel::analysis
