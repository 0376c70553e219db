#pragma once
// A small HTML tokenizer over the page's bytes for the checks: start and end tags with their
// attributes, text, comments and doctypes, each with its byte offsets. It skips the content of
// script, style and the other raw-text elements and hands the text of TITLE and TEXTAREA over
// whole, as a browser's tokenizer does, so that nothing inside them reads as a tag. It keeps its
// own position (the document's scan cursor belongs to the analysis) and allocates nothing per
// token once its buffers have grown, so a page of any size is one pass.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zentrel::checks {

struct Attribute {
  std::string name;        // lower case
  std::string_view value;  // raw, entities not decoded; empty when there is none
};

struct Token {
  enum class Kind { StartTag, EndTag, Text, RawText, Comment, Doctype };
  Kind kind = Kind::Text;
  size_t begin = 0, end = 0;  // the token's bytes: [begin, end)
  std::string name;           // tags: lower case
  std::vector<Attribute> attributes;
  bool selfClosing = false;
  bool foreign = false;  // inside svg or math, where HTML's elements do not apply

  // The attribute's value, or nullptr when the tag does not have it.
  const std::string_view* Find(std::string_view attributeName) const;
  std::string_view Text(std::string_view page) const { return page.substr(begin, end - begin); }
};

class TagTokenizer {
 public:
  explicit TagTokenizer(std::string_view page);

  // The next token; false at the end of the page.
  bool Next(Token& token);

 private:
  void StartTag(Token& token, size_t nameEnd);
  void EndTag(Token& token);
  void Markup(Token& token, Token::Kind kind, std::string_view close);
  void Attributes(Token& token, bool keep);
  bool RawTextOf(Token& token);

  std::string_view page_;
  size_t pos_ = 0;
  std::string rawEnd_;  // the element whose raw text comes next, or empty
  int foreignDepth_ = 0;
  Attribute scratch_;
};

}  // namespace zentrel::checks
