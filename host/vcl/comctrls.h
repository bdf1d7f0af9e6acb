// The system's common controls: pages, status bars and track bars.
#pragma once

#include "host/vcl/pagecontrol.h"
#include "host/vcl/statusbar.h"
#include "host/vcl/trackbar.h"
