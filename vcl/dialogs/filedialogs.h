// TOpenDialog and TSaveDialog: the user chooses files.
#pragma once

#include <memory>
#include <string>

#include "vcl/dialogs/commondialog.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/strings.h"

namespace vcl {

/// How a file may be chosen; see the system's OFN_... flags of the same names.
enum TOpenOption {
  ofReadOnly,
  ofOverwritePrompt,
  ofHideReadOnly,
  ofNoChangeDir,
  ofNoValidate,
  ofAllowMultiSelect,
  ofExtensionDifferent,
  ofPathMustExist,
  ofFileMustExist,
  ofCreatePrompt,
  ofShareAware,
  ofNoReadOnlyReturn,
  ofNoTestFileCreate,
  ofNoNetworkButton,
  ofNoDereferenceLinks,
  ofEnableSizing,
  ofDontAddToRecent,
  ofForceShowHidden
};
template <>
inline constexpr TEnumText EnumText<TOpenOption>{
    "TOpenOption",
    "ofReadOnly ofOverwritePrompt ofHideReadOnly ofNoChangeDir ofNoValidate ofAllowMultiSelect "
    "ofExtensionDifferent ofPathMustExist ofFileMustExist ofCreatePrompt ofShareAware "
    "ofNoReadOnlyReturn ofNoTestFileCreate ofNoNetworkButton ofNoDereferenceLinks ofEnableSizing "
    "ofDontAddToRecent ofForceShowHidden",
    "TOpenOptions"};
using TOpenOptions = TSet<TOpenOption>;

/// The dialog in which a file to open is chosen (GetOpenFileNameW).
class VCL_API TOpenDialog : public TCommonDialog {
 public:
  explicit TOpenDialog(TComponent* owner);
  ~TOpenDialog() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// A name that is no file's is offered as an empty one.
  bool Execute() override;

  /// What is offered and then what is chosen, with its folder.
  const std::string& FileName() const { return FFileName; }
  void SetFileName(const std::string& fileName) { FFileName = fileName; }
  /// All files that were chosen, with their folder (ofAllowMultiSelect).
  TStrings* Files() const { return FFiles.get(); }
  const std::string& Filter() const { return FFilter; }
  /// Descriptions and patterns: "Text files|*.txt;*.text|All files|*.*".
  void SetFilter(const std::string& filter) { FFilter = filter; }
  int FilterIndex() const { return FFilterIndex; }
  /// Which of the filters is chosen, from 1.
  void SetFilterIndex(int index) { FFilterIndex = index; }
  const std::string& InitialDir() const { return FInitialDir; }
  /// The folder that the dialog begins in; empty leaves it to the system.
  void SetInitialDir(const std::string& folder) { FInitialDir = folder; }
  const std::string& DefaultExt() const { return FDefaultExt; }
  /// What a name that is typed without an extension gets, without a dot.
  void SetDefaultExt(const std::string& extension);
  const std::string& Title() const { return FTitle; }
  /// The dialog's caption; the system's own when empty.
  void SetTitle(const std::string& title) { FTitle = title; }
  /// How the dialog looks and what it accepts.
  TOpenOptions Options() const { return FOptions; }
  /// After Execute, ofReadOnly and ofExtensionDifferent say what the user has chosen.
  void SetOptions(TOpenOptions options) { FOptions = options; }

  /// The user agrees; FileName is what he has chosen. The handler may keep the dialog open.
  TCloseQueryEvent OnCanClose;
  /// The dialog shows another folder.
  TNotifyEvent OnFolderChange;
  /// Another file is selected in the dialog.
  TNotifyEvent OnSelectionChange;
  /// Another filter is chosen in the dialog.
  TNotifyEvent OnTypeChange;

 protected:
  using TFunction = BOOL(__stdcall*)(OPENFILENAMEW*);
  bool Choose(TFunction function);
  bool NeedsHook() const override;
  UINT_PTR HandleMessage(HWND window, UINT message, LPARAM lParam) override;

 private:
  void Take(const OPENFILENAMEW& data);
  UINT_PTR Agreed(HWND window, const OPENFILENAMEW& data);

  std::string FFileName, FFilter, FInitialDir, FDefaultExt, FTitle;
  std::unique_ptr<TStringList> FFiles;
  int FFilterIndex = 1;
  TOpenOptions FOptions{ofHideReadOnly, ofEnableSizing};
};

/// The dialog in which the name to save under is chosen (GetSaveFileNameW).
class VCL_API TSaveDialog : public TOpenDialog {
 public:
  explicit TSaveDialog(TComponent* owner) : TOpenDialog(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;
};

}  // namespace vcl
