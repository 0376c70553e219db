#include "base/codec.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace zentrel::codec {

namespace {

// Code points of bytes 0x80..0x9F; the five bytes that Windows-1252 leaves undefined map to the
// C1 control of the same value so that they survive the round trip.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kReplacement = 0xFFFD;

// Decodes one UTF-8 sequence at i (input already known to be valid or best effort).
char32_t NextCodePoint(std::string_view s, size_t& i) {
  auto b = static_cast<unsigned char>(s[i]);
  int extra = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
  char32_t cp = extra == 0 ? b : b & (0x3F >> extra);
  ++i;
  for (int k = 0; k < extra && i < s.size(); ++k, ++i) {
    cp = (cp << 6) | (static_cast<unsigned char>(s[i]) & 0x3F);
  }
  return cp;
}

int ByteFor(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
    return static_cast<int>(cp);
  for (size_t k = 0; k < kHigh.size(); ++k) {
    if (kHigh[k] == cp)
      return static_cast<int>(0x80 + k);
  }
  return -1;
}

// The length of the well-formed UTF-8 sequence that starts at i (no overlong forms, no
// surrogates, nothing above U+10FFFF); 0 when none starts there.
size_t SequenceAt(std::string_view s, size_t i) {
  const auto b = static_cast<unsigned char>(s[i]);
  size_t extra;
  char32_t min;
  if (b < 0x80)
    return 1;
  if (b >= 0xC2 && b <= 0xDF) {
    extra = 1, min = 0x80;
  } else if (b >= 0xE0 && b <= 0xEF) {
    extra = 2, min = 0x800;
  } else if (b >= 0xF0 && b <= 0xF4) {
    extra = 3, min = 0x10000;
  } else {
    return 0;
  }
  if (i + extra >= s.size())
    return 0;
  char32_t cp = b & (0x3F >> extra);
  for (size_t k = 1; k <= extra; ++k) {
    const auto c = static_cast<unsigned char>(s[i + k]);
    if ((c & 0xC0) != 0x80)
      return 0;
    cp = (cp << 6) | (c & 0x3F);
  }
  if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
    return 0;
  return extra + 1;
}

// UTF-8 text kept as it is, each byte that starts no well-formed sequence replaced by U+FFFD,
// as the window's text boxes show such bytes.
std::string RepairUtf8(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) {
    const size_t length = SequenceAt(s, i);
    if (length == 0) {
      AppendUtf8(out, kReplacement);
      ++i;
    } else {
      out.append(s.substr(i, length));
      i += length;
    }
  }
  return out;
}

}  // namespace

char32_t Windows1252CodePoint(unsigned char byte) {
  return (byte >= 0x80 && byte <= 0x9F) ? kHigh[byte - 0x80] : static_cast<char32_t>(byte);
}

void AppendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

std::u32string ToCodePoints(std::string_view bytes, Codec codec) {
  std::u32string out;
  out.reserve(bytes.size());
  for (size_t i = 0; i < bytes.size();) {
    if (codec == Codec::Windows1252) {
      out += Windows1252CodePoint(static_cast<unsigned char>(bytes[i++]));
    } else if (SequenceAt(bytes, i) == 0) {
      out += kReplacement;
      ++i;
    } else {
      out += NextCodePoint(bytes, i);
    }
  }
  return out;
}

bool IsValidUtf8(std::string_view s) {
  for (size_t i = 0; i < s.size();) {
    // Runs of ASCII, which most pages are mostly made of, eight bytes at a time.
    uint64_t word;
    if (i + sizeof word <= s.size() &&
        (std::memcpy(&word, s.data() + i, sizeof word), (word & 0x8080808080808080u) == 0)) {
      i += sizeof word;
      continue;
    }
    const size_t length = SequenceAt(s, i);
    if (length == 0)
      return false;
    i += length;
  }
  return true;
}

Codec DetectCodec(std::string_view bytes) {
  return IsValidUtf8(bytes) ? Codec::Utf8 : Codec::Windows1252;
}

std::string ToUtf8(std::string_view bytes, Codec codec) {
  if (codec == Codec::Utf8)
    return IsValidUtf8(bytes) ? std::string(bytes) : RepairUtf8(bytes);
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 4);
  for (char c : bytes)
    AppendUtf8(out, Windows1252CodePoint(static_cast<unsigned char>(c)));
  return out;
}

std::string FromUtf8(std::string_view utf8, Codec codec) {
  if (codec == Codec::Utf8)
    return std::string(utf8);
  std::string out;
  out.reserve(utf8.size());
  size_t i = 0;
  while (i < utf8.size()) {
    int byte = ByteFor(NextCodePoint(utf8, i));
    out += byte < 0 ? '?' : static_cast<char>(byte);
  }
  return out;
}

}  // namespace zentrel::codec
