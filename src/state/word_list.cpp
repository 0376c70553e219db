#include "state/word_list.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "base/run_time_error.h"
#include "base/text.h"

namespace zentrel::state {

WordList& WordList::operator=(const std::vector<std::string>& words) {
  Reset(words.size());
  for (const std::string& w : words)
    Append(w);
  return *this;
}

std::string WordList::Join(size_t count, std::string_view separator) const {
  if (count == 0)
    return {};
  const size_t stored = std::min(count, ends_.size());
  const size_t chars = stored == 0 ? 0 : ends_[stored - 1];
  std::string out(chars + (count - 1) * separator.size(), '\0');
  // Byte loops rather than a copy call per word: the words are short and many.
  char* o = out.data();
  const char* c = chars_.data();
  for (size_t k = 0; k < count; ++k) {
    if (k > 0) {
      for (const char s : separator)
        *o++ = s;
    }
    if (k < stored) {
      for (const char* end = chars_.data() + ends_[k]; c != end; ++c)
        *o++ = *c;
    }
  }
  return out;
}

void WordList::Reset(size_t count) {
  chars_.clear();
  ends_.clear();
  slots_ = count;
}

void WordList::Truncate(size_t words) {
  if (words >= ends_.size())
    return;
  ends_.resize(words);
  chars_.resize(words == 0 ? 0 : ends_.back());
}

void WordList::ReserveMore(size_t words, size_t chars) {
  ends_.reserve(ends_.size() + words);
  chars_.reserve(chars_.size() + chars);
}

void WordList::Append(std::string_view word, Fold fold) {
  const size_t at = chars_.size();
  if (at + word.size() > UINT32_MAX)
    RaiseOverflow();
  chars_.append(word);
  if (fold == Fold::Lower) {
    for (size_t i = at; i < chars_.size(); ++i)
      chars_[i] = text::LowerAscii(chars_[i]);
  }
  ends_.push_back(static_cast<uint32_t>(chars_.size()));
  if (ends_.size() > slots_)
    slots_ = ends_.size();
}

}  // namespace zentrel::state
