#include "cli/lint_output.h"

#include "base/codec.h"
#include "cli/json_output.h"

namespace zentrel::cli {

namespace {

using checks::Severity;

std::string Counted(int64_t n, const std::string& noun) {
  return std::to_string(n) + " " + noun + (n == 1 ? "" : "s");
}

void Text(std::ostream& out, const char* key, std::string_view utf8) {
  out << '"' << key << "\":";
  Write_Json_String(out, utf8);
}

void MeasuredJson(std::ostream& out, const char* key,
                  const std::optional<checks::LocatedText>& text) {
  out << '"' << key << "\":";
  if (!text) {
    out << "null";
    return;
  }
  const checks::MeasuredText& m = text->measured;
  out << '{';
  Text(out, "text", m.text);
  out << ",\"chars\":" << m.chars << ",\"pixels\":" << m.pixels << '}';
}

void FindingJson(std::ostream& out, const checks::Finding& f) {
  const checks::RuleInfo& info = checks::InfoOf(f.rule);
  out << '{';
  Text(out, "rule", info.id);
  out << ',';
  Text(out, "severity", checks::SeverityName(f.severity));
  out << ",\"line\":" << f.at.line << ",\"column\":" << f.at.column << ',';
  Text(out, "message", f.message);
  out << ',';
  Text(out, "why", checks::WhyText(info));
  out << '}';
}

void PageJson(std::ostream& out, const LintedPage& page) {
  out << "{\"page\":";
  Write_Json_String_Own_Codec(out, page.path);
  out << ",\"error\":";
  if (page.error) {
    Write_Json_String_Own_Codec(out, *page.error);
  } else {
    out << "null";
  }
  out << ',';
  MeasuredJson(out, "title", page.check.title);
  out << ',';
  MeasuredJson(out, "description", page.check.description);
  out << ",\"findings\":[";
  for (size_t i = 0; i < page.check.findings.size(); ++i) {
    out << (i > 0 ? "," : "");
    FindingJson(out, page.check.findings[i]);
  }
  out << "]}";
}

void SiteJson(std::ostream& out, const LintRun& run, const checks::SiteFinding& f) {
  out << '{';
  Text(out, "rule", checks::InfoOf(f.rule).id);
  out << ',';
  Text(out, "severity", checks::SeverityName(f.severity));
  out << ",\"pages\":[";
  for (size_t i = 0; i < f.pages.size(); ++i) {
    out << (i > 0 ? "," : "");
    Write_Json_String_Own_Codec(out, run.pages[f.pages[i]].path);
  }
  out << "],";
  Text(out, "message", f.message);
  out << '}';
}

// A path in a text line, shown as the JSON shows it.
std::string Shown(const std::string& path) {
  return codec::ToUtf8(path, codec::DetectCodec(path));
}

}  // namespace

LintSummary Summarize(const LintRun& run) {
  LintSummary s;
  s.pages = static_cast<int64_t>(run.pages.size());
  const auto count = [&s](Severity severity) {
    ++(severity == Severity::Error     ? s.errors
       : severity == Severity::Warning ? s.warnings
                                       : s.notices);
  };
  for (const LintedPage& page : run.pages) {
    if (page.error)
      ++s.errors;
    for (const checks::Finding& f : page.check.findings)
      count(f.severity);
  }
  for (const checks::SiteFinding& f : run.site)
    count(f.severity);
  return s;
}

void Write_Lint_Text(std::ostream& out, const LintRun& run) {
  for (const LintedPage& page : run.pages) {
    const std::string path = Shown(page.path);
    if (page.error)
      out << path << ": error: " << Shown(*page.error) << "\n";
    for (const checks::Finding& f : page.check.findings) {
      out << path << ':' << f.at.line << ':' << f.at.column << ": "
          << checks::SeverityName(f.severity) << ": " << f.message << " ["
          << checks::InfoOf(f.rule).id << "]\n";
    }
  }
  for (const checks::SiteFinding& f : run.site) {
    out << checks::SeverityName(f.severity) << ": " << f.message << ":";
    for (size_t i = 0; i < f.pages.size(); ++i)
      out << (i > 0 ? ", " : " ") << Shown(run.pages[f.pages[i]].path);
    out << " [" << checks::InfoOf(f.rule).id << "]\n";
  }
  const LintSummary s = Summarize(run);
  out << Counted(s.pages, "page") << ": " << Counted(s.errors, "error") << ", "
      << Counted(s.warnings, "warning") << ", " << Counted(s.notices, "notice") << "\n";
}

void Write_Lint_Json(std::ostream& out, const LintRun& run) {
  out << "{\"pages\":[";
  for (size_t i = 0; i < run.pages.size(); ++i) {
    out << (i > 0 ? ",\n" : "\n");
    PageJson(out, run.pages[i]);
  }
  out << "],\n\"site\":[";
  for (size_t i = 0; i < run.site.size(); ++i) {
    out << (i > 0 ? ",\n" : "\n");
    SiteJson(out, run, run.site[i]);
  }
  const LintSummary s = Summarize(run);
  out << "],\n\"summary\":{\"pages\":" << s.pages << ",\"errors\":" << s.errors
      << ",\"warnings\":" << s.warnings << ",\"notices\":" << s.notices << "}}\n";
}

}  // namespace zentrel::cli
