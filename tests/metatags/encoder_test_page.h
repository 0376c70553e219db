#pragma once
// A page of tests/data loaded, without the recent-file menu, into a started program.

#include <filesystem>
#include <set>
#include <string>

#include "commands/page_loading.h"
#include "started_program.h"

namespace zentrel::testing {

struct EncoderTestPage : Started {
  using Started::Started;

  // Copies the data file into the program folder and loads it as the current document.
  std::string LoadData(const std::string& dataName) {
    const std::string path = Write(dataName, ReadTestData(dataName));
    s.DocumentLength = commands::Load_File_To_Cache(s, path, 1);
    return path;
  }
  std::string TempDataFile() const { return folder.File("Zentrel_TempData.tmp"); }
  // The files of the program folder beside its dictionary folder.
  std::set<std::string> FolderEntries() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
      names.insert(entry.path().filename().string());
    names.erase("dictionary");
    return names;
  }
};

}  // namespace zentrel::testing
