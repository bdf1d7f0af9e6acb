// All of the controls' foundation in one include.
#pragma once

#include "host/vcl/control.h"
#include "host/vcl/controlcanvas.h"
#include "host/vcl/wincontrol.h"
