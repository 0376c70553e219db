#include "analysis/pattern_automaton.h"

#include <algorithm>

namespace zentrel::analysis {

namespace {

constexpr uint64_t kNoEdge = ~uint64_t{0};

uint64_t Edge_Key(int32_t node, uint32_t symbol) {
  return (static_cast<uint64_t>(static_cast<uint32_t>(node)) << 32) | symbol;
}

size_t Slot_Of(uint64_t key, size_t mask) {
  return static_cast<size_t>((key * 0x9E3779B97F4A7C15ULL) >> 32) & mask;
}

}  // namespace

Pattern_Automaton::Pattern_Automaton()
    : suffix_{kRoot}, firstChild_{-1}, nextSibling_{-1}, symbol_{0} {}

int32_t Pattern_Automaton::Child(int32_t node, uint32_t symbol) const {
  if (edgeKeys_.empty())
    return -1;
  const uint64_t key = Edge_Key(node, symbol);
  const size_t mask = edgeKeys_.size() - 1;
  for (size_t i = Slot_Of(key, mask);; i = (i + 1) & mask) {
    if (edgeKeys_[i] == key)
      return edgeChildren_[i];
    if (edgeKeys_[i] == kNoEdge)
      return -1;
  }
}

void Pattern_Automaton::Insert_Edge(uint64_t key, int32_t child) {
  const size_t mask = edgeKeys_.size() - 1;
  size_t i = Slot_Of(key, mask);
  while (edgeKeys_[i] != kNoEdge)
    i = (i + 1) & mask;
  edgeKeys_[i] = key;
  edgeChildren_[i] = child;
}

int32_t Pattern_Automaton::Extend(int32_t node, uint32_t symbol) {
  const int32_t known = Child(node, symbol);
  if (known >= 0)
    return known;
  const auto child = static_cast<int32_t>(suffix_.size());
  suffix_.push_back(kRoot);
  symbol_.push_back(symbol);
  firstChild_.push_back(-1);
  nextSibling_.push_back(firstChild_[static_cast<size_t>(node)]);
  firstChild_[static_cast<size_t>(node)] = child;

  if ((edgeCount_ + 1) * 2 > edgeKeys_.size()) {
    // Kept at most half full, so a probe ends soon at an empty slot.
    std::vector<uint64_t> keys(std::max<size_t>(64, edgeKeys_.size() * 2), kNoEdge);
    std::vector<int32_t> children(keys.size(), -1);
    keys.swap(edgeKeys_);
    children.swap(edgeChildren_);
    for (size_t i = 0; i < keys.size(); ++i) {
      if (keys[i] != kNoEdge)
        Insert_Edge(keys[i], children[i]);
    }
  }
  Insert_Edge(Edge_Key(node, symbol), child);
  ++edgeCount_;
  return child;
}

void Pattern_Automaton::Build(uint32_t alphabet) {
  rootNext_.assign(alphabet, kRoot);
  for (int32_t c = firstChild_[kRoot]; c >= 0; c = nextSibling_[static_cast<size_t>(c)])
    rootNext_[symbol_[static_cast<size_t>(c)]] = c;
  // Breadth first, so every suffix link points to a node whose own link is already set.
  order_.assign(1, kRoot);
  order_.reserve(suffix_.size());
  for (size_t k = 0; k < order_.size(); ++k) {
    const int32_t node = order_[k];
    for (int32_t c = firstChild_[static_cast<size_t>(node)]; c >= 0;
         c = nextSibling_[static_cast<size_t>(c)]) {
      if (node != kRoot) {
        suffix_[static_cast<size_t>(c)] =
            Next(suffix_[static_cast<size_t>(node)], symbol_[static_cast<size_t>(c)]);
      }
      order_.push_back(c);
    }
  }
  visits_.assign(suffix_.size(), 0);
}

int32_t Pattern_Automaton::Next(int32_t state, uint32_t symbol) const {
  // Each step down the suffix links shortens the match, and each symbol lengthens it by at
  // most one, so a whole text costs linear time.
  while (state != kRoot) {
    const int32_t child = Child(state, symbol);
    if (child >= 0)
      return child;
    state = suffix_[static_cast<size_t>(state)];
  }
  return rootNext_[symbol];
}

std::vector<int64_t> Pattern_Automaton::Occurrences() const {
  // A position ending in a node also ends in every pattern along its suffix links: add each
  // node's count to its suffix once, longest nodes first.
  std::vector<int64_t> total = visits_;
  for (size_t k = order_.size(); k-- > 1;) {
    const auto node = static_cast<size_t>(order_[k]);
    total[static_cast<size_t>(suffix_[node])] += total[node];
  }
  return total;
}

}  // namespace zentrel::analysis
