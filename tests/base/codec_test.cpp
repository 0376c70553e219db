#include "base/codec.h"

#include <gtest/gtest.h>

namespace zentrel::codec {

TEST(Codec, DetectsUtf8AndRejectsBrokenOrOverlongSequences) {
  EXPECT_EQ(DetectCodec("caf\xC3\xA9"), Codec::Utf8);
  EXPECT_EQ(DetectCodec("caf\xE9"), Codec::Windows1252);
  EXPECT_FALSE(IsValidUtf8("\xC0\xAF"));         // overlong "/"
  EXPECT_FALSE(IsValidUtf8("\xED\xA0\x80"));     // surrogate
  EXPECT_FALSE(IsValidUtf8("\xE2\x82"));         // cut short at the end
  EXPECT_TRUE(IsValidUtf8("\xF0\x9F\x98\x80"));  // four bytes
  // Bytes that are not UTF-8 inside UTF-8 text read as U+FFFD, the rest as it stands.
  EXPECT_EQ(ToUtf8("\xE9t\xC3\xA9\xE2\x82", Codec::Utf8),
            "\xEF\xBF\xBDt\xC3\xA9\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Codec, EveryWindows1252ByteRoundTrips) {
  std::string all;
  for (int b = 0; b < 256; ++b)
    all += static_cast<char>(b);
  std::string utf8 = ToUtf8(all, Codec::Windows1252);
  EXPECT_TRUE(IsValidUtf8(utf8));
  EXPECT_EQ(FromUtf8(utf8, Codec::Windows1252), all);
  EXPECT_EQ(ToUtf8("\x80", Codec::Windows1252), "\xE2\x82\xAC");  // the euro sign
  EXPECT_EQ(FromUtf8("\xE4\xB8\xAD", Codec::Windows1252), "?");   // not in the code page
}

}  // namespace zentrel::codec
