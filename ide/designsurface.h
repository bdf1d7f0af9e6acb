// TDesignSurface: a form that is designed in place: what the mouse and the keyboard do on it, and
// the marks on what is selected.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ide/designmenubar.h"
#include "ide/overlay.h"
#include "ide/selection.h"
#include "ide/stage.h"
#include "vcl/designintf/designer.h"
#include "vcl/forms/forms.h"

namespace ide {

/// How far apart the points of the grid are, and the size of a component's icon, in pixels.
inline constexpr int GridStep = 8;
inline constexpr int PictureSize = 28;

/// What the surface tells its owner.
struct TSurfaceEvents {
  /// The form has been changed; changes with the same key, one behind another, belong together.
  std::function<void(const std::string& key)> Changed;
  /// A component of the class is to be made in the container, at the place; an empty rectangle's
  /// top left is the place of one of its own size.
  std::function<void(const vcl::TClass&, vcl::TWinControl& container, const vcl::TRect&)> Drop;
  /// The user makes no component after all.
  std::function<void()> PlacingEnded;
  std::function<void(vcl::TComponent&)> DoubleClick;
  std::function<void(vcl::TPoint screen)> ContextMenu;
  /// A key that the surface does nothing with; true when it has been used.
  std::function<bool(WPARAM key)> Key;
  /// A character that is typed on the form.
  std::function<void(wchar_t character)> Character;
  /// The user wants to close the form.
  std::function<void()> Close;
};

class TDesignSurface : public vcl::TDesignerHook {
 public:
  /// The form stands in the window of `host`, which must outlive the surface.
  TDesignSurface(vcl::TWinControl& host, TSelection& selection);
  ~TDesignSurface() override;

  /// The window with what is to be designed; null for none.
  void SetStage(TStage* stage);
  /// What controls outside of any other stand in; only with a stage.
  vcl::TWinControl& Inside() const { return *FInside; }
  /// Puts the marks where the selected components are now.
  void Refresh();

  /// The class of which the next press of the mouse makes a component; null for none.
  const vcl::TClass* Placing() const { return FPlacing; }
  void SetPlacing(const vcl::TClass* placing) { FPlacing = placing; }
  /// Nothing can be moved or sized by the mouse or the arrow keys.
  bool Locked() const { return FLocked; }
  void SetLocked(bool locked) { FLocked = locked; }
  bool ShowGrid() const { return FShowGrid; }
  void SetShowGrid(bool show);
  bool SnapToGrid() const { return FSnap; }
  void SetSnapToGrid(bool snap) { FSnap = snap; }
  /// The icons of components that are no controls are there.
  bool ShowIcons() const { return FShowIcons; }
  void SetShowIcons(bool show);

  /// Where a component is in its parent (an icon: on the form), and putting it elsewhere.
  static vcl::TRect BoundsOf(const vcl::TComponent& component);
  static void SetBoundsOf(vcl::TComponent& component, const vcl::TRect& bounds);
  /// True for a component that is shown as an icon.
  static bool IsIcon(const vcl::TComponent& component);
  /// True for a component that the user can see and select on the form.
  bool Shows(const vcl::TComponent& component) const;
  /// Where a new component goes: into the selected container, or the one around what is selected.
  vcl::TWinControl& Container() const;
  /// Everything that can be selected inside the container; icons are inside the form.
  std::vector<vcl::TComponent*> Inside(vcl::TWinControl& container) const;

  TSurfaceEvents Events;

  HWND HostWindow() const override { return FHost.Handle(); }
  bool IsDesignMessage(vcl::TWinControl& sender, vcl::TMessage& message) override;
  void PaintBehind(HDC dc) override;

 private:
  enum class TMode { Idle, Pressed, Moving, Sizing, Banding, Placing };
  /// Which edges of the selected component a grabber moves: -1 the left or upper one, 1 the other.
  struct TGrab {
    int X;
    int Y;
  };
  struct TDragged {
    vcl::TComponent* Component;
    vcl::TRect Bounds;
    vcl::TPoint Scrolled;  // How far what it stands in was scrolled when that was its place.
  };

  // Finding (designsurface_find.cpp).
  vcl::TComponent* ComponentAt(vcl::TWinControl& window, vcl::TPoint screen) const;
  bool IsPart(const vcl::TComponent& component) const;
  vcl::TComponent* Selectable(vcl::TControl* control) const;
  vcl::TWinControl* ContainerAt(vcl::TWinControl& window, vcl::TPoint screen) const;
  vcl::TWinControl* ContainerOf(vcl::TControl* control) const;
  vcl::TWinControl* ParentOf(const vcl::TComponent& component) const;
  vcl::TComponent* Neighbour(const vcl::TComponent& component, int dx, int dy) const;

  // Messages (designsurface.cpp).
  bool IsMouse(vcl::TWinControl& sender, vcl::TMessage& message);
  bool IsFormMessage(vcl::TMessage& message);
  void PaintFrame(vcl::TMessage& message);
  bool SetCursor(vcl::TMessage& message) const;

  // The mouse (designsurface_mouse.cpp).
  void Press(vcl::TComponent& component, vcl::TWinControl& container, vcl::TPoint screen);
  void ShowMenu(vcl::TComponent& component, vcl::TPoint screen);
  void BeginBand(TMode mode, vcl::TWinControl& container);
  void BeginSizing(TGrab grab, vcl::TPoint screen);
  void BeginDrag();
  void MouseMove(vcl::TPoint screen);
  void MouseUp(vcl::TPoint screen);
  void Put(const TDragged& dragged, vcl::TRect bounds);
  void Move(vcl::TPoint by);
  vcl::TPoint Reachable(const TDragged& dragged, vcl::TPoint by) const;
  void Size(vcl::TPoint by);
  void EndBand(const vcl::TRect& band);
  void EndMode();
  void Cancel();
  vcl::TRect Band(vcl::TPoint screen) const;
  void ShowBand(const vcl::TRect& band);
  int Snapped(int value) const;

  // Keys (designsurface_keys.cpp).
  bool KeyDown(WPARAM key);
  bool Arrow(WPARAM key);
  void Walk(bool forward);
  void SelectAround();

  // Marks (designsurface_marks.cpp).
  void PlaceGrabbers();
  void PlaceIcons();
  TOverlay& GrabberIn(HWND window, std::size_t index, TGrab grab, bool several);
  void QuietForeignWindows() const;

  struct TMark {
    std::unique_ptr<TOverlay> Window;
    TGrab Grab;
    bool Several;
  };
  struct TIcon {
    vcl::TComponent* Component = nullptr;
    std::unique_ptr<TOverlay> Picture;
    std::unique_ptr<TOverlay> Caption;
    std::string Text;
    bool Selected = false;
  };

  TIcon MakeIcon(vcl::TComponent& component);
  void PlaceIcon(TIcon& icon);

  vcl::TWinControl& FHost;
  TSelection& FSelection;
  TStage* FStage = nullptr;
  vcl::TComponent* FRoot = nullptr;     // Its root,
  vcl::TForm* FForm = nullptr;          // its window,
  vcl::TWinControl* FInside = nullptr;  // and what is inside that.
  TDesignMenuBar FMenuBar;
  const vcl::TClass* FPlacing = nullptr;
  bool FLocked = false;
  bool FShowGrid = true;
  bool FSnap = true;
  bool FShowIcons = true;
  TMode FMode = TMode::Idle;
  TGrab FGrab{0, 0};
  vcl::TPoint FStart;
  vcl::TWinControl* FBandIn = nullptr;
  std::vector<TDragged> FDragged;
  bool FMoved = false;
  std::vector<TMark> FMarks;
  std::vector<TIcon> FIcons;
  std::vector<std::unique_ptr<TOverlay>> FBandSides;
};

}  // namespace ide
