// The checks' width table against the font itself: Qt lays the texts out with Liberation Sans
// loaded from its file (no kerning, no hinting, no fallback fonts), and both widths must agree
// within 2 px.

#include <gtest/gtest.h>

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>

#include "base/codec.h"
#include "checks/glyph_widths.h"

namespace zentrel::checks {

namespace {

constexpr const char* kFontFile =
    "/usr/share/fonts/truetype/liberation2/LiberationSans-Regular.ttf";

TEST(GlyphWidths, AgreeWithTheFontsOwnAdvancesWithinTwoPixels) {
  const int id = QFontDatabase::addApplicationFont(kFontFile);
  ASSERT_GE(id, 0) << kFontFile << " is missing: install fonts-liberation2";
  const QString family = QFontDatabase::applicationFontFamilies(id).front();
  const char* texts[] = {
      "Red Shoes & Boots | Walking Shoes for Every Season, Sent the Next Day",
      "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii",
      "Caf\xC3\xA9 cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
      "e \xE2\x80\x93 \xC5\x92uvres d\xE2\x80\x99\x61rt, 1999\xE2\x82\xAC",
      "\xCE\x9A\xCE\xB1\xCE\xBB\xCE\xB7\xCE\xBC\xCE\xAD\xCF\x81\xCE\xB1 "
      "\xCE\xBA\xCF\x8C\xCF\x83\xCE\xBC\xCE\xB5",
      "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82, \xD0\xBC\xD0\xB8\xD1\x80! "
      "\xD0\x9E\xD0\xB1\xD1\x83\xD0\xB2\xD1\x8C",
      "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xD7\xA2\xD7\x95\xD7\x9C\xD7\x9D",
      "0123456789 !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~ \xC2\xA9\xC2\xAE\xE2\x84\xA2\xE2\x80\xA6"};
  for (int size : {20, 14}) {
    QFont font(family);
    font.setPixelSize(size);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    const QFontMetricsF metrics(font);
    for (const char* text : texts) {
      const std::u32string chars = codec::ToCodePoints(text, codec::Codec::Utf8);
      const double qt = metrics.horizontalAdvance(QString::fromUtf8(text));
      EXPECT_NEAR(static_cast<double>(TextWidthPixels(chars, size)), qt, 2.0)
          << text << " at " << size << " px";
    }
  }
}

}  // namespace

}  // namespace zentrel::checks
