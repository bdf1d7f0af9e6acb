// TPen: how lines and outlines are drawn.
#pragma once

#include <memory>

#include "vcl/graphics/graphicsobject.h"
#include "vcl/graphics/handles.h"

namespace vcl {

enum TPenStyle { psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame };
template <>
inline constexpr TEnumText EnumText<TPenStyle>{
    "TPenStyle", "psSolid psDash psDot psDashDot psDashDotDot psClear psInsideFrame"};

/// What a pixel becomes from the pen's colour and the colour that it has.
enum TPenMode {
  pmBlack,
  pmWhite,
  pmNop,
  pmNot,
  pmCopy,
  pmNotCopy,
  pmMergePenNot,
  pmMaskPenNot,
  pmMergeNotPen,
  pmMaskNotPen,
  pmMerge,
  pmNotMerge,
  pmMask,
  pmNotMask,
  pmXor,
  pmNotXor
};
template <>
inline constexpr TEnumText EnumText<TPenMode>{
    "TPenMode",
    "pmBlack pmWhite pmNop pmNot pmCopy pmNotCopy pmMergePenNot pmMaskPenNot pmMergeNotPen "
    "pmMaskNotPen pmMerge pmNotMerge pmMask pmNotMask pmXor pmNotXor"};

/// A pen. A new one draws solid black lines one pixel wide.
class VCL_API TPen : public TGraphicsObject {
 public:
  TPen() = default;
  ~TPen() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies another pen; the two share one handle until either changes.
  void Assign(const TPersistent* source) override;

  /// The GDI pen, which stays the TPen's own. Raises EOutOfResources.
  HPEN Handle() const;
  /// The handle with a share in its life, for who keeps it selected.
  std::shared_ptr<const TOwnedPen> Share() const;

  TColor Color() const { return FColor; }
  /// The colour of the lines.
  void SetColor(TColor color);
  int Width() const { return FWidth; }
  /// In pixels; a negative width is not taken. Dashes and dots need a width of at most 1, above
  /// which the system draws solid lines.
  void SetWidth(int width);
  TPenStyle Style() const { return FStyle; }
  /// Whether lines are solid, dashed or dotted.
  void SetStyle(TPenStyle style);
  TPenMode Mode() const { return FMode; }
  /// How a line's colour and what it is drawn over are combined.
  void SetMode(TPenMode mode);

  bool operator==(const TPen& other) const;

 private:
  void Remake();

  TColor FColor = clBlack;
  int FWidth = 1;
  TPenStyle FStyle = psSolid;
  TPenMode FMode = pmCopy;
  mutable std::shared_ptr<const TOwnedPen> FHandle;
};

}  // namespace vcl
