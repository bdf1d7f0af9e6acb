// TDBLookupListBox and TDBLookupComboBox: showing the record with the field's value, and choosing
// another.
#include "vcl/dbctrls/dblookup.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int MostRows = 1000;
constexpr int Border = 1;  // Of the list that drops down.

void CheckRows(int count) {
  if (count >= 1 && count <= MostRows) return;
  throw EArgumentOutOfRangeException(
      Concat("A list cannot show ", std::to_string(count), " rows at once"));
}

}  // namespace

// TPopupLookupList.

detail::TPopupLookupList::TPopupLookupList(TComponent* owner) : TCustomLookupList(owner) {
  SetBorderStyle(bsNone);
  SetTabStop(false);
}

void detail::TPopupLookupList::CreateParams(TCreateParams& params) {
  TCustomLookupList::CreateParams(params);
  params.Style = (params.Style & ~static_cast<DWORD>(WS_CHILD | WS_VISIBLE)) | WS_POPUP | WS_BORDER;
  params.ExStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
  params.WndParent = Application()->Handle();
}

void detail::TPopupLookupList::DropDown(const TRect& below, int rows, int chosen) {
  HandleNeeded();
  FitRows();
  const int height = std::clamp(Rows().Count(), 1, rows) * RowPitch() + 2 * Border;
  const TRect area = Screen()->WorkAreaRect(below);
  const bool fits = below.Bottom + height <= area.Bottom || below.Top - height < area.Top;
  SetBounds(below.Left, fits ? below.Bottom : below.Top - height, below.Width(), height);
  ::SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE);
  FDown = true;
  FitRows();
  ShowChosen(chosen);
}

void detail::TPopupLookupList::CloseUp() {
  if (!std::exchange(FDown, false)) return;
  ::ShowWindow(Handle(), SW_HIDE);
}

void detail::TPopupLookupList::RowsChanged() {
  if (FDown) TCustomLookupList::RowsChanged();
  OnRowsChanged(this);
}

void detail::TPopupLookupList::Dispatch(TMessage& message) {
  if (!DispatchOwn(message)) TCustomLookupList::Dispatch(message);
}

// A grid would take the keyboard when it is pressed.
bool detail::TPopupLookupList::DispatchOwn(TMessage& message) {
  const int row = RowAt(message.XPos(), message.YPos());
  switch (message.Msg) {
    case WM_MOUSEACTIVATE: message.Result = MA_NOACTIVATE; return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
      if (row >= 0 && row < Rows().Count() && row != ChosenRow()) ShowChosen(row);
      return true;
    case WM_LBUTTONUP:
      if (row >= 0 && row < Rows().Count()) OnPicked(this);
      return true;
    default: return false;
  }
}

// TLookupComboBase.

detail::TLookupComboBase::TLookupComboBase(TComponent* owner)
    : TCustomComboBox(owner), FList(new TPopupLookupList(nullptr)) {
  SetStyle(csDropDownList);
}

detail::TLookupComboBase::~TLookupComboBase() {
  AnnounceEnd();
  FList->OnPicked = nullptr;
  FList->OnRowsChanged = nullptr;
  delete FList;
}

void detail::TLookupComboBase::ShowOne(const std::string& text) {
  TStringList one;
  if (!text.empty()) one.Add(text);
  if (!one.Equals(*Items())) SetItems(&one);
  SetItemIndex(one.Count() - 1);
}

// TDBLookupListBox.

const TClass& TDBLookupListBox::Class() {
  using T = TDBLookupListBox;
  static const TClass info = Describe<T, TCustomGrid>(
      "vcl::TDBLookupListBox", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Inherit("BorderStyle"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::KeyField, &T::SetKeyField>("KeyField").Default(""),
          Property<&T::ListField, &T::SetListField>("ListField").Default(""),
          Property<&T::ListFieldIndex, &T::SetListFieldIndex>("ListFieldIndex").Default(0),
          Property<&T::ListSource, &T::SetListSource>("ListSource"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
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

int TDBLookupListBox::RowCount() const { return ClientHeight() / RowPitch(); }

void TDBLookupListBox::SetRowCount(int count) {
  CheckRows(count);
  FitRows();
  SetClientHeight(count * RowPitch());
}

void TDBLookupListBox::ShowKey() { ShowChosen(LookupRows().RowOf(KeyValue())); }

void TDBLookupListBox::RowChosen() {
  const TWatch watch(this);
  if (ChooseKey(LookupRows().Key(ChosenRow())) && !watch.Gone()) Click();
}

void TDBLookupListBox::RowsChanged() {
  TLookupEditor::RowsChanged();
  RowsMoved();
}

void TDBLookupListBox::CreateWnd() {
  TLookupEditor::CreateWnd();
  RowsMoved();
}

// TDBLookupComboBox.

const TClass& TDBLookupComboBox::Class() {
  using T = TDBLookupComboBox;
  static const TClass info = Describe<T, TCustomComboBox>(
      "vcl::TDBLookupComboBox", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Property<&T::DropDownRows, &T::SetDropDownRows>("DropDownRows").Default(7),
          Property<&T::DropDownWidth, &T::SetDropDownWidth>("DropDownWidth").Default(0),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::KeyField, &T::SetKeyField>("KeyField").Default(""),
          Property<&T::ListField, &T::SetListField>("ListField").Default(""),
          Property<&T::ListFieldIndex, &T::SetListFieldIndex>("ListFieldIndex").Default(0),
          Property<&T::ListSource, &T::SetListSource>("ListSource"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
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

TDBLookupComboBox::TDBLookupComboBox(TComponent* owner) : TLookupEditor(owner) {
  List().OnPicked = [this](TObject*) { TakeMarked(); };
  List().OnRowsChanged = [this](TObject*) { RowsMoved(); };
}

void TDBLookupComboBox::SetDropDownRows(int rows) {
  CheckRows(rows);
  FDropDownRows = rows;
}

void TDBLookupComboBox::SetDropDownWidth(int width) {
  if (width < 0) {
    throw EArgumentOutOfRangeException(
        Concat("A list cannot be ", std::to_string(width), " pixels wide"));
  }
  FDropDownWidth = width;
}

void TDBLookupComboBox::ChangeScale(int m, int d) {
  TLookupEditor::ChangeScale(m, d);
  FDropDownWidth = ScaleMeasure(FDropDownWidth, m, d);
}

void TDBLookupComboBox::ShowKey() {
  const int row = LookupRows().RowOf(KeyValue());
  ShowOne(row < 0 ? std::string() : LookupRows().Text(row));
  if (ListDropped()) List().ShowChosen(row);
}

void TDBLookupComboBox::PutBack() {
  if (ListDropped()) return CloseList();
  TLookupEditor::PutBack();
}

// The list.

void TDBLookupComboBox::DropList() {
  const TWatch watch(this);
  DropDown();
  if (watch.Gone() || !LookupRows().Active()) return;
  const TPoint corner = ClientToScreen({0, 0});
  TRect below(corner.X, corner.Y, corner.X + Width(), corner.Y + Height());
  below.Right = std::max(below.Right, below.Left + FDropDownWidth);
  List().SetFont(Font());
  List().SetColor(Color());
  List().DropDown(below, FDropDownRows, LookupRows().RowOf(KeyValue()));
  AccessibleChanged(acState);
}

void TDBLookupComboBox::CloseList() {
  if (!ListDropped()) return;
  List().CloseUp();
  AccessibleChanged(acState);
  CloseUp();
}

/// The marked row is the choice.
void TDBLookupComboBox::TakeMarked() {
  const TFieldValue key = LookupRows().Key(MarkedRow());
  const TWatch watch(this);
  CloseList();
  if (watch.Gone() || IsNull(key) || key == KeyValue()) return;
  if (ChooseKey(key) && !watch.Gone()) Click();
}

// Input.

/// What a key does: all that the system's combo box would do with its own list.
bool TDBLookupComboBox::ListKey(std::uint16_t key, TShiftState shift) {
  const bool arrow = key == VK_UP || key == VK_DOWN;
  if ((key == VK_F4 && shift.Empty()) || (arrow && shift.Has(ssAlt))) {
    ListDropped() ? CloseList() : DropList();
    return true;
  }
  if (key == VK_RETURN && ListDropped()) return TakeMarked(), true;
  if (key == VK_ESCAPE && ListDropped()) return CloseList(), true;
  if (!shift.Empty()) return false;
  if (key == VK_DELETE && !ListDropped()) return ChooseKey({}), true;
  if (!ListDropped()) List().ShowChosen(LookupRows().RowOf(KeyValue()));
  if (!List().MoveBy(key)) return false;
  if (!ListDropped()) TakeMarked();
  return true;
}

void TDBLookupComboBox::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TLookupEditor::KeyDown(key, shift);
  if (!watch.Gone() && key != 0 && ListKey(key, shift) && !watch.Gone()) key = 0;
}

void TDBLookupComboBox::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TLookupEditor::KeyPress(key);
  if (watch.Gone() || key < ' ') return;
  if (!ListDropped()) List().ShowChosen(LookupRows().RowOf(KeyValue()));
  if (List().SearchBy(key) && !ListDropped()) TakeMarked();
  if (!watch.Gone()) key = 0;
}

bool TDBLookupComboBox::DispatchMouse(TMessage& message) {
  switch (message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      const TWatch watch(this);
      if (!Focused()) SetFocus();
      if (!watch.Gone()) ListDropped() ? CloseList() : DropList();
      return true;
    }
    case WM_MOUSEWHEEL:
      if (!ListDropped()) return false;
      List().Perform(message.Msg, message.WParam, message.LParam);
      return true;
    default: return false;
  }
}

void TDBLookupComboBox::Dispatch(TMessage& message) {
  const bool closes = message.WParam == VK_RETURN || message.WParam == VK_ESCAPE;
  if (message.Msg == CM_WANTSPECIALKEY && closes && ListDropped()) {
    message.Result = 1;
    return;
  }
  if (!Designing() && DispatchMouse(message)) return;
  const TWatch watch(this);
  TLookupEditor::Dispatch(message);
  if (!watch.Gone() && message.Msg == WM_KILLFOCUS) CloseList();
}

void TDBLookupComboBox::DoExit() {
  const TWatch watch(this);
  CloseList();
  if (!watch.Gone()) TLookupEditor::DoExit();
}

void TDBLookupComboBox::DescribeAccessible(TAccessibleInfo& info) const {
  TLookupEditor::DescribeAccessible(info);
  info.State.Exclude(asCollapsed);
  info.State.Include(ListDropped() ? asExpanded : asCollapsed);
  info.DefaultAction = ListDropped() ? "Close" : "Open";
}

}  // namespace vcl
