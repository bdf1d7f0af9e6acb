// TQELFormExplode: a form that grows out of a point, and shrinks into one.
#pragma once

#include "qel/core/Qelenumerations.h"
#include "qel/services/Qelformcomponent.h"

namespace qel {

/// What is seen to grow.
enum TQELFormExplodeStyle {
  esFrame,  ///< A frame.
  esRegion  ///< The window itself.
};

/// Has its form grow when it is shown and shrink when it is hidden or closed, unless the user wants
/// no animations. Nothing of it is left on the screen. A form of a shape of its own keeps it.
class QEL_API TQELFormExplode : public TQELFormComponent {
 public:
  explicit TQELFormExplode(vcl::TComponent* owner);
  ~TQELFormExplode() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int CustomX() const { return FCustomX; }
  /// The point of wsCustompoint, in pixels of the screen from its left.
  void SetCustomX(int x) { FCustomX = x; }
  int CustomY() const { return FCustomY; }
  /// The same from its top.
  void SetCustomY(int y) { FCustomY = y; }
  TQELWipeType OnCloseType() const { return FOnCloseType; }
  /// Into what it shrinks.
  void SetOnCloseType(TQELWipeType type) { FOnCloseType = type; }
  TQELWipeType OnShowType() const { return FOnShowType; }
  /// Out of what it grows.
  void SetOnShowType(TQELWipeType type) { FOnShowType = type; }
  TQELShowType ShowType() const { return FShowType; }
  /// Whether it grows, shrinks, or both.
  void SetShowType(TQELShowType type) { FShowType = type; }
  TQELFormExplodeStyle Style() const { return FStyle; }
  /// What is seen to grow.
  void SetStyle(TQELFormExplodeStyle style) { FStyle = style; }
  int Time() const { return FTime; }
  /// How many milliseconds it takes, from 0 to 5000; nothing else is taken.
  void SetTime(int milliseconds);

 protected:
  void BeforeMessage(vcl::TMessage& message, bool& handled) override;
  void AfterMessage(vcl::TMessage& message) override;
  void End() override;

 private:
  class TFrameWindow;
  bool Wanted(bool showing) const;
  vcl::TRect Start(TQELWipeType type) const;
  void ShowFrame(const vcl::TRect& from, const vcl::TRect& to) const;
  void ShowRegion(const vcl::TRect& point, bool growing);
  void Shape(const vcl::TRect* part);

  int FCustomX = 0;
  int FCustomY = 0;
  TQELWipeType FOnCloseType = wsFormMiddle;
  TQELWipeType FOnShowType = wsFormMiddle;
  TQELShowType FShowType = onAlways;
  TQELFormExplodeStyle FStyle = esFrame;
  int FTime = 200;
  bool FShaped = false;  // The window has a region of this component's.
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELFormExplodeStyle>{"TQELFormExplodeStyle",
                                                                         "esFrame esRegion"};
