// Arbitrary bytes read as a preferences file, a META tag list file and a filter dictionary.

#include <fstream>

#include "app/preferences.h"
#include "base/run_time_error.h"
#include "fuzz_session.h"
#include "metatags/meta_tag_panel.h"
#include "metatags/tag_list_file.h"
#include "words/filter_dictionary.h"

using namespace zentrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::string path = fuzz::Scratch_Path("input.txt");
  // A plain write: the input file needs no crash safety, and a sync per input costs runs.
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  AppState& s = fuzz::Started_State();
  try {
    app::LoadPreferencesFile(s, path);
  } catch (const RunTimeError&) {
  }
  try {
    metatags::MetaTagFunctions_MArk_ALL_Checkboxes_Click(s);
    metatags::Apply_MetaTag_List_Text(s, bytes);
  } catch (const RunTimeError&) {
  }
  try {
    words::Load_Word_Filter_Dictionary(s, path, "");
    words::Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
    for (int i = 1; i < s.FilterCount; ++i) {
      fuzz::Require(
          s.FilterWords[static_cast<size_t>(i - 1)] < s.FilterWords[static_cast<size_t>(i)],
          "the filter list is sorted without repeats");
    }
  } catch (const RunTimeError&) {
  }
  return 0;
}
