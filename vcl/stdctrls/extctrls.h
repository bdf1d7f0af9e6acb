// Panels, bevels, images and timers.
#pragma once

#include "vcl/stdctrls/bevel.h"
#include "vcl/stdctrls/image.h"
#include "vcl/stdctrls/panel.h"
#include "vcl/stdctrls/timer.h"
