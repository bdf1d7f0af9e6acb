// TQELToolFace: what tool buttons show, and how they stay down in groups.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelclasses.h"
#include "vcl/controls/control.h"
#include "vcl/menus/menus.h"

namespace qel {

/// A glyph and a caption side by side.
struct QEL_API TQELFaceLayout {
  TQELPosition Side = pTop;  ///< The side of the caption on which the glyph stands.
  int Spacing = 4;           ///< Between the two, in pixels.
  int Margin = -1;           ///< From the edge to the first of them; -1 puts them into the middle.

  /// What is drawn: the glyph's image of that number (see TQELGlyph::DrawImage), and the caption.
  struct TContents {
    const TQELGlyph* Glyph;
    int Image;
    const TQELFont3D* Font3D;
    const vcl::TFont* Font;
    std::string Caption;
    bool Enabled;
  };
  void Draw(vcl::TCanvas* canvas, const vcl::TRect& area, const TContents& contents) const;
  /// Where an image and a text of these sizes stand in the area.
  struct TPlaces {
    vcl::TRect Image;
    vcl::TRect Text;
  };
  TPlaces Arrange(const vcl::TRect& area, vcl::TSize image, vcl::TSize text) const;
};

/// The numbers of the images in the glyphs of buttons that have a hot look.
enum TQELFaceImage { fiNormal = 1, fiDisabled, fiPressed, fiHot };

class TQELToolFace;

/// A tool button, as the others of its group see it.
class TQELTool {
 public:
  virtual TQELToolFace& Face() = 0;

 protected:
  TQELTool() = default;
  TQELTool(const TQELTool&) = default;
  TQELTool& operator=(const TQELTool&) = default;
  ~TQELTool() = default;
};

/// What is the same in tool buttons with and without a window: where caption and glyph stand, the
/// font under the mouse, the group in which a button stays down, and the menu that drops down.
class QEL_API TQELToolFace {
 public:
  /// The control is a TQELTool and owns this object, and glyph and font as well.
  TQELToolFace(vcl::TControl& control, const TQELGlyph& glyph, const TQELFont3D& font3D);
  ~TQELToolFace();
  TQELToolFace(const TQELToolFace&) = delete;
  TQELToolFace& operator=(const TQELToolFace&) = delete;

  vcl::TFont* HotFont() const { return FHotFont.get(); }
  void SetHotFont(const vcl::TFont* font) { FHotFont->Assign(font); }
  /// Until somebody changes it, the hot font is the control's.
  bool HasHotFont() const { return FOwnHotFont; }
  /// The control's font has changed.
  void FontChanged();
  TQELPosition Layout() const { return FLayout.Side; }
  void SetLayout(TQELPosition layout);
  /// Takes only values from 0.
  int Spacing() const { return FLayout.Spacing; }
  void SetSpacing(int spacing);
  /// Takes only values from -1.
  int Margin() const { return FLayout.Margin; }
  void SetMargin(int margin);
  int GroupIndex() const { return FGroupIndex; }
  void SetGroupIndex(int group);
  bool AllowAllUp() const { return FAllowAllUp; }
  void SetAllowAllUp(bool allow);
  bool Down() const { return FDown; }
  void SetDown(bool down);
  vcl::TPopupMenu* DropDownMenu() const { return FMenu; }
  void SetDropDownMenu(vcl::TPopupMenu* menu);

  /// The control is clicked: a button of a group goes down, or up where that is allowed.
  void Clicked();
  /// Shows the menu below the control.
  void DropDown();
  /// For the control's Notification.
  void Forget(const vcl::TComponent* component);
  /// What the menu's arrow takes of the control at the right; nothing without a menu.
  vcl::TRect ArrowArea() const;
  /// Draws glyph, caption and the menu's arrow. A button that stays down looks pressed.
  void Draw(vcl::TCanvas* canvas, vcl::TRect area, bool pressed, bool hot);

 private:
  void HotFontChanged(vcl::TObject* sender);
  void TellGroup();
  void Follow(const TQELToolFace& other);
  void DrawArrow(vcl::TCanvas* canvas) const;
  void Show();

  vcl::TControl& FControl;
  const TQELGlyph& FGlyph;
  const TQELFont3D& FFont3D;
  std::unique_ptr<vcl::TFont> FHotFont;
  bool FOwnHotFont = false;
  bool FFollowing = false;  // The hot font becomes the control's.
  TQELFaceLayout FLayout;
  int FGroupIndex = 0;
  bool FAllowAllUp = false;
  bool FDown = false;
  vcl::TPopupMenu* FMenu = nullptr;
};

}  // namespace qel
