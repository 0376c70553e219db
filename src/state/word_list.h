#pragma once
// The document word list's storage: the words end to end in one buffer.

#include <compare>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zentrel::state {

// A table of words indexed from 0. Each word is a number naming one of the list's spellings,
// which are stored end to end in one buffer: a page of half a million words, which repeats a
// few thousand spellings, costs one number a word and each spelling's characters once. Words
// are only ever appended; the slots after the last stored word read as empty.
class WordList {
 public:
  // Reads the slots in order, as string views.
  class const_iterator {
   public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = std::string_view;

    const_iterator() = default;
    const_iterator(const WordList* list, size_t i) : list_(list), i_(i) {}
    std::string_view operator*() const { return (*list_)[i_]; }
    std::string_view operator[](difference_type n) const { return *(*this + n); }
    const_iterator& operator++() { return ++i_, *this; }
    const_iterator operator++(int) { return {list_, i_++}; }
    const_iterator& operator--() { return --i_, *this; }
    const_iterator operator--(int) { return {list_, i_--}; }
    const_iterator& operator+=(difference_type n) {
      i_ = static_cast<size_t>(static_cast<difference_type>(i_) + n);
      return *this;
    }
    const_iterator& operator-=(difference_type n) { return *this += -n; }
    friend const_iterator operator+(const_iterator it, difference_type n) { return it += n; }
    friend const_iterator operator+(difference_type n, const_iterator it) { return it += n; }
    friend const_iterator operator-(const_iterator it, difference_type n) { return it -= n; }
    friend difference_type operator-(const const_iterator& a, const const_iterator& b) {
      return static_cast<difference_type>(a.i_) - static_cast<difference_type>(b.i_);
    }
    friend bool operator==(const const_iterator& a, const const_iterator& b) {
      return a.i_ == b.i_;
    }
    friend auto operator<=>(const const_iterator& a, const const_iterator& b) {
      return a.i_ <=> b.i_;
    }

   private:
    const WordList* list_ = nullptr;
    size_t i_ = 0;
  };

  WordList() = default;
  // The words in order, one slot each.
  WordList& operator=(const std::vector<std::string>& words);
  const_iterator begin() const { return {this, 0}; }
  const_iterator end() const { return {this, slots_}; }
  // Appends the word after the stored ones, like Append.
  void emplace_back(std::string_view word = {}) { Append(word); }

  // Slots 0..count-1, all empty.
  void Reset(size_t count);
  // More (or fewer) slots; the stored words stay.
  void Resize(size_t count) { slots_ = count; }
  // Forgets the words from index `words` on.
  void Truncate(size_t words);
  // Room for this many more words without moving the buffer.
  void ReserveMore(size_t words) { ids_.reserve(ids_.size() + words); }
  size_t size() const { return slots_; }
  size_t Stored() const { return ids_.size(); }
  std::string_view operator[](size_t i) const {
    return i < ids_.size() ? Spelling(ids_[i]) : std::string_view();
  }
  // Words 0..count-1 joined by the separator.
  std::string Join(size_t count, std::string_view separator) const;

  enum class Fold { None, Lower };  // ASCII case folding on the way in
  // Stores the word at index Stored(), adding a slot when there is none.
  void Append(std::string_view word, Fold fold = Fold::None) {
    AppendSpelling(AddSpelling(word, fold));
  }
  // A new spelling (not compared with the others), for words to be appended by its number.
  uint32_t AddSpelling(std::string_view word, Fold fold = Fold::None);
  // Stores the word of that spelling at index Stored(), adding a slot when there is none.
  void AppendSpelling(uint32_t spelling) {
    ids_.push_back(spelling);
    if (ids_.size() > slots_)
      slots_ = ids_.size();
  }
  size_t Spellings() const { return spellingEnds_.size(); }
  std::string_view Spelling(uint32_t spelling) const {
    const uint32_t begin = spelling == 0 ? 0 : spellingEnds_[spelling - 1];
    return std::string_view(chars_).substr(begin, spellingEnds_[spelling] - begin);
  }
  // The spelling of stored word i (i < Stored()).
  uint32_t SpellingOf(size_t i) const { return ids_[i]; }

 private:
  std::string chars_;                   // the spellings end to end
  std::vector<uint32_t> spellingEnds_;  // offset one past each spelling in chars_
  std::vector<uint32_t> ids_;           // the spelling of each stored word
  size_t slots_ = 0;
};

}  // namespace zentrel::state
