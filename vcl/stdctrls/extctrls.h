// Panels, scroll boxes, splitters, groups of radio buttons, bevels, shapes, images, paint boxes and
// timers.
#pragma once

#include "vcl/stdctrls/bevel.h"
#include "vcl/stdctrls/flowpanel.h"
#include "vcl/stdctrls/gridpanel.h"
#include "vcl/stdctrls/image.h"
#include "vcl/stdctrls/labelededit.h"
#include "vcl/stdctrls/paintbox.h"
#include "vcl/stdctrls/panel.h"
#include "vcl/stdctrls/radiogroup.h"
#include "vcl/stdctrls/scrollbox.h"
#include "vcl/stdctrls/shape.h"
#include "vcl/stdctrls/splitter.h"
#include "vcl/stdctrls/timer.h"
