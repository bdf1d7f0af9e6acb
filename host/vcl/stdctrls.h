// The standard controls.
#pragma once

#include "host/vcl/button.h"
#include "host/vcl/checkbox.h"
#include "host/vcl/combobox.h"
#include "host/vcl/edit.h"
#include "host/vcl/groupbox.h"
#include "host/vcl/label.h"
#include "host/vcl/listbox.h"
#include "host/vcl/memo.h"
