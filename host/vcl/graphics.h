// All of drawing: fonts, pens, brushes, canvases, bitmaps and icons.
#pragma once

#include "host/vcl/bitmap.h"
#include "host/vcl/brush.h"
#include "host/vcl/canvas.h"
#include "host/vcl/font.h"
#include "host/vcl/graphic.h"
#include "host/vcl/graphicsobject.h"
#include "host/vcl/handles.h"
#include "host/vcl/icon.h"
#include "host/vcl/pen.h"
#include "host/vcl/types.h"
