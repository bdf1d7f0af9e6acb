// TQELDBPasswordDlg: its table, and passwords in records.
#include "qel/dbcontrols/Qeltdbpassworddlg.h"

#include <variant>

#include "vcl/db/odbcconnection.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"

namespace qel {

namespace {

/// The hash that is checked where there is none: as long to check as others, and nobody's.
constexpr const char* NobodysHash =
    "pbkdf2-sha256$210000$00000000000000000000000000000000$"
    "0000000000000000000000000000000000000000000000000000000000000000";

std::string TextOf(const vcl::TFieldValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  const auto* text = std::get_if<std::string>(&value);
  return text ? *text : std::string();
}

}  // namespace

const vcl::TClass& TQELDBPasswordDlg::Class() {
  using T = TQELDBPasswordDlg;
  using namespace vcl;
  static const TClass info = Describe<T, TQELPasswordDlg>(
      "qel::TQELDBPasswordDlg", "qel/dbcontrols/Qeltdbpassworddlg.h",
      {
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Property<&T::DataUsername, &T::SetDataUsername>("DataUsername").Default(""),
          Property<&T::Datapassword, &T::SetDatapassword>("Datapassword").Default(""),
          Property<&T::PasswordFormat, &T::SetPasswordFormat>("PasswordFormat").Default(pfPBKDF2),
          Property<&T::StoreFailedText, &T::SetStoreFailedText>("StoreFailedText")
              .Default("The new password could not be stored."),
      });
  return info;
}

TQELDBPasswordDlg::TQELDBPasswordDlg(vcl::TComponent* owner) : TQELPasswordDlg(owner) {}
TQELDBPasswordDlg::~TQELDBPasswordDlg() { AnnounceEnd(); }

void TQELDBPasswordDlg::SetDataSource(vcl::TDataSource* source) {
  FLink.SetDataSource(source);
  if (source) source->FreeNotification(this);
}

std::string TQELDBPasswordDlg::StoredText(std::string_view password) const {
  return FPasswordFormat == pfPlain ? std::string(password) : QELHashedCode(password);
}

bool TQELDBPasswordDlg::TakesCurrent() const {
  return FDataUsername.empty() || (Kind() != pkLogin && Username().empty());
}

std::string TQELDBPasswordDlg::Obstacle() const {
  if (!FLink.Active()) return "The passwords' data set is not open";
  const vcl::TDataSet& data = *FLink.DataSet();
  const auto missing = [&](const std::string& name) { return !data.FindField(name); };
  const auto tell = [](const std::string& name) { return "There is no field '" + name + "'"; };
  if (missing(FDatapassword)) return tell(FDatapassword);
  if (TakesCurrent()) return {};
  if (missing(FDataUsername)) return tell(FDataUsername);
  return data.IsUniDirectional() ? "A unidirectional data set can't be searched" : "";
}

/// Empty where there is none, or no such user.
std::string TQELDBPasswordDlg::Stored() const {
  if (!Obstacle().empty()) return {};
  vcl::TDataSet& data = *FLink.DataSet();
  if (TakesCurrent()) return TextOf(data.FieldValues(FDatapassword));
  if (Username().empty()) return {};
  try {
    const vcl::TRecord row = data.Lookup(FDataUsername, {Username()}, FDatapassword);
    return row.empty() ? std::string() : TextOf(row.front());
  } catch (const vcl::EOdbcError&) {
    throw;  // The database can't be asked: no password is wrong by that.
  } catch (const vcl::EDatabaseError&) {
    return {};  // A field that can't hold such a name has it in no record.
  }
}

bool TQELDBPasswordDlg::Verified() {
  TQELSecret stored;
  std::string found = Stored();
  stored.SetText(found);
  QELWipe(found);
  if (FPasswordFormat == pfPlain) {
    const bool same = QELSameSecret(Password(), stored.Text());
    return same && !stored.Text().empty();
  }
  const bool hashed = QELIsHashedCode(stored.Text());
  return QELCodeMatches(Password(), hashed ? stored.Text() : NobodysHash) && hashed;
}

void TQELDBPasswordDlg::Write(vcl::TDataSet& data) {
  const vcl::TOnFailure cancel([&] { data.Cancel(); }, &data);
  data.Edit();
  std::string text = StoredText(NewPassword());
  data.FieldByName(FDatapassword)->SetAsString(text);
  QELWipe(text);
  data.Post();
}

/// What the database says could hold the password.
bool TQELDBPasswordDlg::KeepNew(std::string& error) {
  const vcl::TWatch watch(this);
  const std::string refused = FStoreFailedText;
  try {
    vcl::TDataSet* const data = FLink.Active() ? FLink.DataSet() : nullptr;
    if (data && data->State() == vcl::dsBrowse && data->CanModify()) {
      data->DisableControls();
      const vcl::TAtEnd enable([&] { data->EnableControls(); }, data);
      const vcl::TBookmark place = data->Bookmark();
      const vcl::TAtEnd back([&] { data->GotoBookmark(place); }, data);
      if (TakesCurrent() || data->Locate(FDataUsername, {Username()})) {
        Write(*data);
        return true;
      }
    }
  } catch (const vcl::EDatabaseError&) {
    if (watch.Gone()) return false;
  }
  error = refused;
  return false;
}

}  // namespace qel
