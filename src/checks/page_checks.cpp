#include "checks/page_checks.h"

#include <algorithm>
#include <tuple>

#include "checks/meta_rules.h"
#include "checks/page_facts.h"

namespace zentrel::checks {

namespace {

constexpr size_t kMovedListed = 20;  // tags named in one head-ended-early message

std::string Quoted(std::string_view utf8) {
  return "\"" + std::string(utf8) + "\"";
}

bool IsAbsolute(std::string_view address) {
  const auto letter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
  if (address.empty() || !letter(address.front()))
    return false;
  for (char c : address.substr(1)) {
    if (c == ':')
      return true;
    if (!letter(c) && !(c >= '0' && c <= '9') && c != '+' && c != '-' && c != '.')
      return false;
  }
  return false;
}

class PageChecker {
 public:
  PageChecker(std::string_view page, const Profile& profile)
      : page_(page),
        codec_(codec::DetectCodec(page)),
        profile_(profile),
        lines_(page, codec_),
        facts_(ReadPageFacts(page, codec_)),
        findings_(profile, lines_) {}

  PageCheck Run() {
    PageCheck result;
    result.title = Title();
    result.description = Description();
    HeadEndedEarly();
    Canonical();
    Document();
    CheckMetaTags(facts_, codec_, findings_);
    result.findings = findings_.Take();
    return result;
  }

 private:
  std::optional<LocatedText> Title() {
    if (facts_.titles.empty()) {
      findings_.Add(Rule::TitleMissing, facts_.Anchor(), "the page has no TITLE element");
      return std::nullopt;
    }
    const TitleTag& first = facts_.titles.front();
    for (size_t i = 1; i < facts_.titles.size(); ++i) {
      findings_.Add(Rule::TitleMultiple, facts_.titles[i].begin,
                    "another TITLE element (the first is on " + findings_.LineOf(first.begin) +
                        "); browsers use the first");
    }
    LocatedText title{Measure(first.text, codec_, profile_.titleFontPixels),
                      lines_.At(first.begin)};
    const MeasuredText& m = title.measured;
    if (m.chars == 0) {
      findings_.Add(Rule::TitleEmpty, first.begin, "the TITLE element is empty");
      return title;
    }
    if (m.pixels > profile_.titleMaxPixels) {
      findings_.Add(Rule::TitleTooLong, first.begin,
                    "the title is " + std::to_string(m.pixels) + " px wide at " +
                        std::to_string(profile_.titleFontPixels) + " px, over the " +
                        std::to_string(profile_.titleMaxPixels) +
                        " px a desktop result shows: " + Quoted(RawExcerpt(first.text, codec_)));
    }
    if (m.chars < profile_.titleMinChars) {
      findings_.Add(Rule::TitleTooShort, first.begin,
                    "the title has " + std::to_string(m.chars) + " characters, fewer than " +
                        std::to_string(profile_.titleMinChars) + ": " +
                        Quoted(RawExcerpt(first.text, codec_)));
    }
    return title;
  }

  std::optional<LocatedText> Description() {
    const MetaTag* first = nullptr;
    for (const MetaTag& meta : facts_.metas) {
      if (meta.name != "description")
        continue;
      if (first != nullptr) {
        findings_.Add(
            Rule::DescriptionMultiple, meta.begin,
            "another META description (the first is on " + findings_.LineOf(first->begin) + ")");
      } else {
        first = &meta;
      }
    }
    if (first == nullptr) {
      findings_.Add(Rule::DescriptionMissing, facts_.Anchor(), "the page has no META description");
      return std::nullopt;
    }
    LocatedText description{Measure(first->content, codec_, profile_.descriptionFontPixels),
                            lines_.At(first->begin)};
    const MeasuredText& m = description.measured;
    if (m.pixels > profile_.descriptionMaxPixels) {
      findings_.Add(Rule::DescriptionTooLong, first->begin,
                    "the description is " + std::to_string(m.pixels) + " px wide at " +
                        std::to_string(profile_.descriptionFontPixels) + " px, over the " +
                        std::to_string(profile_.descriptionMaxPixels) +
                        " px a desktop snippet shows");
    }
    if (m.chars < profile_.descriptionMinChars) {
      findings_.Add(Rule::DescriptionTooShort, first->begin,
                    m.chars == 0 ? std::string("the META description is empty")
                                 : "the description has " + std::to_string(m.chars) +
                                       " characters, fewer than " +
                                       std::to_string(profile_.descriptionMinChars));
    }
    return description;
  }

  void HeadEndedEarly() {
    if (!facts_.headEnd)
      return;
    std::string message = "the head ends at " + facts_.headEnd->label + " on " +
                          findings_.LineOf(facts_.headEnd->begin) +
                          ", so browsers put these tags in the body: ";
    const size_t listed = std::min(facts_.moved.size(), kMovedListed);
    for (size_t i = 0; i < listed; ++i) {
      message += (i > 0 ? ", " : "") + facts_.moved[i].label + " (" +
                 findings_.LineOf(facts_.moved[i].begin) + ")";
    }
    if (listed < facts_.moved.size())
      message += " and " + std::to_string(facts_.moved.size() - listed) + " more";
    findings_.Add(Rule::HeadEndedEarly, facts_.headEnd->begin, message);
  }

  void Canonical() {
    if (facts_.canonicals.empty()) {
      findings_.Add(Rule::CanonicalMissing, facts_.Anchor(),
                    "no link rel=\"canonical\" names the page's preferred address");
    }
    for (size_t i = 0; i < facts_.canonicals.size(); ++i) {
      const AddressTag& link = facts_.canonicals[i];
      if (i > 0) {
        findings_.Add(Rule::CanonicalMultiple, link.begin,
                      "another canonical link (the first is on " +
                          findings_.LineOf(facts_.canonicals.front().begin) +
                          "); Google ignores them all");
      }
      const std::string address = Folded(link.address);
      if (address.empty()) {
        findings_.Add(Rule::CanonicalRelative, link.begin, "the canonical link has no address");
      } else if (!IsAbsolute(address)) {
        findings_.Add(Rule::CanonicalRelative, link.begin,
                      "the canonical address " + Quoted(RawExcerpt(link.address, codec_)) +
                          " is relative; give the whole address, with https://");
      }
    }
  }

  // The rules over the page as a whole: viewport, encoding, language, headings and images.
  void Document() {
    const auto named = [this](std::string_view name) {
      return std::any_of(facts_.metas.begin(), facts_.metas.end(),
                         [name](const MetaTag& m) { return m.name == name; });
    };
    if (!named("viewport")) {
      findings_.Add(Rule::ViewportMissing, facts_.Anchor(),
                    "no META viewport: phones lay the page out at desktop width");
    }
    if (!facts_.charsetEnd && !facts_.byteOrderMark) {
      findings_.Add(Rule::CharsetMissing, facts_.Anchor(),
                    "the page declares no character encoding (add <meta charset=\"utf-8\">)");
    }
    if (facts_.charsetEnd && *facts_.charsetEnd > static_cast<size_t>(profile_.charsetMaxBytes)) {
      findings_.Add(Rule::CharsetLate, *facts_.charsetEnd - 1,
                    "the encoding declaration ends at byte " + std::to_string(*facts_.charsetEnd) +
                        ", past the first " + std::to_string(profile_.charsetMaxBytes) +
                        " bytes where browsers look for it");
    }
    if (!facts_.lang) {
      findings_.Add(Rule::LangMissing, facts_.htmlTag.value_or(0),
                    facts_.htmlTag ? "the html element has no lang attribute"
                                   : "the page has no html element with a lang attribute");
    }
    if (facts_.h1s.empty())
      findings_.Add(Rule::H1Missing, facts_.bodyTag.value_or(facts_.Anchor()),
                    "the page has no H1 heading");
    for (size_t i = 1; i < facts_.h1s.size(); ++i) {
      findings_.Add(Rule::H1Multiple, facts_.h1s[i],
                    "another H1 heading (the first is on " + findings_.LineOf(facts_.h1s[0]) + ")");
    }
    for (const AddressTag& image : facts_.imagesWithoutAlt) {
      const std::string src = RawExcerpt(image.address, codec_);
      findings_.Add(Rule::ImgAltMissing, image.begin,
                    src.empty() ? std::string("an image has no alt attribute")
                                : "the image " + Quoted(src) + " has no alt attribute");
    }
  }

  std::string_view page_;
  codec::Codec codec_;
  const Profile& profile_;
  LineIndex lines_;
  PageFacts facts_;
  FindingList findings_;
};

}  // namespace

FindingList::FindingList(const Profile& profile, const LineIndex& lines)
    : profile_(profile), lines_(lines) {}

void FindingList::Add(Rule rule, size_t offset, std::string message) {
  const RuleSetting& setting = profile_.Setting(rule);
  if (setting.enabled)
    findings_.push_back({rule, setting.severity, lines_.At(offset), offset, std::move(message)});
}

std::string FindingList::LineOf(size_t offset) const {
  return "line " + std::to_string(lines_.At(offset).line);
}

std::vector<Finding> FindingList::Take() {
  std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) {
    return std::tie(a.at.line, a.at.column, a.rule) < std::tie(b.at.line, b.at.column, b.rule);
  });
  return std::move(findings_);
}

PageCheck CheckPage(std::string_view page, const Profile& profile) {
  return PageChecker(page, profile).Run();
}

}  // namespace zentrel::checks
