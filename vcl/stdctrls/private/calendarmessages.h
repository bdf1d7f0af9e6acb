// What the windows of calendars call the messages that they share.
#pragma once

#include "vcl/rtl/win32.h"

namespace vcl {

struct TCalendarMessages {
  UINT SetRange;
  UINT SetColor;
};

}  // namespace vcl
