// What an application of forms uses, in one include.
#pragma once

#include "vcl/controls/controls.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/application.h"
#include "vcl/forms/drag.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/hints.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/graphics.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/classes.h"
#include "vcl/rtl/resources.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"
