// Each rule on a page where it must fire and on a near miss where it must not, both made from
// one page that passes every rule.

#include "checks/page_checks.h"

#include <gtest/gtest.h>
#include <vector>

#include "base/text.h"
#include "checks/profile.h"
#include "checks/site_checks.h"
#include "test_files.h"

namespace zentrel::checks {

namespace {

const std::string kClean =
    "<!doctype html>\n"
    "<html lang=\"en\">\n"
    "<head>\n"
    "<meta charset=\"utf-8\">\n"
    "<title>Red Shoes for Walking and Running</title>\n"
    "<meta name=\"description\" content=\"Red shoes for walking and running, in every size, "
    "sent the next day.\">\n"
    "<meta name=\"viewport\" content=\"width=device-width\">\n"
    "<link rel=\"canonical\" href=\"https://example.com/shoes\">\n"
    "<meta property=\"og:title\" content=\"Red Shoes\">\n"
    "<meta property=\"og:description\" content=\"Red shoes for walking.\">\n"
    "<meta property=\"og:image\" content=\"https://example.com/shoe.png\">\n"
    "<meta name=\"twitter:card\" content=\"summary\">\n"
    "</head>\n"
    "<body>\n"
    "<h1>Red shoes</h1>\n"
    "<img src=\"shoe.png\" alt=\"A red shoe\">\n"
    "</body>\n"
    "</html>\n";

const std::string kDescription =
    "<meta name=\"description\" content=\"Red shoes for walking and running, in every size, sent "
    "the next day.\">";
const std::string kTitle = "<title>Red Shoes for Walking and Running</title>";
const std::string kCanonical = "<link rel=\"canonical\" href=\"https://example.com/shoes\">";
const std::string kImage = "<img src=\"shoe.png\" alt=\"A red shoe\">";

// The clean page with one piece replaced.
std::string With(const std::string& from, const std::string& to) {
  EXPECT_NE(kClean.find(from), std::string::npos) << from;
  return text::ReplaceAll(kClean, from, to);
}

std::string InHead(const std::string& tags) {
  return With("</head>", tags + "\n</head>");
}

std::string InBody(const std::string& tags) {
  return With("</body>", tags + "\n</body>");
}

// The ids of the rules that fire on the page, in page order.
std::string Fired(const std::string& page) {
  std::string ids;
  for (const Finding& f : CheckPage(page, DefaultProfile()).findings)
    ids += " " + std::string(InfoOf(f.rule).id) + " ";
  return ids;
}

struct Case {
  std::string rule, fires, quiet;
};

TEST(CheckPage, EachRuleFiresOnItsPageAndNotOnTheNearMiss) {
  const std::string comment(1100, '-');
  const Case cases[] = {
      {"title-missing", With(kTitle, "") + "<svg><title>icon</title></svg>",
       With(kTitle, "<TITLE>Red Shoes for Walking and Running</TITLE>")},
      {"title-empty", With(kTitle, "<title> &#32;\n </title>"),
       With(kTitle, "<title>&lt;Red&gt; Shoes &amp; Boots</title>")},
      {"title-multiple", InBody("<title>Second</title>"),
       InHead("<script>document.write('<title>x</title>')</script>")},
      {"title-too-long", With(kTitle, "<title>" + std::string(35, 'W') + "</title>"),
       With(kTitle, "<title>" + std::string(35, 'i') + "</title>")},
      // Nine characters in eleven bytes: lengths count characters.
      {"title-too-short", With(kTitle, "<title>Schöne Öl</title>"),
       With(kTitle, "<title>Schöne Öle</title>")},
      {"description-missing", With(kDescription, ""),
       With(kDescription, "<META NAME=\" Description\" CONTENT=\"" + std::string(60, 'x') + "\">")},
      {"description-multiple", InHead(kDescription), InHead("<!-- " + kDescription + " -->")},
      {"description-too-long",
       With(kDescription, "<meta name=\"description\" content=\"" + std::string(80, 'm') + "\">"),
       With(kDescription, "<meta name=\"description\" content=\"" + std::string(150, 'l') + "\">")},
      {"description-too-short",
       With(kDescription,
            "<meta name=\"description\" content=\"Red shoes &amp;&#32;&#x20;&nbsp;boots\">"),
       With(kDescription,
            "<meta name=\"description\" content=\"" + std::string(50, 'x') + "&amp;\">")},
      {"head-ended-early", With("<meta name=\"viewport\"", "<div>\n<meta name=\"viewport\""),
       With("</head>",
            "<noscript><div>no</div></noscript><!-- x -->\n</head>\n \n"
            "<meta name=\"author\" content=\"Ann\">\n")},
      {"meta-duplicate",
       InHead("<meta name=\"author\" content=\"Ann\">\n<meta name=\"Author \" content=\"Bo\">"),
       InHead("<meta name=\"theme-color\" media=\"(prefers-color-scheme: dark)\" content=\"#000\">"
              "<meta name=\"theme-color\" media=\"print\" content=\"#fff\">")},
      {"robots-noindex", InHead("<meta name=\"robots\" content=\"NoIndex\">"),
       InHead("<meta name=\"robots\" content=\"index, follow\">")},
      {"robots-invalid", InHead("<meta name=\"googlebot\" content=\"max-snippet:abc\">"),
       InHead("<meta name=\"robots\" content=\"max-snippet:-1, max-image-preview:large, "
              "unavailable_after: 2030-01-01, notranslate,\">")},
      {"robots-conflict",
       InHead("<meta name=\"robots\" content=\"all\"><meta name=\"googlebot\" content=\"none\">"),
       InHead("<meta name=\"robots\" content=\"noindex, follow\">")},
      {"canonical-missing", With(kCanonical, ""),
       With(kCanonical, "<link rel=\"alternate Canonical\" href=\"https://example.com/\">")},
      {"canonical-multiple", InHead(kCanonical),
       InHead("<link rel=\"alternate\" href=\"https://example.com/de\">")},
      {"canonical-relative", With("https://example.com/shoes", "//example.com/shoes"),
       With("https://example.com/shoes", "HTTPS://example.com/shoes")},
      {"viewport-missing", With("name=\"viewport\"", "name=\"view-port\""),
       With("name=\"viewport\"", "name=\"VIEWPORT\"")},
      {"charset-missing", With("<meta charset=\"utf-8\">", ""),
       "\xEF\xBB\xBF" + With("<meta charset=\"utf-8\">", "")},
      {"charset-late", With("<meta charset", "<!--" + comment + "-->\n<meta charset"),
       With("<meta charset=\"utf-8\">",
            "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\"><!--" +
                comment + "-->")},
      {"lang-missing", With("lang=\"en\"", "lang=\" \""), With("lang=\"en\"", "LANG=de")},
      {"h1-missing", With("<h1>Red shoes</h1>", "<h2>Red shoes</h2>"),
       With("<h1>Red shoes</h1>", "<H1 class=x>Red shoes</H1>")},
      {"h1-multiple", InBody("<h1>More</h1>"), InBody("<!-- <h1>old</h1> -->")},
      {"img-alt-missing", InBody("<img src=\"a.png\" title=\"alt\">"),
       InBody("<img src=\"a.png\" alt>")},
      {"og-missing", With("<meta property=\"og:image\"", "<meta property=\"og:video\""),
       With("<meta property=\"og:image\"", "<meta name=\"og:image\"")},
      {"twitter-card-missing", With("name=\"twitter:card\"", "name=\"twitter:site\""),
       With("name=\"twitter:card\"", "property=\"twitter:card\"")},
      {"legacy-meta", InHead("<meta name=\"rating\" content=\"general\">"),
       InHead("<meta name=\"rating\" content=\" Adult\"><meta name=\"author\" content=\"Ann\">")},
  };
  EXPECT_EQ(Fired(kClean), "");
  // A page with no html element has its lang finding at its first byte.
  int langs = 0;
  for (const Finding& f : CheckPage("<p>x</p>", DefaultProfile()).findings) {
    if (f.rule == Rule::LangMissing) {
      ++langs;
      EXPECT_EQ(f.at.line * 1000 + f.at.column, 1001);
    }
  }
  EXPECT_EQ(langs, 1);
  // A title too wide is quoted, cut after 60 characters.
  const std::string wide = "<title>" + std::string(80, 'W') + "</title>";
  for (const Finding& f : CheckPage(wide, DefaultProfile()).findings) {
    if (f.rule == Rule::TitleTooLong) {
      EXPECT_EQ(f.message,
                "the title is 1510 px wide at 20 px, over the 600 px a desktop result "
                "shows: \"" +
                    std::string(60, 'W') + "...\"");
    }
  }
  for (const Case& c : cases) {
    EXPECT_NE(Fired(c.fires).find(" " + c.rule + " "), std::string::npos) << c.rule;
    EXPECT_EQ(Fired(c.quiet).find(" " + c.rule + " "), std::string::npos)
        << c.rule << ": " << Fired(c.quiet);
  }
}

TEST(CheckPage, MeasuresInThePagesCodecAfterDecodingReferences) {
  const Profile profile = DefaultProfile();
  const auto title = [&profile](const std::string& text) {
    return CheckPage("<title>" + text + "</title>", profile).title->measured;
  };
  const MeasuredText utf8 =
      title("Caf\xC3\xA9 &amp;\n\t&#x263a;&#x100000;&euro;&#128;&bogus; &#0;");
  EXPECT_EQ(utf8.text, "Café & ☺\xF4\x80\x80\x80€€&bogus; \xEF\xBF\xBD");
  EXPECT_EQ(utf8.chars, 20);
  const MeasuredText cp1252 = title("Caf\xE9 \x80");  // not UTF-8: one character a byte
  EXPECT_EQ(cp1252.text, "Café €");
  EXPECT_EQ(cp1252.chars, 6);
  // Liberation Sans advances at 20 px: "W" 1933 and "i" 455 of 2048 units.
  EXPECT_EQ(title("WWWi").pixels, 61);
  EXPECT_FALSE(CheckPage("<p>no title</p>", profile).title.has_value());
}

TEST(CheckSite, PagesSharingATitleOrDescriptionAreGroupedInPageOrder) {
  const Profile profile = DefaultProfile();
  const PageCheck a = CheckPage(kClean, profile);
  const PageCheck b = CheckPage(With("Walking and Running", "Walking  and\nRunning"), profile);
  const PageCheck c = CheckPage(With(kTitle, "<title>Blue Shoes</title>"), profile);
  const std::vector<SiteFinding> site = CheckSite({&c, &a, nullptr, &b}, profile);
  ASSERT_EQ(site.size(), 2u);
  EXPECT_EQ(site[0].rule, Rule::TitleDuplicate);
  EXPECT_EQ(site[0].pages, (std::vector<size_t>{1, 3}));
  EXPECT_EQ(site[0].message, "2 pages share the title \"Red Shoes for Walking and Running\"");
  EXPECT_EQ(site[1].rule, Rule::DescriptionDuplicate);
  EXPECT_EQ(site[1].pages, (std::vector<size_t>{0, 1, 3}));
}

TEST(Profile, TheShippedProfileHoldsEveryDefault) {
  // The tests run in the program folder, where the shipped profile lies.
  EXPECT_EQ(LoadProfile(DefaultProfilePath(".")), DefaultProfile());
}

TEST(Profile, KeysOverrideTheDefaultsAndTheRestStay) {
  const Profile p = ParseProfile(
      "# mine\r\n\n  title-too-long = error  # stricter\nh1-missing=off\r\n"
      "title.max-pixels = 580\ndescription.min-chars=0",
      "mine.txt");
  Profile expected = DefaultProfile();
  expected.rules[static_cast<size_t>(Rule::TitleTooLong)] = {true, Severity::Error};
  expected.rules[static_cast<size_t>(Rule::H1Missing)].enabled = false;
  expected.titleMaxPixels = 580;
  expected.descriptionMinChars = 0;
  EXPECT_EQ(p, expected);
}

TEST(Profile, BadLinesAreRefusedWithTheFileAndLine) {
  const std::pair<const char*, const char*> bad[] = {
      {"title-missing = error\ntitle-mising = error", "p.txt:2: unknown key \"title-mising\""},
      {"h1-missing = fatal", "p.txt:1: \"fatal\" is no severity"},
      {"title.max-pixels = 60O", "p.txt:1: title.max-pixels must be a whole number from 1"},
      {"title.font-pixels = 0", "p.txt:1: title.font-pixels must be a whole number"},
      {"charset.max-bytes = 99999999999999", "p.txt:1: charset.max-bytes must be"},
      {"\nlegacy-meta", "p.txt:2: expected \"key = value\""},
      {"og-missing = off\nog-missing = notice", "p.txt:2: \"og-missing\" is given twice"},
  };
  for (const auto& [text, message] : bad) {
    try {
      ParseProfile(text, "p.txt");
      ADD_FAILURE() << text;
    } catch (const ProfileError& e) {
      EXPECT_EQ(std::string(e.what()).rfind(message, 0), 0u) << e.what();
    }
  }
  testing::TempFolder folder;
  EXPECT_THROW(LoadProfile(folder.File("missing.txt")), ProfileError);
  EXPECT_THROW(LoadProfile(folder.path().string()), ProfileError);
}

}  // namespace

}  // namespace zentrel::checks
