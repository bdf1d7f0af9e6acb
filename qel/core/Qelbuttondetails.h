// TQELButtonDetails: the settings of one button on a dialog.
#pragma once

#include <memory>
#include <string>

#include "qel/core/api.h"
#include "vcl/controls/control.h"
#include "vcl/graphics/bitmap.h"

namespace qel {

/// What a dialog says of one of its buttons. The button, a TBitBtn or a TSpeedButton, follows each
/// change, as long as there is one; of another control nothing is changed.
class QEL_API TQELButtonDetails : public vcl::TPersistent {
 public:
  /// `target` is the button, which is not owned and not asked for anything at first.
  explicit TQELButtonDetails(vcl::TControl* target = nullptr);
  ~TQELButtonDetails() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The bitmap on the button.
  vcl::TBitmap* Glyph() const { return FGlyph.get(); }
  /// Copies the bitmap; null for none.
  void Setglyph(const vcl::TBitmap* glyph);
  bool Visible() const { return FVisible; }
  /// False hides the button.
  void SetVisible(bool visible);
  bool Enabled() const { return FEnabled; }
  /// False disables the button.
  void SetEnabled(bool enabled);
  /// Whether, and with which question, the dialog asks before it does what the button says.
  bool ConfirmOnPress() const { return FConfirmOnPress; }
  void SetConfirmOnPress(bool confirm) { FConfirmOnPress = confirm; }
  const std::string& ConfirmMessage() const { return FConfirmMessage; }
  /// The question that is asked with ConfirmOnPress.
  void SetConfirmMessage(const std::string& message) { FConfirmMessage = message; }
  const std::string& Caption() const { return FCaption; }
  /// The text on the button.
  void SetCaption(const std::string& caption);
  const std::string& Hint() const { return FHint; }
  /// The text that is shown when the mouse rests on the button.
  void SetHint(const std::string& hint);
  bool ShowHint() const { return FShowHint; }
  /// Whether the button shows its hint.
  void SetSHint(bool showHint);

 private:
  class TTarget;
  void GlyphChanged(vcl::TObject* sender);
  template <class Apply>
  void Change(Apply apply);

  bool FVisible = true;
  bool FConfirmOnPress = false;
  bool FEnabled = true;
  std::string FConfirmMessage;
  std::string FCaption;
  std::unique_ptr<vcl::TBitmap> FGlyph;
  std::string FHint;
  bool FShowHint = false;
  std::shared_ptr<const TTarget> FTarget;
};

}  // namespace qel
