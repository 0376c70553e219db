#pragma once
// The outputs of `zentrel-cli lint`: compiler-like text, one JSON document, and SARIF 2.1.0 for
// code-review tools. Pages come in the order they were given, the site findings after them.

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "checks/page_checks.h"
#include "checks/site_checks.h"

namespace zentrel::cli {

struct LintedPage {
  std::string path;                  // as given or found, in its own bytes
  std::optional<std::string> error;  // why the page could not be read
  checks::PageCheck check;
};

struct LintRun {
  const checks::Profile& profile;
  std::vector<LintedPage> pages;
  std::vector<checks::SiteFinding> site;
};

struct LintSummary {
  int64_t pages = 0, errors = 0, warnings = 0, notices = 0;
};

// Findings by severity, site findings included; a page that could not be read counts as an
// error.
LintSummary Summarize(const LintRun& run);

void Write_Lint_Text(std::ostream& out, const LintRun& run);
void Write_Lint_Json(std::ostream& out, const LintRun& run);
void Write_Lint_Sarif(std::ostream& out, const LintRun& run);

}  // namespace zentrel::cli
