// TQELLanguageCombo: languages as the lines of a combo box.
#include "qel/controls/Qeltlanguagecombo.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELLanguageCombo::Class() {
  using T = TQELLanguageCombo;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomComboBox>(
      "qel::TQELLanguageCombo", "qel/controls/Qeltlanguagecombo.h",
      {
          ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Property<&T::Which, &T::SetWhich>("Which").Default(lwInstalled),
          Property<&T::Display, &T::SetDisplay>("Display").Default(ldNative),
          Property<&T::Locale, &T::SetLocale>("Locale"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("DropDownCount"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ItemHeight"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnCloseUp"),
          Inherit(DragEvents),
          Inherit("OnDropDown"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELLanguageCombo::TQELLanguageCombo(vcl::TComponent* owner)
    : TCustomComboBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto languages = std::make_unique<TQELLanguageLines>(*this);
  FLanguages = languages.get();
  SetLook(std::move(languages));
  TCustomComboBox::SetStyle(vcl::csOwnerDrawFixed);
  FLanguages->Fill();
  HearOnlyAsked<TQELLanguageCombo>();
}

TQELLanguageCombo::~TQELLanguageCombo() { AnnounceEnd(); }

int TQELLanguageCombo::LanguageID() const {
  return QELLanguageID(Locale().empty() ? QELUserLocale() : Locale());
}

void TQELLanguageCombo::Click() {
  FLanguages->TakeSelected();
  TCustomComboBox::Click();
}

}  // namespace qel
