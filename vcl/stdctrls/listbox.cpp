// TCustomListBox: selection, scrolling, and dragging from it.
#include "vcl/stdctrls/listbox.h"

#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/private/listlines.h"

namespace vcl {

const TClass& TCustomListBox::Class() {
  using T = TCustomListBox;
  static const TClass info = Describe<T, TCustomListControl>(
      "vcl::TCustomListBox", "vcl/stdctrls/stdctrls.h",
      {
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsSingle)
              .Unpublished(),
          Property<&T::ExtendedSelect, &T::SetExtendedSelect>("ExtendedSelect")
              .Default(true)
              .Unpublished(),
          Property<&T::IntegralHeight, &T::SetIntegralHeight>("IntegralHeight")
              .Default(false)
              .Unpublished(),
          Property<&T::MultiSelect, &T::SetMultiSelect>("MultiSelect").Default(false).Unpublished(),
          Property<&T::Style, &T::SetStyle>("Style").Default(lbStandard).Unpublished(),
      });
  return info;
}

const TClass& TListBox::Class() {
  static const TClass info = Describe<TListBox, TCustomListBox>(
      "vcl::TListBox", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Align"),       Inherit("BorderStyle"),    Inherit("Color"),
          Inherit("Ctl3D"),       Inherit("DragCursor"),     Inherit("DragMode"),
          Inherit("Enabled"),     Inherit("ExtendedSelect"), Inherit("Font"),
          Inherit("ImeMode"),     Inherit("ImeName"),        Inherit("IntegralHeight"),
          Inherit("ItemHeight"),  Inherit("Sorted"),         Inherit("Items"),
          Inherit("MultiSelect"), Inherit("ParentColor"),    Inherit("ParentCtl3D"),
          Inherit("ParentFont"),  Inherit("ParentShowHint"), Inherit("PopupMenu"),
          Inherit("ShowHint"),    Inherit("Style"),          Inherit("TabOrder"),
          Inherit("TabStop"),     Inherit("Visible"),        Inherit("OnClick"),
          Inherit("OnDblClick"),  Inherit("OnDragDrop"),     Inherit("OnDragOver"),
          Inherit("OnDrawItem"),  Inherit("OnEndDrag"),      Inherit(FocusEvents),
          Inherit(KeyEvents),     Inherit("OnMeasureItem"),  Inherit(MouseEvents),
          Inherit(WheelEvents),   Inherit("OnStartDrag"),
      });
  return info;
}

TCustomListBox::TCustomListBox(TComponent* owner) : TCustomListControl(owner, ListBoxMessages) {
  SetControlStyle({csSetCaption, csDoubleClicks});
  SetBounds(0, 0, 121, 97);
}

/// What a window only takes when it is made.
template <class T>
void TCustomListBox::ChangeStyle(T& field, T value) {
  if (value == field) return;
  // The selection is of the old kind until the window is gone.
  const bool shown = HandleAllocated();
  if (shown) DestroyHandle();
  field = value;
  if (shown) UpdateControlState();
}

void TCustomListBox::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  ChangeStyle(FBorderStyle, style);
}

void TCustomListBox::SetExtendedSelect(bool extended) { ChangeStyle(FExtendedSelect, extended); }
void TCustomListBox::SetIntegralHeight(bool integral) { ChangeStyle(FIntegralHeight, integral); }
void TCustomListBox::SetMultiSelect(bool multiSelect) { ChangeStyle(FMultiSelect, multiSelect); }
void TCustomListBox::SetStyle(TListBoxStyle style) { ChangeStyle(FStyle, style); }

int TCustomListBox::ItemIndex() const {
  if (!FMultiSelect || !HandleAllocated()) return TCustomListControl::ItemIndex();
  return static_cast<int>(Send(*this, LB_GETCARETINDEX));
}

void TCustomListBox::SetItemIndex(int index) {
  TCustomListControl::SetItemIndex(index);
  if (!FMultiSelect || !HandleAllocated()) return;
  Send(*this, LB_SETSEL, FALSE, -1);
  if (index < 0) return;
  Send(*this, LB_SETSEL, TRUE, index);
  Send(*this, LB_SETCARETINDEX, static_cast<WPARAM>(index));
}

bool TCustomListBox::Selected(int index) const {
  List().CheckItem(index);
  return HandleAllocated() ? Send(*this, LB_GETSEL, static_cast<WPARAM>(index)) > 0
                           : List().Selected(index);
}

void TCustomListBox::SetSelected(int index, bool selected) {
  List().CheckItem(index);
  if (!FMultiSelect) {
    if (selected != Selected(index)) SetItemIndex(selected ? index : -1);
    return;
  }
  List().SetSelected(index, selected);
  SendIfAllocated(*this, LB_SETSEL, selected, index);
}

int TCustomListBox::SelCount() const {
  int count = 0;
  for (int i = 0; i < Items()->Count(); ++i) count += Selected(i);
  return count;
}

int TCustomListBox::TopIndex() const {
  return HandleAllocated() ? static_cast<int>(Send(*this, LB_GETTOPINDEX)) : FTopIndex;
}

void TCustomListBox::SetTopIndex(int index) {
  List().CheckItem(index);
  FTopIndex = index;
  SendIfAllocated(*this, LB_SETTOPINDEX, static_cast<WPARAM>(index));
}

int TCustomListBox::ItemAtPos(TPoint position, bool existing) const {
  const int none = existing ? -1 : Items()->Count();
  if (!ClientRect().Contains(position)) return -1;
  for (int i = TopIndex(); i < Items()->Count(); ++i) {
    if (ItemRect(i).Contains(position)) return i;
  }
  return none;
}

TRect TCustomListBox::ItemRect(int index) const {
  List().CheckItem(index);
  RECT rect{};
  Send(*this, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
  return rect;
}

void TCustomListBox::KeepSelection() {
  FTopIndex = TopIndex();
  if (!FMultiSelect) return TCustomListControl::KeepSelection();
  FCaret = ItemIndex();
  for (int i = 0; i < Items()->Count(); ++i) List().SetSelected(i, Selected(i));
}

void TCustomListBox::RestoreSelection() {
  if (FMultiSelect) {
    for (int i = 0; i < Items()->Count(); ++i) Send(*this, LB_SETSEL, List().Selected(i), i);
    if (FCaret >= 0) Send(*this, LB_SETCARETINDEX, static_cast<WPARAM>(FCaret));
  } else {
    TCustomListControl::RestoreSelection();
  }
  Send(*this, LB_SETTOPINDEX, static_cast<WPARAM>(FTopIndex));
}

void TCustomListBox::CreateParams(TCreateParams& params) {
  static constexpr DWORD drawing[] = {0, LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE};
  TCustomListControl::CreateParams(params);
  params.SubClassOf = "LISTBOX";
  params.Style |= WS_VSCROLL | LBS_HASSTRINGS | LBS_NOTIFY;
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
  params.Style |= drawing[FStyle];
  if (!FIntegralHeight) params.Style |= LBS_NOINTEGRALHEIGHT;
  if (FMultiSelect) params.Style |= FExtendedSelect ? LBS_EXTENDEDSEL : LBS_MULTIPLESEL;
}

void TCustomListBox::Dispatch(TMessage& message) {
  if (message.Msg != CN_COMMAND) return TCustomListControl::Dispatch(message);
  if (HIWORD(message.WParam) == LBN_SELCHANGE) return Click();
  if (HIWORD(message.WParam) == LBN_DBLCLK) return DblClick();
}

bool TCustomListBox::DragsSelection(const TMessage& press) const {
  const int item = ItemAtPos({press.XPos(), press.YPos()}, true);
  return FMultiSelect && item >= 0 && Selected(item);
}

void TCustomListBox::BeginAutoDrag(TMessage& press) {
  const bool selectsMore = FMultiSelect && (press.WParam & (MK_SHIFT | MK_CONTROL)) != 0;
  if (selectsMore || press.Msg == WM_LBUTTONDBLCLK) return Dispatch(press);
  if (!DragsSelection(press)) {
    TWatch watch(this);
    Dispatch(press);
    // The drag takes the mouse away, so the window learns of the release now and ends selecting.
    if (!watch.Gone()) Perform(WM_LBUTTONUP, 0, press.LParam);
    if (watch.Gone()) return;
    // A handler of the click may have shown a dialog, in which the button has come up.
    if (DragMode() != dmAutomatic || ::GetKeyState(VK_LBUTTON) >= 0) return;
  }
  TCustomListControl::BeginAutoDrag(press);
}

void TCustomListBox::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomListControl::DescribeAccessible(info);
  info.Role = arList;
  info.SystemItems = true;
  if (ItemIndex() >= 0) info.Value = Items()->Strings(ItemIndex());
}

}  // namespace vcl
