#pragma once
// The analysis suite's one fixture: a started program (default settings, the shipped standard
// dictionary) with helpers to set a keyword list, a page's words, or run a whole analysis.

#include <gtest/gtest.h>

#include "analysis/analysis_driver.h"
#include "analysis/keyword_list.h"
#include "base/run_time_error.h"
#include "commands/scan_keywords.h"
#include "commands/startup.h"
#include "document/document_cache.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "state/app_state.h"
#include "test_files.h"
#include "words/word_count.h"

namespace zentrel::testing {

struct Analysis {
  ShellProgramFolder folder;
  FakePlatform platform{folder.Path()};
  AppState s{platform};

  Analysis() { commands::Form_Load(s); }

  void Keywords(const std::vector<std::string>& list, const std::vector<int16_t>& matches = {}) {
    analysis::Reset_Keyword_List(s);
    for (size_t k = 0; k < list.size(); ++k) {
      analysis::Add_Word_To_KeyWord_buffer(s, list[k]);
      if (k < matches.size())
        s.KeywordBodyMatches[k] = matches[k];
    }
  }
  std::vector<std::string> List() const {
    return {s.KeywordList.begin(), s.KeywordList.begin() + s.KeywordCount};
  }
  // The page's counted words, with the empty slot after the last one.
  void Words(const std::vector<std::string>& list) {
    words::Init_Document_Word_List(s);
    s.DocumentWords = list;
    s.DocumentWords.emplace_back();
    s.DocumentWordCount = static_cast<int32_t>(list.size());
  }
  void File(const std::string& name) {
    s.DocumentLength = document::DO_LOAD_File_TO_CACHE(s, TestDataPath(name));
    s.CurrentFileName = name;
    commands::Meta_Tag_KeyWord_Scan(s, s.CurrentFileName);
  }
  // A page typed into the source editor, then "Rescan".
  void Page(const std::string& html) {
    s.Form.Html_Document_Editor = html;
    commands::Command2_Click(s);
  }
  bool Has(const std::string& line) const {
    return s.Form.ReportTextBox.find(line + "\r\n") != std::string::npos;
  }
};

}  // namespace zentrel::testing
