// TQELOfficeEdit: its frame, its cue and its parts.
#include "qel/controls/Qeltofficeedit.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

namespace {

enum { GlyphPart, ButtonPart, ClearPart };
constexpr int Spacing = 2;  // At 96 dots per inch.
constexpr int CrossWidth = 17;

}  // namespace

const vcl::TClass& TQELOfficeEdit::Class() {
  using T = TQELOfficeEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomPartEdit>(
      "qel::TQELOfficeEdit", "qel/controls/Qeltofficeedit.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taLeftJustify),
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Property<&T::ButtonGlyph, &T::SetButtonGlyph>("ButtonGlyph"),
          Inherit("CharCase"),
          Inherit("Color"),
          Property<&T::CueText, &T::SetCueText>("CueText"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::FocusColor, &T::SetFocusColor>("FocusColor").Default(clHighlight),
          Inherit("Font"),
          Property<&T::Glyph, &T::SetGlyph>("Glyph"),
          Inherit("HideSelection"),
          Property<&T::HotColor, &T::SetHotColor>("HotColor").Default(clHighlight),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PasswordChar"),
          Inherit("PopupMenu"),
          Inherit("ReadOnly"),
          Property<&T::ShowClear, &T::SetShowClear>("ShowClear").Default(false),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Text"),
          Inherit("Visible"),
          Event<&T::OnButtonClick>("OnButtonClick"),
          Inherit("OnChange"),
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

TQELOfficeEdit::TQELOfficeEdit(vcl::TComponent* owner)
    : TQELCustomPartEdit(owner),
      FGlyph(std::make_unique<TQELGlyph>(this)),
      FButtonGlyph(std::make_unique<TQELGlyph>(this)) {
  FGlyph->OnChange = vcl::TNotifyEvent(this, &TQELOfficeEdit::GlyphChanged);
  FButtonGlyph->OnChange = vcl::TNotifyEvent(this, &TQELOfficeEdit::GlyphChanged);
  HearOnlyAsked<TQELOfficeEdit>();
}

TQELOfficeEdit::~TQELOfficeEdit() { AnnounceEnd(); }

void TQELOfficeEdit::SetHotColor(vcl::TColor color) {
  FHotColor = color;
  RedrawFrame();
}

void TQELOfficeEdit::SetFocusColor(vcl::TColor color) {
  FFocusColor = color;
  RedrawFrame();
}

void TQELOfficeEdit::SetCueText(const std::string& text) {
  FCueText = text;
  Invalidate();
}

void TQELOfficeEdit::SetAlignment(vcl::TAlignment alignment) {
  if (alignment == FAlignment) return;
  FAlignment = alignment;
  RecreateWnd();
}

void TQELOfficeEdit::SetShowClear(bool show) {
  FShowClear = show;
  PartsChanged();
}

void TQELOfficeEdit::CreateParams(vcl::TCreateParams& params) {
  static constexpr DWORD styles[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
  TQELCustomPartEdit::CreateParams(params);
  params.Style |= styles[FAlignment];
}

// The frame.

vcl::TColor TQELOfficeEdit::FrameColor() const {
  if (!Enabled()) return vcl::clBtnShadow;
  if (Focused()) return FFocusColor;
  return Hot() ? FHotColor : vcl::clBtnShadow;
}

void TQELOfficeEdit::RedrawFrame() {
  if (HandleAllocated()) {
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
  }
}

/// The system's border is as thick as the frame and the space inside it together.
void TQELOfficeEdit::PaintFrame() {
  const HDC dc = ::GetWindowDC(Handle());
  if (!dc) return;
  const HWND window = Handle();
  RECT whole{};
  ::GetWindowRect(window, &whole);
  const TRect client = ClientRect();
  const vcl::TPoint origin = ClientOrigin();
  {
    vcl::TCanvas canvas;
    const vcl::TCanvasBinding binding(*this, canvas, dc);
    TRect frame{0, 0, static_cast<int>(whole.right - whole.left),
                static_cast<int>(whole.bottom - whole.top)};
    const int left = origin.X - static_cast<int>(whole.left);
    const int top = origin.Y - static_cast<int>(whole.top);
    canvas.ExcludeClipRect({left, top, left + client.Right, top + client.Bottom});
    canvas.Brush()->SetColor(Color());
    canvas.FillRect(frame);
    canvas.Brush()->SetColor(FrameColor());
    for (int i = 0; i < ScaledPixels(1); ++i) {
      canvas.FrameRect(frame);
      frame = {frame.Left + 1, frame.Top + 1, frame.Right - 1, frame.Bottom - 1};
    }
  }
  ::ReleaseDC(window, dc);
}

void TQELOfficeEdit::Dispatch(vcl::TMessage& message) {
  if (message.Msg == WM_NCPAINT) {
    PaintFrame();
    message.Result = 0;
    return;
  }
  const TWatch watch(this);
  TQELCustomPartEdit::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case vcl::CM_ENABLEDCHANGED:
    case vcl::CM_COLORCHANGED: return RedrawFrame();
    default: return;
  }
}

// The parts and the cue.

std::vector<TQELEditPart> TQELOfficeEdit::Parts() const {
  std::vector<TQELEditPart> parts;
  const int space = 2 * ScaledPixels(Spacing);
  if (FGlyph->Visible() && FGlyph->GetWidth() > 0) {
    parts.push_back({GlyphPart, FGlyph->GetWidth() + space, true, false, ""});
  }
  if (FButtonGlyph->Visible() && FButtonGlyph->GetWidth() > 0) {
    parts.push_back({ButtonPart, FButtonGlyph->GetWidth() + 2 * space, false, true, "Open"});
  }
  if (FShowClear) parts.push_back({ClearPart, ScaledPixels(CrossWidth), false, true, "Clear"});
  return parts;
}

bool TQELOfficeEdit::PartEnabled(int number) const {
  if (number != ClearPart) return Enabled();
  return Enabled() && CanModify() && HasText();
}

void TQELOfficeEdit::DrawCross(vcl::TCanvas& canvas, const TRect& rect, TQELPartLook look) const {
  if (look == TQELPartLook::Disabled) return;
  const int half = ScaledPixels(3);
  const int x = (rect.Left + rect.Right) / 2;
  const int y = (rect.Top + rect.Bottom) / 2;
  canvas.Pen()->SetColor(look == TQELPartLook::Normal ? vcl::clGrayText : FHotColor);
  canvas.Pen()->SetWidth(ScaledPixels(1));
  canvas.MoveTo(x - half, y - half);
  canvas.LineTo(x + half + 1, y + half + 1);
  canvas.MoveTo(x - half, y + half);
  canvas.LineTo(x + half + 1, y - half - 1);
}

void TQELOfficeEdit::DrawPart(vcl::TCanvas& canvas, int number, const TRect& rect,
                              TQELPartLook look) {
  if (number == ClearPart) return DrawCross(canvas, rect, look);
  const TQELGlyph& glyph = number == GlyphPart ? *FGlyph : *FButtonGlyph;
  const bool pressed = look == TQELPartLook::Pressed;
  if (number == ButtonPart) {
    const bool lit = pressed || look == TQELPartLook::Hot;
    canvas.Brush()->SetColor(vcl::clBtnFace);
    canvas.FillRect(rect);
    canvas.Brush()->SetColor(lit ? FHotColor : vcl::clBtnShadow);
    canvas.FrameRect(rect);
  }
  const int moved = pressed ? 1 : 0;
  glyph.Draw(&canvas, rect.Left + (rect.Width() - glyph.GetWidth()) / 2 + moved,
             rect.Top + (rect.Height() - glyph.GetHeight()) / 2 + moved, Enabled(), pressed, false);
}

void TQELOfficeEdit::PaintOver(vcl::TCanvas& canvas) {
  TQELCustomPartEdit::PaintOver(canvas);
  if (FCueText.empty() || HasText() || Focused()) return;
  static constexpr UINT places[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  RECT text{};
  vcl::Send(*this, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
  TRect rect = text;
  canvas.Font()->SetColor(vcl::clGrayText);
  canvas.Brush()->SetStyle(vcl::bsClear);
  vcl::DrawTextOn(&canvas, FCueText, rect,
                  DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | places[FAlignment]);
}

void TQELOfficeEdit::Change() {
  // The cue and the cross come and go with the text.
  if (std::exchange(FWasEmpty, !HasText()) != FWasEmpty) Invalidate();
  TQELCustomPartEdit::Change();
}

void TQELOfficeEdit::PressPart(int number) { number == ButtonPart ? ButtonClick() : ClearClick(); }

void TQELOfficeEdit::ClearClick() {
  SelectAll();
  ClearSelection();
}

void TQELOfficeEdit::ButtonClick() { OnButtonClick(this); }

void TQELOfficeEdit::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TQELCustomPartEdit::KeyDown(key, shift);
  if (watch.Gone() || key != VK_DOWN || !shift.Has(vcl::ssAlt)) return;
  key = 0;
  ButtonClick();
}

// A cue says what an edit is for as a label does, but is no text of it.
void TQELOfficeEdit::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomPartEdit::DescribeAccessible(info);
  if (info.Description.empty()) info.Description = FCueText;
}

}  // namespace qel
