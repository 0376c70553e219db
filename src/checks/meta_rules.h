#pragma once
// The rules over a page's META tags beyond title and description: repeated names, robots
// directives, Open Graph and Twitter cards, and the tags search engines no longer read.

#include "base/codec.h"
#include "checks/page_checks.h"
#include "checks/page_facts.h"

namespace zentrel::checks {

void CheckMetaTags(const PageFacts& facts, codec::Codec codec, FindingList& findings);

}  // namespace zentrel::checks
