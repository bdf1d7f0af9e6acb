// How the program behaves, as it is remembered.
#pragma once

#include "demos/notes/textfile.h"
#include "qel/core/Qeltstoredata.h"
#include "vcl/graphics/font.h"

namespace notes {

struct TOptions {
  bool WordWrap = true;
  bool CloseToTray = false;
  int KeepSeconds = 5;  ///< Between two times that unsaved text is kept.
  TLineEnds NewLineEnds = TLineEnds::CrLf;
};

/// Reads what is there; the rest stays as it is.
void ReadOptions(qel::TQELStoreData& settings, TOptions& options, vcl::TFont& font);
void WriteOptions(qel::TQELStoreData& settings, const TOptions& options, const vcl::TFont& font);

}  // namespace notes
