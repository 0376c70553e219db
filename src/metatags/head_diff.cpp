#include "metatags/head_diff.h"

#include <algorithm>
#include <cstdint>

#include "base/text.h"
#include "state/app_state.h"

namespace zentrel::metatags {

namespace {

using Lines = std::vector<std::string_view>;

// Past this many edits the search for the shortest edit script stops: its trace grows with
// the square of the edits.
constexpr int64_t kMaxEdits = 1000;

// Each line with its line end, so that a changed line end counts as a change.
Lines Split_Lines(std::string_view page) {
  Lines lines;
  size_t from = 0;
  while (from < page.size()) {
    size_t end = page.find('\n', from);
    end = end == std::string_view::npos ? page.size() : end + 1;
    lines.push_back(page.substr(from, end - from));
    from = end;
  }
  return lines;
}

enum class Op : uint8_t { Keep, Remove, Add };

// The shortest edit script of a into b (Myers' greedy search, one trace row per edit count),
// or `found` false when that takes more than kMaxEdits edits.
std::vector<Op> Edit_Script(const Lines& a, const Lines& b, bool& found) {
  const auto n = static_cast<int64_t>(a.size());
  const auto m = static_cast<int64_t>(b.size());
  const int64_t limit = std::min(n + m, kMaxEdits);
  std::vector<std::vector<int64_t>> trace;  // row d: the furthest x on diagonals -d..d
  std::vector<int64_t> v(static_cast<size_t>(2 * limit + 3), 0);
  const int64_t mid = limit + 1;
  found = false;
  int64_t d = 0;
  for (; d <= limit && !found; ++d) {
    for (int64_t k = -d; k <= d; k += 2) {
      const bool down = k == -d || (k != d && v[mid + k - 1] < v[mid + k + 1]);
      int64_t x = down ? v[mid + k + 1] : v[mid + k - 1] + 1;
      int64_t y = x - k;
      while (x < n && y < m && a[x] == b[y]) {
        ++x;
        ++y;
      }
      v[mid + k] = x;
      if (x >= n && y >= m)
        found = true;
    }
    trace.emplace_back(v.begin() + mid - d, v.begin() + mid + d + 1);
  }
  if (!found)
    return {};
  std::vector<Op> ops;
  int64_t x = n;
  int64_t y = m;
  for (d = static_cast<int64_t>(trace.size()) - 1; d > 0; --d) {
    const std::vector<int64_t>& prev = trace[d - 1];  // diagonals -(d-1)..d-1
    const int64_t k = x - y;
    const bool down = k == -d || (k != d && prev[k - 1 + d - 1] < prev[k + 1 + d - 1]);
    const int64_t prevK = down ? k + 1 : k - 1;
    const int64_t prevX = prev[prevK + d - 1];
    const int64_t startX = down ? prevX : prevX + 1;
    for (; x > startX; --x, --y)
      ops.push_back(Op::Keep);
    ops.push_back(down ? Op::Add : Op::Remove);
    x = prevX;
    y = prevX - prevK;
  }
  for (; x > 0; --x)
    ops.push_back(Op::Keep);
  std::reverse(ops.begin(), ops.end());
  return ops;
}

std::string_view Without_Line_End(std::string_view line) {
  if (!line.empty() && line.back() == '\n')
    line.remove_suffix(1);
  if (!line.empty() && line.back() == '\r')
    line.remove_suffix(1);
  return line;
}

void Append_Line(std::string& out, char sign, std::string_view line) {
  line = Without_Line_End(line);
  out += sign;
  if (line.size() <= kShownLineBytes) {
    out += line;
  } else {
    size_t cut = kShownLineBytes;
    while (cut > 0 && (static_cast<unsigned char>(line[cut]) & 0xC0) == 0x80)
      --cut;  // never inside a UTF-8 sequence
    out += line.substr(0, cut);
    out += "...";
  }
  out += '\n';
}

// Unified diff's convention: an empty range is named by the line before it.
std::string Range(size_t start, size_t count) {
  return std::to_string(count == 0 ? start : start + 1) + "," + std::to_string(count);
}

// The value of `attribute=` in a tag's lower-cased text, quoted or not; "" when absent.
std::string Attribute(std::string_view tag, std::string_view attribute) {
  size_t at = 0;
  while ((at = tag.find(attribute, at)) != std::string_view::npos) {
    const bool wordStart = at == 0 || tag[at - 1] == ' ' || tag[at - 1] == '\t' ||
                           tag[at - 1] == '\n' || tag[at - 1] == '\r' || tag[at - 1] == '"';
    at += attribute.size();
    if (!wordStart)
      continue;
    if (at < tag.size() && (tag[at] == '"' || tag[at] == '\'')) {
      const size_t end = tag.find(tag[at], at + 1);
      return std::string(tag.substr(at + 1, end == std::string_view::npos ? end : end - at - 1));
    }
    const size_t end = tag.find_first_of(" \t\r\n>", at);
    return std::string(tag.substr(at, end == std::string_view::npos ? end : end - at));
  }
  return {};
}

// The TITLE and META tags that start in `text`, named as HeadDiff::Vanishing names them.
std::vector<std::string> Tags_In(std::string_view text) {
  const std::string lower = text::LCase(text);
  std::vector<std::string> tags;
  for (size_t at = lower.find('<'); at != std::string::npos; at = lower.find('<', at + 1)) {
    const std::string_view rest = std::string_view(lower).substr(at + 1);
    if (rest.starts_with("title") && (rest.size() == 5 || rest[5] == '>' || rest[5] == ' ')) {
      tags.emplace_back("TITLE");
    } else if (rest.starts_with("meta") && rest.size() > 4 &&
               (rest[4] == ' ' || rest[4] == '\t' || rest[4] == '\r' || rest[4] == '\n')) {
      const std::string_view tag = rest.substr(0, rest.find('>'));
      std::string name = Attribute(tag, "name=");
      if (name.empty())
        name = Attribute(tag, "http-equiv=");
      if (name.empty())
        name = Attribute(tag, "property=");
      tags.push_back(name.empty() ? "META" : "META " + name);
    }
  }
  return tags;
}

std::string Joined(const Lines& lines, size_t from, size_t count) {
  std::string text;
  for (size_t i = from; i < from + count; ++i)
    text += lines[i];
  return text;
}

class DiffWriter {
 public:
  DiffWriter(const Lines& a, const Lines& b) : a_(a), b_(b) {}

  // One hunk: `removed` lines of a from `aFrom`, `added` lines of b from `bFrom`.
  void Hunk(size_t aFrom, size_t removed, size_t bFrom, size_t added) {
    if (removed == 0 && added == 0)
      return;
    diff_.Text += "@@ -" + Range(aFrom, removed) + " +" + Range(bFrom, added) + " @@\n";
    for (size_t i = aFrom; i < aFrom + removed; ++i)
      Append_Line(diff_.Text, '-', a_[i]);
    for (size_t i = bFrom; i < bFrom + added; ++i)
      Append_Line(diff_.Text, '+', b_[i]);
    for (std::string& tag : Tags_In(Joined(a_, aFrom, removed)))
      removedTags_.push_back(std::move(tag));
    for (std::string& tag : Tags_In(Joined(b_, bFrom, added)))
      addedTags_.push_back(std::move(tag));
  }

  HeadDiff Finish() {
    for (const std::string& tag : removedTags_) {
      const auto known = [&tag](const std::vector<std::string>& list) {
        return std::find(list.begin(), list.end(), tag) != list.end();
      };
      if (!known(addedTags_) && !known(diff_.Vanishing))
        diff_.Vanishing.push_back(tag);
    }
    for (const std::string& tag : diff_.Vanishing)
      diff_.Text += "! " + tag + " disappears\n";
    return std::move(diff_);
  }

 private:
  const Lines& a_;
  const Lines& b_;
  HeadDiff diff_;
  std::vector<std::string> removedTags_, addedTags_;
};

// The hunks of an edit script over the lines of a and b from `skipped` on.
void Write_Hunks(DiffWriter& writer, const std::vector<Op>& ops, size_t skipped) {
  size_t i = skipped;
  size_t j = skipped;
  size_t at = 0;
  while (at < ops.size()) {
    if (ops[at] == Op::Keep) {
      ++i;
      ++j;
      ++at;
      continue;
    }
    size_t removed = 0;
    size_t added = 0;
    for (; at < ops.size() && ops[at] != Op::Keep; ++at)
      ++(ops[at] == Op::Remove ? removed : added);
    writer.Hunk(i, removed, j, added);
    i += removed;
    j += added;
  }
}

}  // namespace

HeadDiff Diff_Pages(std::string_view before, std::string_view after) {
  const Lines a = Split_Lines(before);
  const Lines b = Split_Lines(after);
  size_t prefix = 0;
  while (prefix < a.size() && prefix < b.size() && a[prefix] == b[prefix])
    ++prefix;
  size_t suffix = 0;
  while (suffix < a.size() - prefix && suffix < b.size() - prefix &&
         a[a.size() - 1 - suffix] == b[b.size() - 1 - suffix])
    ++suffix;
  const Lines midA(a.begin() + static_cast<std::ptrdiff_t>(prefix),
                   a.end() - static_cast<std::ptrdiff_t>(suffix));
  const Lines midB(b.begin() + static_cast<std::ptrdiff_t>(prefix),
                   b.end() - static_cast<std::ptrdiff_t>(suffix));
  DiffWriter writer(a, b);
  bool found = false;
  const std::vector<Op> ops = Edit_Script(midA, midB, found);
  if (found)
    Write_Hunks(writer, ops, prefix);
  else
    writer.Hunk(prefix, midA.size(), prefix, midB.size());
  return writer.Finish();
}

HeadDiff Head_Diff(const AppState& s) {
  const std::vector<uint8_t>& rebuilt = s.RebuildBytes;
  return Diff_Pages(s.DocumentText, std::string_view(reinterpret_cast<const char*>(rebuilt.data()),
                                                     rebuilt.size()));
}

}  // namespace zentrel::metatags
