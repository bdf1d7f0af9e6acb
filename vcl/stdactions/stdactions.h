// The actions that bring their work with them.
#pragma once

#include "vcl/stdactions/editactions.h"
#include "vcl/stdactions/fileactions.h"
#include "vcl/stdactions/windowactions.h"
