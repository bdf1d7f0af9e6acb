// TQELFormSizes: how large its form may be, and where it may stand.
#pragma once

#include "qel/services/Qelformcomponent.h"

// The system's records of what a window may become.
struct tagMINMAXINFO;
struct tagWINDOWPOS;

namespace qel {

/// Limits the size and the place of its form, whoever sizes and moves it, and says how large the
/// form is and where it stands when it is maximised. 0 is no limit. Where a least and a largest
/// value contradict each other, the least one holds; the form's own Constraints hold beside these.
///
/// Sizes are those of the form with its border, and are scaled with the form; places are positions
/// on the screen.
class QEL_API TQELFormSizes : public TQELFormComponent {
 public:
  explicit TQELFormSizes(vcl::TComponent* owner);
  ~TQELFormSizes() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int MinWidth() const { return Scaled(FMinWidth); }
  /// The least width. Takes only values from 0.
  void SetMinWidth(int width) { SetSize(FMinWidth, width); }
  int MinHeight() const { return Scaled(FMinHeight); }
  /// The least height. Takes only values from 0.
  void SetMinHeight(int height) { SetSize(FMinHeight, height); }
  int MaxWidth() const { return Scaled(FMaxWidth); }
  /// The largest width, also of the maximised form. Takes only values from 0.
  void SetMaxWidth(int width) { SetSize(FMaxWidth, width); }
  int MaxHeight() const { return Scaled(FMaxHeight); }
  /// The largest height, also of the maximised form. Takes only values from 0.
  void SetMaxHeight(int height) { SetSize(FMaxHeight, height); }
  int MinLeft() const { return FMinLeft; }
  /// How far to the left the form may stand.
  void SetMinLeft(int left) { SetPlace(FMinLeft, left); }
  int MinTop() const { return FMinTop; }
  /// How far up the form may stand.
  void SetMinTop(int top) { SetPlace(FMinTop, top); }
  int MaxLeft() const { return FMaxLeft; }
  /// How far to the right the form's left side may stand.
  void SetMaxLeft(int left) { SetPlace(FMaxLeft, left); }
  int MaxTop() const { return FMaxTop; }
  /// How far down the form's upper side may stand.
  void SetMaxTop(int top) { SetPlace(FMaxTop, top); }
  int MaximizedWidth() const { return Scaled(FMaximizedWidth); }
  /// The maximised form's width; 0 is the monitor's. Takes only values from 0. A form that is
  /// maximised takes this and the next three when it is next maximised.
  void SetMaximizedWidth(int width) { SetSize(FMaximizedWidth, width); }
  int MaximizedHeight() const { return Scaled(FMaximizedHeight); }
  /// The maximised form's height; 0 is the monitor's. Takes only values from 0.
  void SetMaximizedHeight(int height) { SetSize(FMaximizedHeight, height); }
  int MaximizedLeft() const { return FMaximizedLeft; }
  /// The maximised form's left side; 0 is where the system puts it.
  void SetMaximizedLeft(int left) { SetPlace(FMaximizedLeft, left); }
  int MaximizedTop() const { return FMaximizedTop; }
  /// The maximised form's upper side; 0 is where the system puts it.
  void SetMaximizedTop(int top) { SetPlace(FMaximizedTop, top); }

 protected:
  void BeforeMessage(vcl::TMessage& message, bool& handled) override;
  void AfterMessage(vcl::TMessage& message) override;
  void Begin() override;

 private:
  /// A size, and the dots per inch of the form that it was given in.
  struct TMeasure {
    int Pixels = 0;
    int PerInch = 1;
  };
  int PixelsPerInch() const;
  int Scaled(const TMeasure& measure) const;
  void SetSize(TMeasure& measure, int pixels);
  void SetPlace(int& place, int value);
  void Apply();
  bool FreelyPlaced() const;
  vcl::TPoint Limited(vcl::TPoint place) const;
  void LimitInfo(tagMINMAXINFO& info) const;
  void LimitChange(tagWINDOWPOS& change) const;
  void LimitMove(RECT& bounds) const;
  void LimitEdges(RECT& bounds, WPARAM edge) const;

  TMeasure FMinWidth, FMinHeight, FMaxWidth, FMaxHeight, FMaximizedWidth, FMaximizedHeight;
  int FMinLeft = 0;
  int FMinTop = 0;
  int FMaxLeft = 0;
  int FMaxTop = 0;
  int FMaximizedLeft = 0;
  int FMaximizedTop = 0;
};

}  // namespace qel
