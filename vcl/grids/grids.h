// The grids, in one include.
#pragma once

#include "vcl/grids/customgrid.h"
#include "vcl/grids/drawgrid.h"
#include "vcl/grids/gridcolumns.h"
#include "vcl/grids/gridtypes.h"
#include "vcl/grids/stringgrid.h"
