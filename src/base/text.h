#pragma once
// Byte-string helpers shared by every module. Texts are bytes, one per character; case
// folding touches ASCII letters only, so multi-byte sequences pass through unchanged.

#include <cstdint>
#include <string>
#include <string_view>

namespace zentrel::text {

inline constexpr std::string_view kCrLf = "\r\n";

std::string LCase(std::string_view s);
std::string UCase(std::string_view s);
// Inline: the word and tag scanners fold every byte they look at.
inline char LowerAscii(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c;
}
inline char UpperAscii(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
}

// Removes leading and trailing spaces (code 32 only); tabs and other white space stay.
std::string Trim(std::string_view s);

// Replaces every occurrence of `from` (non-empty), scanning left to right without rescanning.
std::string ReplaceAll(std::string_view s, std::string_view from, std::string_view to);

// The signed number form: a leading space when not negative (" 1", " 120"), "-" otherwise.
std::string SignedNumber(int64_t value);

// Reads a decimal number from the start of s, skipping leading blanks; 0 when there is none.
double Val(std::string_view s);

// 1-based position of needle in haystack at or after `start` (1-based), 0 when absent.
// An empty needle is found at `start` when start <= length + 1.
int64_t InStr(int64_t start, std::string_view haystack, std::string_view needle);

// Pads s on the right with spaces to `width` characters (never cuts).
std::string PadRight(std::string_view s, size_t width);

}  // namespace zentrel::text
