#pragma once
// AppState: the one record of settings, paths, flags, tables and current-document values.
// Each module declares the fields it owns in its own header; this record gathers them, so it
// reads flat (state.DocumentBytes, state.KeywordCount) while each module owns its fields.

#include "analysis/keyword_list.h"
#include "analysis/page_report.h"
#include "app/form_model.h"
#include "app/platform.h"
#include "app/settings.h"
#include "base/file_io.h"
#include "decode/decoder.h"
#include "decode/meta_tag_table.h"
#include "decode/section_validation.h"
#include "document/document_cache.h"
#include "document/tag_scanner.h"
#include "metatags/meta_tag_panel.h"
#include "words/filter_dictionary.h"
#include "words/word_count.h"
#include "words/word_extraction.h"

namespace zentrel {

struct AppState : app::ShellFields,
                  document::DocumentCacheFields,
                  document::TagScannerFields,
                  decode::DecoderFields,
                  decode::SectionValidationFields,
                  decode::MetaTagTableFields,
                  words::WordExtractionFields,
                  words::WordCountFields,
                  words::FilterDictionaryFields,
                  analysis::KeywordListFields,
                  analysis::PageReportFields,
                  metatags::MetaTagPanelFields {
  explicit AppState(app::Platform& p, file_io::FileSystem& f = file_io::RealFileSystem())
      : platform(&p), files(&f) {}

  app::FormModel Form;
  app::Platform* platform;
  file_io::FileSystem* files;  // the system calls every save goes through
};

}  // namespace zentrel
