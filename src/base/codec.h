#pragma once
// The codec at the edges: the core keeps bytes; the window and the CLI's JSON show them as
// UTF-8 when the page's bytes are valid UTF-8, otherwise as Windows-1252 with every byte one
// character, mapped so that every byte round-trips.

#include <string>
#include <string_view>

namespace zentrel::codec {

enum class Codec { Utf8, Windows1252 };

bool IsValidUtf8(std::string_view bytes);
Codec DetectCodec(std::string_view bytes);

// Bytes in the given codec to UTF-8 text, and back. The result is always valid UTF-8: in
// the UTF-8 codec a byte that starts no well-formed sequence becomes U+FFFD.
std::string ToUtf8(std::string_view bytes, Codec codec);
// Characters that Windows-1252 cannot hold become "?".
std::string FromUtf8(std::string_view utf8, Codec codec);

// The characters that bytes stand for in the given codec, with the same U+FFFD rule.
std::u32string ToCodePoints(std::string_view bytes, Codec codec);
// The character of one byte in Windows-1252.
char32_t Windows1252CodePoint(unsigned char byte);
void AppendUtf8(std::string& out, char32_t c);

}  // namespace zentrel::codec
