// The program's formats of dates and times, begun with the user's.
#include "vcl/rtl/formatsettings.h"

namespace vcl {

TFormatSettings& FormatSettings() {
  static TFormatSettings settings = SystemFormatSettings();
  return settings;
}

}  // namespace vcl
