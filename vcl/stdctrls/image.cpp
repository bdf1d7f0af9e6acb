// TImage: where its picture stands, and painting it.
#include "vcl/stdctrls/image.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TImage::Class() {
  using T = TImage;
  static const TClass info = Describe<T, TGraphicControl>(
      "vcl::TImage", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align"),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(false),
          Property<&T::Center, &T::SetCenter>("Center").Default(false),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("ParentShowHint"),
          Property<&T::Picture, &T::SetPicture>("Picture"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::Stretch, &T::SetStretch>("Stretch").Default(false),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(false),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TImage::TImage(TComponent* owner) : TGraphicControl(owner), FPicture(std::make_unique<TPicture>()) {
  SetControlStyle(ControlStyle() + TControlStyle{csReplicatable});
  SetBounds(0, 0, 105, 105);
  FPicture->OnChange = {this, &TImage::PictureChanged};
  HearOnlyAsked<TImage>();
}

TImage::~TImage() {
  AnnounceEnd();
  FPicture->OnChange.Clear();
}

void TImage::Change(bool& field, bool value) {
  if (value == field) return;
  field = value;
  Invalidate();
}

void TImage::SetAutoSize(bool autoSize) {
  FAutoSize = autoSize;
  PictureChanged(nullptr);
}

void TImage::SetTransparent(bool transparent) {
  FTransparent = transparent;
  PictureChanged(nullptr);
}

// A bitmap that is told to be transparent says so itself, which comes here again.
void TImage::PictureChanged(TObject*) {
  TGraphic* const graphic = FPicture->Graphic();
  if (graphic) graphic->SetTransparent(FTransparent);
  if (FAutoSize && graphic && !graphic->Empty())
    SetBounds(Left(), Top(), graphic->Width(), graphic->Height());
  Invalidate();
}

TRect TImage::PictureRect() const {
  if (FStretch) return ClientRect();
  const int width = FPicture->Width();
  const int height = FPicture->Height();
  const int left = FCenter ? (Width() - width) / 2 : 0;
  const int top = FCenter ? (Height() - height) / 2 : 0;
  return {left, top, left + width, top + height};
}

void TImage::Paint() {
  if (TGraphic* const graphic = FPicture->Graphic()) graphic->Draw(Canvas(), PictureRect());
  if (!Designing()) return;
  Canvas()->Pen()->SetStyle(psDash);
  Canvas()->Brush()->SetStyle(bsClear);
  Canvas()->Rectangle(ClientRect());
}

}  // namespace vcl
