// TCoolBar: its settings and its bands, told to the system's rebar and heard from it.
#include "vcl/stdctrls/coolbar.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/private/commoncontrols.h"
#include "vcl/stdctrls/toolbar.h"

namespace vcl {

const TClass& TCoolBar::Class() {
  using T = TCoolBar;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCoolBar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align").Default(alTop),
          ControlBorder(Property<&T::BandBorderStyle, &T::SetBandBorderStyle>("BandBorderStyle"))
              .Default(bsSingle),
          Inherit("Color"),
          Property<&T::FixedOrder, &T::SetFixedOrder>("FixedOrder").Default(false),
          Property<&T::Images, &T::SetImages>("Images"),
          Property<&T::ShowText, &T::SetShowText>("ShowText").Default(true),
          Property<&T::Vertical, &T::SetVertical>("Vertical").Default(false),
          Property<&T::Bands, &T::SetBands>("Bands"),
          Inherit(ContainerProperties),
          Event<&T::OnChange>("OnChange"),
          Inherit(ContainerEvents),
      });
  return info;
}

TCoolBar::TCoolBar(TComponent* owner) : TWinControl(owner), FBands(std::make_unique<TCoolBands>()) {
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks, csOpaque});
  SetBounds(0, 0, 150, 75);
  FBands->FBar = this;
  FBands->OnUpdate = [this](TCollectionItem*) { BandsChanged(); };
  FImages.Link.OnChange = TNotifyEvent(this, &TCoolBar::PicturesChanged);
  SetAlign(alTop);
}

TCoolBar::~TCoolBar() {
  AnnounceEnd();
  FBands->OnUpdate = nullptr;
}

// Settings.

template <class T>
void TCoolBar::ChangeWindow(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
}

void TCoolBar::SetBandBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  ChangeWindow(FBandBorderStyle, style);
}

void TCoolBar::SetFixedOrder(bool fixedOrder) { ChangeWindow(FFixedOrder, fixedOrder); }
void TCoolBar::SetVertical(bool vertical) { ChangeWindow(FVertical, vertical); }

void TCoolBar::SetShowText(bool show) {
  if (show == FShowText) return;
  FShowText = show;
  SendBands();
}

void TCoolBar::SetImages(TImageList* images) {
  if (FImages.Take(images, *this)) PicturesChanged(images);
}

void TCoolBar::PicturesChanged(TObject* /*sender*/) {
  if (!HandleAllocated()) return;
  TImageList* images = FImages.List ? FImages.List->ForPPI(CurrentPPI()) : nullptr;
  REBARINFO info{sizeof info, images ? RBIM_IMAGELIST : 0u, images ? images->Handle() : nullptr};
  Send(*this, RB_SETBARINFO, 0, reinterpret_cast<LPARAM>(&info));
  SendBands();
}

void TCoolBar::Notification(TComponent* component, TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation == opRemove && component == FImages.List) SetImages(nullptr);
}

void TCoolBar::ChangeScale(int m, int d) {
  TWinControl::ChangeScale(m, d);
  const TUpdating once(*FBands);
  for (int i = 0; i < FBands->Count(); ++i) {
    TCoolBand* band = FBands->Items(i);
    band->SetWidth(ScaleMeasure(band->Width(), m, d));
    band->SetMinWidth(ScaleMeasure(band->MinWidth(), m, d));
    band->SetMinHeight(ScaleMeasure(band->MinHeight(), m, d));
  }
}

void TCoolBar::Loaded() {
  TWinControl::Loaded();
  for (int i = 0; i < ControlCount(); ++i) ControlsChanged(Controls(i), true);
  SendBands();
}

/// A control that comes gets a band, unless it comes for one; that of one that leaves goes.
void TCoolBar::ControlsChanged(TControl* control, bool comes) {
  if (Loading() || Destroying()) return;
  TCoolBand* band = FBands->FindBand(control);
  if (!comes) {
    delete band;
    return;
  }
  auto* window = dynamic_cast<TWinControl*>(control);
  if (!window || band) return;
  const TUpdating once(*FBands);
  band = FBands->Add();
  band->SetMinHeight(window->Height());
  band->SetControl(window);
}

// The window.

void TCoolBar::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_COOL_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = REBARCLASSNAMEA;
  // Place and size are ours to give.
  params.Style |= CCS_NORESIZE | CCS_NOPARENTALIGN | CCS_NODIVIDER | RBS_VARHEIGHT |
                  WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
  if (FBandBorderStyle == bsSingle) params.Style |= RBS_BANDBORDERS;
  if (FFixedOrder) params.Style |= RBS_FIXEDORDER;
  if (FVertical) params.Style |= CCS_VERT;
}

void TCoolBar::CreateWnd() {
  TWinControl::CreateWnd();
  PicturesChanged(nullptr);
  SendBands();
}

void TCoolBar::BandsChanged() {
  if (!Loading()) SendBands();
}

bool TCoolBar::Shows(const TCoolBand& band) const {
  const bool control = !band.FControl || band.FControl->Seen();
  return band.FVisible && control && !(FVertical && band.FHorizontalOnly);
}

/// Takes out of the window what is no band any more.
void TCoolBar::ForgetOtherBands() {
  for (auto place = static_cast<int>(Send(*this, RB_GETBANDCOUNT)) - 1; place >= 0; --place) {
    if (!BandOf(static_cast<UINT>(place))) Send(*this, RB_DELETEBAND, static_cast<WPARAM>(place));
  }
}

void TCoolBar::SendBands() {
  if (!HandleAllocated() || FSending || Destroying()) return;
  const TWatch watch(this);
  const TSetFor sending(FSending, true, this);
  FStale = false;
  ForgetOtherBands();
  SendAll();
  // A window that is higher than its rows need breaks them to fill itself.
  if (!RowsHold()) {
    FVertical ? SetWidth(0) : SetHeight(0);
    if (watch.Gone()) return;
    SendAll();
  }
  FitRows();
}

void TCoolBar::SendAll() {
  for (int i = 0; i < FBands->Count(); ++i) SendBand(*FBands->Items(i), i);
}

/// Whether rows of the window begin where those of the bands do.
bool TCoolBar::RowsHold() const {
  for (int i = 1; i < FBands->Count(); ++i) {
    const TCoolBand* band = FBands->Items(i);
    REBARBANDINFOW asked{};
    asked.cbSize = REBARBANDINFOW_V6_SIZE;
    asked.fMask = RBBIM_STYLE;
    Send(*this, RB_GETBANDINFOW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&asked));
    if (band->FShown && ((asked.fStyle & RBBS_BREAK) != 0) != band->FBreak) return false;
  }
  return true;
}

void TCoolBar::Resize() {
  const TWatch watch(this);
  TWinControl::Resize();
  if (!watch.Gone() && HandleAllocated() && !FSending && !FUserActs && !RowsHold()) SendLater();
}

void TCoolBar::SendBand(const TCoolBand& band, int index) {
  std::wstring text = FShowText ? ToUtf16(band.Text()) : std::wstring();
  auto& own = const_cast<TCoolBand&>(band);
  REBARBANDINFOW sent{};
  sent.cbSize = REBARBANDINFOW_V6_SIZE;
  sent.fMask = RBBIM_ID | RBBIM_STYLE | RBBIM_TEXT | RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE |
               RBBIM_IMAGE;
  sent.wID = static_cast<UINT>(band.ID());
  sent.fStyle = band.FixedSize() ? RBBS_NOGRIPPER | RBBS_FIXEDSIZE : RBBS_GRIPPERALWAYS;
  if (band.Break()) sent.fStyle |= RBBS_BREAK;
  if (band.HorizontalOnly()) sent.fStyle |= RBBS_NOVERT;
  own.FShown = Shows(band);
  if (!own.FShown) sent.fStyle |= RBBS_HIDDEN;
  sent.lpText = text.data();
  sent.cch = static_cast<UINT>(text.size());
  sent.hwndChild = band.FControl ? band.FControl->Handle() : nullptr;
  sent.cxMinChild = static_cast<UINT>(band.MinWidth());
  sent.cyMinChild = sent.cyChild = static_cast<UINT>(std::max(band.MinHeight(), band.FWanted));
  sent.cx = static_cast<UINT>(band.Width());
  sent.iImage = band.ImageIndex();
  const LRESULT former = Send(*this, RB_IDTOINDEX, sent.wID);
  if (former < 0) {
    Send(*this, RB_INSERTBANDW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&sent));
  } else {
    if (former != index) Send(*this, RB_MOVEBAND, static_cast<WPARAM>(former), index);
    // Not every system takes the style together with the rest.
    for (const UINT part : {sent.fMask & ~RBBIM_STYLE, static_cast<UINT>(RBBIM_STYLE)}) {
      sent.fMask = part;
      Send(*this, RB_SETBANDINFOW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&sent));
    }
  }
  Send(*this, RB_SHOWBAND, static_cast<WPARAM>(index), own.FShown);
}

/// The band at that place of the window; null where the window has one that is gone.
TCoolBand* TCoolBar::BandOf(UINT place) const {
  REBARBANDINFOW asked{};
  asked.cbSize = REBARBANDINFOW_V6_SIZE;
  asked.fMask = RBBIM_ID;
  Send(*this, RB_GETBANDINFOW, place, reinterpret_cast<LPARAM>(&asked));
  return static_cast<TCoolBand*>(FBands->FindItemID(static_cast<int>(asked.wID)));
}

/// The bar becomes as high, or as wide, as its rows.
void TCoolBar::FitRows() {
  if (!HandleAllocated() || FBands->Count() == 0 || Loading()) return;
  const auto size = static_cast<int>(Send(*this, RB_GETBARHEIGHT));
  if (size <= 0) return;
  FVertical ? SetWidth(Width() - ClientWidth() + size)
            : SetHeight(Height() - ClientHeight() + size);
}

/// Puts the band's control where the window has it. False when the window has to be told that a
/// tool bar, which fits itself, needs another height.
bool TCoolBar::PutBack(TCoolBand& band) {
  const TRect place = band.FPlace;
  if (!band.FControl || !band.FShown || place.Empty()) return true;
  const auto* tools = dynamic_cast<const TToolBar*>(band.FControl);
  const int height = band.FControl->Height();
  const bool other =
      tools && tools->AutoSize() && height != place.Height() && height != band.FWanted;
  if (other) band.FWanted = height;
  band.FControl->SetBounds(place.Left, place.Top, place.Width(), place.Height());
  return !other;
}

/// The window places the controls; what moves one itself is put back.
void TCoolBar::AlignControls(TControl*, TRect&) {
  bool known = true;
  const TWatch watch(this);
  for (int i = 0; i < FBands->Count() && !watch.Gone(); ++i) {
    TCoolBand& band = *FBands->Items(i);
    const bool shown = band.FShown == Shows(band);
    known = PutBack(band) && shown && known;
  }
  if (!watch.Gone() && !known) SendLater();
}

/// Not while the window is laying out what stands on it.
void TCoolBar::SendLater() {
  if (HandleAllocated() && !std::exchange(FStale, true)) ::PostMessageW(Handle(), WM_NULL, 0, 0);
}

// What the window tells.

/// The window is about to place a control. A combo box, whose height is its own, stands in the
/// middle.
void TCoolBar::PlaceChild(LPARAM told) {
  auto& child = *reinterpret_cast<NMREBARCHILDSIZE*>(told);
  TCoolBand* band = BandOf(child.uBand);
  if (!band || !band->FControl) return;
  if (dynamic_cast<TCustomComboBox*>(band->FControl)) {
    const int spare = child.rcChild.bottom - child.rcChild.top - band->FControl->Height();
    child.rcChild.top += spare / 2;
    child.rcChild.bottom = child.rcChild.top + band->FControl->Height();
  }
  band->FPlace = child.rcChild;
}

/// The bands become what the user has made of them.
void TCoolBar::TakeLayout() {
  const TSetFor sending(FSending, true, this);
  const auto count = static_cast<UINT>(Send(*this, RB_GETBANDCOUNT));
  for (UINT i = 0; i < count; ++i) {
    TCoolBand* band = BandOf(i);
    if (!band) continue;
    REBARBANDINFOW asked{};
    asked.cbSize = REBARBANDINFOW_V6_SIZE;
    asked.fMask = RBBIM_STYLE;
    Send(*this, RB_GETBANDINFOW, i, reinterpret_cast<LPARAM>(&asked));
    RECT place{};
    Send(*this, RB_GETRECT, i, reinterpret_cast<LPARAM>(&place));
    const bool breaks = (asked.fStyle & RBBS_BREAK) != 0;
    // Along the row; of a hidden one the window knows no place.
    const auto along =
        static_cast<int>(FVertical ? place.bottom - place.top : place.right - place.left);
    const int width = band->FShown ? along : band->FWidth;
    FChanged = FChanged || band->Index() != static_cast<int>(i) || band->FBreak != breaks ||
               band->FWidth != width;
    band->FBreak = breaks;
    band->FWidth = width;
    band->SetIndex(static_cast<int>(i));
  }
}

void TCoolBar::NotifyFromWindow(const TMessage& message) {
  switch (reinterpret_cast<const NMHDR*>(message.LParam)->code) {
    case static_cast<UINT>(RBN_CHILDSIZE): return PlaceChild(message.LParam);
    case static_cast<UINT>(RBN_HEIGHTCHANGE): return FSending ? void() : FitRows();
    case static_cast<UINT>(RBN_LAYOUTCHANGED):
    case static_cast<UINT>(RBN_ENDDRAG): return FUserActs && !FSending ? TakeLayout() : void();
    default: return;
  }
}

void TCoolBar::Change() { OnChange(this); }

/// What the user has done is told when the window has done with it, too: a handler may free it.
void TCoolBar::DefaultHandler(TMessage& message) {
  const TWatch watch(this);
  {
    const bool mouse = message.Msg >= WM_MOUSEFIRST && message.Msg <= WM_MOUSELAST;
    const TSetFor acts(FUserActs, FUserActs || mouse, this);
    TWinControl::DefaultHandler(message);
  }
  if (!watch.Gone() && !FUserActs && std::exchange(FChanged, false)) Change();
}

/// A window inside ends or begins, as one does that is made anew: the rebar knows it by its handle.
void TCoolBar::WindowInside(const TMessage& message) {
  if (FSending || Destroying()) return;
  if (LOWORD(message.WParam) == WM_CREATE) SendLater();
  if (LOWORD(message.WParam) != WM_DESTROY) return;
  const TCoolBand* band = FBands->FindBand(FromHandle(reinterpret_cast<HWND>(message.LParam)));
  if (!band) return;
  REBARBANDINFOW none{};
  none.cbSize = REBARBANDINFOW_V6_SIZE;
  none.fMask = RBBIM_CHILD;
  const TSetFor sending(FSending, true, this);
  const LRESULT place = Send(*this, RB_IDTOINDEX, static_cast<WPARAM>(band->ID()));
  if (place >= 0) {
    Send(*this, RB_SETBANDINFOW, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&none));
  }
}

void TCoolBar::Dispatch(TMessage& message) {
  const TWatch watch(this);
  if (message.Msg == CN_NOTIFY) NotifyFromWindow(message);
  if (message.Msg == WM_PARENTNOTIFY) WindowInside(message);
  if (message.Msg == CM_CONTROLLISTCHANGE) {
    ControlsChanged(reinterpret_cast<TControl*>(message.LParam), message.WParam != 0);
  }
  if (message.Msg == WM_NULL && FStale) SendBands();
  if (!watch.Gone()) TWinControl::Dispatch(message);
}

// Screen readers.

void TCoolBar::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arToolBar;
}

/// The texts of the bands; their controls tell of themselves.
std::vector<TAccessiblePart> TCoolBar::AccessibleParts() {
  std::vector<TAccessiblePart> texts;
  for (int i = 0; FShowText && i < FBands->Count(); ++i) {
    const TCoolBand* band = FBands->Items(i);
    if (band->Text().empty() || !Shows(*band)) continue;
    TAccessiblePart& text = texts.emplace_back();
    text.Role = arStaticText;
    text.Name = band->Text();
    RECT bounds{};
    SendIfAllocated(*this, RB_GETRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&bounds));
    text.Bounds = bounds;
  }
  return texts;
}

}  // namespace vcl
