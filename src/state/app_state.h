#pragma once
// AppState: the one record of settings, paths, flags, tables and current-document values.
// The fields of each folder are declared in its own header here (document_fields.h, ...);
// this record gathers them, so it reads flat (state.DocumentBytes, state.KeywordCount) while
// every folder above includes this one header and finds the whole state below it.

#include "base/file_io.h"
#include "state/analysis_fields.h"
#include "state/checks_fields.h"
#include "state/decode_fields.h"
#include "state/document_fields.h"
#include "state/form_model.h"
#include "state/metatags_fields.h"
#include "state/platform.h"
#include "state/settings.h"
#include "state/shell_fields.h"
#include "state/words_fields.h"

namespace zentrel {

struct AppState : state::ShellFields,
                  state::SettingsFields,
                  state::DocumentCacheFields,
                  state::TagScannerFields,
                  state::DecoderFields,
                  state::MetaTagTableFields,
                  state::WordExtractionFields,
                  state::WordCountFields,
                  state::FilterDictionaryFields,
                  state::KeywordListFields,
                  state::PageReportFields,
                  state::AnalysisResultFields,
                  state::ChecksFields,
                  state::BodyViewFields,
                  state::PageEncoderFields,
                  state::MetaTagPanelFields {
  explicit AppState(state::Platform& p, file_io::FileSystem& f = file_io::RealFileSystem())
      : platform(&p), files(&f) {}

  state::FormModel Form;
  state::Platform* platform;
  file_io::FileSystem* files;  // the system calls every save goes through
};

}  // namespace zentrel
