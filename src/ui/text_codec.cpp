#include "ui/text_codec.h"

#include <utility>

#include <QFile>
#include <algorithm>

namespace zentrel::ui {

QString Decode(std::string_view bytes, Codec codec) {
  if (codec == Codec::Utf8)
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
  return QString::fromStdString(codec::ToUtf8(bytes, codec));
}

std::string Encode(const QString& text, Codec codec) {
  return codec::FromUtf8(text.toStdString(), codec);
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

namespace {

// Walks the page's characters from the start until `more` says stop; returns the byte offset
// and the editor position (UTF-16 units, line ends as the editor counts them) reached.
template <class More>
std::pair<std::size_t, int> Walk(std::string_view bytes, Codec codec, More more) {
  int pos = 0;
  std::size_t i = 0;
  while (i < bytes.size() && more(i, pos)) {
    std::size_t n = 0;
    int units = 0;
    Step(bytes, codec, i, n, units);
    i += n;
    pos += units;
  }
  return {i, pos};
}

}  // namespace

int ByteToEditor(std::string_view bytes, Codec codec, std::size_t bytePos) {
  return Walk(bytes, codec, [bytePos](std::size_t i, int) { return i < bytePos; }).second;
}

std::size_t EditorToByte(std::string_view bytes, Codec codec, int editorPos) {
  return Walk(bytes, codec, [editorPos](std::size_t, int pos) { return pos < editorPos; }).first;
}

QString DecodePath(const std::string& path) {
  return QFile::decodeName(QByteArray::fromStdString(path));
}

std::string EncodePath(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace zentrel::ui
