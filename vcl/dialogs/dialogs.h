// The system's dialogs for files, colours, fonts and texts to find, messages and questions.
#pragma once

#include "vcl/dialogs/colorbox.h"
#include "vcl/dialogs/colordialog.h"
#include "vcl/dialogs/filedialogs.h"
#include "vcl/dialogs/finddialog.h"
#include "vcl/dialogs/fontdialog.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/forms/application.h"
