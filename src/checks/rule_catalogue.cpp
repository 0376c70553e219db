#include "checks/rule_catalogue.h"

#include <array>

namespace zentrel::checks {

namespace {

using S = Severity;

constexpr std::string_view kTitleLinks = "Google Search Central: Influencing your title links";
constexpr std::string_view kTitleLinksUrl =
    "https://developers.google.com/search/docs/appearance/title-link";
constexpr std::string_view kSnippets = "Google Search Central: Control your snippets";
constexpr std::string_view kSnippetsUrl =
    "https://developers.google.com/search/docs/appearance/snippet";
constexpr std::string_view kSupportedMeta =
    "Google Search Central: Meta tags and attributes that Google supports";
constexpr std::string_view kSupportedMetaUrl =
    "https://developers.google.com/search/docs/crawling-indexing/special-tags";
constexpr std::string_view kRobots = "Google Search Central: Robots meta tag specifications";
constexpr std::string_view kRobotsUrl =
    "https://developers.google.com/search/docs/crawling-indexing/robots-meta-tag";
constexpr std::string_view kCanonical = "Google Search Central: How to specify a canonical URL";
constexpr std::string_view kCanonicalUrl =
    "https://developers.google.com/search/docs/crawling-indexing/consolidate-duplicate-urls";
constexpr std::string_view kStarter = "Google Search Central: SEO Starter Guide";
constexpr std::string_view kStarterUrl =
    "https://developers.google.com/search/docs/fundamentals/seo-starter-guide";
constexpr std::string_view kHtmlMetaNames = "HTML Living Standard: standard metadata names";
constexpr std::string_view kHtmlMetaNamesUrl =
    "https://developer.mozilla.org/en-US/docs/Web/HTML/Element/meta/name";

constexpr std::string_view kCharset =
    "HTML Living Standard: specifying the document's character encoding";
constexpr std::string_view kCharsetUrl =
    "https://developer.mozilla.org/en-US/docs/Web/HTML/Element/meta#charset";

constexpr std::array<RuleInfo, 29> kRules = {{
    {Rule::TitleMissing, "title-missing", S::Error, "The page has no TITLE element.",
     "Search engines show the title as the link to the page; without one they make one up "
     "from the page's text.",
     kTitleLinks, kTitleLinksUrl},
    {Rule::TitleEmpty, "title-empty", S::Error, "The TITLE element is empty.",
     "An empty title gives search engines nothing to show as the page's link.", kTitleLinks,
     kTitleLinksUrl},
    {Rule::TitleMultiple, "title-multiple", S::Warning, "The page has more than one TITLE.",
     "Browsers and search engines use the first title only; the others are ignored.",
     "HTML Living Standard: the title element",
     "https://developer.mozilla.org/en-US/docs/Web/HTML/Element/title"},
    {Rule::TitleTooLong, "title-too-long", S::Warning,
     "The title is wider than a desktop result shows.",
     "Google shortens title links to the width of the results column, on desktop about 600 "
     "pixels of 20 px Arial, and ends them with an ellipsis.",
     kTitleLinks, kTitleLinksUrl},
    {Rule::TitleTooShort, "title-too-short", S::Warning, "The title is very short.",
     "A short title rarely describes the page well enough, and Google may replace it with a "
     "text of its own.",
     kTitleLinks, kTitleLinksUrl},
    {Rule::DescriptionMissing, "description-missing", S::Warning,
     "The page has no META description.",
     "Without a description, search engines build the snippet from whatever text they find.",
     kSnippets, kSnippetsUrl},
    {Rule::DescriptionMultiple, "description-multiple", S::Warning,
     "The page has more than one META description.",
     "A page may have one description; which of several a search engine takes is not "
     "defined.",
     kHtmlMetaNames, kHtmlMetaNamesUrl},
    {Rule::DescriptionTooLong, "description-too-long", S::Notice,
     "The description is wider than a desktop snippet shows.",
     "Google cuts snippets to the width of about two lines on desktop, roughly 920 pixels of "
     "14 px Arial; the rest is not shown.",
     kSnippets, kSnippetsUrl},
    {Rule::DescriptionTooShort, "description-too-short", S::Notice, "The description is short.",
     "A short description says little about the page, and Google often replaces it with text "
     "from the page.",
     kSnippets, kSnippetsUrl},
    {Rule::HeadEndedEarly, "head-ended-early", S::Error, "The head ends before some of its tags.",
     "A browser ends the head at the first text or element that may not stand in it, and puts "
     "every TITLE, META and LINK after that point in the body, where search engines do not "
     "read them as the page's own.",
     "HTML Living Standard: the \"in head\" insertion mode",
     "https://developer.mozilla.org/en-US/docs/Web/HTML/Element/head"},
    {Rule::MetaDuplicate, "meta-duplicate", S::Warning, "A META name is given twice.",
     "Two values for one name leave it to each reader which one counts.", kHtmlMetaNames,
     kHtmlMetaNamesUrl},
    {Rule::RobotsNoindex, "robots-noindex", S::Notice, "The page asks not to be indexed.",
     "With noindex, search engines drop the page from their results; make sure that is meant.",
     kRobots, kRobotsUrl},
    {Rule::RobotsInvalid, "robots-invalid", S::Warning,
     "A robots directive is unknown or malformed.",
     "Search engines ignore directives they do not know, so the page may be indexed other than "
     "intended.",
     kRobots, kRobotsUrl},
    {Rule::RobotsConflict, "robots-conflict", S::Warning,
     "Robots directives contradict each other.",
     "When directives conflict, Google follows the more restrictive one.", kRobots, kRobotsUrl},
    {Rule::CanonicalMissing, "canonical-missing", S::Notice, "The page names no canonical address.",
     "Without a canonical link, search engines choose by themselves which of a page's addresses "
     "to show.",
     kCanonical, kCanonicalUrl},
    {Rule::CanonicalMultiple, "canonical-multiple", S::Warning,
     "The page has more than one canonical link.",
     "Google ignores every canonical link of a page that gives more than one.", kCanonical,
     kCanonicalUrl},
    {Rule::CanonicalRelative, "canonical-relative", S::Warning,
     "The canonical address is not absolute.",
     "Google advises absolute addresses in canonical links; a relative one can point to the "
     "wrong address once the page is copied or served under another host.",
     kCanonical, kCanonicalUrl},
    {Rule::ViewportMissing, "viewport-missing", S::Warning, "The page has no viewport META tag.",
     "Without a viewport, phones lay the page out at desktop width; Google indexes the mobile "
     "view of a page.",
     "Google Search Central: Mobile-first indexing best practices",
     "https://developers.google.com/search/docs/crawling-indexing/mobile/"
     "mobile-sites-mobile-first-indexing"},
    {Rule::CharsetMissing, "charset-missing", S::Warning,
     "The page does not declare its character encoding.",
     "Without a declaration (or a byte order mark), a browser guesses the encoding and may show "
     "the page's letters wrongly.",
     kCharset, kCharsetUrl},
    {Rule::CharsetLate, "charset-late", S::Warning,
     "The encoding is declared too late in the page.",
     "Browsers look for the declaration in the first 1024 bytes only; a later one is not used.",
     kCharset, kCharsetUrl},
    {Rule::LangMissing, "lang-missing", S::Warning, "The html element has no lang attribute.",
     "The page's language tells screen readers how to speak it and helps search engines serve it "
     "to the right readers.",
     "WCAG 2.1: Language of Page",
     "https://www.w3.org/WAI/WCAG21/Understanding/language-of-page.html"},
    {Rule::H1Missing, "h1-missing", S::Warning, "The page has no H1 heading.",
     "A main heading tells readers and search engines what the page is about.", kStarter,
     kStarterUrl},
    {Rule::H1Multiple, "h1-multiple", S::Notice, "The page has more than one H1 heading.",
     "Several main headings blur what the page is mainly about; Google copes, readers less so.",
     kStarter, kStarterUrl},
    {Rule::ImgAltMissing, "img-alt-missing", S::Warning, "An image has no alt attribute.",
     "Search engines and screen readers know an image by its alt text; give alt=\"\" to an "
     "image that is only decoration.",
     "Google Search Central: Google image SEO best practices",
     "https://developers.google.com/search/docs/appearance/google-images"},
    {Rule::OgMissing, "og-missing", S::Notice, "Open Graph tags are missing.",
     "Social sites build a shared link's preview from og:title, og:description and og:image.",
     "The Open Graph protocol", "https://ogp.me/"},
    {Rule::TwitterCardMissing, "twitter-card-missing", S::Notice,
     "The page has no twitter:card META tag.",
     "X (Twitter) shows a preview card for a shared link only when twitter:card names its kind.",
     "X Developer Platform: Cards markup",
     "https://developer.x.com/en/docs/x-for-websites/cards/overview/markup"},
    {Rule::LegacyMeta, "legacy-meta", S::Notice, "A META tag that search engines ignore today.",
     "Search engines read only a few META names; the others cost bytes and say nothing to them.",
     kSupportedMeta, kSupportedMetaUrl},
    {Rule::TitleDuplicate, "title-duplicate", S::Warning, "Pages share one title.",
     "Each page should have a title of its own, so readers can tell the results apart.",
     kTitleLinks, kTitleLinksUrl},
    {Rule::DescriptionDuplicate, "description-duplicate", S::Warning,
     "Pages share one description.",
     "Each page should have a description of its own; Google may ignore descriptions that "
     "repeat across a site.",
     kSnippets, kSnippetsUrl},
}};

constexpr bool InRuleOrder() {
  for (size_t i = 0; i < kRules.size(); ++i) {
    if (kRules[i].rule != static_cast<Rule>(i))
      return false;
  }
  return true;
}
static_assert(InRuleOrder(), "the catalogue lists the rules in the order of their values");

}  // namespace

std::span<const RuleInfo> AllRules() {
  return kRules;
}

const RuleInfo& InfoOf(Rule rule) {
  return kRules[static_cast<size_t>(rule)];
}

std::optional<Rule> RuleById(std::string_view id) {
  for (const RuleInfo& info : kRules) {
    if (info.id == id)
      return info.rule;
  }
  return std::nullopt;
}

std::string_view SeverityName(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "error";
    case Severity::Warning:
      return "warning";
    case Severity::Notice:
      break;
  }
  return "notice";
}

std::optional<Severity> SeverityByName(std::string_view name) {
  for (Severity s : {Severity::Error, Severity::Warning, Severity::Notice}) {
    if (SeverityName(s) == name)
      return s;
  }
  return std::nullopt;
}

std::string WhyText(const RuleInfo& info) {
  return std::string(info.why) + " Source: " + std::string(info.source) + ".";
}

}  // namespace zentrel::checks
