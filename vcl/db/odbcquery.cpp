// TOdbcQuery: running the query, its fields, its records' changes, and its transactions.
#include "vcl/db/odbcquery.h"

#include "vcl/db/private/odbclive.h"
#include "vcl/db/private/odbcrows.h"
#include "vcl/db/private/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TOdbcQuery::Class() {
  using T = TOdbcQuery;
  static const TClass info = Describe<T, TDataSet>(
      "vcl::TOdbcQuery", "vcl/db/db.h",
      {Property<&T::ConnectionString, &T::SetConnectionString>("ConnectionString"),
       Property<&T::IdentityQuery, &T::SetIdentityQuery>("IdentityQuery").Default(""),
       Property<&T::RequestLive, &T::SetRequestLive>("RequestLive").Default(false),
       Property<&T::SQL, &T::SetSQL>("SQL"),
       Property<&T::UniDirectional, &T::SetUniDirectional>("UniDirectional").Default(false),
       Inherit(DataSetView), Inherit("Active"), Inherit(DataSetEvents)});
  return info;
}

TOdbcQuery::TOdbcQuery(TComponent* owner)
    : TDataSet(owner), FSQL(std::make_unique<TStringList>()), FParams(std::make_unique<TParams>()) {
  FSQL->OnChange = [this](TObject*) { SQLChanged(); };
}

TOdbcQuery::~TOdbcQuery() {
  AnnounceEnd();
  Shut();
}

void TOdbcQuery::SQLChanged() {
  Close();
  FPrepared = FParams->Parse(FSQL->Text());
}

void TOdbcQuery::SetConnectionString(const std::string& text) {
  if (text == FConnectionString) return;
  SetConnected(false);
  FConnectionString = text;
}

void TOdbcQuery::SetConnected(bool connected) {
  if (connected == Connected()) return;
  CheckInactive();
  FStatement.reset();  // One that has failed may still be there.
  FConnection = connected ? std::make_unique<odbc::TConnection>(FConnectionString) : nullptr;
}

void TOdbcQuery::SetRequestLive(bool requestLive) {
  CheckInactive();
  FRequestLive = requestLive;
}

void TOdbcQuery::SetUniDirectional(bool uniDirectional) {
  CheckInactive();
  FUniDirectional = uniDirectional;
}

bool TOdbcQuery::CanModify() const { return FLive && FLive->Known(); }

void TOdbcQuery::Prepare() {
  if (Trim(FPrepared).empty()) Refuse("There is no SQL to execute");
  SetConnected(true);
  FStatement = std::make_unique<odbc::TStatement>(*FConnection, FPrepared);
}

/// Makes the connection free where the query is being read ahead.
void TOdbcQuery::Pause() {
  if (FRows && FUniDirectional) static_cast<odbc::TForwardRows&>(*FRows).Pause();
}

/// For each parameter, the master's field of its name; null where there is none.
std::vector<TField*> TOdbcQuery::MasterFieldsOfParams() const {
  std::vector<TField*> fields;
  const TDataSet* master = Master();
  for (int i = 0; master && i < FParams->Count(); ++i) {
    fields.push_back(master->FindField(FParams->Items(i)->Name()));
  }
  return fields;
}

TRecord TOdbcQuery::MasterValues() {
  TRecord values;
  for (const TField* field : MasterFieldsOfParams()) {
    values.push_back(field ? field->Value() : TFieldValue());
  }
  return values;
}

void TOdbcQuery::Execute() {
  Pause();
  const std::vector<TField*> fields = MasterFieldsOfParams();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i]) FParams->Items(static_cast<int>(i))->AssignField(*fields[i]);
  }
  std::vector<odbc::TArgument> arguments;
  for (const std::string& name : FParams->Places()) {
    const TParam& param = *FParams->ParamByName(name);
    arguments.push_back({param.Value(), param.DataType()});
  }
  FStatement->Execute(arguments);
}

int TOdbcQuery::ExecSQL() {
  CheckInactive();
  Prepare();
  Execute();
  const int affected = FStatement->RowsAffected();
  FStatement.reset();
  return affected;
}

TRecordStore& TOdbcQuery::InternalOpen() {
  Prepare();
  Execute();
  if (FStatement->Columns().empty()) Refuse("The SQL has no records as its result: use ExecSQL");
  DefineFields();
  if (FRequestLive) {
    FLive = std::make_unique<odbc::TLiveTable>(*FConnection, FStatement->Columns());
  }
  if (FUniDirectional) {
    FRows = std::make_unique<odbc::TForwardRows>(*FStatement);
  } else {
    FRows = std::make_unique<odbc::TCachedRows>(*FStatement);
  }
  return *FRows;
}

/// The name, or with a number behind it when the query has it twice.
std::string TOdbcQuery::FreeName(const std::string& name) const {
  std::string free = name.empty() ? "Column" : name;
  for (int i = 1; FieldDefs()->IndexOf(free) >= 0; ++i) free = Concat(name, "_", std::to_string(i));
  return free;
}

void TOdbcQuery::DefineFields() {
  FieldDefs()->Clear();
  for (const odbc::TColumn& column : FStatement->Columns()) {
    const std::string name = FreeName(column.Name);
    TFieldDef* definition = FieldDefs()->Add(name, column.DataType, column.Size);
    // What is computed by the query cannot be written.
    definition->SetReadOnly(column.Table.empty());
  }
}

void TOdbcQuery::InternalClose() {
  FRows.reset();
  FLive.reset();
  FStatement.reset();
}

void TOdbcQuery::InternalFirst() {
  if (FUniDirectional && !static_cast<odbc::TForwardRows&>(*FRows).AtBeginning()) InternalRefresh();
}

void TOdbcQuery::InternalRefresh() {
  Execute();
  if (FUniDirectional) {
    static_cast<odbc::TForwardRows&>(*FRows).Restart();
  } else {
    static_cast<odbc::TCachedRows&>(*FRows).Restart();
  }
}

/// A query that is still running might come to meet a new or a changed record again, so that it is
/// read to its end, unless it keeps nothing.
void TOdbcQuery::PrepareChange() { FUniDirectional ? Pause() : static_cast<void>(FRows->Count()); }

void TOdbcQuery::InternalInsert(TRecord& record) {
  PrepareChange();
  FLive->Insert(record, FIdentityQuery);
}

void TOdbcQuery::InternalUpdate(const TRecord& before, TRecord& record) {
  PrepareChange();
  FLive->Update(before, record);
}

void TOdbcQuery::InternalDelete(const TRecord& record) {
  PrepareChange();
  FLive->Delete(record);
}

/// Databases may end queries that are being read when a transaction begins or ends; so that no
/// record is missing then, all are read before.
void TOdbcQuery::ReadToEnd() {
  if (!FRows) return;
  if (FUniDirectional && !static_cast<odbc::TForwardRows&>(*FRows).AtEnd()) {
    Refuse(
        "While a unidirectional dataset has not been read to its end, no transaction can begin or "
        "end");
  }
  FRows->Count();
}

void TOdbcQuery::StartTransaction() {
  SetConnected(true);
  ReadToEnd();
  FConnection->StartTransaction();
}

void TOdbcQuery::Commit() {
  SetConnected(true);
  ReadToEnd();
  FConnection->EndTransaction(true);
}

void TOdbcQuery::Rollback() {
  SetConnected(true);
  ReadToEnd();
  FConnection->EndTransaction(false);
}

bool TOdbcQuery::InTransaction() const { return FConnection && FConnection->InTransaction(); }

}  // namespace vcl
