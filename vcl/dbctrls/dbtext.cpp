// TDBText: what it publishes and shows.
#include "vcl/dbctrls/dbtext.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TDBText::Class() {
  using T = TDBText;
  static const TClass info = Describe<T, TCustomLabel>(
      "vcl::TDBText", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Inherit("Alignment"),
          Inherit("AutoSize").Default(false),
          Inherit("Color"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("Layout"),
          Inherit("ParentColor"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("Transparent"),
          Inherit("Visible"),
          Inherit("WordWrap"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TDBText::TDBText(TComponent* owner) : TFieldControl(owner) {
  SetControlStyle(ControlStyle() - TControlStyle{csSetCaption});
  SetAutoSize(false);
  // An ampersand in a field is one.
  SetShowAccelChar(false);
}

void TDBText::SetName(const std::string& name) {
  TFieldControl::SetName(name);
  ShowNow();
}

void TDBText::ShowField() {
  const TField* const field = Field();
  const std::string text = field ? field->DisplayText() : Designing() ? Name() : std::string();
  if (text != Caption()) SetCaption(text);
}

}  // namespace vcl
