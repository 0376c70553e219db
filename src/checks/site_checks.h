#pragma once
// The rules over a whole site, which need every page's result: pages that share a title or a
// description.

#include <cstddef>
#include <string>
#include <vector>

#include "checks/page_checks.h"

namespace zentrel::checks {

struct SiteFinding {
  Rule rule;
  Severity severity;
  std::vector<size_t> pages;  // indexes into the pages checked, in their order
  std::string message;        // UTF-8
};

// pages[i] is page i's result, or nullptr for a page that could not be read. Findings come
// title groups first, then description groups, each in the order of its first page.
std::vector<SiteFinding> CheckSite(const std::vector<const PageCheck*>& pages,
                                   const Profile& profile);

}  // namespace zentrel::checks
