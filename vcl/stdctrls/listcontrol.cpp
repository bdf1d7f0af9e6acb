// TCustomListControl: the items and their window, the selection, and items that are drawn by
// events.
#include "vcl/stdctrls/listcontrol.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/linelook.h"
#include "vcl/stdctrls/private/listlines.h"

namespace vcl {
namespace {

constexpr int MostItemHeight = 255;

TOwnerDrawState StateOf(UINT state) {
  static constexpr struct {
    UINT Bit;
    TOwnerDrawStateValue Value;
  } values[] = {{ODS_SELECTED, odSelected}, {ODS_GRAYED, odGrayed},
                {ODS_DISABLED, odDisabled}, {ODS_CHECKED, odChecked},
                {ODS_FOCUS, odFocused},     {ODS_COMBOBOXEDIT, odComboBoxEdit}};
  TOwnerDrawState set;
  for (const auto& each : values) {
    if (state & each.Bit) set.Include(each.Value);
  }
  return set;
}

}  // namespace

const TClass& TCustomListControl::Class() {
  using T = TCustomListControl;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCustomListControl", "vcl/stdctrls/stdctrls.h",
      {
          Property<&T::ItemHeight, &T::SetItemHeight>("ItemHeight").Default(16).Unpublished(),
          Property<&T::Sorted, &T::SetSorted>("Sorted").Default(false).Unpublished(),
          Inherit("ParentColor").Default(false).Unpublished(),
          Event<&T::OnDrawItem>("OnDrawItem").Unpublished(),
          Event<&T::OnMeasureItem>("OnMeasureItem").Unpublished(),
          Property<&T::Items, &T::SetItems>("Items").Unpublished(),
          Property<&T::ItemIndex, &T::SetItemIndex>("ItemIndex").Default(-1).Unpublished(),
          Inherit("TabStop").Default(true),
      });
  return info;
}

TCustomListControl::TCustomListControl(TComponent* owner, const TListMessages& messages)
    : TWinControl(owner),
      FMessages(messages),
      FItems(std::make_unique<TListLines>(*this, messages)),
      FCanvas(std::make_unique<TCanvas>()) {
  SetTabStop(true);
  SetParentColor(false);
}

TCustomListControl::~TCustomListControl() = default;

TStrings* TCustomListControl::Items() const { return FItems.get(); }
void TCustomListControl::SetItems(const TStrings* items) { FItems->Assign(items); }
TCanvas* TCustomListControl::Canvas() const { return FCanvas.get(); }
void TCustomListControl::Clear() { FItems->Clear(); }
void TCustomListControl::SetLook(std::unique_ptr<TLineLook> look) { FLook = std::move(look); }

int TCustomListControl::ItemIndex() const {
  return HandleAllocated() ? static_cast<int>(Send(*this, FMessages.GetSelected))
                           : FItems->FirstSelected();
}

void TCustomListControl::SetItemIndex(int index) {
  const bool known = index >= -1 && index < FItems->Count();
  if (!known && Loading()) {
    FLoadedIndex = index;
    return;
  }
  if (!known) {
    throw EListError(Concat("Item index ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(FItems->Count()), " items"));
  }
  FItems->SelectOnly(index);
  SendIfAllocated(*this, FMessages.SetSelected, static_cast<WPARAM>(index));
}

int TCustomListControl::ItemHeight() const { return FItemHeight; }

void TCustomListControl::SetItemHeight(int height) {
  if (height < 1 || height > MostItemHeight) {
    throw EArgumentOutOfRangeException(
        Concat("An item cannot be ", std::to_string(height), " pixels high"));
  }
  if (height == FItemHeight) return;
  FItemHeight = height;
  if (!OwnerDraw() || !HandleAllocated()) return;
  // Told, and not made anew: the window may have the focus, or an open list.
  if (FMessages.SetFieldHeight != 0) {
    Send(*this, FMessages.SetFieldHeight, static_cast<WPARAM>(-1), height);
  }
  if (MeasuresItems()) return MeasureItems();
  Send(*this, FMessages.SetItemHeight, 0, height);
  Invalidate();
}

void TCustomListControl::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TWinControl::ChangeScale(m, d);
  if (!watch.Gone()) SetItemHeight(std::clamp(ScaleMeasure(FItemHeight, m, d), 1, MostItemHeight));
}

bool TCustomListControl::Sorted() const { return FItems->Sorted(); }

void TCustomListControl::SetSorted(bool sorted) {
  if (sorted == Sorted()) return;
  // The selection goes with the items: it is kept with them while the window is made anew.
  if (HandleAllocated()) KeepSelection();
  FItems->SetSorted(sorted);
  if (!HandleAllocated()) return;
  Send(*this, WM_SETREDRAW, FALSE);
  Send(*this, FMessages.Reset);
  const TWatch watch(this);
  FItems->FillWindow();
  if (watch.Gone()) return;
  RestoreSelection();
  Invalidate();
}

void TCustomListControl::KeepSelection() { FItems->SelectOnly(ItemIndex()); }

void TCustomListControl::RestoreSelection() {
  Send(*this, FMessages.SetSelected, static_cast<WPARAM>(FItems->FirstSelected()));
}

void TCustomListControl::CreateWnd() {
  const TWatch watch(this);
  TWinControl::CreateWnd();
  if (OwnerDraw() && !MeasuresItems()) Send(*this, FMessages.SetItemHeight, 0, FItemHeight);
  FItems->FillWindow();
  // Its items may have been measured by a handler.
  if (!watch.Gone()) RestoreSelection();
}

void TCustomListControl::DestroyWnd() {
  KeepSelection();
  TWinControl::DestroyWnd();
}

void TCustomListControl::DrawItem(int index, const TRect& rect, TOwnerDrawState state) {
  if (OnDrawItem) {
    OnDrawItem(this, index, rect, state);
  } else if (FLook) {
    FLook->Draw(*this, index, rect, state);
  } else {
    FCanvas->TextOut(rect.Left + 2, rect.Top, FItems->Strings(index));
  }
}

void TCustomListControl::MeasureItem(int index, int& height) {
  if (OnMeasureItem) {
    OnMeasureItem(this, index, height);
  } else if (FLook) {
    height = FLook->Height(*this, index);
  }
}

// The system asks the parent for heights (WM_MEASUREITEM), and only once for each item. Told like
// this, they can follow the font, too.
void TCustomListControl::ItemInserted(int index) {
  if (!MeasuresItems()) return;
  int height = FItemHeight;
  const TWatch watch(this);
  MeasureItem(index, height);
  if (watch.Gone() || !HandleAllocated()) return;
  Send(*this, FMessages.SetItemHeight, static_cast<WPARAM>(index),
       std::clamp(height, 1, MostItemHeight));
}

void TCustomListControl::MeasureItems() {
  if (!MeasuresItems() || !HandleAllocated()) return;
  const TWatch watch(this);
  for (int i = 0; !watch.Gone() && i < FItems->Count(); ++i) ItemInserted(i);
  if (!watch.Gone()) Invalidate();
}

void TCustomListControl::DrawFromWindow(const DRAWITEMSTRUCT& draw) {
  const TOwnerDrawState state = StateOf(draw.itemState);
  const bool selected = state.Has(odSelected);
  const TRect rect = draw.rcItem;
  const int index = static_cast<int>(draw.itemID);
  TWatch watch(this);
  TSavedDC saved(draw.hDC);
  TCanvasBinding binding(*this, *FCanvas, draw.hDC);
  FCanvas->SetFont(Font());
  FCanvas->Brush()->SetColor(selected ? clHighlight : Color());
  if (selected) FCanvas->Font()->SetColor(clHighlightText);
  if (!Enabled()) FCanvas->Font()->SetColor(clGrayText);
  FCanvas->FillRect(rect);
  // The system also asks for a drop-down list's field while nothing is selected.
  if (index >= 0 && index < LineCount()) DrawItem(index, rect, state);
  if (!watch.Gone() && state.Has(odFocused)) FCanvas->DrawFocusRect(rect);
}

void TCustomListControl::Dispatch(TMessage& message) {
  if (message.Msg == CN_DRAWITEM) {
    message.Result = 1;
    return DrawFromWindow(*reinterpret_cast<const DRAWITEMSTRUCT*>(message.LParam));
  }
  const TWatch watch(this);
  TWinControl::Dispatch(message);
  if (!watch.Gone() && message.Msg == CM_FONTCHANGED) MeasureItems();
}

void TCustomListControl::Loaded() {
  TWinControl::Loaded();
  if (FLoadedIndex != -1) SetItemIndex(std::exchange(FLoadedIndex, -1));
}

}  // namespace vcl
