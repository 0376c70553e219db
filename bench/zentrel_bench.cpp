// The analysis as a whole and stage by stage, a rebuild-and-save, the checks of lint, and the
// baseline: one pass over the same bytes counting words with a 256-entry table.

#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <map>

#include "analysis/keyword_list.h"
#include "analysis/keyword_matching.h"
#include "bench_session.h"
#include "checks/page_checks.h"
#include "commands/edit_meta_tags.h"
#include "commands/page_saving.h"
#include "commands/scan_keywords.h"
#include "decode/decoder.h"
#include "metatags/page_encoder.h"
#include "page_generator.h"
#include "words/filter_dictionary.h"
#include "words/word_count.h"

namespace zentrel::bench {
namespace {

const std::string& Page(int64_t bytes) {
  static std::map<int64_t, std::string> pages;
  auto it = pages.find(bytes);
  if (it == pages.end())
    it = pages.emplace(bytes, Generate_Page(static_cast<size_t>(bytes))).first;
  return it->second;
}

void Set_Bytes(benchmark::State& st, int64_t bytes) {
  st.SetBytesProcessed(st.iterations() * bytes);
}

int64_t Baseline_Word_Count(const std::string& bytes) {
  static const std::array<bool, 256> letter = [] {
    std::array<bool, 256> t{};
    for (int c = 0; c < 256; ++c)
      t[static_cast<size_t>(c)] = c > 32 && c != '<' && c != '>';
    return t;
  }();
  int64_t words = 0;
  bool in = false;
  for (unsigned char c : bytes) {
    bool l = letter[c];
    words += l && !in;
    in = l;
  }
  return words;
}

void BM_Baseline(benchmark::State& st) {
  const std::string& page = Page(st.range(0));
  for (auto _ : st)
    benchmark::DoNotOptimize(Baseline_Word_Count(page));
  Set_Bytes(st, st.range(0));
}

void BM_WholeAnalysis(benchmark::State& st) {
  Session session(Page(st.range(0)));
  for (auto _ : st)
    commands::Meta_Tag_KeyWord_Scan(*session.state, "bench.html");
  Set_Bytes(st, st.range(0));
}

void BM_CheckPage(benchmark::State& st) {
  const std::string& page = Page(st.range(0));
  const checks::Profile profile = checks::DefaultProfile();
  for (auto _ : st)
    benchmark::DoNotOptimize(checks::CheckPage(page, profile));
  Set_Bytes(st, st.range(0));
}

void BM_Decode(benchmark::State& st) {
  Session session(Page(st.range(0)));
  for (auto _ : st)
    decode::HTML_Decode_Document(*session.state);
  Set_Bytes(st, st.range(0));
}

void BM_WordCount(benchmark::State& st) {
  Session session(Page(st.range(0)));
  AppState& s = *session.state;
  decode::HTML_Decode_Document(s);
  words::Build_Filter_Words_Text(s);
  for (auto _ : st) {
    words::Init_Document_Word_List(s);
    words::Word_Count_Stripped_Text(s);
  }
  Set_Bytes(st, st.range(0));
}

void Keyword_Tallies(benchmark::State& st, int16_t scanType) {
  Session session(Page(st.range(0)));
  AppState& s = *session.state;
  s.KeywordsMatchScanType = scanType;
  commands::Meta_Tag_KeyWord_Scan(s, "bench.html");
  for (auto _ : st) {
    std::fill(s.KeywordBodyMatches.begin(), s.KeywordBodyMatches.end(), int16_t{0});
    analysis::Tally_Current_TITLE_Keyword_Matches(s);
    analysis::Tally_Current_Documents_Keyword_Matches(s);
  }
  Set_Bytes(st, st.range(0));
}

void BM_KeywordTallyScan0(benchmark::State& st) {
  Keyword_Tallies(st, 0);
}
void BM_KeywordTallyScan1(benchmark::State& st) {
  Keyword_Tallies(st, 1);
}

// The report on its own: the whole analysis minus the decode and the word count.
void BM_Report(benchmark::State& st) {
  Session session(Page(st.range(0)));
  AppState& s = *session.state;
  s.ReportExportWordCount = 1;  // the report with every section
  for (auto _ : st)
    commands::Meta_Tag_KeyWord_Scan(s, "bench.html");
  Set_Bytes(st, st.range(0));
}

void BM_RebuildAndSave(benchmark::State& st) {
  const std::string& page = Page(st.range(0));
  Session session(page);
  AppState& s = *session.state;
  commands::Meta_Tag_KeyWord_Scan(s, "bench.html");
  for (int16_t i = 0; i < 13; ++i)
    commands::Set_MetaTag_TextBox(s, i, "value " + std::to_string(i));
  auto out = std::filesystem::temp_directory_path() / "zentrel-bench-rebuild.html";
  for (auto _ : st) {
    st.PauseTiming();
    s.Form.Html_Document_Editor = page;
    st.ResumeTiming();
    commands::HTML_ENCODE_Document(s, out.string(), 0);
  }
  std::filesystem::remove(out);
  Set_Bytes(st, st.range(0));
}

constexpr int64_t k100K = 100 * 1024, k1M = 1024 * 1024, k4M = 4 * 1024 * 1024;

#define ZENTREL_SIZES ->Arg(k100K)->Arg(k1M)->Arg(k4M)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_Baseline) ZENTREL_SIZES;
BENCHMARK(BM_WholeAnalysis) ZENTREL_SIZES;
BENCHMARK(BM_CheckPage) ZENTREL_SIZES;
BENCHMARK(BM_CheckPage)
    ->Arg(k1M)
    ->Threads(1)
    ->Threads(2)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Decode) ZENTREL_SIZES;
BENCHMARK(BM_WordCount) ZENTREL_SIZES;
BENCHMARK(BM_KeywordTallyScan0) ZENTREL_SIZES;
BENCHMARK(BM_KeywordTallyScan1) ZENTREL_SIZES;
BENCHMARK(BM_Report) ZENTREL_SIZES;
BENCHMARK(BM_RebuildAndSave) ZENTREL_SIZES;

}  // namespace
}  // namespace zentrel::bench

BENCHMARK_MAIN();
