#include "checks/page_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "checks/glyph_widths.h"

namespace zentrel::checks {

namespace {

// The named references of characters 160..255, in code order.
constexpr std::array<std::string_view, 96> kLatin1 = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",
    "copy",   "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn",
    "sup2",   "sup3",   "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",
    "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde",
    "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave",
    "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde",
    "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",
    "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil",
    "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",   "eth",
    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

struct Named {
  std::string_view name;
  char32_t c;
};

constexpr Named kOthers[] = {
    {"amp", '&'},       {"lt", '<'},        {"gt", '>'},        {"quot", '"'},
    {"apos", '\''},     {"OElig", 0x152},   {"oelig", 0x153},   {"Scaron", 0x160},
    {"scaron", 0x161},  {"Yuml", 0x178},    {"fnof", 0x192},    {"circ", 0x2C6},
    {"tilde", 0x2DC},   {"ensp", 0x2002},   {"emsp", 0x2003},   {"thinsp", 0x2009},
    {"zwnj", 0x200C},   {"zwj", 0x200D},    {"lrm", 0x200E},    {"rlm", 0x200F},
    {"ndash", 0x2013},  {"mdash", 0x2014},  {"lsquo", 0x2018},  {"rsquo", 0x2019},
    {"sbquo", 0x201A},  {"ldquo", 0x201C},  {"rdquo", 0x201D},  {"bdquo", 0x201E},
    {"dagger", 0x2020}, {"Dagger", 0x2021}, {"bull", 0x2022},   {"hellip", 0x2026},
    {"permil", 0x2030}, {"prime", 0x2032},  {"Prime", 0x2033},  {"lsaquo", 0x2039},
    {"rsaquo", 0x203A}, {"euro", 0x20AC},   {"trade", 0x2122},  {"larr", 0x2190},
    {"rarr", 0x2192},   {"harr", 0x2194},   {"hearts", 0x2665}, {"check", 0x2713}};

constexpr char32_t kReplacement = 0xFFFD;
constexpr size_t kLongestName = 8;

bool IsSpace(char32_t c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}

bool IsAlnum(char32_t c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

std::optional<char32_t> NamedCharacter(std::u32string_view name) {
  const auto same = [name](std::string_view n) {
    return n.size() == name.size() && std::equal(n.begin(), n.end(), name.begin());
  };
  for (size_t i = 0; i < kLatin1.size(); ++i) {
    if (same(kLatin1[i]))
      return static_cast<char32_t>(0xA0 + i);
  }
  for (const Named& n : kOthers) {
    if (same(n.name))
      return n.c;
  }
  return std::nullopt;
}

// A numeric reference as browsers read it: the C1 range as Windows-1252, a code point that
// cannot be a character as U+FFFD.
char32_t NumericCharacter(uint32_t value) {
  if (value >= 0x80 && value <= 0x9F)
    return codec::Windows1252CodePoint(static_cast<unsigned char>(value));
  if (value == 0 || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
    return kReplacement;
  return value;
}

// The reference that starts with "&" at i: its character and its length, or length 0.
std::pair<char32_t, size_t> Reference(std::u32string_view s, size_t i) {
  size_t p = i + 1;
  if (p < s.size() && s[p] == '#') {
    const bool hex = p + 1 < s.size() && (s[p + 1] == 'x' || s[p + 1] == 'X');
    p += hex ? 2 : 1;
    const size_t digits = p;
    uint32_t value = 0;
    for (; p < s.size(); ++p) {
      const char32_t c = s[p];
      uint32_t d;
      if (c >= '0' && c <= '9') {
        d = c - '0';
      } else if (hex && ((c | 0x20) >= 'a' && (c | 0x20) <= 'f')) {
        d = (c | 0x20) - 'a' + 10;
      } else {
        break;
      }
      value = std::min<uint32_t>(value * (hex ? 16 : 10) + d, 0x110000);
    }
    if (p == digits)
      return {0, 0};
    if (p < s.size() && s[p] == ';')
      ++p;
    return {NumericCharacter(value), p - i};
  }
  while (p < s.size() && p - i <= kLongestName && IsAlnum(s[p]))
    ++p;
  const std::optional<char32_t> c = NamedCharacter(s.substr(i + 1, p - i - 1));
  if (!c || p >= s.size() || s[p] != ';')
    return {0, 0};
  return {*c, p + 1 - i};
}

}  // namespace

std::u32string ReaderText(std::string_view raw, codec::Codec codec) {
  const std::u32string chars = codec::ToCodePoints(raw, codec);
  std::u32string out;
  out.reserve(chars.size());
  bool space = false;
  for (size_t i = 0; i < chars.size();) {
    char32_t c = chars[i];
    size_t length = 1;
    if (c == '&') {
      const auto [decoded, used] = Reference(chars, i);
      if (used > 0)
        c = decoded, length = used;
    }
    i += length;
    if (IsSpace(c)) {
      space = !out.empty();
      continue;
    }
    if (space)
      out += ' ';
    space = false;
    out += c;
  }
  return out;
}

MeasuredText Measure(std::string_view raw, codec::Codec codec, int fontPixels) {
  const std::u32string text = ReaderText(raw, codec);
  MeasuredText m;
  for (char32_t c : text)
    codec::AppendUtf8(m.text, c);
  m.chars = static_cast<int64_t>(text.size());
  m.pixels = TextWidthPixels(text, fontPixels);
  return m;
}

std::string Excerpt(std::u32string_view text, size_t limit) {
  std::string out;
  for (size_t i = 0; i < text.size() && i < limit; ++i)
    codec::AppendUtf8(out, text[i]);
  if (text.size() > limit)
    out += "...";
  return out;
}

std::string RawExcerpt(std::string_view raw, codec::Codec codec, size_t limit) {
  // Enough bytes for the characters shown, whatever the references and blanks.
  return Excerpt(ReaderText(raw.substr(0, limit * 8), codec), limit);
}

}  // namespace zentrel::checks
