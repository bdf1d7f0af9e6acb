// TQELHint: puts a window of its own class, TQELNewHint, in the place of the application's hint
// window. It shows hints as a speech bubble or a box, with a shadow and a background.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "qel/controls/Qeltbackground.h"
#include "qel/core/Qelclasses.h"
#include "vcl/forms/hints.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

/// The control under the mouse (null for none), and the side on which its hint is to stand, which a
/// handler may change.
using TOnSelectHintDirection = vcl::TEvent<vcl::TControl*, TQELDirectionB&>;

}  // namespace qel

template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TOnSelectHintDirection>{
    "TOnSelectHintDirection", "vcl::TControl* control, qel::TQELDirectionB& direction"};

namespace qel {

namespace Qelthint {

/// A program has a TQELHint already.
class QEL_API TQELDuplicateError : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~TQELDuplicateError() override;
};

}  // namespace Qelthint

/// Shows the application's hints in its own way. A program has at most one, on its main form. On a
/// form in the designer it changes nothing of the application's.
class QEL_API TQELHint : public TQELComponent {
 public:
  /// Where there is a main form, and `owner` is not in a designer, the main form becomes the owner.
  /// Raises Qelthint::TQELDuplicateError when there is another instance.
  explicit TQELHint(vcl::TComponent* owner);
  /// The application keeps the window's class; its hints look plain from now on.
  ~TQELHint() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// How the hint's text is written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Uses that very object from now on, which the hint then owns; the one that it had is freed.
  /// Null is refused. Settings that a control owns are copied instead, as they end with it.
  void SetFont3D(TQELFont3D* font3D);
  bool Speechbubble() const { return FSpeechbubble; }
  /// True: a bubble with round corners and a pointer towards the mouse; false: a box.
  void SetSpeechbubble(bool speechbubble) { FSpeechbubble = speechbubble; }
  bool Shadow() const { return FShadow; }
  /// True draws a shadow behind the bubble or the box.
  void SetShadow(bool shadow) { FShadow = shadow; }
  /// The side of the mouse on which hints are to stand; after each showing, the one where it stood.
  TQELDirectionB HintDirection() const { return FHintDirection; }
  void SetHintDirection(TQELDirectionB direction) { FHintDirection = direction; }
  vcl::TColor UnUsedHintColor() const { return FUnUsedHintColor; }
  /// A colour that is never seen: it marks the bubble while it is drawn, and whatever has it
  /// becomes background, on the screen around the bubble too.
  void SetUnUsedHintColor(vcl::TColor color) { FUnUsedHintColor = color; }
  vcl::TColor HintShadowColor() const { return FHintShadowColor; }
  /// The colour of the shadow.
  void SetHintShadowColor(vcl::TColor color) { FHintShadowColor = color; }
  /// The font of the hint's text.
  vcl::TFont* HintFont() const { return FHintFont.get(); }
  /// Copies the font. Any change of it hides the hint that is shown.
  void SetHintFont(const vcl::TFont* font) { FHintFont->Assign(font); }
  int HintPauseTime() const { return FHintPauseTime; }
  /// The application's HintPause, in milliseconds. In the designer it cannot be changed.
  void SetHintPauseTime(int milliseconds);
  TQELBackground* Background() const { return FBackground; }
  /// The fill of the bubble, which is not owned; null for none, which leaves it white.
  void SetBackground(TQELBackground* background);

  /// Before each hint; HintDirection becomes what the handler makes of it.
  TOnSelectHintDirection OnSelectHintDirection;

 protected:
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  /// Counts the instances, and refuses a second one before anything of it is there.
  class TInstance {
   public:
    TInstance();
    ~TInstance();
    TInstance(const TInstance&) = delete;
    TInstance& operator=(const TInstance&) = delete;
  };
  void TakeOverHints();
  void HintFontChanged(vcl::TObject* sender);
  void ApplyHintFont();

  TInstance FInstance;
  std::unique_ptr<TQELFont3D> FFont3D;
  bool FSpeechbubble = false;
  bool FShadow = true;
  TQELDirectionB FHintDirection = dUpRight;
  vcl::TColor FUnUsedHintColor = vcl::clLime;
  vcl::TColor FHintShadowColor = vcl::clBlack;
  std::unique_ptr<vcl::TFont> FHintFont;
  int FHintPauseTime = 600;
  TQELBackground* FBackground = nullptr;
};

/// The window in which a TQELHint shows hints. While there is none on the main form, it looks as a
/// plain hint window without a border.
class QEL_API TQELNewHint : public vcl::THintWindow {
 public:
  explicit TQELNewHint(vcl::TComponent* owner);
  ~TQELNewHint() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows the text beside the mouse; only the size of the rectangle counts.
  void ActivateHint(vcl::TRect rect, const std::string& text) override;
  void ReleaseHandle() override;
  /// The first TQELHint of the main form; null when there is none, and in the designer.
  TQELHint* FindHintQEL() const;
  /// Copies the font that texts are measured with.
  void SetTextFont(const vcl::TFont* font) { Canvas()->SetFont(font); }

  /// The side of the mouse on which a hint stands, and its rectangle on the screen.
  struct TPlacement {
    TQELDirectionB Direction;
    vcl::TRect Bounds;
  };
  /// Finds the side for a text of the rectangle's size: the TQELHint's HintDirection, which its
  /// event may change, or else one where the hint fits on the primary screen; HintDirection is that
  /// side then. A hint that fits nowhere stays on the side asked for, moved onto the screen and
  /// with no more of the text than the screen shows.
  /// Nothing when there is no TQELHint, or the event's handler has freed it or this window.
  std::optional<TPlacement> SelectProperHintDirection(const vcl::TRect& rect);

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void WMEraseBkgnd(vcl::TMessage& message) override;
  void Paint() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  bool TakeHint();
  bool AskDirection(vcl::TPoint mouse);
  void TakeSnapshot();
  void ShowSnapshot();
  std::unique_ptr<vcl::TBitmap> Picture();

  TQELHint* FHint = nullptr;  // Null also once it has gone.
  TQELDirectionB FDirection = dUpRight;
  std::unique_ptr<vcl::TBitmap> FSnapshot;  // The screen under the hint, until it is painted.
  std::unique_ptr<vcl::TBitmap> FPicture;   // The hint, from the first painting on.
};

}  // namespace qel
