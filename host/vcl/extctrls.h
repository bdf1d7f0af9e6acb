// Panels, bevels, images and timers.
#pragma once

#include "host/vcl/bevel.h"
#include "host/vcl/image.h"
#include "host/vcl/panel.h"
#include "host/vcl/timer.h"
