// TQELSticky: staying beside another control.
#pragma once

#include "qel/core/Qelenumerations.h"
#include "qel/core/api.h"
#include "vcl/controls/control.h"
#include "vcl/controls/controlwatch.h"

namespace qel {

/// The place along the side at which something stands.
enum TQELStickySideAlignment {
  ssCenter,  ///< In its middle.
  ssBegin,   ///< At its top, or its left end.
  ssEnd      ///< At its bottom, or its right end.
};

/// Keeps a control, the follower, beside another one: where it moves, and in whatever parent it is.
/// A control that is freed leaves the follower where it is.
class QEL_API TQELSticky {
 public:
  /// `follower`, whose SetBounds takes the place from PlaceFor, outlives this.
  explicit TQELSticky(vcl::TControl& follower);

  /// The control that is followed; null for none.
  vcl::TControl* Control() const { return FWatch.Control(); }
  /// The follower itself is refused.
  void SetControl(vcl::TControl* control);
  TQELPosition Position() const { return FPosition; }
  /// On which side of the control.
  void SetPosition(TQELPosition position);
  int Distance() const { return FDistance; }
  /// Between the two, in pixels. Takes only values from 0.
  void SetDistance(int distance);
  TQELStickySideAlignment SideAlignment() const { return FSideAlignment; }
  void SetSideAlignment(TQELStickySideAlignment alignment);
  bool FollowEnabled() const { return FFollowEnabled; }
  /// True: the follower is enabled when the control is.
  void SetFollowEnabled(bool follow);
  bool FollowVisible() const { return FFollowVisible; }
  /// True: the follower is visible when the control is.
  void SetFollowVisible(bool follow);

  /// Whether there is a place to keep.
  bool Holds() const { return Control() && Control()->Parent(); }
  /// Where a follower of that size stands; only while it Holds.
  vcl::TPoint PlaceFor(int width, int height) const;
  /// Brings the follower where it belongs. Does nothing while either of the two is being loaded.
  void Update();

 private:
  int Along(int start, int room, int own) const;

  vcl::TControl& FFollower;
  vcl::TControlWatch FWatch;
  TQELPosition FPosition = pLeft;
  int FDistance = 4;
  TQELStickySideAlignment FSideAlignment = ssCenter;
  bool FFollowEnabled = false;
  bool FFollowVisible = true;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELStickySideAlignment>{"TQELStickySideAlignment",
                                                                  "ssCenter ssBegin ssEnd"};

}  // namespace vcl
