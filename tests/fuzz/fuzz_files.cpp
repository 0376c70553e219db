// Arbitrary bytes read as a preferences file, a META tag list file and a filter dictionary.

#include <fstream>

#include "base/run_time_error.h"
#include "commands/edit_meta_tags.h"
#include "commands/preferences.h"
#include "commands/word_filters.h"
#include "fuzz_session.h"
#include "metatags/tag_list_file.h"

using namespace zentrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::string path = fuzz::Scratch_Path("input.txt");
  // A plain write: the input file needs no crash safety, and a sync per input costs runs.
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  AppState& s = fuzz::Started_State();
  try {
    commands::LoadPreferencesFile(s, path);
  } catch (const RunTimeError&) {
  }
  try {
    commands::MetaTagFunctions_MArk_ALL_Checkboxes_Click(s);
    commands::Apply_MetaTag_List_Text(s, bytes);
  } catch (const RunTimeError&) {
  }
  try {
    commands::Load_Word_Filter_Dictionary(s, path, "");
    commands::Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
    for (int i = 1; i < s.FilterCount; ++i) {
      fuzz::Require(
          s.FilterWords[static_cast<size_t>(i - 1)] < s.FilterWords[static_cast<size_t>(i)],
          "the filter list is sorted without repeats");
    }
  } catch (const RunTimeError&) {
  }
  return 0;
}
