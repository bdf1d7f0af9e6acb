// The actions of files, of the program's end, and of its help.
#pragma once

#include <string>

#include "vcl/dialogs/filedialogs.h"
#include "vcl/stdactions/standardaction.h"

namespace vcl {

/// The base of the actions that ask for a file. They are disabled without a dialog.
class VCL_API TFileDialogAction : public TStandardAction {
 public:
  ~TFileDialogAction() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool HandlesTarget(const TComponent& target) const override;
  void UpdateTarget(TComponent* target) override { SetEnabled(target != nullptr); }
  void ExecuteTarget(TComponent& target) override;

  /// Comes before the dialog, which the handler may prepare.
  TNotifyEvent BeforeExecute;
  /// The user has chosen a file, which is the dialog's FileName, resp. has not.
  TNotifyEvent OnAccept, OnCancel;

 protected:
  using TStandardAction::TStandardAction;
  TComponent* FixedTarget() const override { return FDialog; }
  void Notification(TComponent* component, TOperation operation) override;
  TOpenDialog* FileDialog() const { return FDialog; }
  void SetFileDialog(TOpenDialog* dialog);

 private:
  TOpenDialog* FDialog = nullptr;
};

/// Asks for a file to open.
class VCL_API TFileOpen : public TFileDialogAction {
 public:
  explicit TFileOpen(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The dialog that asks for the file; null disables the action.
  TOpenDialog* Dialog() const { return FileDialog(); }
  void SetDialog(TOpenDialog* dialog) { SetFileDialog(dialog); }
};

/// Asks for the file to save in.
class VCL_API TFileSaveAs : public TFileDialogAction {
 public:
  explicit TFileSaveAs(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The dialog that asks for the file; null disables the action.
  TSaveDialog* Dialog() const { return dynamic_cast<TSaveDialog*>(FileDialog()); }
  void SetDialog(TSaveDialog* dialog) { SetFileDialog(dialog); }
};

/// Closes the main form, which ends the program.
class VCL_API TFileExit : public TStandardAction {
 public:
  explicit TFileExit(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool HandlesTarget(const TComponent& target) const override;
  void UpdateTarget(TComponent* target) override { SetEnabled(target != nullptr); }
  void ExecuteTarget(TComponent& target) override;

 protected:
  TComponent* FixedTarget() const override;
};

/// Shows a document with the program that the system has for it. It is disabled without a name.
class VCL_API THelpContents : public TStandardAction {
 public:
  explicit THelpContents(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool HandlesTarget(const TComponent& target) const override;
  void UpdateTarget(TComponent* target) override { SetEnabled(target != nullptr); }
  /// Raises EInOutError with the name when the system can't show it.
  void ExecuteTarget(TComponent& target) override;

  const std::string& FileName() const { return FFileName; }
  /// A file or an address.
  void SetFileName(const std::string& fileName) { FFileName = fileName; }

 protected:
  TComponent* FixedTarget() const override;

 private:
  std::string FFileName;
};

}  // namespace vcl
