// TCheckListBox: the states of its items, their boxes, and checking them.
#include "vcl/stdctrls/checklst.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/private/listlines.h"

namespace vcl {
namespace {

// What an item's mark says: its state, and whether it is disabled.
constexpr int StateBits = 3;
constexpr int DisabledBit = 4;

}  // namespace

const TClass& TCheckListBox::Class() {
  using T = TCheckListBox;
  static const TClass info = Describe<T, TCustomListBox>(
      "vcl::TCheckListBox", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Align"),
          Property<&T::AllowGrayed, &T::SetAllowGrayed>("AllowGrayed").Default(false),
          Inherit("BorderStyle"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Inherit("IntegralHeight"),
          Inherit("ItemHeight"),
          Inherit("Items"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("Sorted"),
          Inherit("Style"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Event<&T::OnClickCheck>("OnClickCheck"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit("OnDrawItem"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit("OnMeasureItem"),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TCheckListBox::TCheckListBox(TComponent* owner) : TCustomListBox(owner) {}

// States.

TCheckBoxState TCheckListBox::State(int index) const {
  return static_cast<TCheckBoxState>(List().Mark(index) & StateBits);
}

void TCheckListBox::SetState(int index, TCheckBoxState state) {
  if (state == State(index)) return;
  List().SetMark(index, (List().Mark(index) & ~StateBits) | state);
  InvalidateItem(index);
  AccessibleChanged(acState, {index});
}

bool TCheckListBox::ItemEnabled(int index) const { return !(List().Mark(index) & DisabledBit); }

void TCheckListBox::SetItemEnabled(int index, bool enabled) {
  const int state = List().Mark(index) & StateBits;
  List().SetMark(index, enabled ? state : state | DisabledBit);
  InvalidateItem(index);
}

void TCheckListBox::CheckAll(TCheckBoxState state, bool allowGrayed, bool allowDisabled) {
  for (int i = 0; i < Items()->Count(); ++i) {
    const bool left = (!allowGrayed && State(i) == cbGrayed) || (!allowDisabled && !ItemEnabled(i));
    if (!left) SetState(i, state);
  }
}

void TCheckListBox::ClickCheck() { OnClickCheck(this); }

void TCheckListBox::Toggle(int index) {
  if (!ItemEnabled(index)) return;
  const TCheckBoxState afterUnchecked = FAllowGrayed ? cbGrayed : cbChecked;
  const TCheckBoxState next[] = {afterUnchecked, cbUnchecked, cbChecked};
  SetState(index, next[State(index)]);
  ClickCheck();
}

// Drawing.

void TCheckListBox::InvalidateItem(int index) {
  if (!HandleAllocated()) return;
  const RECT rect = ItemRect(index);
  ::InvalidateRect(Handle(), &rect, FALSE);
}

TRect TCheckListBox::BoxOf(const TRect& item) const {
  const int size = MarkSize();
  const int left = item.Left + ScaledPixels(2);
  const int top = item.Top + (item.Height() - size) / 2;
  return {left, top, left + size, top + size};
}

void TCheckListBox::DrawMark(const TRect& rect, TCheckBoxState state, bool enabled) {
  static constexpr UINT looks[] = {DFCS_BUTTONCHECK, DFCS_BUTTONCHECK | DFCS_CHECKED,
                                   DFCS_BUTTON3STATE | DFCS_CHECKED};
  RECT box = rect;
  ::DrawFrameControl(Canvas()->Handle(), &box, DFC_BUTTON,
                     looks[state] | (enabled ? 0u : static_cast<UINT>(DFCS_INACTIVE)));
}

void TCheckListBox::DrawItem(int index, const TRect& rect, TOwnerDrawState state) {
  const bool usable = Enabled() && ItemEnabled(index);
  const TRect box = BoxOf(rect);
  TRect text = rect;
  text.Left = box.Right + ScaledPixels(2);
  // The box stands on the list's colour, whether the item is selected or not.
  const TColor back = Canvas()->Brush()->Color();
  Canvas()->Brush()->SetColor(Color());
  Canvas()->FillRect(TRect(rect.Left, rect.Top, text.Left, rect.Bottom));
  DrawMark(box, State(index), usable);
  Canvas()->Brush()->SetColor(back);
  if (!usable && !state.Has(odSelected)) Canvas()->Font()->SetColor(clGrayText);
  TCustomListBox::DrawItem(index, text, state);
}

/// Items that the system would draw are as high as their font and their boxes.
void TCheckListBox::FitItems() {
  if (Style() != lbStandard || !HandleAllocated()) return;
  Send(*this, LB_SETITEMHEIGHT, 0, std::max(FontHeight(*Font()), MarkSize() + ScaledPixels(2)));
}

void TCheckListBox::CreateParams(TCreateParams& params) {
  TCustomListBox::CreateParams(params);
  if (!MeasuresItems()) params.Style |= LBS_OWNERDRAWFIXED;
}

void TCheckListBox::CreateWnd() {
  const TWatch watch(this);
  TCustomListBox::CreateWnd();
  if (!watch.Gone()) FitItems();
}

// Input.

void TCheckListBox::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TCustomListBox::KeyPress(key);
  if (watch.Gone() || key != ' ' || ItemIndex() < 0) return;
  key = 0;
  Toggle(ItemIndex());
}

void TCheckListBox::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TCustomListBox::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft) return;
  const int index = ItemAtPos({x, y}, true);
  if (index >= 0 && x < BoxOf(ItemRect(index)).Right) Toggle(index);
}

void TCheckListBox::Dispatch(TMessage& message) {
  const TWatch watch(this);
  TCustomListBox::Dispatch(message);
  if (!watch.Gone() && message.Msg == CM_FONTCHANGED) FitItems();
}

// Screen readers.

void TCheckListBox::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomListBox::DescribeAccessible(info);
  info.SystemItems = false;
}

std::vector<TAccessiblePart> TCheckListBox::AccessibleParts() {
  static constexpr TAccessibleState states[] = {{}, {asChecked}, {asMixed}};
  std::vector<TAccessiblePart> parts;
  for (int i = 0; i < Items()->Count(); ++i) {
    TAccessiblePart& part = parts.emplace_back();
    part.Role = arCheckBox;
    part.Name = Items()->Strings(i);
    part.State = states[State(i)] + TAccessibleState{asSelectable};
    if (!ItemEnabled(i)) part.State.Include(asDisabled);
    if (i == ItemIndex()) part.State += TAccessibleState{asSelected};
    part.DefaultAction = Checked(i) ? "Uncheck" : "Check";
    if (HandleAllocated()) part.Bounds = ItemRect(i);
  }
  return parts;
}

void TCheckListBox::DoAccessiblePart(const TAccessiblePath& part) {
  if (!part.empty()) Toggle(part.front());
}

}  // namespace vcl
