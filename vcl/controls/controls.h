// All of the controls' foundation in one include: bases, canvases, image lists.
#pragma once

#include "vcl/controls/control.h"
#include "vcl/controls/controlcanvas.h"
#include "vcl/controls/scrolling.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/imagelist.h"
