// TBitBtn: a push button with a glyph beside its caption.
#pragma once

#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/buttonface.h"

namespace vcl {

/// The usual buttons of dialogs.
enum TBitBtnKind {
  bkCustom,
  bkOK,
  bkCancel,
  bkHelp,
  bkYes,
  bkNo,
  bkClose,
  bkAbort,
  bkRetry,
  bkIgnore,
  bkAll
};
template <>
inline constexpr TEnumText EnumText<TBitBtnKind>{
    "TBitBtnKind",
    "bkCustom bkOK bkCancel bkHelp bkYes bkNo bkClose bkAbort bkRetry bkIgnore bkAll"};

/// A push button that paints itself. See TButtonFace for its glyph and where it stands.
class VCL_API TBitBtn : public TButton {
 public:
  explicit TBitBtn(TComponent* owner);
  ~TBitBtn() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

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
  /// Which of the usual buttons it is; bkCustom as soon as it differs in glyph, answer or keys from
  /// that.
  TBitBtnKind Kind() const;
  /// Gives the button the kind's caption, glyph, ModalResult, Default and Cancel; bkCustom changes
  /// nothing. A caption that is read from a form file stays.
  void SetKind(TBitBtnKind kind);
  /// A button of the kind bkClose closes its form instead of firing OnClick.
  void Click() override;

 protected:
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  void SetButtonStyle(bool active) override;
  void FollowAction(const TActionChange& change) override;

 private:
  bool IsCustom() const { return Kind() == bkCustom; }
  bool IsGlyphStored() const { return IsCustom() && !FFace.GlyphFollows(); }
  bool IsOwnCaptionStored() const;
  void Changed(TObject* sender);
  void GlyphChanged(TObject* sender);
  void DrawItem(const DRAWITEMSTRUCT& item);
  /// Draws edge and face and returns what is left for the contents.
  TRect DrawFrame(const TRect& client, bool down, bool focused);

  mutable TButtonFace FFace;
  std::unique_ptr<TCanvas> FCanvas;
  TBitBtnKind FKind = bkCustom;
  bool FOwnGlyph = false;     // The glyph is no longer the kind's.
  bool FLooksActive = false;  // Enter is for this button.
};

}  // namespace vcl
