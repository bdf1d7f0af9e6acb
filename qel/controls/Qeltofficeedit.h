// TQELOfficeEdit: an edit with a thin frame that lights up.
#pragma once

#include "qel/controls/Qelpartedit.h"
#include "qel/core/Qelglyph.h"

namespace qel {

/// An edit in a thin frame, which shows where the mouse and the focus are; with a picture before
/// its text, a cue while it is empty, a cross that empties it, and a button.
class QEL_API TQELOfficeEdit : public TQELCustomPartEdit {
 public:
  explicit TQELOfficeEdit(vcl::TComponent* owner);
  ~TQELOfficeEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  vcl::TColor HotColor() const { return FHotColor; }
  /// The frame's colour while the mouse is over the edit.
  void SetHotColor(vcl::TColor color);
  vcl::TColor FocusColor() const { return FFocusColor; }
  /// The frame's colour while the edit has the focus.
  void SetFocusColor(vcl::TColor color);
  const std::string& CueText() const { return FCueText; }
  /// What is shown, in grey, while the edit is empty and has not the focus.
  void SetCueText(const std::string& text);
  vcl::TAlignment Alignment() const { return FAlignment; }
  /// Where the text stands in the edit.
  void SetAlignment(vcl::TAlignment alignment);
  bool ShowClear() const { return FShowClear; }
  /// True shows a cross behind the text, which empties the edit.
  void SetShowClear(bool show);
  /// A picture before the text.
  TQELGlyph* Glyph() const { return FGlyph.get(); }
  void SetGlyph(const TQELGlyph* glyph) { FGlyph->Assign(glyph); }
  /// The picture of a button behind the text; without one there is no button.
  TQELGlyph* ButtonGlyph() const { return FButtonGlyph.get(); }
  void SetButtonGlyph(const TQELGlyph* glyph) { FButtonGlyph->Assign(glyph); }

  /// The button has been pressed, or Alt+Down.
  vcl::TNotifyEvent OnButtonClick;

 protected:
  /// Fires OnButtonClick.
  virtual void ButtonClick();
  /// The cross has been pressed: empties the edit.
  virtual void ClearClick();
  std::vector<TQELEditPart> Parts() const override;
  void DrawPart(vcl::TCanvas& canvas, int number, const vcl::TRect& rect,
                TQELPartLook look) override;
  void PressPart(int number) override;
  bool PartEnabled(int number) const override;
  void PaintOver(vcl::TCanvas& canvas) override;
  void HotChanged() override { RedrawFrame(); }
  void Change() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void CreateParams(vcl::TCreateParams& params) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  void GlyphChanged(vcl::TObject* /*sender*/) { PartsChanged(); }
  vcl::TColor FrameColor() const;
  void RedrawFrame();
  void PaintFrame();
  void DrawCross(vcl::TCanvas& canvas, const vcl::TRect& rect, TQELPartLook look) const;

  vcl::TColor FHotColor = vcl::clHighlight;
  vcl::TColor FFocusColor = vcl::clHighlight;
  std::string FCueText;
  vcl::TAlignment FAlignment = vcl::taLeftJustify;
  bool FShowClear = false;
  bool FWasEmpty = true;
  std::unique_ptr<TQELGlyph> FGlyph;
  std::unique_ptr<TQELGlyph> FButtonGlyph;
};

}  // namespace qel
