// Controls that show and edit a data set's record.
#pragma once

#include "vcl/dbctrls/dbactions.h"
#include "vcl/dbctrls/dbcheckbox.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/dbctrls/dbimage.h"
#include "vcl/dbctrls/dblists.h"
#include "vcl/dbctrls/dblookup.h"
#include "vcl/dbctrls/dbmemo.h"
#include "vcl/dbctrls/dbnavigator.h"
#include "vcl/dbctrls/dbtext.h"
#include "vcl/dbctrls/registration.h"
