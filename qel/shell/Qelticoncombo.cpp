// TQELIconCombo and TQELIconListbox: the two faces of a file's icons.
#include "qel/shell/Qelticoncombo.h"

#include "qel/shell/private/iconlines.h"
#include "qel/shell/private/listproperties.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELIconCombo::Class() {
  using T = TQELIconCombo;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomComboBox>(
      "qel::TQELIconCombo", "qel/shell/Qelticoncombo.h",
      {
          ReadOnly<&T::About>("About"),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::IconSize, &T::SetIconSize>("IconSize").Default(32),
          Property<&T::IconIndex, &T::SetIconIndex>("ItemIndex").Default(0),
          Inherit(ComboProperties),
          Inherit("OnChange"),
      });
  return info;
}

TQELIconCombo::TQELIconCombo(vcl::TComponent* owner)
    : TCustomComboBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto icons = std::make_unique<TQELIconLines>(*this);
  FIcons = icons.get();
  SetLook(std::move(icons));
  TCustomComboBox::SetStyle(vcl::csOwnerDrawFixed);
  FIcons->Fill();
  HearOnlyAsked<TQELIconCombo>();
}

TQELIconCombo::~TQELIconCombo() { AnnounceEnd(); }

const std::string& TQELIconCombo::Filename() const { return FIcons->Filename(); }
void TQELIconCombo::SetFilename(const std::string& fileName) { FIcons->SetFilename(fileName); }
int TQELIconCombo::IconSize() const { return FIcons->IconSize(); }
void TQELIconCombo::SetIconSize(int size) { FIcons->SetIconSize(size); }
int TQELIconCombo::IconIndex() const { return FIcons->Index(); }
void TQELIconCombo::SetIconIndex(int index) { FIcons->SetIndex(index); }
const vcl::TIcon& TQELIconCombo::Icon() { return FIcons->Icon(); }

void TQELIconCombo::Change() {
  FIcons->TakeSelected();
  TCustomComboBox::Change();
}

void TQELIconCombo::ChangeScale(int m, int d) {
  const vcl::TWatch watch(this);
  TCustomComboBox::ChangeScale(m, d);
  if (!watch.Gone()) FIcons->Fill();
}

void TQELIconCombo::Loaded() {
  TCustomComboBox::Loaded();
  FIcons->Fill();
}

const vcl::TClass& TQELIconListbox::Class() {
  using T = TQELIconListbox;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomListBox>(
      "qel::TQELIconListbox", "qel/shell/Qelticoncombo.h",
      {
          ReadOnly<&T::About>("About"),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::IconSize, &T::SetIconSize>("IconSize").Default(32),
          Property<&T::IconIndex, &T::SetIconIndex>("ItemIndex").Default(0),
          Inherit(ListBoxProperties),
      });
  return info;
}

TQELIconListbox::TQELIconListbox(vcl::TComponent* owner)
    : TCustomListBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto icons = std::make_unique<TQELIconLines>(*this);
  FIcons = icons.get();
  SetLook(std::move(icons));
  TCustomListBox::SetStyle(vcl::lbOwnerDrawFixed);
  FIcons->Fill();
  HearOnlyAsked<TQELIconListbox>();
}

TQELIconListbox::~TQELIconListbox() { AnnounceEnd(); }

const std::string& TQELIconListbox::Filename() const { return FIcons->Filename(); }
void TQELIconListbox::SetFilename(const std::string& fileName) { FIcons->SetFilename(fileName); }
int TQELIconListbox::IconSize() const { return FIcons->IconSize(); }
void TQELIconListbox::SetIconSize(int size) { FIcons->SetIconSize(size); }
int TQELIconListbox::IconIndex() const { return FIcons->Index(); }
void TQELIconListbox::SetIconIndex(int index) { FIcons->SetIndex(index); }
const vcl::TIcon& TQELIconListbox::Icon() { return FIcons->Icon(); }

void TQELIconListbox::Click() {
  FIcons->TakeSelected();
  TCustomListBox::Click();
}

void TQELIconListbox::ChangeScale(int m, int d) {
  const vcl::TWatch watch(this);
  TCustomListBox::ChangeScale(m, d);
  if (!watch.Gone()) FIcons->Fill();
}

void TQELIconListbox::Loaded() {
  TCustomListBox::Loaded();
  FIcons->Fill();
}

}  // namespace qel
