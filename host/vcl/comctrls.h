// The system's common controls: pages and track bars.
#pragma once

#include "host/vcl/pagecontrol.h"
#include "host/vcl/trackbar.h"
