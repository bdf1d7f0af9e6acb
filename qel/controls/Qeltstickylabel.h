// TQELStickyLabel: a label that stays beside a control.
#pragma once

#include "qel/controls/Qeltlabel.h"
#include "qel/core/Qelsticky.h"

namespace qel {

/// A label that belongs to a control: it stays beside it wherever that goes, focuses it by a click
/// and by its accelerator, and names it to screen readers. A control that is freed leaves the label
/// where it is.
class QEL_API TQELStickyLabel : public TQELCustomLabel {
 public:
  explicit TQELStickyLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// While there is a control, only the size is taken: the place is beside it.
  void SetBounds(int left, int top, int width, int height) override;

  vcl::TControl* Control() const { return FSticky.Control(); }
  /// The control that the label stays beside, which is not owned; null for none. The label goes
  /// into its parent.
  void SetControl(vcl::TControl* control);
  TQELPosition Position() const { return FSticky.Position(); }
  /// The side of the control on which the label stands.
  void SetPosition(TQELPosition position) { FSticky.SetPosition(position); }
  int Distance() const { return FSticky.Distance(); }
  /// Between the label and the control, in pixels. Takes only values from 0.
  void SetDistance(int distance) { FSticky.SetDistance(distance); }
  TQELStickySideAlignment SideAlignment() const { return FSticky.SideAlignment(); }
  /// The place along that side: its middle, its beginning or its end.
  void SetSideAlignment(TQELStickySideAlignment alignment) { FSticky.SetSideAlignment(alignment); }
  bool FollowEnabled() const { return FSticky.FollowEnabled(); }
  /// True: the label is enabled when its control is.
  void SetFollowEnabled(bool follow) { FSticky.SetFollowEnabled(follow); }
  bool FollowVisible() const { return FSticky.FollowVisible(); }
  /// True: the label is visible when its control is.
  void SetFollowVisible(bool follow) { FSticky.SetFollowVisible(follow); }

 protected:
  void Click() override;
  void ChangeScale(int m, int d) override;
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  TQELSticky FSticky;
};

}  // namespace qel
