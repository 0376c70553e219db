#pragma once
// The view's edge between the core's byte strings and Qt's text, in the page's codec (the
// core's codec: UTF-8 when the page is valid UTF-8, otherwise Windows-1252 with every byte
// round-tripping). Paths use the file system's own encoding.

#include <QString>
#include <string>
#include <string_view>

#include "base/codec.h"

namespace zentrel::ui {

using codec::Codec;

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
