// TGridPanel: its rows, columns and places, and who stands where.
#include "vcl/stdctrls/gridpanel.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

// Items.

namespace {
constexpr double MostSize = 1e6;  // More than any screen has, and few enough to be added up.
}

const TClass& TCellItem::Class() {
  using T = TCellItem;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TCellItem", "vcl/stdctrls/extctrls.h",
      {
          Property<&T::SizeStyle, &T::SetSizeStyle>("SizeStyle").Default(ssPercent),
          Property<&T::Value, &T::SetValue>("Value"),
      });
  return info;
}

void TCellItem::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TCellItem*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FSizeStyle = other->FSizeStyle;
  FValue = other->FValue;
  Changed(false);
}

void TCellItem::SetSizeStyle(TSizeStyle style) {
  if (style == FSizeStyle) return;
  FSizeStyle = style;
  Changed(false);
}

void TCellItem::SetValue(double value) {
  if (!(value >= 0 && value <= MostSize)) {
    throw EArgumentOutOfRangeException(
        Concat("A row or column cannot have the size ", std::to_string(value)));
  }
  if (value == FValue) return;
  FValue = value;
  Changed(false);
}

const TClass& TControlItem::Class() {
  using T = TControlItem;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TControlItem", "vcl/stdctrls/extctrls.h",
      {
          Property<&T::Column, &T::SetColumn>("Column"),
          Property<&T::ColumnSpan, &T::SetColumnSpan>("ColumnSpan").Default(1),
          Property<&T::Control, &T::SetControl>("Control"),
          Property<&T::Row, &T::SetRow>("Row"),
          Property<&T::RowSpan, &T::SetRowSpan>("RowSpan").Default(1),
      });
  return info;
}

void TControlItem::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TControlItem*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FControl = other->FControl;
  FColumn = other->FColumn;
  FRow = other->FRow;
  FColumnSpan = other->FColumnSpan;
  FRowSpan = other->FRowSpan;
  Changed(false);
}

std::string TControlItem::DisplayName() const {
  return FControl ? FControl->Name() : TCollectionItem::DisplayName();
}

void TControlItem::SetControl(TControl* control) {
  if (control == FControl) return;
  FControl = control;
  Changed(false);
}

void TControlItem::Set(int& field, int value, int least, const char* what) {
  if (value < least) {
    throw EArgumentOutOfRangeException(
        Concat("A cell of a grid cannot have the ", what, " ", std::to_string(value)));
  }
  if (value == field) return;
  field = value;
  Changed(false);
}

// The panel.

const TClass& TGridPanel::Class() {
  using T = TGridPanel;
  static const TClass info = Describe<T, TCustomPanel>(
      "vcl::TGridPanel", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align"),
          Inherit("Alignment"),
          Inherit(PanelLook),
          Property<&T::ColumnCollection, &T::SetColumnCollection>("ColumnCollection"),
          Property<&T::ControlCollection, &T::SetControlCollection>("ControlCollection"),
          Property<&T::ExpandStyle, &T::SetExpandStyle>("ExpandStyle").Default(emAddRows),
          Inherit(ContainerProperties),
          Property<&T::RowCollection, &T::SetRowCollection>("RowCollection"),
          Inherit(ContainerEvents),
      });
  return info;
}

TGridPanel::TGridPanel(TComponent* owner)
    : TCustomPanel(owner),
      FColumns(std::make_unique<TCollection>(TCellItem::Class())),
      FRows(std::make_unique<TCollection>(TCellItem::Class())),
      FPlaces(std::make_unique<TCollection>(TControlItem::Class())) {
  for (TCollection* each : {FColumns.get(), FRows.get()}) {
    each->Add();
    each->Add();
  }
  for (TCollection* each : {FColumns.get(), FRows.get(), FPlaces.get()}) {
    each->OnUpdate = [this](TCollectionItem*) { Changed(); };
  }
}

TGridPanel::~TGridPanel() {
  AnnounceEnd();
  for (TCollection* each : {FColumns.get(), FRows.get(), FPlaces.get()}) each->OnUpdate = nullptr;
}

void TGridPanel::Changed() {
  if (Loading() || Destroying()) return;
  Realign();
  if (Designing()) Invalidate();
}

/// What the file gives no place, or a place of nothing, is put right.
void TGridPanel::Loaded() {
  TCustomPanel::Loaded();
  for (int i = FPlaces->Count() - 1; i >= 0; --i) {
    const TControl* control = Places(i)->Control();
    if (!control || control->Parent() != this) FPlaces->Delete(i);
  }
  for (int i = 0; i < ControlCount(); ++i) {
    if (!PlaceOf(Controls(i))) AddPlace(Controls(i));
  }
  Realign();
}

void TGridPanel::Dispatch(TMessage& message) {
  if (message.Msg == CM_CONTROLLISTCHANGE) {
    auto* control = reinterpret_cast<TControl*>(message.LParam);
    TControlItem* const place = PlaceOf(control);
    if (message.WParam && !place && !Loading()) AddPlace(control);
    if (!message.WParam && place) FPlaces->Delete(place->Index());
  }
  TCustomPanel::Dispatch(message);
}

// Places.

TControlItem* TGridPanel::PlaceOf(const TControl* control) const {
  for (int i = 0; i < FPlaces->Count(); ++i) {
    if (Places(i)->Control() == control) return Places(i);
  }
  return nullptr;
}

TControl* TGridPanel::ControlIn(int column, int row) const {
  const auto covers = [](int first, int span, int at) { return first <= at && at - first < span; };
  for (int i = 0; i < FPlaces->Count(); ++i) {
    const TControlItem& each = *Places(i);
    if (each.FControl && covers(each.FColumn, each.FColumnSpan, column) &&
        covers(each.FRow, each.FRowSpan, row)) {
      return each.FControl;
    }
  }
  return nullptr;
}

void TGridPanel::AddPlace(TControl* control) {
  const TRect bounds = control->BoundsRect();
  const TUpdating updating(*FPlaces, this);
  auto* place = static_cast<TControlItem*>(FPlaces->Add());
  const TPoint middle{bounds.Left + bounds.Width() / 2, bounds.Top + bounds.Height() / 2};
  if (!Designing() || !TakeCellAt(*place, middle)) TakeFreeCell(*place);
  place->FControl = control;
}

bool TGridPanel::TakeCellAt(TControlItem& place, TPoint point) {
  for (int row = 0; row < FRows->Count(); ++row) {
    for (int column = 0; column < FColumns->Count(); ++column) {
      if (!CellRect(column, row).Contains(point) || ControlIn(column, row)) continue;
      place.FColumn = column;
      place.FRow = row;
      return true;
    }
  }
  return false;
}

void TGridPanel::TakeFreeCell(TControlItem& place) {
  for (int row = 0; row < FRows->Count(); ++row) {
    for (int column = 0; column < FColumns->Count(); ++column) {
      if (ControlIn(column, row)) continue;
      place.FColumn = column;
      place.FRow = row;
      return;
    }
  }
  // Behind the last one; a grid that does not grow has no such cell.
  const bool sideways = FExpandStyle == emAddColumns;
  place.FColumn = sideways ? FColumns->Count() : 0;
  place.FRow = sideways ? 0 : FRows->Count();
  if (FExpandStyle == emAddRows) FRows->Add();
  if (FExpandStyle == emAddColumns) FColumns->Add();
}

// What a designer shows.

void TGridPanel::Paint() {
  TCustomPanel::Paint();
  if (!Designing()) return;
  Canvas()->Pen()->SetStyle(psDot);
  Canvas()->Pen()->SetColor(clBtnShadow);
  Canvas()->Brush()->SetStyle(bsClear);
  for (int row = 0; row < FRows->Count(); ++row) {
    for (int column = 0; column < FColumns->Count(); ++column) {
      Canvas()->Rectangle(CellRect(column, row));
    }
  }
}

}  // namespace vcl
