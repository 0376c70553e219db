#pragma once
// The one fixture of the core's tests: a started program (default settings, the shipped
// standard dictionary, a scratch program folder) over the scripted Platform, with helpers to
// work controls, write files, put a page into the cache and set up an analysis.

#include <gtest/gtest.h>

#include "analysis/keyword_list.h"
#include "base/file_io.h"
#include "commands/control_table.h"
#include "commands/scan_keywords.h"
#include "commands/startup.h"
#include "document/document_cache.h"
#include "fake_platform.h"
#include "shell_program_folder.h"
#include "state/app_state.h"
#include "test_files.h"
#include "words/word_count.h"

namespace zentrel::testing {

struct Started {
  ShellProgramFolder folder;
  FakePlatform platform{folder.Path()};
  AppState s;

  explicit Started(file_io::FileSystem& fs = file_io::RealFileSystem()) : s(platform, fs) {
    commands::Form_Load(s);
  }

  void Click(const std::string& name) { ASSERT_TRUE(commands::Dispatch(s, name)) << name; }
  // A file of the program folder with the given bytes; its path.
  std::string Write(const std::string& name, const std::string& bytes) {
    WriteFile(folder.File(name), bytes);
    return folder.File(name);
  }
  // "Load Page", answering the dialog with path.
  void Load(const std::string& path) {
    platform.AnswerOpen(path);
    Click("Command1");
  }
  // A page put straight into the cache and the source editor, as loaded.
  void Put(const std::string& page) {
    s.DocumentBytes.assign(page.begin(), page.end());
    s.DocumentBytes.push_back(0);
    s.DocumentText = s.Form.Html_Document_Editor = page;
    s.DocumentLength = static_cast<int32_t>(page.size());
  }
  // The cache's page bytes; the byte past them must be the 0 that ends every cache.
  std::string Cache() const {
    auto end = s.DocumentBytes.begin() + s.DocumentLength;
    EXPECT_EQ(*end, 0) << "the cache lost its closing 0";
    return std::string(s.DocumentBytes.begin(), end);
  }

  // The keyword list, with body match counts for the first ones.
  void Keywords(const std::vector<std::string>& list, const std::vector<int16_t>& matches = {}) {
    analysis::Reset_Keyword_List(s);
    for (size_t k = 0; k < list.size(); ++k) {
      analysis::Add_Word_To_KeyWord_buffer(s, list[k]);
      if (k < matches.size())
        s.KeywordBodyMatches[k] = matches[k];
    }
  }
  std::vector<std::string> Keys() const {
    return {s.KeywordList.begin(), s.KeywordList.begin() + s.KeywordCount};
  }
  // The page's counted words, with the empty slot after the last one.
  void PageWords(const std::vector<std::string>& list) {
    words::Init_Document_Word_List(s);
    s.DocumentWords = list;
    s.DocumentWords.emplace_back();
    s.DocumentWordCount = static_cast<int32_t>(list.size());
  }
  // A file of tests/data analysed as the current page.
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
