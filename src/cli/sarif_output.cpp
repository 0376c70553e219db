// SARIF 2.1.0 for `zentrel-cli lint`: one run whose driver lists every rule, one result per
// finding. Columns count characters (unicodeCodePoints), as the text and JSON outputs do.

#include <cstdio>

#include "cli/json_output.h"
#include "cli/lint_output.h"

namespace zentrel::cli {

namespace {

using checks::Severity;

constexpr const char* kSchema =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";

const char* Level(Severity severity) {
  return severity == Severity::Error ? "error" : severity == Severity::Warning ? "warning" : "note";
}

// A path as a URI reference: letters, digits, "-._~/" as they are, every other byte
// percent-encoded, so a blank or a non-ASCII name still makes a valid reference.
std::string UriOf(const std::string& path) {
  std::string uri;
  for (char c : path) {
    const auto b = static_cast<unsigned char>(c);
    if ((b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z') || (b >= '0' && b <= '9') ||
        std::string_view("-._~/").find(c) != std::string_view::npos) {
      uri += c;
    } else {
      char hex[4];
      std::snprintf(hex, sizeof hex, "%%%02X", b);
      uri += hex;
    }
  }
  return uri;
}

void Message(std::ostream& out, const char* key, std::string_view utf8) {
  out << '"' << key << "\":{\"text\":";
  Write_Json_String(out, utf8);
  out << '}';
}

void Rule(std::ostream& out, const checks::RuleInfo& info, const checks::RuleSetting& setting) {
  out << "{\"id\":";
  Write_Json_String(out, info.id);
  out << ',';
  Message(out, "shortDescription", info.summary);
  out << ',';
  Message(out, "help", checks::WhyText(info));
  out << ",\"helpUri\":";
  Write_Json_String(out, info.url);
  out << ",\"defaultConfiguration\":{\"enabled\":" << (setting.enabled ? "true" : "false")
      << ",\"level\":\"" << Level(setting.severity) << "\"}}";
}

void Location(std::ostream& out, const std::string& path, checks::Position at) {
  out << "{\"physicalLocation\":{\"artifactLocation\":{\"uri\":";
  Write_Json_String_Own_Codec(out, UriOf(path));
  out << "},\"region\":{\"startLine\":" << at.line << ",\"startColumn\":" << at.column << "}}}";
}

void ResultStart(std::ostream& out, checks::Rule rule, Severity severity,
                 std::string_view message) {
  out << "{\"ruleId\":";
  Write_Json_String(out, checks::InfoOf(rule).id);
  out << ",\"ruleIndex\":" << static_cast<int>(rule) << ",\"level\":\"" << Level(severity) << "\",";
  Message(out, "message", message);
  out << ",\"locations\":[";
}

void Results(std::ostream& out, const LintRun& run) {
  const char* separator = "\n";
  for (const LintedPage& page : run.pages) {
    for (const checks::Finding& f : page.check.findings) {
      out << separator;
      separator = ",\n";
      ResultStart(out, f.rule, f.severity, f.message);
      Location(out, page.path, f.at);
      out << "]}";
    }
  }
  // A site finding stands at the shared title or description of each of its pages.
  for (const checks::SiteFinding& f : run.site) {
    out << separator;
    separator = ",\n";
    ResultStart(out, f.rule, f.severity, f.message);
    for (size_t i = 0; i < f.pages.size(); ++i) {
      const checks::PageCheck& check = run.pages[f.pages[i]].check;
      const auto& text = f.rule == checks::Rule::TitleDuplicate ? check.title : check.description;
      out << (i > 0 ? "," : "");
      Location(out, run.pages[f.pages[i]].path, text ? text->at : checks::Position{});
    }
    out << "]}";
  }
}

// Pages that could not be read, as notifications of a failed run.
void Invocation(std::ostream& out, const LintRun& run) {
  bool any = false;
  for (const LintedPage& page : run.pages) {
    if (!page.error)
      continue;
    out << (any ? ","
                : ",\n\"invocations\":[{\"executionSuccessful\":false,"
                  "\"toolExecutionNotifications\":[");
    any = true;
    out << "{\"level\":\"error\",\"message\":{\"text\":";
    Write_Json_String_Own_Codec(out, *page.error);
    out << "},\"locations\":[";
    Location(out, page.path, {});
    out << "]}";
  }
  if (any)
    out << "]}]";
}

}  // namespace

void Write_Lint_Sarif(std::ostream& out, const LintRun& run) {
  out << "{\"$schema\":\"" << kSchema << "\",\"version\":\"2.1.0\",\"runs\":[{\n"
      << "\"tool\":{\"driver\":{\"name\":\"zentrel\",\"rules\":[";
  const auto rules = checks::AllRules();
  for (size_t i = 0; i < rules.size(); ++i) {
    out << (i > 0 ? ",\n" : "\n");
    Rule(out, rules[i], run.profile.Setting(rules[i].rule));
  }
  out << "]}},\n\"columnKind\":\"unicodeCodePoints\",\n\"results\":[";
  Results(out, run);
  out << "]";
  Invocation(out, run);
  out << "}]}\n";
}

}  // namespace zentrel::cli
