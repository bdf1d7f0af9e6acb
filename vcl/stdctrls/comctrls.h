// The system's common controls: pages, status bars, track bars, progress bars, arrows that count and
// tree views.
#pragma once

#include "vcl/stdctrls/pagecontrol.h"
#include "vcl/stdctrls/progressbar.h"
#include "vcl/stdctrls/statusbar.h"
#include "vcl/stdctrls/trackbar.h"
#include "vcl/stdctrls/treeview.h"
#include "vcl/stdctrls/updown.h"
