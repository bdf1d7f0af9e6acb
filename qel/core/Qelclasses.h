// What the package's components have in common: their base classes without a window, the
// enumerations that several of them share, and the settings of three-dimensional text, frames and
// glyphs.
#pragma once

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelenumerations.h"
#include "qel/core/Qelfont3d.h"
#include "qel/core/Qelframe.h"
#include "qel/core/Qelglyph.h"
