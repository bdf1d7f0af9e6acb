// The clipboard, dragging between programs, and the data of both.
#pragma once

#include "vcl/transfer/clipboard.h"
#include "vcl/transfer/clipboardmonitor.h"
#include "vcl/transfer/dataobject.h"
#include "vcl/transfer/dragout.h"
#include "vcl/transfer/droptarget.h"
