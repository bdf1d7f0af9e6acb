// The system's common controls: pages, status bars, track bars, progress bars, arrows that count,
// tree views and list views.
#pragma once

#include "vcl/stdctrls/listview.h"
#include "vcl/stdctrls/pagecontrol.h"
#include "vcl/stdctrls/progressbar.h"
#include "vcl/stdctrls/statusbar.h"
#include "vcl/stdctrls/trackbar.h"
#include "vcl/stdctrls/treeview.h"
#include "vcl/stdctrls/updown.h"
