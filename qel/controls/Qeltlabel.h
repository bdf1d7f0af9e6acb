// TQELLabel: a label whose text is three-dimensional and may be filled with a background.
#pragma once

#include <memory>

#include "qel/controls/Qeltbackground.h"
#include "qel/core/Qelclasses.h"
#include "vcl/stdctrls/label.h"

namespace qel {

/// A label that draws its caption in three dimensions, over a background and inside a frame. Its
/// size does not follow the caption.
class QEL_API TQELLabel : public vcl::TCustomLabel {
 public:
  explicit TQELLabel(vcl::TComponent* owner);
  ~TQELLabel() override;
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
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

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

}  // namespace qel
