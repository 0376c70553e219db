#pragma once
// A page loaded from tests/data into a fresh state whose program folder is a scratch folder.

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "commands/page_loading.h"
#include "decode/meta_tag_table.h"
#include "document/document_cache.h"
#include "document/tag_scanner.h"
#include "fake_platform.h"
#include "state/app_state.h"
#include "test_files.h"

namespace zentrel::testing {

struct EncoderTestPage {
  explicit EncoderTestPage(file_io::FileSystem& fs = file_io::RealFileSystem())
      : platform(folder.path().string()), s(platform, fs) {
    s.ProgramFolder = folder.path().string();
    decode::Init_MetaTag_Table(s);
    document::Build_Tag_list(s);
  }

  // Copies the data file into the folder and loads it as the current document.
  std::string Load(const std::string& dataName) {
    std::string path = folder.File(dataName);
    WriteFile(path, ReadTestData(dataName));
    s.DocumentLength = commands::Load_File_To_Cache(s, path, 1);
    return path;
  }

  // The cache's page bytes; the byte past them must be the 0 that ends every cache.
  std::string Cache() const {
    auto end = s.DocumentBytes.begin() + s.DocumentLength;
    EXPECT_EQ(*end, 0) << "the cache lost its closing 0";
    return std::string(s.DocumentBytes.begin(), end);
  }

  std::string TempDataFile() const { return folder.File("Zentrel_TempData.tmp"); }

  std::set<std::string> FolderEntries() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
      names.insert(entry.path().filename().string());
    return names;
  }

  TempFolder folder;
  FakePlatform platform;
  AppState s;
};

}  // namespace zentrel::testing
