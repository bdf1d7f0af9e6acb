// The list of the data classes that form files may name.
#include "vcl/db/registration.h"

#include "vcl/db/datasource.h"
#include "vcl/db/fields.h"
#include "vcl/db/memorydataset.h"
#include "vcl/db/odbcconnection.h"
#include "vcl/db/odbcquery.h"
#include "vcl/rtl/classregistry.h"

namespace vcl {

void RegisterDataClasses() {
  RegisterClasses({&TStringField::Class(), &TSmallintField::Class(), &TIntegerField::Class(),
                   &TLargeintField::Class(), &TBooleanField::Class(), &TFloatField::Class(),
                   &TCurrencyField::Class(), &TBCDField::Class(), &TDateField::Class(),
                   &TTimeField::Class(), &TDateTimeField::Class(), &TMemoField::Class(),
                   &TBlobField::Class(), &TDataSource::Class(), &TMemoryDataSet::Class(),
                   &TOdbcConnection::Class(), &TOdbcQuery::Class()});
}

}  // namespace vcl
