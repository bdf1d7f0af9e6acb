// TRecordsForm: the buttons for the records, exporting and importing.
#include "demos/records/recordsform.h"

#include <algorithm>

#include "demos/records/database.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace records {

using namespace vcl;

const TClass& TRecordsForm::Class() {
  using T = TRecordsForm;
  static const TClass info =
      Describe<T, TForm>("records::TRecordsForm", "demos/records/recordsform.h",
                         {
                             Field<&T::Query>("Query"),
                             Field<&T::Connection>("Connection"),
                             Field<&T::KindQuery>("KindQuery"),
                             Field<&T::PaymentQuery>("PaymentQuery"),
                             Field<&T::TransferQuery>("TransferQuery"),
                             Field<&T::AccessQuery>("AccessQuery"),
                             Field<&T::Login>("Login"),
                             Field<&T::NewPassword>("NewPassword"),
                             Field<&T::Navigator>("Navigator"),
                             Field<&T::SearchForm>("SearchForm"),
                             Field<&T::KindEdit>("KindEdit"),
                             Field<&T::Notes>("Notes"),
                             Field<&T::Photo>("Photo"),
                             Field<&T::Transfer>("Transfer"),
                             Field<&T::Gauge>("Gauge"),
                             Field<&T::StatusBar>("StatusBar"),
                             Field<&T::NameEdit>("NameEdit"),
                             Field<&T::FilterEdit>("FilterEdit"),
                             Field<&T::OpenDialog>("OpenDialog"),
                             Field<&T::PhotoDialog>("PhotoDialog"),
                             Field<&T::SaveDialog>("SaveDialog"),
                             Method<&T::FilterChange>("FilterChange"),
                             Method<&T::AddClick>("AddClick"),
                             Method<&T::DeleteClick>("DeleteClick"),
                             Method<&T::PhotoClick>("PhotoClick"),
                             Method<&T::ProtectClick>("ProtectClick"),
                             Method<&T::ExportClick>("ExportClick"),
                             Method<&T::ImportClick>("ImportClick"),
                             Method<&T::RecordWritten>("RecordWritten"),
                             Method<&T::RecordRead>("RecordRead"),
                             Method<&T::RecordRefused>("RecordRefused"),
                         });
  return info;
}

TRecordsForm::TRecordsForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  Transfer->OnImportValueError = {this, &TRecordsForm::ValueRefused};
}

void TRecordsForm::Open(const std::string& fileName) {
  const std::string connection = ConnectionString(fileName);
  MakeTable(connection);
  CloseQueries();
  Connection->SetConnectionString(connection);
  TransferQuery->SetConnectionString(connection);
  OpenQueries();
}

void TRecordsForm::OpenQueries() {
  for (TOdbcQuery* each : {KindQuery, Query, PaymentQuery, AccessQuery}) each->Open();
}

void TRecordsForm::CloseQueries() {
  for (TOdbcQuery* each : {AccessQuery, PaymentQuery, Query, KindQuery}) each->Close();
}

/// What is typed is sought in names and cities.
void TRecordsForm::FilterChange(TObject*) {
  std::string text;
  for (const char c : FilterEdit->Text()) text += c == '\'' ? "''" : std::string(1, c);
  Query->SetFilter(Concat("name LIKE '%", text, "%' OR city LIKE '%", text, "%'"));
  Query->SetFiltered(!text.empty());
}

void TRecordsForm::AddClick(TObject*) {
  Query->Append();
  NameEdit->SetFocus();
}

void TRecordsForm::DeleteClick(TObject*) {
  const std::string name = Query->FieldByName("name")->AsString();
  const std::string what = name.empty() ? "this record" : name;
  if (MessageDlg(Concat("Delete ", what, "?"), mtConfirmation, {mbYes, mbNo}) == mrYes)
    Query->Delete();
}

void TRecordsForm::PhotoClick(TObject*) {
  if (PhotoDialog->Execute()) Photo->LoadFromFile(PhotoDialog->FileName());
}

bool TRecordsForm::LogIn() { return AccessQuery->IsEmpty() || Login->Execute(); }

/// The first password is asked for twice, another one takes the old one, too.
void TRecordsForm::ProtectClick(TObject*) {
  if (AccessQuery->IsEmpty()) {
    if (!NewPassword->Execute()) return;
    const TAtEnd forget([this] { NewPassword->ForgetPassword(); });
    AccessQuery->AppendRecord({std::int64_t{1}, Login->StoredText(NewPassword->NewPassword())});
  } else {
    const TAtEnd asksAgain([this] { Login->SetKind(qel::pkPassword); });
    Login->SetKind(qel::pkChange);
    if (!Login->Execute()) return;
  }
  StatusBar->SetSimpleText("The password is asked for when the file is opened");
}

void TRecordsForm::ExportClick(TObject*) {
  if (SaveDialog->Execute()) Export(SaveDialog->FileName());
}

void TRecordsForm::ImportClick(TObject*) {
  if (OpenDialog->Execute()) Import(OpenDialog->FileName());
}

void TRecordsForm::ShowProgress() {
  const int percent = static_cast<int>(std::min(100.0, 100 * FDone / std::max(FAll, 1.0)));
  if (percent == Gauge->Percentage()) return;
  Gauge->SetPercentage(percent);
  Gauge->Update();
}

void TRecordsForm::Export(const std::string& fileName) {
  Query->CheckBrowseMode();
  FAll = CountRecords(Connection->ConnectionString());
  FDone = FCount = 0;
  Transfer->SetFilename(fileName);
  Transfer->DoExport();
  StatusBar->SetSimpleText(
      Concat(IntToStr(FCount), " records written to ", ExtractFileName(fileName)));
}

void TRecordsForm::RecordWritten(TObject*, std::string) {
  ++FCount;
  ++FDone;
  ShowProgress();
}

/// All at once is far faster than each record for itself, and an error in the middle leaves none.
void TRecordsForm::ImportAtOnce() {
  TransferQuery->StartTransaction();
  {
    const TOnFailure none([this] {
      TransferQuery->Close();
      TransferQuery->Rollback();
    });
    Transfer->DoImport();
  }
  TransferQuery->Commit();
}

void TRecordsForm::Import(const std::string& fileName) {
  Query->CheckBrowseMode();
  FAll = static_cast<double>(TFileStream(fileName, fmOpenRead | fmShareDenyNone).Size());
  FDone = FCount = FRefused = 0;
  FAsks = true;
  Transfer->SetFilename(fileName);
  StatusBar->SetSimpleText(Concat("Nothing is read from ", ExtractFileName(fileName)));
  // A query that is half read keeps others from writing.
  CloseQueries();
  {
    const TAtEnd reopen([this] { OpenQueries(); });
    ImportAtOnce();
  }
  FDone = FAll;  // The header and empty lines have counted for nothing.
  ShowProgress();
  std::string text =
      Concat(IntToStr(FCount - FRefused), " records read from ", ExtractFileName(fileName));
  if (FRefused) text += Concat(", ", IntToStr(FRefused), " refused: ", FWhy);
  StatusBar->SetSimpleText(text);
}

void TRecordsForm::RecordRead(TObject*, std::string record) {
  ++FCount;
  FDone += static_cast<double>(record.size() + 2);
  ShowProgress();
}

void TRecordsForm::RecordRefused(TObject*, std::string) { Refused(Transfer->ImportError()); }

void TRecordsForm::Refused(const std::string& why) {
  ++FRefused;
  FWhy = why;
}

void TRecordsForm::ValueRefused(TObject*, qel::TQELADField* column, bool& goOn) {
  const std::string why = Concat("Line ", IntToStr(Transfer->ImportLine()), ", ", column->CSVName(),
                                 ": ", Transfer->ImportError());
  if (FAsks) {
    const TModalResult answer =
        MessageDlg(Concat(why,
                          "\n\nLeave this record out, or all of that kind, and go on? With "
                          "\"No\" nothing is imported."),
                   mtWarning, {mbYes, mbNo, mbAll});
    if (answer != mrYes && answer != mrAll) throw EAbort("The import is taken back");
    FAsks = answer == mrYes;
  }
  goOn = true;
  Refused(why);
}

}  // namespace records
