// The buttons with a glyph.
#pragma once

#include "vcl/stdctrls/bitbtn.h"
#include "vcl/stdctrls/speedbutton.h"
