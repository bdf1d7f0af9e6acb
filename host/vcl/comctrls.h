// The system's common controls: pages, status bars, track bars and tree views.
#pragma once

#include "host/vcl/pagecontrol.h"
#include "host/vcl/statusbar.h"
#include "host/vcl/trackbar.h"
#include "host/vcl/treeview.h"
