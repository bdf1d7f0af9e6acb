// TPane: the drive, the folder's name, the tree and the view of one side.
#include "demos/files/pane.h"

#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace files {

using namespace vcl;

const TClass& TPane::Class() {
  using T = TPane;
  static const TClass info =
      Describe<T, TFrame>("files::TPane", "demos/files/pane.h",
                          {
                              Field<&T::View>("View"),
                              Field<&T::DriveCombo>("DriveCombo"),
                              Field<&T::PathEdit>("PathEdit"),
                              Field<&T::Tree>("Tree"),
                              Field<&T::TopPanel>("TopPanel"),
                              Field<&T::StatusLabel>("StatusLabel"),
                              Method<&T::DriveClick>("DriveClick"),
                              Method<&T::PathKeyDown>("PathKeyDown"),
                              Method<&T::PathSelect>("PathSelect"),
                              Method<&T::PartEnter>("PartEnter"),
                              Method<&T::TopResize>("TopResize"),
                              Method<&T::ViewChange>("ViewChange"),
                              Method<&T::ViewFolderChange>("ViewFolderChange"),
                              Method<&T::ViewOpenFile>("ViewOpenFile"),
                          });
  return info;
}

TPane::TPane(TComponent* owner) : TFrame(owner) {
  LoadFrame();
  // There is less room than a view alone would have.
  constexpr int widths[] = {130, 60, 80, 120};
  for (int i = 0; i < View->Columns()->Count(); ++i) {
    View->Columns()->Items(i)->SetWidth(ScaledPixels(widths[i]));
  }
}
TPane::~TPane() { AnnounceEnd(); }

std::string TPane::FocusedPath() const {
  const TListItem* item = View->ItemFocused();
  return item ? View->Folder() + View->NameOf(item->Index()) : std::string();
}

void TPane::DriveClick(TObject*) { View->GoTo(DriveCombo->Drive()); }

void TPane::PathKeyDown(TObject*, std::uint16_t& key, TShiftState) {
  if (key != VK_RETURN || PathEdit->DroppedDown()) return;
  key = 0;
  View->GoTo(PathEdit->Text());
  View->SetFocus();
}

void TPane::PathSelect(TObject*) {
  if (DirectoryExists(PathEdit->Text())) View->GoTo(PathEdit->Text());
}

void TPane::PartEnter(TObject*) {
  if (OnActive) OnActive(*this);
}

void TPane::TopResize(TObject*) {
  PathEdit->SetWidth(TopPanel->ClientWidth() - PathEdit->Left() - ScaledPixels(2));
}

void TPane::ViewChange(TObject*, TListItem*, TItemChange) { ShowStatus(); }

void TPane::ViewFolderChange(TObject*) {
  PathEdit->SetText(View->Folder());
  DriveCombo->SetDrive(View->Folder());
  ShowStatus();
}

void TPane::ViewOpenFile(TObject*, const std::string& path, bool& handled) {
  handled = OnOpen != nullptr;
  if (OnOpen) OnOpen(path);
}

void TPane::ShowStatus() {
  const int selected = View->SelCount();
  const std::string all = Concat(std::to_string(View->Items()->Count()), " files and folders");
  StatusLabel->SetCaption(
      selected < 2 ? "  " + all : Concat("  ", all, ", ", std::to_string(selected), " selected"));
}

}  // namespace files
