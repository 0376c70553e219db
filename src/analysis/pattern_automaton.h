#pragma once
// A multi-pattern (Aho-Corasick) automaton over small integer symbols: one pass over a text
// finds every occurrence of every pattern, overlapping ones and those inside longer patterns
// included, in time linear in the text plus the total length of the patterns. The keyword
// tallies run it over the bytes of a text and over the ids of a page's words.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zentrel::analysis {

class Pattern_Automaton {
 public:
  static constexpr int32_t kRoot = 0;  // the empty pattern

  Pattern_Automaton();

  // The node one symbol below `node` in the pattern trie, made when new. A pattern is added
  // by extending the root symbol by symbol; equal patterns end at the same node.
  int32_t Extend(int32_t node, uint32_t symbol);
  // Links each node to its longest proper suffix in the trie; call once after the last
  // Extend, with every symbol below `alphabet`.
  void Build(uint32_t alphabet);
  // The state after reading `symbol` in `state`: the longest pattern prefix the text ends in.
  int32_t Next(int32_t state, uint32_t symbol) const;
  // Records that the text has one more position ending in `state`.
  void Count(int32_t state) { ++visits_[static_cast<size_t>(state)]; }
  // Per node, how many counted positions end with that node's pattern.
  std::vector<int64_t> Occurrences() const;

 private:
  int32_t Child(int32_t node, uint32_t symbol) const;
  void Insert_Edge(uint64_t key, int32_t child);

  std::vector<int32_t> suffix_;      // longest proper suffix that is also a node
  std::vector<int32_t> firstChild_;  // children as linked lists, for the breadth-first walk
  std::vector<int32_t> nextSibling_;
  std::vector<uint32_t> symbol_;   // symbol on the edge into the node
  std::vector<int32_t> order_;     // nodes in breadth-first order, shortest first
  std::vector<int32_t> rootNext_;  // the root's transitions, dense: most text stays near it
  std::vector<int64_t> visits_;
  // Edges as an open-addressing table keyed by node and symbol.
  std::vector<uint64_t> edgeKeys_;
  std::vector<int32_t> edgeChildren_;
  size_t edgeCount_ = 0;
};

}  // namespace zentrel::analysis
