// TCustomTabControl: the system's tabs, as page controls and tab controls have them.
#pragma once

#include <string>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/stdctrls/linkedimages.h"

namespace vcl {

/// Sender, whether the user may leave the page.
using TTabChangingEvent = TEvent<TObject*, bool&>;

enum TTabPosition { tpTop, tpBottom, tpLeft, tpRight };
template <>
inline constexpr TEnumText EnumText<TTabPosition>{"TTabPosition", "tpTop tpBottom tpLeft tpRight"};

/// Tabs, buttons, or buttons that are flat.
enum TTabStyle { tsTabs, tsButtons, tsFlatButtons };
template <>
inline constexpr TEnumText EnumText<TTabStyle>{"TTabStyle", "tsTabs tsButtons tsFlatButtons"};

/// What a tab shows.
struct TTabLook {
  std::string Caption;
  int ImageIndex = -1;
  std::string AccessibleName;
};

/// Base of the controls with tabs. What the user changes fires OnChanging and OnChange; what code
/// changes does not.
class VCL_API TCustomTabControl : public TWinControl {
 public:
  explicit TCustomTabControl(TComponent* owner);
  ~TCustomTabControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const TAccessiblePath& part) override;

  bool HotTrack() const { return FHotTrack; }
  /// True highlights the tab under the mouse.
  void SetHotTrack(bool hotTrack) { ChangeWindow(FHotTrack, hotTrack); }
  TImageList* Images() const { return FImages.List; }
  /// What the tabs' image indexes count in. The pictures are drawn at the size for the monitor.
  void SetImages(TImageList* images);
  bool MultiLine() const { return FMultiLine; }
  /// True: tabs that do not fit stand in another row.
  void SetMultiLine(bool multiLine) { ChangeWindow(FMultiLine, multiLine); }
  bool RaggedRight() const { return FRaggedRight; }
  /// True leaves rows of several as wide as their tabs need; false stretches them.
  void SetRaggedRight(bool ragged) { ChangeWindow(FRaggedRight, ragged); }
  TTabStyle Style() const { return FStyle; }
  /// Tabs or buttons.
  void SetStyle(TTabStyle style) { ChangeWindow(FStyle, style); }
  int TabHeight() const { return FTabSize.cy; }
  /// The height of the tabs in pixels; 0 for what their captions need. Raises
  /// EArgumentOutOfRangeException below 0.
  void SetTabHeight(int height);
  TTabPosition TabPosition() const { return FTabPosition; }
  /// The edge along which the tabs stand. Buttons always stand at the top; at the sides there are
  /// as many rows as are needed.
  void SetTabPosition(TTabPosition position) { ChangeWindow(FTabPosition, position); }
  int TabWidth() const { return FTabSize.cx; }
  /// The width of all tabs in pixels; 0 for what each caption needs. Raises
  /// EArgumentOutOfRangeException below 0.
  void SetTabWidth(int width);
  /// The index of the tab at the position, from 0; -1 for none.
  int IndexOfTabAt(TPoint position) const;

  /// The user has brought another page to the front.
  TNotifyEvent OnChange;
  /// The user is about to leave the page, which the handler may refuse.
  TTabChangingEvent OnChanging;

 protected:
  /// The tabs as they are now, from the first.
  virtual std::vector<TTabLook> TabLooks() const = 0;
  /// The tab in front; -1 for none.
  virtual int ActiveTab() const = 0;
  /// Brings the tab to the front; -1 for none.
  virtual void ActivateTab(int tab) = 0;
  /// Whether Ctrl+Tab is for these tabs. Here: while the focus is on them or inside.
  virtual bool HasFocusInside() const;
  virtual bool CanChange();
  virtual void Change();
  /// Goes to the tab as the user does, with the events.
  void UserSelects(int tab);
  /// Goes on to the next tab, or back, round the end, as the user does with Ctrl+Tab.
  virtual void UserSelectsNext(bool goForward);
  /// Gives the window the tabs anew. Their rows may have become more or fewer, and the place
  /// inside another.
  void UpdateTabs();
  void UpdateTab(int tab);
  void ShowActiveTab();

  void AdjustClientRect(TRect& rect) const override;
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  template <class T>
  void ChangeWindow(T& field, T value) {
    if (value == field) return;
    field = value;
    RecreateWnd();
  }
  void PicturesChanged(TObject* sender);
  void SendPictures();
  void SendTab(UINT message, int tab, const TTabLook& look);
  void NotifyFromWindow(TMessage& message);
  bool TakesAccel(WPARAM character);

  TLinkedImages FImages;
  TSize FTabSize{0, 0};
  TTabPosition FTabPosition = tpTop;
  TTabStyle FStyle = tsTabs;
  bool FHotTrack = false;
  bool FMultiLine = false;
  bool FRaggedRight = false;
};

}  // namespace vcl
