#pragma once
// A state as start-up leaves it for the decoder: the META tag table, the special tag table,
// the default word delimiters and decoder settings, and a page put straight into the cache.

#include <string>

#include "decode/meta_tag_table.h"
#include "document/tag_scanner.h"
#include "fake_platform.h"
#include "state/app_state.h"

namespace zentrel::testing {

struct DecodeState {
  FakePlatform platform;
  AppState s{platform};

  DecodeState() {
    decode::Init_MetaTag_Table(s);
    document::Build_Tag_list(s);
    s.WordDelimiterChars = "\"#=<>^()[]{}/.,;:+-_*&!?@%";
    s.DecodeIncludeBodyText = 1;
    s.DecodeIncludeAltText = 1;
    s.DecodeIncludeTitleWithBody = 1;
    s.DecodeIncludeMetaDescriptionWithBody = 0;
  }

  void Put(const std::string& page) {
    s.DocumentBytes.assign(page.begin(), page.end());
    s.DocumentBytes.push_back(0);
    s.DocumentText = page;
    s.DocumentLength = static_cast<int32_t>(page.size());
  }

  const state::MetaTagRow& Row(const std::string& name) const {
    return s.MetaTags.at(static_cast<size_t>(decode::Find_MetaTag_Index(s, name)));
  }
};

}  // namespace zentrel::testing
