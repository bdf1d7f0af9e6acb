#include "vcl/rtl/formatsettings.h"

namespace vcl {

TFormatSettings& FormatSettings() {
  static TFormatSettings settings = SystemFormatSettings();
  return settings;
}

}  // namespace vcl
