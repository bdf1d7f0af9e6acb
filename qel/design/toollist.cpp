// The form that shows a list and the details of what is chosen in it.
#include "qel/design/toollist.h"

#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/listbox.h"
#include "vcl/stdctrls/memo.h"

namespace qel {

using namespace vcl;

namespace {

class TQELToolListForm : public TForm {
 public:
  explicit TQELToolListForm(const TQELToolList& list) : TForm(nullptr), FList(list) {
    LoadForm(ModuleOf(&Class()));
    SetCaption(list.Caption);
    for (const std::string& line : list.Lines) Lines->Items()->Add(line);
    ActionButton->SetCaption(list.Action);
    ActionButton->SetVisible(!list.Action.empty());
    SwitchBox->SetCaption(list.Switch);
    SwitchBox->SetVisible(!list.Switch.empty());
    SwitchBox->SetChecked(list.Switched);
    SwitchBox->OnClick = {this, &TQELToolListForm::SwitchClick};
    Lines->SetItemIndex(list.Lines.empty() ? -1 : list.Chosen);
    LineClick(this);
  }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 private:
  void LineClick(TObject*) {
    const int index = Lines->ItemIndex();
    ActionButton->SetEnabled(index >= 0);
    Details->Lines()->SetText(index < 0 ? "There is nothing to show." : FList.Details(index));
  }
  void ActionClick(TObject*) {
    FList.Act(Lines->ItemIndex());
    SetModalResult(mrOk);
  }

  void SwitchClick(TObject*) { FList.OnSwitch(SwitchBox->Checked()); }

  const TQELToolList& FList;
  TListBox* Lines = nullptr;
  TMemo* Details = nullptr;
  TButton* ActionButton = nullptr;
  TCheckBox* SwitchBox = nullptr;
};

const TClass& TQELToolListForm::Class() {
  using T = TQELToolListForm;
  static const TClass info = Describe<T, TForm>("qel::TQELToolListForm", "qel/design/toollist.h",
                                                {
                                                    Field<&T::Lines>("Lines"),
                                                    Field<&T::Details>("Details"),
                                                    Field<&T::ActionButton>("ActionButton"),
                                                    Field<&T::SwitchBox>("SwitchBox"),
                                                    Method<&T::LineClick>("LineClick"),
                                                    Method<&T::ActionClick>("ActionClick"),
                                                });
  return info;
}

}  // namespace

void ShowToolList(const TQELToolList& list) { TQELToolListForm(list).ShowModal(); }

}  // namespace qel
