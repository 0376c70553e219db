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
  const size_t stored = std::min(count, ids_.size());
  size_t chars = (count - 1) * separator.size();
  for (size_t k = 0; k < stored; ++k)
    chars += (*this)[k].size();
  std::string out(chars, '\0');
  // Byte loops rather than a copy call per word: the words are short and many.
  char* o = out.data();
  for (size_t k = 0; k < count; ++k) {
    if (k > 0) {
      for (const char s : separator)
        *o++ = s;
    }
    if (k < stored) {
      for (const char c : (*this)[k])
        *o++ = c;
    }
  }
  return out;
}

void WordList::Reset(size_t count) {
  chars_.clear();
  spellingEnds_.clear();
  ids_.clear();
  slots_ = count;
}

void WordList::Truncate(size_t words) {
  if (words < ids_.size())
    ids_.resize(words);
}

uint32_t WordList::AddSpelling(std::string_view word, Fold fold) {
  const size_t at = chars_.size();
  if (at + word.size() > UINT32_MAX || spellingEnds_.size() >= UINT32_MAX)
    RaiseOverflow();
  chars_.append(word);
  if (fold == Fold::Lower) {
    for (size_t i = at; i < chars_.size(); ++i)
      chars_[i] = text::LowerAscii(chars_[i]);
  }
  spellingEnds_.push_back(static_cast<uint32_t>(chars_.size()));
  return static_cast<uint32_t>(spellingEnds_.size() - 1);
}

}  // namespace zentrel::state
