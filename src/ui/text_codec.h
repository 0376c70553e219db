#pragma once
// The view's edge between the core's byte strings and Qt's text: a page shows as UTF-8 when its
// bytes are valid UTF-8, otherwise as Windows-1252 with every byte mapped to one character, so
// that every byte comes back unchanged. Paths use the file system's own encoding.

#include <QString>
#include <string>
#include <string_view>

namespace zentrel::ui {

enum class Codec { Utf8, Windows1252 };

bool IsValidUtf8(std::string_view bytes);
// The codec a page is shown with.
Codec CodecFor(std::string_view pageBytes);

QString Decode(std::string_view bytes, Codec codec);
// Characters that Windows-1252 cannot hold become "?".
std::string Encode(const QString& text, Codec codec);

// The page source editor counts a CR LF pair as one line break and a character outside the
// basic plane as two units; these map its positions to byte positions and back.
int ByteToEditor(std::string_view bytes, Codec codec, std::size_t bytePos);
std::size_t EditorToByte(std::string_view bytes, Codec codec, int editorPos);

QString DecodePath(const std::string& path);
std::string EncodePath(const QString& path);

}  // namespace zentrel::ui
