// Printers, their dialogs, and the preview.
#pragma once

#include "vcl/printing/pagerecorder.h"
#include "vcl/printing/printdialogs.h"
#include "vcl/printing/printer.h"
#include "vcl/printing/printpreview.h"
