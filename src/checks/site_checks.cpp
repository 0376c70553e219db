#include "checks/site_checks.h"

#include <unordered_map>

namespace zentrel::checks {

namespace {

void Shared(const std::vector<const PageCheck*>& pages, const Profile& profile, Rule rule,
            std::optional<LocatedText> PageCheck::*text, std::string_view what,
            std::vector<SiteFinding>& out) {
  const RuleSetting& setting = profile.Setting(rule);
  if (!setting.enabled)
    return;
  std::unordered_map<std::string_view, size_t> groups;  // text -> index into out
  for (size_t i = 0; i < pages.size(); ++i) {
    if (pages[i] == nullptr || !(pages[i]->*text) || (pages[i]->*text)->measured.chars == 0)
      continue;
    const std::string& shared = (pages[i]->*text)->measured.text;
    const auto [group, fresh] = groups.emplace(shared, out.size());
    if (fresh) {
      const std::u32string chars = codec::ToCodePoints(shared, codec::Codec::Utf8);
      out.push_back(
          {rule, setting.severity, {}, std::string(what) + " \"" + Excerpt(chars) + "\""});
    }
    out[group->second].pages.push_back(i);
  }
  std::erase_if(out, [rule](const SiteFinding& f) { return f.rule == rule && f.pages.size() < 2; });
  for (SiteFinding& f : out) {
    if (f.rule == rule)
      f.message = std::to_string(f.pages.size()) + " pages share " + f.message;
  }
}

}  // namespace

std::vector<SiteFinding> CheckSite(const std::vector<const PageCheck*>& pages,
                                   const Profile& profile) {
  std::vector<SiteFinding> out;
  Shared(pages, profile, Rule::TitleDuplicate, &PageCheck::title, "the title", out);
  Shared(pages, profile, Rule::DescriptionDuplicate, &PageCheck::description, "the description",
         out);
  return out;
}

}  // namespace zentrel::checks
