// TPane: one side of the file manager.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "qel/shell/Qeltdrivecombo.h"
#include "qel/shell/Qeltexplorertree.h"
#include "qel/shell/Qeltexplorerview.h"
#include "qel/shell/Qeltfilelookup.h"
#include "vcl/forms/frames.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace files {

/// The frame of pane.dfm: a folder's files beside the tree of folders, with the drive and the
/// folder's name above them, and what is selected below.
class TPane : public vcl::TFrame {
 public:
  explicit TPane(vcl::TComponent* owner);
  ~TPane() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  qel::TQELExplorerView* View = nullptr;
  /// The user has come to this side.
  std::function<void(TPane&)> OnActive;
  /// A file is to be shown.
  std::function<void(const std::string&)> OnOpen;

  /// The file or folder that the keyboard is at, with its folder; empty for none.
  std::string FocusedPath() const;

 private:
  // What else the form file fills.
  qel::TQELDriveCombo* DriveCombo = nullptr;
  qel::TQELFileLookup* PathEdit = nullptr;
  qel::TQELExplorerTree* Tree = nullptr;
  vcl::TPanel* TopPanel = nullptr;
  vcl::TLabel* StatusLabel = nullptr;

  void DriveClick(vcl::TObject*);
  void PathKeyDown(vcl::TObject*, std::uint16_t& key, vcl::TShiftState shift);
  void PathSelect(vcl::TObject*);
  void PartEnter(vcl::TObject*);
  void TopResize(vcl::TObject*);
  void ViewChange(vcl::TObject*, vcl::TListItem* item, vcl::TItemChange change);
  void ViewFolderChange(vcl::TObject*);
  void ViewOpenFile(vcl::TObject*, const std::string& path, bool& handled);
  void ShowStatus();
};

}  // namespace files
