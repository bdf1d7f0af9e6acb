// TBrush: how areas are filled.
#pragma once

#include <memory>

#include "vcl/graphics/graphicsobject.h"
#include "vcl/graphics/handles.h"

namespace vcl {

class TBitmap;

enum TBrushStyle {
  bsSolid,
  bsClear,
  bsHorizontal,
  bsVertical,
  bsFDiagonal,
  bsBDiagonal,
  bsCross,
  bsDiagCross
};
template <>
inline constexpr TEnumText EnumText<TBrushStyle>{
    "TBrushStyle",
    "bsSolid bsClear bsHorizontal bsVertical bsFDiagonal bsBDiagonal bsCross bsDiagCross"};

/// A brush. A new one fills with solid white.
class VCL_API TBrush : public TGraphicsObject {
 public:
  TBrush() = default;
  ~TBrush() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies another brush; the two share one handle until either changes.
  void Assign(const TPersistent* source) override;

  /// The GDI brush, which stays the TBrush's own: of the pattern when there is one, else of the
  /// style and the colour. Raises EOutOfResources.
  HBRUSH Handle() const;
  /// The handle with a share in its life, for who keeps it selected.
  std::shared_ptr<const TOwnedBrush> Share() const;

  /// The colour that is filled with.
  TColor Color() const { return FColor; }
  /// Also makes a clear brush solid, as a brush that is given a colour is meant to fill.
  void SetColor(TColor color);
  TBrushStyle Style() const { return FStyle; }
  /// The pattern that is filled with.
  void SetStyle(TBrushStyle style);
  const TBitmap* Bitmap() const { return FBitmap; }
  /// A pattern to fill with instead of colour and style; null for none. It stays the caller's and
  /// must outlive the brush, or be taken out before; set again, it is read again.
  void SetBitmap(const TBitmap* bitmap);

  /// Prepares a device context for the brush: a solid brush gives the background its colour and
  /// makes it opaque; any other makes it transparent and, so that hatches stand out where it is
  /// drawn all the same, gives it the complement of the brush's colour.
  void ApplyBackground(HDC dc) const;

  bool operator==(const TBrush& other) const;

 private:
  void Remake();

  TColor FColor = clWhite;
  TBrushStyle FStyle = bsSolid;
  const TBitmap* FBitmap = nullptr;
  mutable std::shared_ptr<const TOwnedBrush> FHandle;
};

}  // namespace vcl
