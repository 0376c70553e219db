#include "analysis/pattern_automaton.h"

#include <algorithm>
#include <numeric>

namespace zentrel::analysis {

void Pattern_Automaton::Number_Breadth_First(const std::vector<int32_t>& parent,
                                             const std::vector<uint32_t>& symbol) {
  // Sorted by depth, the nodes of one depth keeping the order they were made in: the children
  // of one node then follow one another in increasing symbol order, and the children of the
  // nodes before it come before them.
  const size_t nodes = parent.size();
  std::vector<int32_t> number(nodes, 0);  // first the depth, then the new number
  int32_t deepest = 0;
  for (size_t n = 1; n < nodes; ++n) {
    number[n] = number[static_cast<size_t>(parent[n])] + 1;
    deepest = std::max(deepest, number[n]);
  }
  std::vector<int32_t> next(static_cast<size_t>(deepest) + 2, 0);
  for (const int32_t depth : number)
    ++next[static_cast<size_t>(depth) + 1];
  std::partial_sum(next.begin(), next.end(), next.begin());
  for (int32_t& n : number)
    n = next[static_cast<size_t>(n)]++;

  symbols_.assign(nodes, 0);
  firstChild_.assign(nodes + 1, 0);
  firstChild_[0] = 1;  // the root's children come right after it
  for (size_t n = 1; n < nodes; ++n) {
    symbols_[static_cast<size_t>(number[n])] = symbol[n];
    ++firstChild_[static_cast<size_t>(number[static_cast<size_t>(parent[n])]) + 1];
  }
  std::partial_sum(firstChild_.begin(), firstChild_.end(), firstChild_.begin());
  for (int32_t& end : ends_)
    end = number[static_cast<size_t>(end)];
}

void Pattern_Automaton::Link_Suffixes(uint32_t alphabet) {
  const size_t nodes = symbols_.size();
  alphabet_ = alphabet;
  denseNodes_ = std::clamp<size_t>(kDenseBudget / std::max<uint32_t>(alphabet, 1), 1, nodes);
  dense_.assign(denseNodes_ * alphabet, kRoot);
  suffix_.assign(nodes, kRoot);
  // In breadth-first order every suffix link and dense row is set before those of any longer
  // node, which is all that following the links needs.
  for (size_t node = 0; node < nodes; ++node) {
    if (node < denseNodes_ && node != kRoot) {
      std::copy_n(dense_.begin() + suffix_[node] * alphabet, alphabet,
                  dense_.begin() + static_cast<ptrdiff_t>(node * alphabet));
    }
    for (int32_t c = firstChild_[node]; c < firstChild_[node + 1]; ++c) {
      const uint32_t symbol = symbols_[static_cast<size_t>(c)];
      if (node != kRoot)
        suffix_[static_cast<size_t>(c)] = Next(suffix_[node], symbol);
      if (node < denseNodes_)
        dense_[node * alphabet + symbol] = c;
    }
  }
  counted_.assign(nodes, 0);
  for (const int32_t end : ends_)
    counted_[static_cast<size_t>(end)] = 1;
  for (size_t node = 1; node < nodes; ++node)
    counted_[node] |= counted_[static_cast<size_t>(suffix_[node])];
  visits_.assign(nodes, 0);
}

int32_t Pattern_Automaton::Child(int32_t node, uint32_t symbol) const {
  const auto first = symbols_.begin() + firstChild_[static_cast<size_t>(node)];
  const auto last = symbols_.begin() + firstChild_[static_cast<size_t>(node) + 1];
  const auto it = std::lower_bound(first, last, symbol);
  return it != last && *it == symbol ? static_cast<int32_t>(it - symbols_.begin()) : -1;
}

const std::vector<int64_t>& Pattern_Automaton::Occurrences() {
  // A position ending in a node also ends in every pattern prefix along its suffix links:
  // add each node's count to its suffix once, longest nodes first.
  for (size_t node = visits_.size(); node-- > 1;)
    visits_[static_cast<size_t>(suffix_[node])] += visits_[node];
  return visits_;
}

}  // namespace zentrel::analysis
