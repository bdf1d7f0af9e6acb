// All of the controls' foundation in one include.
#pragma once

#include "vcl/controls/control.h"
#include "vcl/controls/controlcanvas.h"
#include "vcl/controls/wincontrol.h"
