// TDesktopPage: the page of components over the screen, the clipboard, keys, mouse and session.
#pragma once

#include <string>

#include "qel/qel.h"
#include "vcl/forms/frames.h"
#include "vcl/vcl.h"

namespace gallery {

/// The frame of desktoppage.dfm.
class TDesktopPage : public vcl::TFrame {
 public:
  explicit TDesktopPage(vcl::TComponent* owner);
  ~TDesktopPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELClipboard* Clip = nullptr;
  qel::TQELScreenCanvas* Screen = nullptr;
  qel::TQELMouseController* Mouse = nullptr;
  qel::TQELSystemKeys* Keys = nullptr;
  qel::TQELScreenSaver* Saver = nullptr;
  qel::TQELWallPaper* Paper = nullptr;
  qel::TQELExitWindows* Ending = nullptr;
  qel::TQELCDTriggers* Drives = nullptr;
  qel::TQELApplication* Events = nullptr;
  qel::TQELIllegalAbort* Aborts = nullptr;
  vcl::TOpenDialog* PaperDialog = nullptr;
  vcl::TListBox* History = nullptr;
  vcl::TImage* Shot = nullptr;
  vcl::TCheckBox* KeepCheck = nullptr;
  vcl::TCheckBox* HideCheck = nullptr;
  vcl::TCheckBox* BlockCheck = nullptr;
  vcl::TCheckBox* DisplayCheck = nullptr;
  vcl::TLabel* KeyLabel = nullptr;
  vcl::TComboBox* GrowCombo = nullptr;
  vcl::TCheckBox* RegionCheck = nullptr;
  vcl::TMemo* Told = nullptr;

  void ClipChange(vcl::TObject*);
  void MouseIdle(vcl::TObject*);
  void KeysPress(vcl::TObject*, qel::TQELSystemKey* key);
  void KeysTaken(vcl::TObject*, qel::TQELSystemKey* key);
  void SaverStart(vcl::TObject*);
  void SaverStop(vcl::TObject*);
  void DriveInsert(vcl::TObject*, char drive);
  void DriveRemove(vcl::TObject*, char drive);
  void AbortsIllegalAbort(vcl::TObject*, vcl::TDateTime started, int process);
  void EventsActivate(vcl::TObject*);
  void EventsDeactivate(vcl::TObject*);
  void EventsDisplayChange(vcl::TObject*);
  void EventsSettingsChange(vcl::TObject*, const std::string& section);
  void HistoryDblClick(vcl::TObject*);
  void CaptureClick(vcl::TObject*);
  void DrawClick(vcl::TObject*);
  void RestoreClick(vcl::TObject*);
  void SnapClick(vcl::TObject*);
  void CheckClick(vcl::TObject*);
  void GrowClick(vcl::TObject*);
  void PaperClick(vcl::TObject*);
  void BackClick(vcl::TObject*);
  void LockClick(vcl::TObject*);
  void LogOffClick(vcl::TObject*);
  void TrayClick(vcl::TObject*);
  void EndSession(qel::TQELExitWindowsAction action);
  void Tell(const std::string& text);

  int FPressed = 0;
};

}  // namespace gallery
