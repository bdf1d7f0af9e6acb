// The base controls: which background they are a client of, and painting at once.
#include "qel/core/Qelcontrols.h"

#include "vcl/graphics/canvasbinding.h"
#include "vcl/rtl/properties.h"

namespace qel {

void QELMoveClient(vcl::TControl* client, TQELCustomBackground* from, TQELCustomBackground* to) {
  if (from) from->RemoveItem(client);
  if (to) to->AddItem(client);
}

TQELCustomControl::TQELCustomControl(vcl::TComponent* owner)
    : TWinControl(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FCanvas(std::make_unique<vcl::TControlCanvas>()) {
  FCanvas->SetControl(this);
}

TQELCustomControl::~TQELCustomControl() {
  AnnounceEnd();
  FCanvas->SetControl(nullptr);
  QELMoveClient(this, FBackground, nullptr);
}

void TQELCustomControl::SetBack(TQELCustomBackground* background) {
  QELMoveClient(this, FBackground, background);
  FBackground = background;
  if (background) background->FreeNotification(this);
  Invalidate();
}

void TQELCustomControl::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation == vcl::opRemove && component == FBackground) SetBack(nullptr);
}

void TQELCustomControl::Paint() {
  vcl::TCanvas* canvas = Canvas();
  canvas->Brush()->SetColor(vcl::clBtnFace);
  canvas->Brush()->SetStyle(vcl::bsSolid);
  if (FBackground) {
    FBackground->Draw(canvas->Handle(), Width(), Height(), true);
  } else {
    canvas->FillRect({0, 0, Width(), Height()});
  }
}

void TQELCustomControl::PaintNow() {
  if (!HandleAllocated()) return;
  vcl::TWatch watch(this);
  Paint();
  // A context that was got for this is not kept.
  if (!watch.Gone()) FCanvas->FreeHandle();
}

void TQELCustomControl::WMPaint(vcl::TMessage& message) { PaintHandler(message); }

void TQELCustomControl::PaintWindow(HDC dc) {
  vcl::TCanvasBinding binding(*this, *FCanvas, dc);
  Paint();
}

TQELGraphicControl::TQELGraphicControl(vcl::TComponent* owner)
    : TGraphicControl(owner), FAbout(std::make_unique<TQELAbout>(this)) {}

TQELGraphicControl::~TQELGraphicControl() = default;

const vcl::TClass& TQELCustomBackground::Class() {
  static const vcl::TClass info = vcl::Describe<TQELCustomBackground, TQELComponent>(
      "qel::TQELCustomBackground", "qel/core/Qelcontrols.h", {});
  return info;
}

const vcl::TClass& TQELCustomControl::Class() {
  using T = TQELCustomControl;
  using namespace vcl;
  static const TClass info = Describe<T, TWinControl>(
      "qel::TQELCustomControl", "qel/core/Qelcontrols.h",
      {
          ReadOnly<&T::About>("About").Unpublished(),
          Property<&T::Background, &T::SetBack>("Background").Type("TQELBackground").Unpublished(),
      });
  return info;
}

const vcl::TClass& TQELGraphicControl::Class() {
  static const vcl::TClass info = vcl::Describe<TQELGraphicControl, TGraphicControl>(
      "qel::TQELGraphicControl", "qel/core/Qelcontrols.h",
      {vcl::ReadOnly<&TQELGraphicControl::About>("About")});
  return info;
}

}  // namespace qel
