// The actions and their list.
#pragma once

#include "vcl/actions/actionlist.h"
