// TQELCustomLabel: what the package's labels share; TQELComputedLabel: those whose text comes from
// elsewhere; TQELLabel.
#pragma once

#include <memory>
#include <string>

#include "qel/controls/Qeltbackground.h"
#include "qel/core/Qelclasses.h"
#include "vcl/stdctrls/label.h"

namespace qel {

/// Base of the labels: the text is three-dimensional, may be filled with a background, and stands
/// over another one, inside a frame.
class QEL_API TQELCustomLabel : public vcl::TCustomLabel {
 public:
  explicit TQELCustomLabel(vcl::TComponent* owner);
  ~TQELCustomLabel() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the label says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  /// How the caption is written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Uses that very object from now on, which the label then owns; the one that it had is freed.
  /// Null is refused. Settings that another control owns are copied instead, as they end with it.
  void Set3D(TQELFont3D* font3D);
  /// The frame along the label's edge.
  TQELFrame* Frame() const { return FFrame.get(); }
  /// As Set3D.
  void SetFrm(TQELFrame* frame);
  TQELBackground* FontBackground() const { return FFontBackground; }
  /// The background that fills the letters, which is not owned; null for none.
  void SetBack(TQELBackground* background);
  TQELBackground* Background() const { return FBackground; }
  /// The background behind the text, which is not owned; null for none.
  void SetBack2(TQELBackground* background);

 protected:
  void Paint() override;
  void DoDrawText(vcl::TRect& rect, UINT flags) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;
  /// The font of the text as it is shown now. Here: Font.
  virtual const vcl::TFont* ShownFont() const { return Font(); }
  /// What stays free at the left of the text, in pixels. Here: nothing.
  virtual int TextIndent() const { return 0; }
  /// The flags of DrawTextEx that the text is written with.
  virtual unsigned WriteFlags() const;

 private:
  void PaintGround();
  void PaintText();
  void ReplaceClient(TQELBackground*& field, TQELBackground* background);

  std::unique_ptr<TQELAbout> FAbout;
  std::unique_ptr<TQELFont3D> FFont3D;
  TQELBackground* FFontBackground = nullptr;
  TQELBackground* FBackground = nullptr;
  std::unique_ptr<TQELFrame> FFrame;
};

/// What labels publish beside their own properties and Caption, for `Inherit` in their tables.
inline constexpr const char* LabelProperties[] = {
    "About",       "Align",       "Alignment",   "AutoSize",       "Background", "Color",
    "DragCursor",  "DragMode",    "Enabled",     "Font",           "Font3D",     "FontBackground",
    "Frame",       "ParentColor", "ParentFont",  "ParentShowHint", "PopupMenu",  "ShowHint",
    "Transparent", "Visible",     "WordWrap",    "OnClick",        "OnDblClick", "OnDragDrop",
    "OnDragOver",  "OnEndDrag",   "OnMouseDown", "OnMouseMove",    "OnMouseUp",  "OnStartDrag"};

/// Base of the labels that show a text from elsewhere, between Prefix and Suffix. Their caption is
/// what they show: it cannot be written, and form files never hold it. "&" marks no accelerator in
/// it.
class QEL_API TQELComputedLabel : public TQELCustomLabel {
 public:
  explicit TQELComputedLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Ignored, as is all that sets the text from outside.
  void SetTextBuf(const char* text) override;

  const std::string& Prefix() const { return FPrefix; }
  /// The text in front of what is computed. Where that is empty, nothing is shown.
  void SetPrefix(const std::string& prefix);
  const std::string& Suffix() const { return FSuffix; }
  /// The text behind what is computed.
  void SetSuffix(const std::string& suffix);

  /// Has the text computed anew.
  void Refresh();

 protected:
  /// The bare text. Asked for by Refresh, which descendants' constructors end with.
  virtual std::string ComputeText() const = 0;
  void Loaded() override;

 private:
  std::string FPrefix;
  std::string FSuffix;
};

/// A label that draws its caption in three dimensions, over a background and inside a frame. Its
/// size does not follow the caption.
class QEL_API TQELLabel : public TQELCustomLabel {
 public:
  explicit TQELLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 protected:
  /// "&" marks an accelerator here whatever ShowAccelChar says.
  unsigned WriteFlags() const override;
};

}  // namespace qel
