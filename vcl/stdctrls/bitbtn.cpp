// TBitBtn: what its kind says of it, and painting the button with its glyph.
#include "vcl/stdctrls/bitbtn.h"

#include "vcl/actions/actionlink.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/private/bitbtnkinds.h"

namespace vcl {

const TClass& TBitBtn::Class() {
  using T = TBitBtn;
  static const TClass info = Describe<T, TButton>(
      "vcl::TBitBtn", "vcl/stdctrls/buttons.h",
      {
          Inherit("Cancel").StoredIf<&T::IsCustom>(),
          Inherit("Caption").StoredIf<&T::IsOwnCaptionStored>(),
          Inherit("Default").StoredIf<&T::IsCustom>(),
          Property<&T::Glyph, &T::SetGlyph>("Glyph").StoredIf<&T::IsGlyphStored>(),
          Property<&T::Kind, &T::SetKind>("Kind").Default(bkCustom),
          Property<&T::Layout, &T::SetLayout>("Layout").Default(blGlyphLeft),
          Property<&T::Margin, &T::SetMargin>("Margin").Default(-1),
          Inherit("ModalResult").StoredIf<&T::IsCustom>(),
          Property<&T::NumGlyphs, &T::SetNumGlyphs>("NumGlyphs")
              .Default(1)
              .StoredIf<&T::IsCustom>(),
          Property<&T::Spacing, &T::SetSpacing>("Spacing").Default(4),
      });
  return info;
}

TBitBtn::TBitBtn(TComponent* owner)
    : TButton(owner),
      FFace(TNotifyEvent(this, &TBitBtn::Changed), TNotifyEvent(this, &TBitBtn::GlyphChanged)),
      FCanvas(std::make_unique<TCanvas>()) {
  // It is painted whole, and a double click presses it twice.
  SetControlStyle({csSetCaption, csOpaque});
  HearOnlyAsked<TBitBtn>();
}

TBitBtn::~TBitBtn() { AnnounceEnd(); }

void TBitBtn::Changed(TObject* /*sender*/) { Invalidate(); }

void TBitBtn::GlyphChanged(TObject* /*sender*/) { FOwnGlyph = true; }

// Kinds.

TBitBtnKind TBitBtn::Kind() const {
  const TBitBtnTraits& traits = TraitsOf(FKind);
  const bool same = !FOwnGlyph && Default() == traits.Default && Cancel() == traits.Cancel &&
                    ModalResult() == traits.ModalResult;
  return same ? FKind : bkCustom;
}

void TBitBtn::SetKind(TBitBtnKind kind) {
  if (kind != bkCustom) {
    const TBitBtnTraits& traits = TraitsOf(kind);
    SetDefault(traits.Default);
    SetCancel(traits.Cancel);
    if (!Loading() || Caption().empty()) SetCaption(traits.Caption);
    SetModalResult(traits.ModalResult);
    TBitmap glyph;
    DrawKindGlyph(kind, glyph);
    SetGlyph(&glyph);
    FOwnGlyph = false;
  }
  FKind = kind;
  Invalidate();
}

// A kind's caption comes before the action's when the button is read.
bool TBitBtn::IsOwnCaptionStored() const {
  return Caption() != TraitsOf(FKind).Caption && (FKind != bkCustom || IsCaptionStored());
}

void TBitBtn::FollowAction(const TActionChange& change) {
  const TWatch watch(this);
  TButton::FollowAction(change);
  if (!watch.Gone()) FFace.FollowAction(change);
}

void TBitBtn::Click() {
  TCustomForm* form = ParentForm();
  if (Kind() == bkClose && form) return form->Close();
  TButton::Click();
}

// Painting.

void TBitBtn::ChangeScale(int m, int d) {
  TButton::ChangeScale(m, d);
  // -1 is no distance.
  if (Margin() > 0) SetMargin(ScaleMeasure(Margin(), m, d));
  if (Spacing() > 0) SetSpacing(ScaleMeasure(Spacing(), m, d));
}

void TBitBtn::CreateParams(TCreateParams& params) {
  TButton::CreateParams(params);
  params.Style = (params.Style & ~static_cast<DWORD>(BS_TYPEMASK)) | BS_OWNERDRAW;
}

void TBitBtn::SetButtonStyle(bool active) {
  FLooksActive = active;
  Invalidate();
}

void TBitBtn::Dispatch(TMessage& message) {
  if (message.Msg == CN_DRAWITEM) {
    DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(message.LParam));
    message.Result = 1;
    return;
  }
  TWatch watch(this);
  TButton::Dispatch(message);
  if (!watch.Gone() && message.Msg == CM_TEXTCHANGED) Invalidate();
}

TRect TBitBtn::DrawFrame(const TRect& client, bool down, bool focused) {
  TRect rect = client;
  if (FLooksActive || focused) {
    FCanvas->Brush()->SetColor(clWindowFrame);
    FCanvas->FrameRect(rect);
    rect.Inflate(-1, -1);
  }
  RECT edge = rect;
  if (down) {
    FCanvas->Brush()->SetColor(clBtnShadow);
    FCanvas->FrameRect(rect);
    rect.Inflate(-1, -1);
    FCanvas->Brush()->SetColor(clBtnFace);
    FCanvas->FillRect(rect);
    rect.Inflate(-1, -1);
  } else {
    ::DrawFrameControl(FCanvas->Handle(), &edge, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_ADJUSTRECT);
    rect = edge;
  }
  return rect;
}

void TBitBtn::DrawItem(const DRAWITEMSTRUCT& item) {
  const TCanvasBinding binding(*this, *FCanvas, item.hDC);
  const bool down = item.itemState & ODS_SELECTED;
  const bool focused = item.itemState & ODS_FOCUS;
  TRect face = DrawFrame(ClientRect(), down, focused);
  FCanvas->SetFont(Font());
  if (down) face.Offset(1, 1);
  const bool disabled = item.itemState & ODS_DISABLED;
  FFace.Draw(FCanvas.get(), face, Caption(),
             disabled ? TFaceState::Disabled
             : down   ? TFaceState::Down
                      : TFaceState::Up,
             CurrentPPI());
  if (!focused) return;
  face.Inflate(-1, -1);
  FCanvas->Font()->SetColor(clWindowFrame);
  FCanvas->Brush()->SetColor(clBtnFace);
  FCanvas->DrawFocusRect(face);
}

}  // namespace vcl
