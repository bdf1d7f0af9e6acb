// TSpeedButton: a button without a window, which never takes the focus and may stay down.
#pragma once

#include "vcl/stdctrls/buttonface.h"
#include "vcl/stdctrls/pressable.h"

namespace vcl {

/// A button of a tool bar. Those of one parent with the same GroupIndex, other than 0, are a group:
/// they stay down when they are clicked, one at a time. See TButtonFace for the glyph and where it
/// stands.
class VCL_API TSpeedButton : public TPressable {
 public:
  explicit TSpeedButton(TComponent* owner);
  ~TSpeedButton() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  void DoAccessibleAction() override;

  bool AllowAllUp() const { return FAllowAllUp; }
  /// True lets a click take the group's button that is down up again. Holds for the whole group.
  void SetAllowAllUp(bool allow);
  /// Buttons of one group, in one parent, take each other up; 0 is no group.
  int GroupIndex() const { return FGroupIndex; }
  /// 0 is no group.
  void SetGroupIndex(int group);
  bool Down() const { return FDown; }
  /// Has a button of a group stay down, and takes up the one that was. What is down goes up only
  /// where AllowAllUp is true.
  void SetDown(bool down);
  bool Flat() const { return FFlat; }
  /// True shows the edge only while the mouse is over the button or it is down.
  void SetFlat(bool flat);
  bool Transparent() const { return !ControlStyle().Has(csOpaque); }
  /// True lets a flat button show what is behind it.
  void SetTransparent(bool transparent);

  TBitmap* Glyph() const { return FFace.Glyph(); }
  /// A row of images, one for each state of the button.
  void SetGlyph(const TBitmap* glyph) { FFace.SetGlyph(glyph); }
  TNumGlyphs NumGlyphs() const { return FFace.NumGlyphs(); }
  /// The number of images in the glyph, from 1 to 4.
  void SetNumGlyphs(TNumGlyphs count) { FFace.SetNumGlyphs(count); }
  TButtonLayout Layout() const { return FFace.Layout(); }
  /// The side of the caption on which the glyph stands.
  void SetLayout(TButtonLayout layout) { FFace.SetLayout(layout); }
  int Margin() const { return FFace.Margin(); }
  /// Pixels from the button's edge to the glyph; -1 puts glyph and caption into the middle.
  void SetMargin(int margin) { FFace.SetMargin(margin); }
  int Spacing() const { return FFace.Spacing(); }
  /// Pixels between glyph and caption; -1 spreads them.
  void SetSpacing(int spacing) { FFace.SetSpacing(spacing); }
  /// Fires OnClick.
  void Click() override;

 protected:
  void ChangeScale(int m, int d) override;
  void Paint() override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void Released() override { DoAccessibleAction(); }
  void HotChanged() override;
  void Dispatch(TMessage& message) override;
  void FollowAction(const TActionChange& change) override;

 private:
  bool IsDownStored() const;
  bool IsGroupIndexStored() const;
  bool IsGlyphStored() const { return !FFace.GlyphFollows(); }
  void Changed(TObject* sender);
  TFaceState FaceState() const;
  bool ShowsEdge() const;
  void TellGroup();
  void Follow(const TSpeedButton& pressed);

  mutable TButtonFace FFace;
  int FGroupIndex = 0;
  bool FAllowAllUp = false;
  bool FDown = false;
  bool FFlat = false;
};

}  // namespace vcl
