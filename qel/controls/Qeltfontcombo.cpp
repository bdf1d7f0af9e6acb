// TQELFontCombo and TQELFontBox: when a typeface counts as used.
#include "qel/controls/Qeltfontcombo.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELFontCombo::Class() {
  using T = TQELFontCombo;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomComboBox>(
      "qel::TQELFontCombo", "qel/controls/Qeltfontcombo.h",
      {
          ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Property<&T::Kinds, &T::SetKinds>("Kinds").Default(AllFontKinds),
          Property<&T::FixedOnly, &T::SetFixedOnly>("FixedOnly").Default(false),
          Property<&T::Charset, &T::SetCharset>("Charset").Default(AnyCharset),
          Property<&T::Preview, &T::SetPreview>("Preview").Default(true),
          Property<&T::RecentCount, &T::SetRecentCount>("RecentCount").Default(5),
          Property<&T::FontName, &T::SetFontName>("FontName").Type("TFontName"),
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

TQELFontCombo::TQELFontCombo(vcl::TComponent* owner)
    : TCustomComboBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto fonts = std::make_unique<TQELFontLines>(*this);
  FFonts = fonts.get();
  SetLook(std::move(fonts));
  TCustomComboBox::SetStyle(vcl::csOwnerDrawFixed);
  FFonts->Fill();
  HearOnlyAsked<TQELFontCombo>();
}

TQELFontCombo::~TQELFontCombo() { AnnounceEnd(); }

void TQELFontCombo::DropDown() {
  FMoved = FClosed = false;
  TCustomComboBox::DropDown();
}

void TQELFontCombo::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  FClosed = false;
  TCustomComboBox::KeyDown(key, shift);
}

/// The lines stay where they are while the user goes through them. The window tells of its list's
/// end before it tells what a click has chosen there.
void TQELFontCombo::Change() {
  FMoved = true;
  const vcl::TWatch watch(this);
  TCustomComboBox::Change();
  if (!watch.Gone() && std::exchange(FClosed, false)) FFonts->Use();
}

void TQELFontCombo::CloseUp() {
  FClosed = !FMoved;
  const vcl::TWatch watch(this);
  TCustomComboBox::CloseUp();
  if (!watch.Gone() && std::exchange(FMoved, false)) FFonts->Use();
}

const vcl::TClass& TQELFontBox::Class() {
  using T = TQELFontBox;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomListBox>(
      "qel::TQELFontBox", "qel/controls/Qeltfontcombo.h",
      {
          ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Inherit("BorderStyle"),
          Property<&T::Kinds, &T::SetKinds>("Kinds").Default(AllFontKinds),
          Property<&T::FixedOnly, &T::SetFixedOnly>("FixedOnly").Default(false),
          Property<&T::Charset, &T::SetCharset>("Charset").Default(AnyCharset),
          Property<&T::Preview, &T::SetPreview>("Preview").Default(true),
          Property<&T::RecentCount, &T::SetRecentCount>("RecentCount").Default(5),
          Property<&T::FontName, &T::SetFontName>("FontName").Type("TFontName"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("IntegralHeight"),
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
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELFontBox::TQELFontBox(vcl::TComponent* owner)
    : TCustomListBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto fonts = std::make_unique<TQELFontLines>(*this);
  FFonts = fonts.get();
  SetLook(std::move(fonts));
  TCustomListBox::SetStyle(vcl::lbOwnerDrawFixed);
  FFonts->Fill();
  HearOnlyAsked<TQELFontBox>();
}

TQELFontBox::~TQELFontBox() { AnnounceEnd(); }

void TQELFontBox::DblClick() {
  const vcl::TWatch watch(this);
  TCustomListBox::DblClick();
  if (!watch.Gone()) FFonts->Use();
}

void TQELFontBox::KeyPress(char32_t& key) {
  const vcl::TWatch watch(this);
  TCustomListBox::KeyPress(key);
  if (!watch.Gone() && key == U'\r') FFonts->Use();
}

}  // namespace qel
