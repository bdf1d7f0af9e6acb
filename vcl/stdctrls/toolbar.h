// TToolBar, a row of buttons and other controls, and its buttons: TToolButton.
#pragma once

#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/stdctrls/linkedimages.h"
#include "vcl/stdctrls/toolbutton.h"

namespace vcl {

/// Puts what stands inside one behind another, in the order in which it came; a control that is
/// moved comes to that place of the order. The buttons are controls without windows, so that a
/// designer, actions, hints and screen readers know them as they know any other, and edits and
/// combo boxes stand among them. Form files hold the controls in their order.
class VCL_API TToolBar : public TCustomControl {
 public:
  explicit TToolBar(TComponent* owner);
  ~TToolBar() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const TAccessiblePath& part) override;

  int ButtonCount() const { return static_cast<int>(FOrder.size()); }
  /// The control at the place from 0, button or not. Raises EListError outside.
  TControl* Buttons(int index) const;
  /// The control's place in the order, from 0; -1 for one that does not stand inside.
  int ControlIndex(const TControl* control) const;
  /// Moves the control to the place. Raises EListError outside, or for one that is not inside.
  void SetControlIndex(TControl* control, int index);
  /// What the menu at the bar's end shows: the controls that do not fit.
  std::vector<TControl*> HiddenControls() const;
  /// Brings that menu up, as a click on its button does; nothing when all fit.
  void PopupHidden();
  /// The button that the keyboard presses while the bar has the focus; null for none.
  TToolButton* Current() const { return FCurrent; }

  bool AutoSize() const { return FAutoSize; }
  /// True makes the bar as high as its rows, and with alLeft or alRight as wide; one with alNone
  /// that keeps one row has the width that this needs. On a cool bar the band has the say.
  void SetAutoSize(bool autoSize) { Change(FAutoSize, autoSize); }
  int ButtonHeight() const { return FButtonSize.cy; }
  /// The least height of the buttons, in pixels; what they show may need more. Raises
  /// EArgumentOutOfRangeException below 0.
  void SetButtonHeight(int height);
  int ButtonWidth() const { return FButtonSize.cx; }
  /// The least width of the buttons, in pixels; all are as wide as the widest needs. Raises
  /// EArgumentOutOfRangeException below 0.
  void SetButtonWidth(int width);
  TImageList* DisabledImages() const { return FDisabledImages.List; }
  /// The pictures of disabled buttons; without them those of Images are drawn embossed.
  void SetDisabledImages(TImageList* images) { TakeImages(FDisabledImages, images); }
  bool Flat() const { return FFlat; }
  /// True shows a button's edge only while the mouse is over it or it is down.
  void SetFlat(bool flat);
  TImageList* HotImages() const { return FHotImages.List; }
  /// The pictures of the button under the mouse; without them those of Images.
  void SetHotImages(TImageList* images) { TakeImages(FHotImages, images); }
  TImageList* Images() const { return FImages.List; }
  /// What the buttons' ImageIndex counts in. The pictures are drawn at the size for the monitor.
  void SetImages(TImageList* images) { TakeImages(FImages, images); }
  bool List() const { return FList; }
  /// True puts the captions to the right of the pictures, false below them.
  void SetList(bool list);
  bool ShowCaptions() const { return FShowCaptions; }
  /// True has all buttons show their captions; else those of the style tbsTextButton do.
  void SetShowCaptions(bool show);
  bool Transparent() const { return FTransparent; }
  /// True lets what the bar stands on show through.
  void SetTransparent(bool transparent);
  bool Wrapable() const { return FWrapable; }
  /// True begins a new row where one is full. False keeps all in one row: what does not fit is in
  /// a menu at its end, as it is for every bar that stands in a cool bar.
  void SetWrapable(bool wrapable);

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

 protected:
  void AlignControls(TControl* control, TRect& rect) override;
  bool ArrangesFree() const override { return true; }
  void ChangeScale(int m, int d) override;
  void Dispatch(TMessage& message) override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void Notification(TComponent* component, TOperation operation) override;
  void Paint() override;
  void WMEraseBkgnd(TMessage& message) override;

 private:
  friend class TToolButton;
  /// A control and where the bar has put it.
  struct TPlaced {
    TControl* Control;
    TRect Cell{};  // What it takes of its row.
    TPoint At{};   // Its top left corner there.
    bool Known = false;
    bool Hidden = false;  // It does not fit.
  };
  class TRows;
  void TakeImages(TLinkedImages& images, TImageList* list);
  void PicturesChanged(TObject* sender);
  template <class T>
  void Change(T& field, const T& value);
  std::vector<TPlaced>::iterator PlaceOf(const TControl* control);
  void TakePlace(const TControl& control);
  TSize CommonSize() const;
  TSize SizeOf(const TControl& control, TSize common) const;
  void FitTo(TSize need, const TRect& room);
  bool OnCoolBar() const;
  bool GrowsAcross() const;
  bool KeepsOneRow() const;
  void HideWhatSpills(TRect room, TSize common);
  TRect HiddenButton() const;
  void ControlsChanged(TControl* control, bool comes);
  std::vector<TToolButton*> GroupOf(const TToolButton& button) const;
  void MoveCurrent(int by);
  void SetCurrent(TToolButton* button);
  std::vector<TToolButton*> Usable() const;

  TLinkedImages FImages;
  TLinkedImages FHotImages;
  TLinkedImages FDisabledImages;
  std::vector<TPlaced> FOrder;
  TToolButton* FCurrent = nullptr;
  TSize FButtonSize{23, 22};
  bool FAutoSize = true;
  bool FFitting = false;
  bool FFlat = true;
  bool FList = false;
  bool FShowCaptions = false;
  bool FTransparent = false;
  bool FWrapable = true;
};

}  // namespace vcl
