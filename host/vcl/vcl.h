// What an application of forms uses, in one include.
#pragma once

#include "host/rtl/classes.h"
#include "host/rtl/resources.h"
#include "host/vcl/application.h"
#include "host/vcl/comctrls.h"
#include "host/vcl/controls.h"
#include "host/vcl/dialogs.h"
#include "host/vcl/drag.h"
#include "host/vcl/extctrls.h"
#include "host/vcl/forms.h"
#include "host/vcl/graphics.h"
#include "host/vcl/hints.h"
#include "host/vcl/imagelist.h"
#include "host/vcl/menus.h"
#include "host/vcl/screen.h"
#include "host/vcl/stdctrls.h"
