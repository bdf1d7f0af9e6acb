// The system's common controls: pages and tabs, tool bars, status bars, headers, track bars,
// progress bars, arrows that count, calendars, hot keys, trees and lists.
#pragma once

#include "vcl/stdctrls/coolbar.h"
#include "vcl/stdctrls/datetimepicker.h"
#include "vcl/stdctrls/headercontrol.h"
#include "vcl/stdctrls/hotkey.h"
#include "vcl/stdctrls/listview.h"
#include "vcl/stdctrls/monthcalendar.h"
#include "vcl/stdctrls/pagecontrol.h"
#include "vcl/stdctrls/progressbar.h"
#include "vcl/stdctrls/statusbar.h"
#include "vcl/stdctrls/tabcontrol.h"
#include "vcl/stdctrls/toolbar.h"
#include "vcl/stdctrls/trackbar.h"
#include "vcl/stdctrls/treeview.h"
#include "vcl/stdctrls/updown.h"
