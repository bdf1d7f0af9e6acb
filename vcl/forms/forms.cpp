// TCustomForm: made from its form file, ended, and its properties.
#include "vcl/forms/forms.h"

#include "vcl/controls/controlcanvas.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/forms/application.h"
#include "vcl/forms/private/rootfile.h"
#include "vcl/forms/screen.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TCustomForm::Class() {
  static const TClass info =
      Describe<TCustomForm, TScrollingWinControl>("vcl::TCustomForm", "vcl/forms/forms.h", {});
  return info;
}

const TClass& TForm::Class() {
  static const TClass info = Describe<TForm, TCustomForm>(
      "vcl::TForm", "vcl/forms/forms.h",
      {
          // The client size says it all.
          Inherit("Width").Stored(false),
          Inherit("Height").Stored(false),
          Property<&TForm::ActiveControl, &TForm::SetActiveControl>("ActiveControl"),
          Inherit("AutoScroll"),
          Inherit("AutoSize"),
          Property<&TForm::BorderIcons, &TForm::SetBorderIcons>("BorderIcons")
              .Default(TBorderIcons{biSystemMenu, biMinimize, biMaximize}),
          Property<&TForm::BorderStyle, &TForm::SetBorderStyle>("BorderStyle").Default(bsSizeable),
          Inherit("Caption"),
          Property<&TForm::FileClientHeight, &TForm::SetFileClientHeight>("ClientHeight"),
          Property<&TForm::FileClientWidth, &TForm::SetFileClientWidth>("ClientWidth"),
          Inherit("Color").Default(clBtnFace),
          Inherit("Ctl3D"),
          Inherit("DoubleBuffered"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&TForm::FormStyle, &TForm::SetFormStyle>("FormStyle").Default(fsNormal),
          Inherit("HorzScrollBar"),
          Property<&TForm::Icon, &TForm::SetIcon>("Icon"),
          Property<&TForm::KeyPreview, &TForm::SetKeyPreview>("KeyPreview").Default(false),
          Property<&TForm::Menu, &TForm::SetMenu>("Menu"),
          Inherit("Padding"),
          Property<&TForm::PixelsPerInch, &TForm::SetPixelsPerInch>("PixelsPerInch")
              .Default(DefaultPixelsPerInch),
          Inherit("PopupMenu"),
          Property<&TForm::Position, &TForm::SetPosition>("Position").Default(poDesigned),
          Property<&TForm::Scaled, &TForm::SetScaled>("Scaled").Default(true),
          Inherit("ShowHint"),
          Inherit("VertScrollBar"),
          Property<&TForm::FileVisible, &TForm::SetVisible>("Visible").Default(false),
          Property<&TForm::WindowState, &TForm::SetWindowState>("WindowState").Default(wsNormal),
          Event<&TForm::OnActivate>("OnActivate"),
          Inherit("OnClick"),
          Event<&TForm::OnClose>("OnClose"),
          Event<&TForm::OnCloseQuery>("OnCloseQuery"),
          Inherit("OnConstrainedResize"),
          Event<&TForm::OnCreate>("OnCreate"),
          Inherit("OnDblClick"),
          Event<&TForm::OnDeactivate>("OnDeactivate"),
          Event<&TForm::OnDestroy>("OnDestroy"),
          Inherit("OnDragDrop"),
          Inherit("OnDragOver"),
          Event<&TForm::OnDropFiles>("OnDropFiles"),
          Event<&TForm::OnHide>("OnHide"),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Event<&TForm::OnPaint>("OnPaint"),
          Inherit("OnResize"),
          Event<&TForm::OnShow>("OnShow"),
      });
  return info;
}

// Making, reading and ending.

TCustomForm::TCustomForm(TComponent* owner)
    : TScrollingWinControl(owner),
      FIcon(std::make_unique<TIcon>()),
      FCanvas(std::make_unique<TControlCanvas>()) {
  constexpr int width = 320;
  constexpr int height = 240;
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks});
  FCanvas->SetControl(this);
  FIcon->OnChange = [this](TObject*) { UpdateIcon(); };
  TScrollingWinControl::SetVisible(false);
  TScrollingWinControl::SetBounds(0, 0, width, height);
  TScrollingWinControl::SetColor(clBtnFace);
  Screen()->AddForm(this);
}

TCustomForm::~TCustomForm() {
  AnnounceEnd();
  SetMenu(nullptr);
  // While the form is whole, its window and those inside go in an orderly way; unseen, which is
  // much quicker where there are many.
  if (HandleAllocated()) ::ShowWindow(Handle(), SW_HIDE);
  DestroyHandle();
  Screen()->RemoveForm(this);
}

void TCustomForm::LoadForm(HINSTANCE module) {
  if (FCreated) RaiseCreatedBefore(*this);
  {
    const TSetFor reading(FReadingForm, true, this);
    LoadRootFile(*this, module);
  }
  // The files of a class's descendants are in the same dots per inch as its own.
  if (!FWholeClass.Is(ClassType())) return;
  ScaleToMonitor();
  Created();
}

void TCustomForm::Created() {
  if (std::exchange(FCreated, true)) return;
  try {
    OnCreate(this);
  } catch (...) {
    Application()->HandleCurrentException(this);
  }
  SetVisible(FVisibleAsked);
}

void TCustomForm::Loaded() {
  TScrollingWinControl::Loaded();
  const int width = std::exchange(FClientWidth, -1);
  const int height = std::exchange(FClientHeight, -1);
  UpdateMenu();
  const TRect client = ClientRect();
  const TSize bars = ScrollBarsSize();
  SetClientSize(width < 0 ? client.Width() : width - bars.cx,
                height < 0 ? client.Height() : height - bars.cy);
  if (!FReadingForm) SetVisible(FVisibleAsked);
}

void TCustomForm::SetFileClientWidth(int width) {
  Loading() ? void(FClientWidth = width) : SetClientWidth(width - ScrollBarsSize().cx);
}

int TCustomForm::FileClientWidth() const {
  return FClientWidth >= 0 ? FClientWidth : ClientWidth() + ScrollBarsSize().cx;
}

int TCustomForm::FileClientHeight() const {
  return FClientHeight >= 0 ? FClientHeight : ClientHeight() + ScrollBarsSize().cy;
}

void TCustomForm::SetFileClientHeight(int height) {
  Loading() ? void(FClientHeight = height) : SetClientHeight(height - ScrollBarsSize().cy);
}

void TCustomForm::BeforeDestruction() {
  if (std::exchange(FDestroyed, true)) return;
  try {
    SetVisible(false);
    OnDestroy(this);
  } catch (...) {
    Application()->HandleCurrentException(this);
  }
}

void TCustomForm::Free() {
  BeforeDestruction();
  delete this;
}

void TCustomForm::Release() {
  if (!std::exchange(FReleased, true)) Application()->FreeLater(this);
}

void TCustomForm::Notification(TComponent* component, TOperation operation) {
  TScrollingWinControl::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FActiveControl) FActiveControl = nullptr;
  // The controls around it may be ending too, and have said so before.
  if (component == FFocusedControl) {
    while (FFocusedControl && FFocusedControl->Destroying()) {
      FFocusedControl = FFocusedControl->Parent();
    }
  }
  if (component == FMenu) SetMenu(nullptr);
}

void TCustomForm::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  TScrollingWinControl::GetChildren(each, root);
  if (root != this) return;
  // Behind the controls what is seen on the form in a designer only.
  EachWithoutParent(*this, each);
}

void TCustomForm::SetChildOrder(TComponent* child, int order) {
  if (child->HasParent()) return TScrollingWinControl::SetChildOrder(child, order);
  int controls = 0;
  TScrollingWinControl::GetChildren([&](TComponent*) { ++controls; }, this);
  OrderWithoutParent(*this, *child, order - controls);
}

TDesignerHook::~TDesignerHook() = default;

void TCustomForm::SetDesigner(TDesignerHook* designer) {
  FDesigner = designer;
  designer ? Include(csDesignInstance) : Exclude(csDesignInstance);
  SetDesigning(designer != nullptr);
}

// Properties.

void TCustomForm::SetVisible(bool visible) {
  FVisibleAsked = visible;
  if (!Loading() && !FReadingForm && !Designing()) TScrollingWinControl::SetVisible(visible);
}

bool TCustomForm::FileVisible() const {
  return Loading() || Designing() ? FVisibleAsked : Visible();
}

void TCustomForm::SetBorderStyle(TBorderStyle style) {
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  Remake();
}

void TCustomForm::SetBorderIcons(TBorderIcons icons) {
  if (icons == FBorderIcons) return;
  FBorderIcons = icons;
  Remake();
}

void TCustomForm::SetFormStyle(TFormStyle style) {
  if (style == FFormStyle) return;
  const auto inOrAround = [](TFormStyle each) { return each == fsMDIChild || each == fsMDIForm; };
  if (inOrAround(style) || inOrAround(FFormStyle)) return RemakeAs(style);
  FFormStyle = style;
  if (!HandleAllocated() || Designing()) return;
  ::SetWindowPos(Handle(), style == fsStayOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TCustomForm::SetPosition(TPosition position) {
  if (position == FPosition) return;
  FPosition = position;
  FPlaced = false;
}

void TCustomForm::SetIcon(const TIcon* icon) { FIcon->Assign(icon); }

void TCustomForm::SetMenu(TMainMenu* menu) {
  if (menu == FMenu) return;
  if (menu && menu->FForm) menu->FForm->SetMenu(nullptr);
  if (FMenu) FMenu->FForm = nullptr;
  FMenu = menu;
  if (menu) {
    menu->FForm = this;
    menu->FreeNotification(this);
  }
  UpdateMenu();
}

TCanvas* TCustomForm::Canvas() const { return FCanvas.get(); }

std::unique_ptr<TBitmap> TCustomForm::GetFormImage() {
  auto image = std::make_unique<TBitmap>(ClientWidth(), ClientHeight());
  PaintTo(image->Canvas()->Handle(), 0, 0);
  return image;
}

}  // namespace vcl
