// The system's dialogs for files, colours and fonts, messages and questions.
#pragma once

#include "host/vcl/application.h"
#include "host/vcl/colordialog.h"
#include "host/vcl/filedialogs.h"
#include "host/vcl/fontdialog.h"
#include "host/vcl/messagedialog.h"
