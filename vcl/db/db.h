// Data sets: their fields and sources, in memory and over ODBC.
#pragma once

#include "vcl/db/datasource.h"
#include "vcl/db/fields.h"
#include "vcl/db/memorydataset.h"
#include "vcl/db/odbcconnection.h"
#include "vcl/db/odbcquery.h"
#include "vcl/db/registration.h"
