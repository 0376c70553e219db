#include "checks/meta_rules.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

namespace zentrel::checks {

namespace {

// What a META name that search engines ignore does today, and what to do instead.
struct Legacy {
  std::string_view name;
  std::string_view today;
  std::string_view advice;
};

constexpr Legacy kLegacy[] = {
    {"keywords", "no major search engine ranks by it",
     "put the words in the title, headings and text instead"},
    {"revisit-after", "crawlers keep their own schedule",
     "a sitemap with lastmod dates tells them what changed"},
    {"distribution", "search engines ignore it",
     "robots directives or access control decide who sees a page"},
    {"expires", "search engines ignore it as a META name",
     "use the robots directive unavailable_after: with the date instead"},
    {"abstract", "search engines ignore it", "use the META description instead"},
    {"generator", "search engines ignore it; it only names the tool that wrote the page",
     "remove it"},
    {"progid", "an office program's marker with no meaning on the web", "remove it"},
    {"copyright", "search engines ignore it", "put a copyright line in the page's footer instead"},
    {"rating", "search engines honour only the values adult and the RTA label",
     "use rating = adult on adult pages and nothing elsewhere"},
};

// The ratings that Google's SafeSearch reads.
constexpr std::string_view kHonouredRatings[] = {"adult", "rta-5042-1996-1400-1577-rta"};

constexpr std::string_view kPlainDirectives[] = {
    "all",       "none",        "index",        "follow",    "noindex", "nofollow",
    "nosnippet", "notranslate", "noimageindex", "noarchive", "nocache", "indexifembedded"};

constexpr std::string_view kImagePreviews[] = {"none", "standard", "large"};

constexpr std::string_view kOpenGraph[] = {"og:title", "og:description", "og:image"};

bool In(std::string_view word, std::span<const std::string_view> list) {
  return std::find(list.begin(), list.end(), word) != list.end();
}

std::string Quoted(std::string_view utf8) {
  return "\"" + std::string(utf8) + "\"";
}

bool IsWholeNumber(std::string_view value) {
  int64_t n = 0;
  const auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), n);
  return !value.empty() && ec == std::errc() && end == value.data() + value.size() && n >= -1;
}

// Why a directive is malformed, or empty when it is a known one.
std::string DirectiveProblem(std::string_view directive) {
  const size_t colon = directive.find(':');
  if (colon == std::string_view::npos) {
    return In(directive, kPlainDirectives) ? std::string()
                                           : "unknown robots directive " + Quoted(directive);
  }
  const std::string name = Folded(directive.substr(0, colon));
  const std::string value = Folded(directive.substr(colon + 1));
  if (name == "max-snippet" || name == "max-video-preview") {
    return IsWholeNumber(value) ? std::string()
                                : name + " needs a whole number, not " + Quoted(value);
  }
  if (name == "max-image-preview") {
    return In(value, kImagePreviews)
               ? std::string()
               : "max-image-preview must be none, standard or large, not " + Quoted(value);
  }
  if (name == "unavailable_after")
    return value.empty() ? "unavailable_after needs a date" : std::string();
  return "unknown robots directive " + Quoted(directive);
}

// The index and follow rules said so far in the page's robots tags, to find contradictions.
class RobotsRules {
 public:
  explicit RobotsRules(FindingList& findings) : findings_(findings) {}

  void Check(const MetaTag& meta, codec::Codec codec) {
    const std::string content = codec::ToUtf8(Folded(meta.content), codec);
    bool conflictShown = false;
    size_t from = 0;
    while (from <= content.size()) {
      const size_t comma = std::min(content.find(',', from), content.size());
      const std::string directive = Folded(std::string_view(content).substr(from, comma - from));
      from = comma + 1;
      if (directive.empty())
        continue;
      if (const std::string problem = DirectiveProblem(directive); !problem.empty())
        findings_.Add(Rule::RobotsInvalid, meta.begin, meta.name + ": " + problem);
      if (directive == "noindex" || directive == "none") {
        findings_.Add(Rule::RobotsNoindex, meta.begin,
                      meta.name + " says " + Quoted(directive) +
                          ": search engines leave the page out of their results");
      }
      const bool index = directive == "index" || directive == "all";
      const bool noindex = directive == "noindex" || directive == "none";
      const bool follow = directive == "follow" || directive == "all";
      const bool nofollow = directive == "nofollow" || directive == "none";
      conflictShown = Said(index, index_, noindex_, directive, meta, conflictShown);
      conflictShown = Said(noindex, noindex_, index_, directive, meta, conflictShown);
      conflictShown = Said(follow, follow_, nofollow_, directive, meta, conflictShown);
      conflictShown = Said(nofollow, nofollow_, follow_, directive, meta, conflictShown);
    }
  }

 private:
  struct Saying {
    std::string word;
    size_t where = 0;
  };

  // Records a rule as said and reports its first contradiction in this tag; returns whether
  // the tag's contradiction has been reported.
  bool Said(bool says, std::optional<Saying>& same, const std::optional<Saying>& opposite,
            const std::string& word, const MetaTag& meta, bool shown) {
    if (!says)
      return shown;
    if (!same)
      same = Saying{word, meta.begin};
    if (opposite && !shown) {
      findings_.Add(Rule::RobotsConflict, meta.begin,
                    Quoted(word) + " contradicts " + Quoted(opposite->word) + " on " +
                        findings_.LineOf(opposite->where) +
                        "; Google follows the more restrictive");
      return true;
    }
    return shown;
  }

  FindingList& findings_;
  std::optional<Saying> index_, noindex_, follow_, nofollow_;
};

void CheckDuplicates(const std::vector<MetaTag>& metas, codec::Codec codec, FindingList& findings) {
  std::unordered_map<std::string_view, size_t> first;  // name -> where it first stands
  for (const MetaTag& m : metas) {
    if (m.name.empty() || m.name == "description" || m.hasMedia)
      continue;
    const auto [at, fresh] = first.emplace(m.name, m.begin);
    if (!fresh) {
      findings.Add(Rule::MetaDuplicate, m.begin,
                   "META name=" + Quoted(codec::ToUtf8(m.name, codec)) + " again (first on " +
                       findings.LineOf(at->second) + ")");
    }
  }
}

void CheckLegacy(const MetaTag& meta, FindingList& findings) {
  for (const Legacy& legacy : kLegacy) {
    if (meta.name != legacy.name)
      continue;
    if (legacy.name == "rating" && In(Folded(meta.content), kHonouredRatings))
      return;
    findings.Add(Rule::LegacyMeta, meta.begin,
                 "META name=" + Quoted(legacy.name) + ": " + std::string(legacy.today) + "; " +
                     std::string(legacy.advice));
  }
}

void CheckSocial(const PageFacts& facts, FindingList& findings) {
  const auto has = [&facts](std::string_view key) {
    return std::any_of(facts.metas.begin(), facts.metas.end(),
                       [key](const MetaTag& m) { return m.property == key || m.name == key; });
  };
  std::string missing;
  for (std::string_view key : kOpenGraph) {
    if (!has(key))
      missing += (missing.empty() ? "" : ", ") + std::string(key);
  }
  if (!missing.empty())
    findings.Add(Rule::OgMissing, facts.Anchor(), "Open Graph tags missing: " + missing);
  if (!has("twitter:card"))
    findings.Add(Rule::TwitterCardMissing, facts.Anchor(), "no twitter:card META tag");
}

}  // namespace

void CheckMetaTags(const PageFacts& facts, codec::Codec codec, FindingList& findings) {
  CheckDuplicates(facts.metas, codec, findings);
  RobotsRules robots(findings);
  for (const MetaTag& meta : facts.metas) {
    if (meta.name == "robots" || meta.name == "googlebot")
      robots.Check(meta, codec);
    CheckLegacy(meta, findings);
  }
  CheckSocial(facts, findings);
}

}  // namespace zentrel::checks
