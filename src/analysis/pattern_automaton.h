#pragma once
// A multi-pattern (Aho-Corasick) automaton over small integer symbols: one pass over a text
// finds every occurrence of every pattern, overlapping ones and those inside longer patterns
// included, in time linear in the text. The keyword tallies run it over the bytes of a text
// and over the ids of a page's words.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zentrel::analysis {

class Pattern_Automaton {
 public:
  static constexpr int32_t kRoot = 0;  // the state of the empty pattern

  // The automaton of these patterns: strings (their bytes are the symbols) or vectors of
  // symbols, every symbol below `alphabet`. Building sorts the patterns; the rest is linear
  // in their total length.
  template <class Patterns>
  Pattern_Automaton(const Patterns& patterns, uint32_t alphabet) {
    Build_Trie(patterns);
    Link_Suffixes(alphabet);
  }

  // The state in which pattern i has just been read; equal patterns share it.
  int32_t End(size_t i) const { return ends_[i]; }
  // The state after reading `symbol` in `state`: the longest pattern prefix the text ends in.
  // Each step down the suffix links shortens the match, and each symbol lengthens it by at
  // most one, so a whole text costs linear time.
  int32_t Next(int32_t state, uint32_t symbol) const {
    while (static_cast<size_t>(state) >= denseNodes_) {
      const int32_t child = Child(state, symbol);
      if (child >= 0)
        return child;
      state = suffix_[static_cast<size_t>(state)];
    }
    return dense_[static_cast<size_t>(state) * alphabet_ + symbol];
  }
  // Records that the text has one more position ending in `state`. A state that ends no
  // pattern, itself or through its suffixes, adds to no total and is not counted: most text
  // never reaches a state that does.
  void Count(int32_t state) {
    if (counted_[static_cast<size_t>(state)])
      ++visits_[static_cast<size_t>(state)];
  }
  // Per state, how many counted positions end with that state's pattern prefix; once, after
  // the last Count.
  const std::vector<int64_t>& Occurrences();

 private:
  static uint32_t Symbol(char c) { return static_cast<unsigned char>(c); }
  static uint32_t Symbol(uint32_t symbol) { return symbol; }

  // In sorted order (bytes compare unsigned) each pattern shares with the one before it
  // exactly the nodes of their common prefix, so the trie grows without lookups, and every
  // node's children are made in increasing symbol order.
  template <class Patterns>
  void Build_Trie(const Patterns& patterns) {
    std::vector<size_t> sorted(patterns.size());
    size_t most = 1;
    for (size_t i = 0; i < patterns.size(); ++i) {
      sorted[i] = i;
      most += patterns[i].size();
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](size_t a, size_t b) { return patterns[a] < patterns[b]; });
    std::vector<int32_t> parent{-1};
    std::vector<uint32_t> symbol{0};
    parent.reserve(most);  // pages never written are never touched
    symbol.reserve(most);
    std::vector<int32_t> path{kRoot};  // the nodes of the previous pattern, by depth
    ends_.assign(patterns.size(), kRoot);
    const auto* previous = patterns.data();
    for (const size_t i : sorted) {
      const auto& p = patterns[i];
      // The path holds the previous pattern, none before the first.
      const size_t shortest = std::min(path.size() - 1, p.size());
      size_t common = 0;
      while (common < shortest && (*previous)[common] == p[common])
        ++common;
      path.resize(common + 1);
      for (size_t d = common; d < p.size(); ++d) {
        parent.push_back(path.back());
        symbol.push_back(Symbol(p[d]));
        path.push_back(static_cast<int32_t>(parent.size() - 1));
      }
      ends_[i] = path.back();
      previous = &p;
    }
    Number_Breadth_First(parent, symbol);
  }
  void Number_Breadth_First(const std::vector<int32_t>& parent,
                            const std::vector<uint32_t>& symbol);
  void Link_Suffixes(uint32_t alphabet);
  int32_t Child(int32_t node, uint32_t symbol) const;

  std::vector<int32_t> ends_;
  // Nodes are numbered breadth first, shortest prefixes first; the children of a node are
  // the nodes firstChild_[node] .. firstChild_[node + 1] - 1, in increasing symbol order.
  std::vector<int32_t> firstChild_;
  std::vector<uint32_t> symbols_;  // the symbol on the edge into each node
  // Every transition of the shortest nodes, one row of the alphabet each, so that text
  // that stays near the root needs one lookup a symbol; the root at least.
  static constexpr size_t kDenseBudget = 1 << 16;
  size_t denseNodes_ = 0;
  uint32_t alphabet_ = 0;
  std::vector<int32_t> dense_;
  std::vector<int32_t> suffix_;   // the longest proper suffix that is also a node
  std::vector<uint8_t> counted_;  // 1: a pattern ends here or at one of the suffixes
  std::vector<int64_t> visits_;
};

}  // namespace zentrel::analysis
