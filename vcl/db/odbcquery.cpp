// TOdbcQuery: running the query, its fields, its records' changes, and its transactions.
#include "vcl/db/odbcquery.h"

#include <vector>

#include "vcl/db/odbcconnection.h"
#include "vcl/db/private/odbclive.h"
#include "vcl/db/private/odbcrows.h"
#include "vcl/db/private/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TOdbcQuery::Class() {
  using T = TOdbcQuery;
  static const TClass info = Describe<T, TDataSet>(
      "vcl::TOdbcQuery", "vcl/db/db.h",
      {Property<&T::Connection, &T::SetConnection>("Connection"),
       Property<&T::ConnectionString, &T::SetConnectionString>("ConnectionString"),
       Property<&T::IdentityQuery, &T::SetIdentityQuery>("IdentityQuery").Default(""),
       Property<&T::RequestLive, &T::SetRequestLive>("RequestLive").Default(false),
       Property<&T::SQL, &T::SetSQL>("SQL"),
       Property<&T::UniDirectional, &T::SetUniDirectional>("UniDirectional").Default(false),
       Inherit(DataSetView), Inherit("Active"), Inherit(DataSetEvents)});
  return info;
}

TOdbcQuery::TOdbcQuery(TComponent* owner)
    : TDataSet(owner),
      FSQL(std::make_unique<TStringList>()),
      FParams(std::make_unique<TParams>()),
      FOwn(std::make_unique<TOdbcConnection>(nullptr)) {
  FOwn->FQueries.push_back(this);
  FSQL->OnChange = [this](TObject*) { SQLChanged(); };
}

TOdbcQuery::~TOdbcQuery() {
  AnnounceEnd();
  Shut();
  std::erase(Used().FQueries, this);
}

void TOdbcQuery::SQLChanged() {
  Close();
  FPrepared = FParams->Parse(FSQL->Text());
}

// The connection.

const std::string& TOdbcQuery::ConnectionString() const { return FOwn->ConnectionString(); }

void TOdbcQuery::SetConnectionString(const std::string& text) {
  if (text == ConnectionString()) return;
  if (!FLinked) CheckInactive();
  FOwn->SetConnectionString(text);
}

bool TOdbcQuery::Connected() const { return Used().Connected(); }

void TOdbcQuery::SetConnected(bool connected) {
  if (connected == Connected()) return;
  CheckInactive();
  FStatement.reset();  // One that has failed may still be there.
  Used().SetConnected(connected);
}

odbc::TConnection& TOdbcQuery::Needed() { return Used().Needed(); }

/// What belongs to a connection ends before it does.
void TOdbcQuery::ForgetStatements() {
  Close();
  FStatement.reset();
}

void TOdbcQuery::UseConnection(TOdbcConnection* connection) {
  std::erase(Used().FQueries, this);
  FLinked = connection;
  Used().FQueries.push_back(this);
}

void TOdbcQuery::SetConnection(TOdbcConnection* connection) {
  if (connection == FLinked) return;
  ForgetStatements();
  if (FLinked) FLinked->RemoveFreeNotification(this);
  UseConnection(connection);
  if (connection) connection->FreeNotification(this);
}

/// The connection ends.
void TOdbcQuery::LeaveConnection() {
  Shut();
  FStatement.reset();
  UseConnection(nullptr);
}

void TOdbcQuery::Notification(TComponent* component, TOperation operation) {
  TDataSet::Notification(component, operation);
  if (operation == opRemove && component == FLinked && component) SetConnection(nullptr);
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
  FStatement = std::make_unique<odbc::TStatement>(Needed(), FPrepared);
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

/// The arguments in the order of their places in the SQL.
std::vector<odbc::TArgument> TOdbcQuery::BatchRow(const TRecord& row, std::size_t number) const {
  if (row.size() != static_cast<std::size_t>(FParams->Count())) {
    Refuse(Concat("Row ", std::to_string(number), " has ", std::to_string(row.size()),
                  " values for ", std::to_string(FParams->Count()), " parameters"));
  }
  std::vector<odbc::TArgument> arguments;
  for (const std::string& name : FParams->Places()) {
    const TParam& param = *FParams->ParamByName(name);
    arguments.push_back({row[static_cast<std::size_t>(param.Index())], param.DataType()});
  }
  return arguments;
}

int TOdbcQuery::ExecuteBatch(const std::vector<TRecord>& rows) {
  CheckInactive();
  std::vector<std::vector<odbc::TArgument>> arguments;
  for (const TRecord& row : rows) arguments.push_back(BatchRow(row, arguments.size() + 1));
  Prepare();
  const bool alone = !InTransaction();
  if (alone) StartTransaction();
  int affected = 0;
  {
    const TOnFailure none(
        [&] {
          FStatement.reset();
          if (alone) Rollback();
        },
        this);
    affected = FStatement->ExecuteMany(arguments);
    FStatement.reset();
  }
  if (alone) Commit();
  return affected;
}

TRecordStore& TOdbcQuery::InternalOpen() {
  Prepare();
  Execute();
  if (FStatement->Columns().empty()) Refuse("The SQL has no records as its result: use ExecSQL");
  DefineFields();
  if (FRequestLive) {
    FLive = std::make_unique<odbc::TLiveTable>(Needed(), FStatement->Columns());
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

void TOdbcQuery::ReadToEnd() {
  if (!FRows) return;
  if (FUniDirectional && !static_cast<odbc::TForwardRows&>(*FRows).AtEnd()) {
    Refuse(
        "While a unidirectional dataset has not been read to its end, no transaction can begin or "
        "end");
  }
  FRows->Count();
}

void TOdbcQuery::StartTransaction() { Used().StartTransaction(); }
void TOdbcQuery::Commit() { Used().Commit(); }
void TOdbcQuery::Rollback() { Used().Rollback(); }
bool TOdbcQuery::InTransaction() const { return Used().InTransaction(); }

}  // namespace vcl
