// TQELFormAspect: a form whose width and height keep their relation.
#pragma once

#include "qel/services/Qelformcomponent.h"

namespace qel {

/// Keeps the relation of its form's width and height while the user sizes the form, by any of its
/// edges and corners: the size across follows, at a corner the one that would be too small. The
/// form stays inside its limits of size, where the relation allows that.
class QEL_API TQELFormAspect : public TQELFormComponent {
 public:
  explicit TQELFormAspect(vcl::TComponent* owner);
  ~TQELFormAspect() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int AspectWidth() const { return FAspectWidth; }
  /// The width's part of the relation. Takes only values from 1.
  void SetAspectWidth(int width);
  int AspectHeight() const { return FAspectHeight; }
  /// The height's part of the relation. Takes only values from 1.
  void SetAspectHeight(int height);
  bool ClientArea() const { return FClientArea; }
  /// True: the relation is that of the form's inside, without border and menu.
  void SetClientArea(bool clientArea) { FClientArea = clientArea; }

 protected:
  void AfterMessage(vcl::TMessage& message) override;

 private:
  vcl::TSize Around() const;
  vcl::TSize Kept(vcl::TSize wanted, bool byWidth) const;
  int WidthInLimits(int width, vcl::TSize around) const;
  void KeepAspect(RECT& bounds, WPARAM edge) const;

  int FAspectWidth = 4;
  int FAspectHeight = 3;
  bool FClientArea = true;
};

}  // namespace qel
