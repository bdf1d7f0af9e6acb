// The buttons with a glyph.
#pragma once

#include "host/vcl/bitbtn.h"
#include "host/vcl/speedbutton.h"
