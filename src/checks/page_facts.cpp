#include "checks/page_facts.h"

#include <span>

#include "base/text.h"
#include "checks/page_text.h"
#include "checks/tag_tokenizer.h"

namespace zentrel::checks {

namespace {

// The elements that may stand in the head; any other start tag ends it.
constexpr std::string_view kHeadElements[] = {"base",     "basefont", "bgsound", "link",
                                              "meta",     "noframes", "script",  "style",
                                              "template", "title",    "noscript"};

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}

bool InList(std::string_view name, std::span<const std::string_view> list) {
  for (std::string_view entry : list) {
    if (entry == name)
      return true;
  }
  return false;
}

bool HasToken(std::string_view list, std::string_view wanted) {
  const std::string folded = Folded(list);
  size_t p = 0;
  while (p < folded.size()) {
    while (p < folded.size() && IsSpace(folded[p]))
      ++p;
    size_t end = p;
    while (end < folded.size() && !IsSpace(folded[end]))
      ++end;
    if (std::string_view(folded).substr(p, end - p) == wanted)
      return true;
    p = end;
  }
  return false;
}

std::string_view ValueOr(const Token& t, std::string_view name) {
  const std::string_view* v = t.Find(name);
  return v == nullptr ? std::string_view() : *v;
}

// The insertion modes of a browser's parser up to the body, as far as the head is concerned.
enum class Mode { BeforeHtml, BeforeHead, InHead, AfterHead, InBody };

class FactReader {
 public:
  FactReader(std::string_view page, codec::Codec codec) : page_(page), codec_(codec) {
    facts_.byteOrderMark = page.substr(0, kByteOrderMark.size()) == kByteOrderMark;
  }

  PageFacts Read() {
    TagTokenizer tokenizer(page_);
    Token t;
    while (tokenizer.Next(t)) {
      if (t.foreign)
        continue;
      if (t.kind == Token::Kind::RawText && titleText_ != nullptr)
        *titleText_ = t.Text(page_);
      titleText_ = nullptr;
      if (t.kind == Token::Kind::Text) {
        Text(t);
      } else if (t.kind == Token::Kind::StartTag) {
        Step(t);
        Gather(t);
      } else if (t.kind == Token::Kind::EndTag) {
        EndTag(t);
      }
    }
    if (facts_.moved.empty())
      facts_.headEnd.reset();
    return std::move(facts_);
  }

 private:
  void Text(const Token& t) {
    const std::string_view text = t.Text(page_);
    size_t p = t.begin == 0 && facts_.byteOrderMark ? kByteOrderMark.size() : 0;
    while (p < text.size() && IsSpace(text[p]))
      ++p;
    if (p < text.size() && mode_ != Mode::InBody && templates_ == 0) {
      EndHead(t.begin + p, "text \"" + RawExcerpt(text.substr(p), codec_, 20) + "\"");
    }
  }

  void Step(const Token& t) {
    const std::string_view name = t.name;
    if (templates_ > 0) {
      templates_ += name == "template";
      return;
    }
    if (mode_ == Mode::InBody) {
      if (name == "body" && !facts_.bodyTag)
        facts_.bodyTag = t.begin;
      return;
    }
    if (name == "html") {
      if (mode_ == Mode::BeforeHtml)
        mode_ = Mode::BeforeHead;
    } else if (name == "head") {
      if (mode_ == Mode::BeforeHtml || mode_ == Mode::BeforeHead) {
        facts_.headTag = t.begin;
        mode_ = Mode::InHead;
      }
    } else if (name == "body" || name == "frameset") {
      facts_.bodyTag = t.begin;
      mode_ = Mode::InBody;
    } else if (InList(name, kHeadElements)) {
      if (mode_ == Mode::BeforeHtml || mode_ == Mode::BeforeHead)
        mode_ = Mode::InHead;
      if (name == "template")
        templates_ = 1;
    } else {
      EndHead(t.begin, codec::ToUtf8("<" + t.name + ">", codec_));
    }
  }

  void EndTag(const Token& t) {
    const std::string_view name = t.name;
    if (templates_ > 0) {
      templates_ -= name == "template";
    } else if (mode_ == Mode::InBody) {
      return;
    } else if (name == "head") {
      mode_ = Mode::AfterHead;
    } else if (name == "body" || name == "html" || name == "br") {
      EndHead(t.begin, codec::ToUtf8("</" + t.name + ">", codec_));
    }
  }

  void EndHead(size_t at, std::string label) {
    facts_.headEnd = HeadEnd{at, std::move(label)};
    mode_ = Mode::InBody;
  }

  void Gather(const Token& t) {
    const std::string_view name = t.name;
    if (name == "html") {
      if (!facts_.htmlTag)
        facts_.htmlTag = t.begin;
      facts_.lang = facts_.lang || !Folded(ValueOr(t, "lang")).empty();
    } else if (name == "title") {
      facts_.titles.push_back({t.begin, {}});
      titleText_ = &facts_.titles.back().text;
      Moved(t, "<title>");
    } else if (name == "meta") {
      Meta(t);
    } else if (name == "link") {
      const std::string_view rel = ValueOr(t, "rel");
      if (HasToken(rel, "canonical"))
        facts_.canonicals.push_back({t.begin, ValueOr(t, "href")});
      Moved(t, "<link rel=\"" + Folded(rel) + "\">");
    } else if (name == "h1") {
      facts_.h1s.push_back(t.begin);
    } else if ((name == "img" || name == "image") && t.Find("alt") == nullptr) {
      facts_.imagesWithoutAlt.push_back({t.begin, ValueOr(t, "src")});
    }
  }

  void Meta(const Token& t) {
    MetaTag m{t.begin,
              t.end,
              Folded(ValueOr(t, "name")),
              Folded(ValueOr(t, "property")),
              ValueOr(t, "content"),
              t.Find("content") != nullptr,
              t.Find("media") != nullptr};
    const bool charset =
        t.Find("charset") != nullptr || (Folded(ValueOr(t, "http-equiv")) == "content-type" &&
                                         Folded(m.content).find("charset=") != std::string::npos);
    if (charset && !facts_.charsetEnd)
      facts_.charsetEnd = t.end;
    std::string label = "<meta";
    if (!m.name.empty()) {
      label += " name=\"" + m.name + "\"";
    } else if (!m.property.empty()) {
      label += " property=\"" + m.property + "\"";
    } else if (charset) {
      label += " charset";
    }
    Moved(t, label + ">");
    facts_.metas.push_back(std::move(m));
  }

  void Moved(const Token& t, std::string label) {
    if (facts_.headEnd)
      facts_.moved.push_back({t.begin, codec::ToUtf8(label, codec_)});
  }

  std::string_view page_;
  codec::Codec codec_;
  PageFacts facts_;
  Mode mode_ = Mode::BeforeHtml;
  int templates_ = 0;
  std::string_view* titleText_ = nullptr;
};

}  // namespace

std::string Folded(std::string_view value) {
  while (!value.empty() && IsSpace(value.front()))
    value.remove_prefix(1);
  while (!value.empty() && IsSpace(value.back()))
    value.remove_suffix(1);
  return text::LCase(value);
}

PageFacts ReadPageFacts(std::string_view page, codec::Codec codec) {
  return FactReader(page, codec).Read();
}

}  // namespace zentrel::checks
