#include "cli/json_output.h"

#include <cstdio>

#include "base/codec.h"
#include "state/app_state.h"

namespace zentrel::cli {

namespace {

void Quoted(std::ostream& out, std::string_view utf8) {
  out << '"';
  for (char c : utf8) {
    switch (c) {
      case '"':
        out << "\\\"";
        break;
      case '\\':
        out << "\\\\";
        break;
      case '\n':
        out << "\\n";
        break;
      case '\r':
        out << "\\r";
        break;
      case '\t':
        out << "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", static_cast<unsigned>(c));
          out << buf;
        } else {
          out << c;
        }
    }
  }
  out << '"';
}

// A text that is not the page's own (the path as given, the error) in its own codec, so a
// file name in another encoding than the page still gives valid UTF-8.
void QuotedOwnCodec(std::ostream& out, std::string_view bytes) {
  Quoted(out, codec::ToUtf8(bytes, codec::DetectCodec(bytes)));
}

}  // namespace

void Write_Analysis_Json(std::ostream& out, const AppState& s, const std::string& page,
                         const std::optional<std::string>& error) {
  const codec::Codec c = codec::DetectCodec(s.DocumentText);
  const state::FormModel& f = s.Form;
  auto field = [&](const char* key, const std::string& bytes) {
    out << ",\"" << key << "\":";
    Quoted(out, codec::ToUtf8(bytes, c));
  };
  out << "{\"page\":";
  QuotedOwnCodec(out, page);
  out << ",\"error\":";
  if (error) {
    QuotedOwnCodec(out, *error);
  } else {
    out << "null";
  }
  field("report", f.ReportTextBox);
  field("keyword_matches", f.ScanKeyWords_KeyWordMatches_TextBox);
  field("keyword_density", f.ScanKeyWords_KeyWordDensity_TextBox);
  field("body_word_count", f.ScanKeyWords_DocumentWordCount_TextBox);
  field("view_body", f.ScanKeyWords_StrippedHTMLDocument_TextBox);
  field("unique_word_count_label", f.Body_Word_Count_Label);
  field("word_count_label", f.Body_Word_Count_label2);
  field("title", s.TitleText);
  out << ",\"meta_fields\":[";
  for (size_t i = 0; i < f.MetaTag_TextBox.size(); ++i) {
    if (i > 0)
      out << ',';
    Quoted(out, codec::ToUtf8(f.MetaTag_TextBox[i], c));
  }
  out << "]}\n";
}

void Write_Json_String(std::ostream& out, std::string_view utf8) {
  Quoted(out, utf8);
}

void Write_Json_String_Own_Codec(std::ostream& out, std::string_view bytes) {
  QuotedOwnCodec(out, bytes);
}

}  // namespace zentrel::cli
