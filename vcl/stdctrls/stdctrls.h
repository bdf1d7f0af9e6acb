// The standard controls.
#pragma once

#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/checklst.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/groupbox.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/listbox.h"
#include "vcl/stdctrls/maskedit.h"
#include "vcl/stdctrls/memo.h"
#include "vcl/stdctrls/scrollbar.h"
#include "vcl/stdctrls/statictext.h"
