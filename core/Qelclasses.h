// What the package's components have in common: their base classes without a window, the
// enumerations that several of them share, and the settings of three-dimensional text, frames and
// glyphs.
#pragma once

#include "core/Qelcomponent.h"
#include "core/Qelenumerations.h"
#include "core/Qelfont3d.h"
#include "core/Qelframe.h"
#include "core/Qelglyph.h"
