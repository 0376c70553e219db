#pragma once
// A started program for the decoder, with a page put straight into the cache.

#include <string>

#include "decode/meta_tag_table.h"
#include "started_program.h"

namespace zentrel::testing {

struct DecodeState : Started {
  const state::MetaTagRow& Row(const std::string& name) const {
    return s.MetaTags.at(static_cast<size_t>(decode::Find_MetaTag_Index(s, name)));
  }
};

}  // namespace zentrel::testing
