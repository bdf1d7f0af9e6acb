// The system's headers of sounds and videos, for sources that include it as they do
// "vcl/rtl/win32.h".
#pragma once

#include "vcl/rtl/win32.h"

// The headers still use a word that the system's others define, and that ours take back.
#define far
#include <mmsystem.h>
#include <vfw.h>
#undef far
