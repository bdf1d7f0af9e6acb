// TPopupLines: lines from elsewhere in the system's list; TListUnder: when it opens and closes.
#include "vcl/stdctrls/popuplines.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr int Margin = 2;

}  // namespace

TPopupLines::TPopupLines(TControl* under) : TPopupList(under) { HearOnlyAsked<TPopupLines>(); }

// The form's window owns the list's: it is told what is to be drawn, and hands that on.
void TPopupLines::CreateParams(TCreateParams& params) {
  TPopupList::CreateParams(params);
  params.Style &= ~static_cast<DWORD>(LBS_HASSTRINGS);
  params.Style |= LBS_NODATA | LBS_OWNERDRAWFIXED;
  const auto& under = dynamic_cast<const TControl&>(*Owner());
  if (TCustomForm* form = under.ParentForm()) params.WndParent = form->Handle();
}

void TPopupLines::CreateWnd() {
  TPopupList::CreateWnd();
  Send(*this, LB_SETCOUNT, static_cast<WPARAM>(FCount));
}

void TPopupLines::DropDownLines(const TRect& below, int count, TLineText text, int current,
                                int most) {
  const auto& under = dynamic_cast<const TControl&>(*Owner());
  FCount = count;
  FText = std::move(text);
  SetFont(under.Font());
  SetItemHeight(std::clamp(FontHeight(*Font()) + under.ScaledPixels(Margin), 1, 255));
  HandleNeeded();
  Send(*this, LB_SETCOUNT, static_cast<WPARAM>(count));
  SetItemIndex(current);
  Open(below, most);
  Invalidate();
}

std::string TPopupLines::Chosen() const {
  const int index = ItemIndex();
  return index < 0 || index >= FCount ? std::string() : FText(index);
}

void TPopupLines::SetItemIndex(int index) {
  Send(*this, LB_SETCURSEL, static_cast<WPARAM>(index));
  if (index >= 0) AccessibleChanged(acSelection, {index - TopIndex()});
}

void TPopupLines::DrawItem(int index, const TRect& rect, TOwnerDrawState) {
  const int margin = ScaledPixels(Margin);
  Canvas()->TextRect(rect, rect.Left + margin, rect.Top + margin / 2, FText(index));
}

void TPopupLines::DescribeAccessible(TAccessibleInfo& info) const {
  // A list box would tell of lines that it keeps, and there are none here.
  TWinControl::DescribeAccessible(info);  // NOLINT(bugprone-parent-virtual-call)
  info.Role = arList;
  info.Value = Chosen();
}

std::vector<TAccessiblePart> TPopupLines::AccessibleParts() {
  std::vector<TAccessiblePart> parts;
  const int first = TopIndex();
  const int height = std::max(ItemHeight(), 1);
  for (int i = first; i < FCount && (i - first) * height < ClientHeight(); ++i) {
    TAccessiblePart& part = parts.emplace_back();
    part.Role = arListItem;
    part.Name = FText(i);
    part.State = TAccessibleState{asSelectable};
    if (i == ItemIndex()) part.State.Include(asSelected);
    part.Bounds = Bounds(0, (i - first) * height, ClientWidth(), height);
  }
  return parts;
}

// The list under an edit.

TPopupLines& TListUnder::Needed() {
  if (!FList) {
    FList = new TPopupLines(&FEdit);
    FList->OnClick = [this](TObject*) { Choose(); };
  }
  return *FList;
}

void TListUnder::Open(int count, TLineText text, int current, int most) {
  if (count == 0) return Close();
  const TPoint origin = FEdit.Parent()->ClientToScreen({FEdit.Left(), FEdit.Top()});
  Needed().DropDownLines(Bounds(origin.X, origin.Y, FEdit.Width(), FEdit.Height()), count,
                         std::move(text), current, most);
}

void TListUnder::Close() {
  if (!IsOpen()) return;
  FList->CloseUp();
  if (OnClosed) OnClosed();
}

void TListUnder::Choose() {
  const int index = Current();
  const TWatch watch(&FEdit);
  Close();
  if (!watch.Gone() && index >= 0 && OnChosen) OnChosen(index);
}

bool TListUnder::WantsKey(std::uint16_t key) const {
  return IsOpen() && (key == VK_ESCAPE || (key == VK_RETURN && Current() >= 0));
}

bool TListUnder::TakeKey(std::uint16_t key) {
  if (!IsOpen()) return false;
  switch (key) {
    // The text's own.
    case VK_HOME:
    case VK_END: return false;
    case VK_RETURN: {
      const bool chosen = Current() >= 0;
      chosen ? Choose() : Close();
      return chosen;
    }
    case VK_F4:
    case VK_ESCAPE: Close(); return true;
    default: return FList->TakeKey(key);
  }
}

bool TListUnder::Follow(const TMessage& message) {
  if (!IsOpen()) return false;
  switch (message.Msg) {
    case WM_MOUSEWHEEL: FList->Perform(message.Msg, message.WParam, message.LParam); return true;
    case WM_KILLFOCUS:
    case WM_CANCELMODE:
    case WM_DESTROY:
    case WM_WINDOWPOSCHANGED:
    case CM_ENABLEDCHANGED:
    case CM_SHOWINGCHANGED: Close(); return false;
    default: return false;
  }
}

}  // namespace vcl
