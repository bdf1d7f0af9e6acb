// TQELDBPasswordDlg: a password dialog that checks against the records of a data set.
#pragma once

#include <string>
#include <string_view>

#include "qel/dialogs/Qeltpassworddlg.h"
#include "vcl/db/datasource.h"

namespace qel {

/// What a field holds of a password.
enum TQELPasswordFormat {
  pfPBKDF2,  ///< What QELHashedCode makes of it; 118 characters.
  pfPlain    ///< The password itself, as old tables have it.
};

/// Checks the password against the record of the user, whose name is compared as it is; an empty
/// one is nobody's. Without DataUsername, and where no name is asked for and Username is empty, the
/// current record's counts. A record without a password takes none. The record that is current
/// stays so, nothing is filtered, and one that is being edited goes on being edited. How long a
/// check takes does not tell whether there is such a user.
///
/// OnCheck is asked last, and may decide otherwise. For pkChange the new password is written into
/// the record and posted, which moves to the record and back again.
class QEL_API TQELDBPasswordDlg : public TQELPasswordDlg {
 public:
  explicit TQELDBPasswordDlg(vcl::TComponent* owner);
  ~TQELDBPasswordDlg() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What a field is to hold of the password, as PasswordFormat says.
  std::string StoredText(std::string_view password) const;

  vcl::TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set with the passwords, which is not owned. Without one that is open
  /// Execute shows nothing, and LastError says so.
  void SetDataSource(vcl::TDataSource* source);
  const std::string& DataUsername() const { return FDataUsername; }
  /// The field with the names of the users.
  void SetDataUsername(const std::string& name) { FDataUsername = name; }
  const std::string& Datapassword() const { return FDatapassword; }
  /// The field with what is stored of the passwords.
  void SetDatapassword(const std::string& name) { FDatapassword = name; }
  TQELPasswordFormat PasswordFormat() const { return FPasswordFormat; }
  /// What the field holds of a password.
  void SetPasswordFormat(TQELPasswordFormat format) { FPasswordFormat = format; }
  const std::string& StoreFailedText() const { return FStoreFailedText; }
  /// What is said when the new password could not be written.
  void SetStoreFailedText(const std::string& text) { FStoreFailedText = text; }

 protected:
  std::string Obstacle() const override;
  bool ChecksItself() const override { return true; }
  bool Verified() override;
  bool KeepNew(std::string& error) override;

 private:
  bool TakesCurrent() const;
  std::string Stored() const;
  void Write(vcl::TDataSet& data);

  vcl::TDataLink FLink;
  std::string FDataUsername;
  std::string FDatapassword;
  TQELPasswordFormat FPasswordFormat = pfPBKDF2;
  std::string FStoreFailedText = "The new password could not be stored.";
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELPasswordFormat>{"TQELPasswordFormat",
                                                                       "pfPBKDF2 pfPlain"};
