#include "host/db/registration.h"

#include "host/db/datasource.h"
#include "host/db/fields.h"
#include "host/db/memorydataset.h"
#include "host/db/odbcquery.h"
#include "host/rtl/classregistry.h"

namespace vcl {

void RegisterDataClasses() {
  RegisterClasses({&TStringField::Class(), &TSmallintField::Class(), &TIntegerField::Class(),
                   &TLargeintField::Class(), &TBooleanField::Class(), &TFloatField::Class(),
                   &TCurrencyField::Class(), &TBCDField::Class(), &TDateField::Class(),
                   &TTimeField::Class(), &TDateTimeField::Class(), &TMemoField::Class(),
                   &TBlobField::Class(), &TDataSource::Class(), &TMemoryDataSet::Class(),
                   &TOdbcQuery::Class()});
}

}  // namespace vcl
