#include "ui/text_codec.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cstdint>

namespace zentrel::ui {

namespace {

// Windows-1252 for bytes 0x80..0x9F; the five bytes the code page leaves undefined map to the
// C1 control of the same number so that they round-trip too. Every other byte is Latin-1.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t From1252(unsigned char byte) {
  if (byte >= 0x80 && byte <= 0x9F)
    return kHigh[static_cast<std::size_t>(byte - 0x80)];
  return byte;
}

int To1252(char16_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
    return c;
  for (std::size_t i = 0; i < kHigh.size(); ++i) {
    if (kHigh[i] == c)
      return static_cast<int>(0x80 + i);
  }
  return -1;
}

}  // namespace

bool IsValidUtf8(std::string_view bytes) {
  std::size_t i = 0;
  const std::size_t n = bytes.size();
  while (i < n) {
    const auto b = static_cast<unsigned char>(bytes[i]);
    if (b < 0x80) {
      ++i;
      continue;
    }
    std::size_t len = 0;
    uint32_t cp = 0;
    if (b >= 0xC2 && b <= 0xDF) {
      len = 2;
      cp = b & 0x1Fu;
    } else if (b >= 0xE0 && b <= 0xEF) {
      len = 3;
      cp = b & 0x0Fu;
    } else if (b >= 0xF0 && b <= 0xF4) {
      len = 4;
      cp = b & 0x07u;
    } else {
      return false;
    }
    if (n - i < len)
      return false;
    for (std::size_t k = 1; k < len; ++k) {
      const auto c = static_cast<unsigned char>(bytes[i + k]);
      if ((c & 0xC0) != 0x80)
        return false;
      cp = (cp << 6) | (c & 0x3Fu);
    }
    // Overlong forms, surrogates and values past the last code point are not UTF-8.
    if ((len == 3 && cp < 0x800) || (len == 4 && (cp < 0x10000 || cp > 0x10FFFF)) ||
        (cp >= 0xD800 && cp <= 0xDFFF))
      return false;
    i += len;
  }
  return true;
}

Codec CodecFor(std::string_view pageBytes) {
  return IsValidUtf8(pageBytes) ? Codec::Utf8 : Codec::Windows1252;
}

QString Decode(std::string_view bytes, Codec codec) {
  if (codec == Codec::Utf8)
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
  QChar* out = text.data();
  for (char c : bytes)
    *out++ = QChar(From1252(static_cast<unsigned char>(c)));
  return text;
}

std::string Encode(const QString& text, Codec codec) {
  if (codec == Codec::Utf8)
    return text.toStdString();
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (QChar c : text) {
    const int b = To1252(c.unicode());
    bytes.push_back(b < 0 ? '?' : static_cast<char>(b));
  }
  return bytes;
}

namespace {

// Bytes and editor units of the character that starts at byte i.
void Step(std::string_view bytes, Codec codec, std::size_t i, std::size_t& byteCount, int& units) {
  const auto b = static_cast<unsigned char>(bytes[i]);
  if (b == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
    byteCount = 2;
    units = 1;
    return;
  }
  byteCount = 1;
  units = 1;
  if (codec != Codec::Utf8 || b < 0x80)
    return;
  if (b >= 0xF0)
    byteCount = 4, units = 2;
  else if (b >= 0xE0)
    byteCount = 3;
  else if (b >= 0xC0)
    byteCount = 2;
  byteCount = std::min(byteCount, bytes.size() - i);
}

}  // namespace

int ByteToEditor(std::string_view bytes, Codec codec, std::size_t bytePos) {
  int pos = 0;
  std::size_t i = 0;
  const std::size_t end = std::min(bytePos, bytes.size());
  while (i < end) {
    std::size_t n = 0;
    int units = 0;
    Step(bytes, codec, i, n, units);
    i += n;
    pos += units;
  }
  return pos;
}

std::size_t EditorToByte(std::string_view bytes, Codec codec, int editorPos) {
  int pos = 0;
  std::size_t i = 0;
  while (i < bytes.size() && pos < editorPos) {
    std::size_t n = 0;
    int units = 0;
    Step(bytes, codec, i, n, units);
    i += n;
    pos += units;
  }
  return i;
}

QString DecodePath(const std::string& path) {
  return QFile::decodeName(QByteArray::fromStdString(path));
}

std::string EncodePath(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace zentrel::ui
