// Reading and writing the options.
#include "demos/notes/options.h"

#include <algorithm>

#include "demos/common/storedvalues.h"
#include "vcl/rtl/win32.h"

namespace notes {

using namespace vcl;

void ReadOptions(qel::TQELStoreData& settings, TOptions& options, TFont& font) {
  const demos::TStoredValues read{*settings.DataStore()};
  options.WordWrap = read.Bool("WordWrap", options.WordWrap);
  options.CloseToTray = read.Bool("CloseToTray", options.CloseToTray);
  options.KeepSeconds = std::clamp(read.Int("KeepSeconds", options.KeepSeconds), 1, 600);
  const bool unixEnds = read.Bool("UnixLineEnds", options.NewLineEnds == TLineEnds::Lf);
  options.NewLineEnds = unixEnds ? TLineEnds::Lf : TLineEnds::CrLf;
  const std::string face = read.Str("FontName", font.Name());
  if (face.size() < LF_FACESIZE) font.SetName(face);
  font.SetHeight(std::clamp(read.Int("FontHeight", font.Height()), -200, 200));
  const int style = read.Int("FontStyle", static_cast<int>(font.Style().Bits()));
  font.SetStyle(TFontStyles::FromBits(static_cast<std::uint32_t>(style) & 0xF));
}

void WriteOptions(qel::TQELStoreData& settings, const TOptions& options, const TFont& font) {
  settings.WriteBool("WordWrap", options.WordWrap);
  settings.WriteBool("CloseToTray", options.CloseToTray);
  settings.WriteInt("KeepSeconds", options.KeepSeconds);
  settings.WriteBool("UnixLineEnds", options.NewLineEnds == TLineEnds::Lf);
  settings.WriteStr("FontName", font.Name());
  settings.WriteInt("FontHeight", font.Height());
  settings.WriteInt("FontStyle", static_cast<int>(font.Style().Bits()));
}

}  // namespace notes
