// Controls that show and edit a data set's record.
#pragma once

#include "vcl/dbctrls/dbactions.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/dbctrls/registration.h"
