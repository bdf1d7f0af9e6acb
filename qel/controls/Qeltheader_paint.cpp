// TQELHeader: painting the sections that are seen.
#include <algorithm>

#include "qel/controls/Qeltheader.h"
#include "qel/core/private/uistate.h"
#include "vcl/grids/gridlook.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

namespace {

constexpr int HotWidth = 2;   // At 96 dots per inch; of the line below what the mouse is over.
constexpr int MarkWidth = 3;  // At 96 dots per inch; of the line where a section would be moved to.

constexpr unsigned Sides[] = {DT_LEFT, DT_RIGHT, DT_CENTER};

}  // namespace

bool TQELHeader::IsPressed(int index) const {
  return FPress.Kind == TMouse::Pressing && FPress.Section == index && FPress.Over;
}

bool TQELHeader::SectionEnabled(int index) const {
  return FSections->Has(index) && FSections->Items(index)->AllowClick() && Enabled();
}

void TQELHeader::InvalidateSection(int index) {
  if (!HandleAllocated() || !FSections->Has(index)) return;
  const RECT rect = SectionRect(index);
  ::InvalidateRect(Handle(), &rect, FALSE);
}

void TQELHeader::Paint() {
  TQELCustomControl::Paint();
  const TRect clip = Canvas()->ClipRect();
  const TWatch watch(this);
  int left = 0;
  for (int i = 0; i < FSections->Count() && left < clip.Right; ++i) {
    left += FSections->Items(i)->Width();
    if (left > clip.Left) PaintSection(i);
    if (watch.Gone()) return;
  }
  RECT rest{FSections->TotalWidth(), 0, ClientWidth(), ClientHeight()};
  if (rest.left < rest.right) {
    ::DrawEdge(Canvas()->Handle(), &rest, BDR_RAISEDINNER, BF_TOP | BF_LEFT | BF_BOTTOM);
  }
  PaintMark();
}

void TQELHeader::PaintSection(int index) {
  const TRect rect = SectionRect(index);
  if (rect.Empty()) return;
  const bool pressed = IsPressed(index);
  const vcl::TSavedDC saved(Canvas()->Handle());
  ::IntersectClipRect(Canvas()->Handle(), rect.Left, rect.Top, rect.Right, rect.Bottom);
  RECT edge = rect;
  ::DrawEdge(Canvas()->Handle(), &edge, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_SOFT);
  if (index == FHot && !pressed && SectionEnabled(index)) {
    Canvas()->Brush()->SetColor(vcl::clHighlight);
    Canvas()->FillRect(
        {rect.Left + 1, rect.Bottom - 1 - ScaledPixels(HotWidth), rect.Right - 2, rect.Bottom - 1});
  }
  if (OnDrawSection) {
    OnDrawSection(this, FSections->Items(index), rect, pressed);
    return;
  }
  PaintTitle(index, rect, pressed);
  if (index != FFocused || !ShowsKeyboardFocus(*this)) return;
  TRect frame = rect;
  frame.Inflate(-ScaledPixels(2), -ScaledPixels(2));
  Canvas()->DrawFocusRect(frame);
}

void TQELHeader::PaintTitle(int index, TRect rect, bool pressed) {
  const TQELHeaderSection* section = FSections->Items(index);
  rect.Inflate(-ScaledPixels(TitleMargin), 0);
  if (pressed) rect.Offset(1, 1);
  Canvas()->SetFont(Font());
  if (!Enabled()) Canvas()->Font()->SetColor(vcl::clGrayText);
  if (FImages.List && section->ImageIndex() >= 0) {
    const int top = rect.Top + (rect.Height() - FImages.List->Height()) / 2;
    FImages.List->Draw(Canvas(), rect.Left, top, section->ImageIndex(), Enabled());
    rect.Left += FImages.List->Width() + ScaledPixels(TitleGap);
  }
  if (index == FSortColumn) {
    vcl::DrawSortMark(*Canvas(), rect, FSortDescending, ScaledPixels(MarkSize));
    rect.Right -= 3 * ScaledPixels(MarkSize) + ScaledPixels(TitleGap);
  }
  if (rect.Empty()) return;
  FFont3D->Write(Font(), Canvas()->Handle(), rect, section->Text(),
                 Sides[section->Alignment()] | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS,
                 Enabled());
}

// Where a section that is being moved would come.

void TQELHeader::PaintMark() {
  if (FPress.Kind != TMouse::Moving || !FSections->Has(FPress.Target)) return;
  const TRect target = SectionRect(FPress.Target);
  const int place = FPress.Target > FPress.Section ? target.Right : target.Left;
  const int half = std::max(ScaledPixels(MarkWidth) / 2, 1);
  Canvas()->Brush()->SetStyle(vcl::bsSolid);
  Canvas()->Brush()->SetColor(vcl::clHighlight);
  Canvas()->FillRect({place - half - 1, 0, place + half, ClientHeight()});
}

}  // namespace qel
