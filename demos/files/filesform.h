// TFilesForm: two sides with files, and what can be done with them.
#pragma once

#include <string>
#include <vector>

#include "demos/files/pane.h"
#include "qel/shell/Qeltfileexecute.h"
#include "qel/shell/Qeltfileoperator.h"
#include "qel/shell/Qeltfileproperties.h"
#include "qel/shell/Qeltlogfile.h"
#include "vcl/actions/action.h"
#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace files {

class TFilesForm : public vcl::TForm {
 public:
  explicit TFilesForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows the folders on the left and on the right.
  void Open(const std::string& left, const std::string& right);

 private:
  // What the form file fills.
  TPane* LeftPane = nullptr;
  TPane* RightPane = nullptr;
  vcl::TAction* HiddenAction = nullptr;
  qel::TQELFileOperator* Work = nullptr;
  qel::TQELFileExecute* Start = nullptr;
  qel::TQELFileExecute* Command = nullptr;
  qel::TQELFileProperties* Sheet = nullptr;
  qel::TQELLogFile* Log = nullptr;
  vcl::TEdit* CommandEdit = nullptr;
  vcl::TMemo* OutputMemo = nullptr;

  // The commands, filesform_commands.cpp.
  void OpenExecute(vcl::TObject*);
  void ShowExecute(vcl::TObject*);
  void CopyExecute(vcl::TObject*);
  void MoveExecute(vcl::TObject*);
  void NewFolderExecute(vcl::TObject*);
  void DeleteExecute(vcl::TObject*);
  void RenameExecute(vcl::TObject*);
  void PropertiesExecute(vcl::TObject*);
  void ExitExecute(vcl::TObject*);
  void SearchExecute(vcl::TObject*);
  void ReplaceExecute(vcl::TObject*);
  void SameFolderExecute(vcl::TObject*);
  void SwapExecute(vcl::TObject*);
  void RefreshExecute(vcl::TObject*);
  void HiddenExecute(vcl::TObject*);
  void CommandKeyDown(vcl::TObject*, std::uint16_t& key, vcl::TShiftState shift);
  void CommandOutput(vcl::TObject*, const std::string& line);
  void CommandFinished(vcl::TObject*);
  void WorkError(vcl::TObject*, const std::string& path, const std::string& error,
                 qel::TQELFileFailure& action);
  void FormResize(vcl::TObject*);
  void FormShow(vcl::TObject*);
  void MiddleMoved(vcl::TObject*);

  TPane& Active() const { return *FActive; }
  TPane& Other() const { return FActive == LeftPane ? *RightPane : *LeftPane; }
  void Transfer(qel::TQELFileOperatorOperation operation);
  void OpenFile(const std::string& path);

  TPane* FActive = nullptr;
  double FLeftShare = 0;  // Of the form's inside.
};

}  // namespace files
