// All of drawing: fonts, pens, brushes, canvases, bitmaps and icons.
#pragma once

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/brush.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/codedimage.h"
#include "vcl/graphics/font.h"
#include "vcl/graphics/graphic.h"
#include "vcl/graphics/graphicsobject.h"
#include "vcl/graphics/handles.h"
#include "vcl/graphics/icon.h"
#include "vcl/graphics/pen.h"
#include "vcl/graphics/types.h"
