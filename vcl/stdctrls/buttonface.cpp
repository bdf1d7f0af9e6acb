// TButtonFace: where glyph and caption stand, the glyph's images, and drawing them.
#include "vcl/stdctrls/buttonface.h"

#include <utility>

#include "vcl/actions/actionlink.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/graphics/icon.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int MostGlyphs = 4;

void CheckDistance(const char* name, int pixels) {
  if (pixels >= -1) return;
  throw EArgumentOutOfRangeException(
      Concat("A button's ", name, " can't be ", std::to_string(pixels)));
}

/// Glyph and caption along the line on which they follow each other: the distance in front of the
/// first, and the one between them.
struct TLine {
  int Margin;
  int Spacing;
};

TLine Divide(int length, int glyph, int text, int margin, int spacing) {
  if (glyph == 0 || text == 0) spacing = 0;
  const int spare = length - glyph - text;
  if (margin < 0 && spacing < 0) return {spare / 3, spare / 3};
  if (margin < 0) return {(spare - spacing + 1) / 2, spacing};
  if (spacing < 0) return {margin, (spare - margin) / 2};
  return {margin, spacing};
}

/// One picture of the list at its size and at all larger ones; null where it has none.
std::unique_ptr<TImageList> PictureOf(const TImageList* list, int index) {
  if (!list || index >= list->Count()) return nullptr;
  auto picture = std::make_unique<TImageList>(nullptr, list->Width(), list->Height());
  TIcon icon;
  list->GetIcon(index, &icon);
  picture->AddIcon(&icon);
  std::unique_ptr<TImageList> larger = PictureOf(list->Larger(), index);
  picture->SetLarger(larger.get());
  if (larger) picture->InsertComponent(larger.release());
  return picture;
}

}  // namespace

TButtonFace::TButtonFace(TNotifyEvent changed, TNotifyEvent glyphChanged)
    : FChanged(std::move(changed)), FGlyphChanged(std::move(glyphChanged)) {
  FGlyph.OnChange = TNotifyEvent(this, &TButtonFace::GlyphChanged);
}

TButtonFace::~TButtonFace() { FGlyph.OnChange.Clear(); }

template <class T>
void TButtonFace::Change(T& field, T value) {
  if (value == field) return;
  field = value;
  FChanged(nullptr);
}

void TButtonFace::SetGlyph(const TBitmap* glyph) {
  if (glyph != &FGlyph) FGlyph.Assign(glyph);
}

void TButtonFace::GlyphChanged(TObject* /*sender*/) {
  FImages.reset();
  FLarger.reset();
  FGlyphFollows = false;
  CountImages();
  FGlyphChanged(nullptr);
  FChanged(nullptr);
}

void TButtonFace::FollowAction(const TActionChange& change) {
  using V = TActionValues;
  if (!FGlyph.Empty() && !FGlyphFollows) return;
  if (!change.Changes(&V::ImageIndex) && !change.Changes(&V::Images)) return;
  const auto& [index, images] = std::pair(change.Now().ImageIndex, change.Now().Images);
  TBitmap picture;
  if (images && index >= 0 && index < images->Count()) {
    constexpr TColor seeThrough = clFuchsia;
    images->GetBitmap(index, &picture, seeThrough);
    picture.SetTransparentColor(seeThrough);
  }
  FGlyph.Assign(&picture);
  FNumGlyphs = TNumGlyphs{1};  // However wide it is.
  if (!picture.Empty()) FLarger = PictureOf(images->Larger(), index);
  FGlyphFollows = !picture.Empty();
}

void TButtonFace::CountImages() {
  const int width = FGlyph.Width();
  const int height = FGlyph.Height();
  if (height == 0 || width % height != 0) return;
  const int count = width / height;
  FNumGlyphs = TNumGlyphs(count >= 1 && count <= MostGlyphs ? count : 1);
}

void TButtonFace::SetNumGlyphs(TNumGlyphs count) {
  if (count < 1 || count > MostGlyphs) {
    throw EArgumentOutOfRangeException(
        Concat("A button's glyph has 1 to 4 images, not ", std::to_string(count)));
  }
  if (count != FNumGlyphs) FImages.reset();
  Change(FNumGlyphs, count);
}

void TButtonFace::SetLayout(TButtonLayout layout) { Change(FLayout, layout); }

void TButtonFace::SetMargin(int margin) {
  CheckDistance("margin", margin);
  Change(FMargin, margin);
}

void TButtonFace::SetSpacing(int spacing) {
  CheckDistance("spacing", spacing);
  Change(FSpacing, spacing);
}

// Drawing.

TSize TButtonFace::GlyphSize() const {
  const int width = FGlyph.Width() / FNumGlyphs;
  return width > 0 ? TSize{width, FGlyph.Height()} : TSize{};
}

TButtonFace::TPlaces TButtonFace::Arrange(const TRect& client, TSize glyph, TSize text) const {
  const bool row = FLayout == blGlyphLeft || FLayout == blGlyphRight;
  const bool glyphFirst = FLayout == blGlyphLeft || FLayout == blGlyphTop;
  const int length = row ? client.Width() : client.Height();
  const int glyphLength = row ? glyph.cx : glyph.cy;
  const int textLength = row ? text.cx : text.cy;
  const TLine line = Divide(length, glyphLength, textLength, FMargin, FSpacing);
  int glyphAt = line.Margin;
  int textAt = line.Margin + glyphLength + line.Spacing;
  // From the other end on, it is the mirror image.
  if (!glyphFirst) glyphAt = length - glyphAt - glyphLength;
  if (!glyphFirst) textAt = length - textAt - textLength;
  const auto place = [&](int along, TSize size) {
    const TPoint inside = row ? TPoint(along, (client.Height() - size.cy + 1) / 2)
                              : TPoint((client.Width() - size.cx + 1) / 2, along);
    return inside + client.TopLeft();
  };
  const TPoint textPlace = place(textAt, text);
  return {place(glyphAt, glyph), Bounds(textPlace.X, textPlace.Y, text.cx, text.cy)};
}

void TButtonFace::Draw(TCanvas* canvas, const TRect& client, const std::string& caption,
                       TFaceState state, int pixelsPerInch) {
  DrawWith(canvas, client, caption, state, GlyphFor(state, pixelsPerInch));
}

void TButtonFace::DrawWith(TCanvas* canvas, const TRect& client, const std::string& caption,
                           TFaceState state, const TFacePicture& picture) const {
  TImageList* images = picture.List;
  const TSize glyph = images ? TSize{images->Width(), images->Height()} : TSize{};
  TRect measured(0, 0, client.Width(), 0);
  if (!caption.empty()) DrawTextOn(canvas, caption, measured, DT_CALCRECT);
  TPlaces places = Arrange(client, glyph, caption.empty() ? TSize{} : measured.Size());
  if (images) {
    images->Draw(canvas, places.Glyph.X, places.Glyph.Y, picture.Index, picture.Enabled);
  }
  if (caption.empty()) return;
  constexpr UINT flags = DT_CENTER | DT_VCENTER | DT_NOCLIP;
  canvas->Brush()->SetStyle(bsClear);
  if (state == TFaceState::Disabled) {
    places.Text.Offset(1, 1);
    canvas->Font()->SetColor(clBtnHighlight);
    DrawTextOn(canvas, caption, places.Text, flags);
    places.Text.Offset(-1, -1);
    canvas->Font()->SetColor(clBtnShadow);
  }
  DrawTextOn(canvas, caption, places.Text, flags);
}

/// Null without a glyph.
TImageList* TButtonFace::ImagesFor(int pixelsPerInch) {
  const TSize size = GlyphSize();
  if (size.cx == 0) return nullptr;
  if (!FImages) {
    auto images = std::make_unique<TImageList>(nullptr, size.cx, size.cy);
    images->AddMasked(&FGlyph, FGlyph.TransparentColor());
    images->SetLarger(FLarger.get());
    FImages = std::move(images);
  }
  return FImages->ForPPI(pixelsPerInch);
}

TFacePicture TButtonFace::GlyphFor(TFaceState state, int pixelsPerInch) {
  const int wanted = static_cast<int>(state);
  const bool drawn = wanted < FNumGlyphs;
  return {ImagesFor(pixelsPerInch), drawn ? wanted : 0, drawn || state != TFaceState::Disabled};
}

TRect DrawFaceEdge(TCanvas* canvas, const TRect& rect, const TFaceEdge& edge) {
  RECT frame = rect;
  if (!edge.Flat) {
    ::DrawFrameControl(canvas->Handle(), &frame, DFC_BUTTON,
                       DFCS_BUTTONPUSH | DFCS_ADJUSTRECT | (edge.Down ? DFCS_PUSHED : 0u));
    return frame;
  }
  if (edge.Filled) {
    canvas->Brush()->SetColor(clBtnFace);
    canvas->FillRect(rect);
  }
  if (edge.Shown) {
    ::DrawEdge(canvas->Handle(), &frame, edge.Down ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
  }
  TRect inside = rect;
  inside.Inflate(-1, -1);
  return inside;
}

}  // namespace vcl
