#include "bench_session.h"

#include "commands/startup.h"
#include "document/document_cache.h"

namespace zentrel::bench {

Session::Session(const std::string& page) : state(std::make_unique<AppState>(platform)) {
  commands::Form_Load(*state);
  state->Form.Html_Document_Editor = page;
  state->DocumentLength = document::Reload_File_From_Memory_TO_Cache(*state);
}

}  // namespace zentrel::bench
