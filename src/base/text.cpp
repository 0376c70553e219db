#include "base/text.h"

#include <cctype>
#include <cstdlib>

namespace zentrel::text {

std::string LCase(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    c = LowerAscii(c);
  return out;
}

std::string UCase(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    c = UpperAscii(c);
  return out;
}

std::string Trim(std::string_view s) {
  size_t first = s.find_first_not_of(' ');
  if (first == std::string_view::npos)
    return {};
  size_t last = s.find_last_not_of(' ');
  return std::string(s.substr(first, last - first + 1));
}

std::string ReplaceAll(std::string_view s, std::string_view from, std::string_view to) {
  std::string out;
  out.reserve(s.size());
  size_t pos = 0;
  while (true) {
    size_t hit = s.find(from, pos);
    if (hit == std::string_view::npos)
      break;
    out.append(s.substr(pos, hit - pos));
    out.append(to);
    pos = hit + from.size();
  }
  out.append(s.substr(pos));
  return out;
}

std::string SignedNumber(int64_t value) {
  return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

double Val(std::string_view s) {
  size_t i = 0;
  while (i < s.size() && (s[i] == ' ' || s[i] == '\t'))
    ++i;
  size_t start = i;
  if (i < s.size() && (s[i] == '+' || s[i] == '-'))
    ++i;
  bool digits = false;
  while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])))
    ++i, digits = true;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])))
      ++i, digits = true;
  }
  if (!digits)
    return 0.0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    size_t j = i + 1;
    if (j < s.size() && (s[j] == '+' || s[j] == '-'))
      ++j;
    if (j < s.size() && std::isdigit(static_cast<unsigned char>(s[j]))) {
      while (j < s.size() && std::isdigit(static_cast<unsigned char>(s[j])))
        ++j;
      i = j;
    }
  }
  return std::strtod(std::string(s.substr(start, i - start)).c_str(), nullptr);
}

int64_t InStr(int64_t start, std::string_view haystack, std::string_view needle) {
  if (start < 1)
    start = 1;
  if (static_cast<size_t>(start - 1) > haystack.size())
    return 0;
  size_t hit = haystack.find(needle, static_cast<size_t>(start - 1));
  return hit == std::string_view::npos ? 0 : static_cast<int64_t>(hit) + 1;
}

std::string PadRight(std::string_view s, size_t width) {
  std::string out(s);
  if (out.size() < width)
    out.append(width - out.size(), ' ');
  return out;
}

}  // namespace zentrel::text
