// TViewerForm: the view, and what is looked for in it.
#include "demos/files/viewerform.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace files {

using namespace vcl;

const TClass& TViewerForm::Class() {
  using T = TViewerForm;
  static const TClass info = Describe<T, TForm>("files::TViewerForm", "demos/files/viewerform.h",
                                                {
                                                    Field<&T::View>("View"),
                                                    Field<&T::FindEdit>("FindEdit"),
                                                    Field<&T::WrapCheck>("WrapCheck"),
                                                    Field<&T::FollowCheck>("FollowCheck"),
                                                    Method<&T::FindKeyDown>("FindKeyDown"),
                                                    Method<&T::CheckClick>("CheckClick"),
                                                    Method<&T::FormKeyDown>("FormKeyDown"),
                                                    Method<&T::FormClose>("FormClose"),
                                                });
  return info;
}

TViewerForm::TViewerForm(TComponent* owner) : TForm(owner) { LoadForm(); }

void TViewerForm::Open(const std::string& fileName) {
  View->Open(fileName);
  SetCaption(fileName);
}

void TViewerForm::FindKeyDown(TObject*, std::uint16_t& key, TShiftState shift) {
  if (key != VK_RETURN || FindEdit->Text().empty()) return;
  key = 0;
  if (!View->FindText(FindEdit->Text(), false, shift.Has(ssShift))) ::MessageBeep(MB_ICONWARNING);
}

void TViewerForm::CheckClick(TObject*) {
  View->SetWordWrap(WrapCheck->Checked());
  View->SetFollow(FollowCheck->Checked());
}

void TViewerForm::FormKeyDown(TObject*, std::uint16_t& key, TShiftState shift) {
  if (key == VK_ESCAPE) Close();
  if (key == 'F' && shift == TShiftState{ssCtrl}) FindEdit->SetFocus();
}

void TViewerForm::FormClose(TObject*, TCloseAction& action) { action = caFree; }

}  // namespace files
