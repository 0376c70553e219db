#include "checks/tag_tokenizer.h"

#include <cstring>

#include "base/text.h"

namespace zentrel::checks {

namespace {

constexpr std::string_view kRawTextElements[] = {
    "script", "style", "xmp", "iframe", "noembed", "noframes", "noscript", "title", "textarea"};

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool StartsWithFolded(std::string_view s, size_t at, std::string_view lower) {
  if (at > s.size() || s.size() - at < lower.size())
    return false;
  for (size_t i = 0; i < lower.size(); ++i) {
    if (text::LowerAscii(s[at + i]) != lower[i])
      return false;
  }
  return true;
}

}  // namespace

const std::string_view* Token::Find(std::string_view attributeName) const {
  for (const Attribute& a : attributes) {
    if (std::string_view(a.name) == attributeName)
      return &a.value;
  }
  return nullptr;
}

TagTokenizer::TagTokenizer(std::string_view page) : page_(page) {}

bool TagTokenizer::Next(Token& token) {
  while (pos_ < page_.size()) {
    token.attributes.clear();
    token.name.clear();
    token.selfClosing = false;
    token.foreign = foreignDepth_ > 0;
    token.begin = pos_;
    if (!rawEnd_.empty()) {
      if (RawTextOf(token))
        return true;
      continue;
    }
    const char* at = page_.data() + pos_;
    const size_t left = page_.size() - pos_;
    const char next = left > 1 ? at[1] : '\0';
    if (at[0] == '<' && IsLetter(next)) {
      StartTag(token, pos_ + 1);
    } else if (at[0] == '<' && next == '/' && left > 2 && IsLetter(at[2])) {
      EndTag(token);
    } else if (at[0] == '<' && next == '/' && left > 2 && at[2] == '>') {
      pos_ += 3;  // "</>" is dropped
      continue;
    } else if (at[0] == '<' && next == '/' && left > 2) {
      Markup(token, Token::Kind::Comment, ">");
    } else if (at[0] == '<' && next == '!' && StartsWithFolded(page_, pos_, "<!--")) {
      Markup(token, Token::Kind::Comment, "-->");
    } else if (at[0] == '<' && next == '!' && StartsWithFolded(page_, pos_, "<!doctype")) {
      Markup(token, Token::Kind::Doctype, ">");
    } else if (at[0] == '<' && next == '!' && token.foreign &&
               StartsWithFolded(page_, pos_, "<![cdata[")) {
      Markup(token, Token::Kind::Comment, "]]>");
    } else if (at[0] == '<' && (next == '!' || next == '?')) {
      Markup(token, Token::Kind::Comment, ">");
    } else {
      // Text up to the next "<" (a "<" that opens nothing is text too).
      const void* lt = std::memchr(at + 1, '<', left - 1);
      pos_ = lt == nullptr ? page_.size() : static_cast<const char*>(lt) - page_.data();
      token.kind = Token::Kind::Text;
    }
    if (pos_ == token.begin)
      return false;  // a tag cut off by the end of the page is dropped, as browsers do
    token.end = pos_;
    return true;
  }
  return false;
}

void TagTokenizer::StartTag(Token& token, size_t nameStart) {
  token.kind = Token::Kind::StartTag;
  size_t p = nameStart;
  while (p < page_.size() && !IsSpace(page_[p]) && page_[p] != '/' && page_[p] != '>')
    token.name.push_back(text::LowerAscii(page_[p++]));
  pos_ = p;
  Attributes(token, true);
  if (pos_ == token.begin)
    return;
  const std::string_view name = token.name;
  const bool mathOrSvg = name == "svg" || name == "math";
  if (token.foreign || mathOrSvg) {
    if (mathOrSvg && !token.selfClosing)
      ++foreignDepth_;
    return;
  }
  if (name == "plaintext") {
    rawEnd_ = "\n";  // no end tag closes it: the rest of the page is text
    return;
  }
  // Most tags are none of these: look at the list only for names of the right lengths.
  if (token.name.size() < 3 || token.name.size() > 8)
    return;
  for (std::string_view raw : kRawTextElements) {
    if (name == raw)
      rawEnd_ = raw;
  }
}

void TagTokenizer::EndTag(Token& token) {
  token.kind = Token::Kind::EndTag;
  size_t p = token.begin + 2;
  while (p < page_.size() && !IsSpace(page_[p]) && page_[p] != '/' && page_[p] != '>')
    token.name.push_back(text::LowerAscii(page_[p++]));
  pos_ = p;
  Attributes(token, false);
  if (foreignDepth_ > 0 && (std::string_view(token.name) == "svg" || token.name == "math"))
    token.foreign = --foreignDepth_ > 0;
}

void TagTokenizer::Markup(Token& token, Token::Kind kind, std::string_view close) {
  token.kind = kind;
  size_t from = token.begin + 2;
  if (close == "-->") {
    from = token.begin + 4;
    // "<!-->" and "<!--->" end at once.
    if (page_.compare(from, 1, ">") == 0 || page_.compare(from, 2, "->") == 0) {
      pos_ = page_.find('>', from) + 1;
      return;
    }
  }
  const size_t hit = page_.find(close, from);
  pos_ = hit == std::string_view::npos ? page_.size() : hit + close.size();
}

// Attributes as a browser reads them: names up to a blank, "/", ">" or "="; values in double
// or single quotes (which may hold ">") or up to a blank or ">". Leaves pos_ past the ">", or
// at the tag's start when the page ends inside the tag.
void TagTokenizer::Attributes(Token& token, bool keep) {
  size_t p = pos_;
  const size_t n = page_.size();
  while (p < n) {
    const char c = page_[p];
    if (IsSpace(c)) {
      ++p;
    } else if (c == '>') {
      pos_ = p + 1;
      return;
    } else if (c == '/') {
      token.selfClosing = p + 1 < n && page_[p + 1] == '>';
      ++p;
    } else {
      scratch_.name.clear();
      scratch_.value = {};
      do {
        scratch_.name.push_back(text::LowerAscii(page_[p++]));
      } while (p < n && !IsSpace(page_[p]) && page_[p] != '/' && page_[p] != '>' &&
               page_[p] != '=');
      while (p < n && IsSpace(page_[p]))
        ++p;
      if (p < n && page_[p] == '=') {
        ++p;
        while (p < n && IsSpace(page_[p]))
          ++p;
        size_t start = p;
        if (p < n && (page_[p] == '"' || page_[p] == '\'')) {
          const size_t close = page_.find(page_[p], p + 1);
          if (close == std::string_view::npos)
            break;
          start = p + 1;
          p = close + 1;
          scratch_.value = page_.substr(start, close - start);
        } else {
          while (p < n && !IsSpace(page_[p]) && page_[p] != '>')
            ++p;
          scratch_.value = page_.substr(start, p - start);
        }
      }
      if (keep)
        token.attributes.push_back(scratch_);
      token.selfClosing = false;
    }
  }
  pos_ = token.begin;
}

// The raw text of the element just opened, up to its end tag (which comes as the next token).
bool TagTokenizer::RawTextOf(Token& token) {
  size_t p = pos_;
  size_t stop = page_.size();
  if (rawEnd_ != "\n") {
    while (p < page_.size()) {
      const void* lt = std::memchr(page_.data() + p, '<', page_.size() - p);
      if (lt == nullptr)
        break;
      p = static_cast<const char*>(lt) - page_.data();
      const size_t after = p + 2 + rawEnd_.size();
      if (page_.compare(p + 1, 1, "/") == 0 && StartsWithFolded(page_, p + 2, rawEnd_) &&
          (after >= page_.size() || IsSpace(page_[after]) || page_[after] == '/' ||
           page_[after] == '>')) {
        stop = p;
        break;
      }
      ++p;
    }
  }
  rawEnd_.clear();
  token.kind = Token::Kind::RawText;
  token.end = pos_ = stop;
  return token.end > token.begin;
}

}  // namespace zentrel::checks
