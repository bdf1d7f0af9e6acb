// TRecordsForm: the records of a table, the current one in edits, and what can be done with them.
#pragma once

#include <string>

#include "qel/controls/Qeltgauge.h"
#include "qel/data/Qeltdbascii.h"
#include "qel/dbcontrols/Qeltdbimageview.h"
#include "qel/dbcontrols/Qeltdblookupedit.h"
#include "qel/dbcontrols/Qeltdbmemoview.h"
#include "qel/dbcontrols/Qeltdbnavigator.h"
#include "qel/dbcontrols/Qeltdbpassworddlg.h"
#include "qel/dbcontrols/Qeltdbsearchform.h"
#include "vcl/db/odbcconnection.h"
#include "vcl/db/odbcquery.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/forms.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace records {

class TRecordsForm : public vcl::TForm {
 public:
  explicit TRecordsForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows a database file, which is made when it is not there. Raises vcl::EDatabaseError.
  void Open(const std::string& fileName);
  /// Asks for the password when the file that is open has one; false when it was not given.
  bool LogIn();
  /// Write all records to a text file resp. insert those of one, showing how far it has come. The
  /// user is asked what becomes of a record with a value that its field does not take.
  void Export(const std::string& fileName);
  void Import(const std::string& fileName);

 private:
  // What the form file fills.
  vcl::TOdbcQuery* Query = nullptr;
  vcl::TOdbcConnection* Connection = nullptr;
  vcl::TOdbcQuery* KindQuery = nullptr;
  vcl::TOdbcQuery* PaymentQuery = nullptr;
  vcl::TOdbcQuery* TransferQuery = nullptr;
  vcl::TOdbcQuery* AccessQuery = nullptr;
  qel::TQELDBPasswordDlg* Login = nullptr;
  qel::TQELPasswordDlg* NewPassword = nullptr;
  qel::TQELDBNavigator* Navigator = nullptr;
  qel::TQELDBSearchForm* SearchForm = nullptr;
  qel::TQELDBLookupedit* KindEdit = nullptr;
  qel::TQELDBMemoView* Notes = nullptr;
  qel::TQELDBImageView* Photo = nullptr;
  qel::TQELDBAscii* Transfer = nullptr;
  qel::TQELGauge* Gauge = nullptr;
  vcl::TStatusBar* StatusBar = nullptr;
  vcl::TDBEdit* NameEdit = nullptr;
  vcl::TEdit* FilterEdit = nullptr;
  vcl::TOpenDialog* OpenDialog = nullptr;
  vcl::TOpenDialog* PhotoDialog = nullptr;
  vcl::TSaveDialog* SaveDialog = nullptr;

  void FilterChange(vcl::TObject* sender);
  void OpenQueries();
  void CloseQueries();
  void AddClick(vcl::TObject* sender);
  void DeleteClick(vcl::TObject* sender);
  void PhotoClick(vcl::TObject* sender);
  void ProtectClick(vcl::TObject* sender);
  void ExportClick(vcl::TObject* sender);
  void ImportClick(vcl::TObject* sender);
  void RecordWritten(vcl::TObject* sender, std::string record);
  void RecordRead(vcl::TObject* sender, std::string record);
  void RecordRefused(vcl::TObject* sender, std::string record);
  void ValueRefused(vcl::TObject* sender, qel::TQELADField* column, bool& goOn);
  void Refused(const std::string& why);
  void ImportAtOnce();
  void ShowProgress();

  // How much of the work is done, in records resp. in bytes.
  double FDone = 0;
  double FAll = 1;
  int FCount = 0;
  int FRefused = 0;
  std::string FWhy;
  bool FAsks = true;  // What becomes of a record whose values can't be taken.
};

}  // namespace records
