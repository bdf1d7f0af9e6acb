// TPrintPreview: its pages, where they stand, and how they are looked at.
#include "vcl/printing/printpreview.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/printing/printer.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr int LeastZoom = 10;
constexpr int GreatestZoom = 500;
constexpr int MostAcross = 20;
constexpr int ZoomStep = 10;
constexpr int GapAt96 = 12;

}  // namespace

/// One page: a sheet with its shadow, and what is drawn on it.
class TPrintPreview::TPage : public TGraphicControl {
 public:
  TPage(TPrintPreview& preview, int index)
      : TGraphicControl(&preview), FPreview(preview), FIndex(index) {
    SetParent(&preview);
  }

  void DescribeAccessible(TAccessibleInfo& info) const override {
    TGraphicControl::DescribeAccessible(info);
    info.Role = arGraphic;
    info.Name =
        Concat("Page ", std::to_string(FIndex + 1), " of ", std::to_string(FPreview.PageCount()));
  }

 protected:
  void Paint() override {
    const TPageRecorder& pages = *FPreview.FRecorder;
    const TPageMetrics metrics = pages.Metrics();
    const TRect sheet(0, 0, Width(), Height());
    Canvas()->Brush()->SetColor(clWhite);
    Canvas()->Pen()->SetColor(clGray);
    Canvas()->Rectangle(sheet);
    const auto across = [&](int x) { return ::MulDiv(x, Width(), metrics.Paper.cx); };
    const auto down = [&](int y) { return ::MulDiv(y, Height(), metrics.Paper.cy); };
    const TRect inside(across(metrics.Edge.X), down(metrics.Edge.Y),
                       across(metrics.Edge.X + metrics.Page.cx),
                       down(metrics.Edge.Y + metrics.Page.cy));
    const TSavedDC saved(Canvas()->Handle());
    ::IntersectClipRect(Canvas()->Handle(), 1, 1, Width() - 1, Height() - 1);
    pages.Draw(FIndex, Canvas(), inside);
  }
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override {
    if (FPreview.CanFocus()) FPreview.SetFocus();
    TGraphicControl::MouseDown(button, shift, x, y);
  }

 private:
  TPrintPreview& FPreview;
  int FIndex;
};

const TClass& TPrintPreview::Class() {
  using T = TPrintPreview;
  static const TClass info = Describe<T, TScrollingWinControl>(
      "vcl::TPrintPreview", "vcl/printing/printing.h",
      {
          Inherit("Align"),
          Inherit("Color").Default(clAppWorkSpace),
          Inherit("Enabled"),
          Inherit("HorzScrollBar"),
          Property<&T::PagesAcross, &T::SetPagesAcross>("PagesAcross").Default(1),
          Inherit("ParentColor").Default(false),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::Size, &T::SetSize>("Size").Default(psWholePage),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Property<&T::Title, &T::SetTitle>("Title"),
          Inherit("VertScrollBar"),
          Inherit("Visible"),
          Property<&T::Zoom, &T::SetZoom>("Zoom").Default(100),
          Event<&T::OnChange>("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Event<&T::OnPrint>("OnPrint"),
          Inherit("OnResize"),
      });
  return info;
}

TPrintPreview::TPrintPreview(TComponent* owner) : TScrollingWinControl(owner) {
  SetControlStyle({csCaptureMouse, csClickEvents, csDoubleClicks});
  SetBounds(0, 0, 320, 240);
  SetColor(clAppWorkSpace);
  SetTabStop(true);
  HorzScrollBar()->SetMargin(GapAt96);
  VertScrollBar()->SetMargin(GapAt96);
  SetAutoScroll(true);
}

TPrintPreview::~TPrintPreview() { AnnounceEnd(); }

void TPrintPreview::CreateParams(TCreateParams& params) {
  TScrollingWinControl::CreateParams(params);
  AddSingleBorder(params);
}

void TPrintPreview::DescribeAccessible(TAccessibleInfo& info) const {
  TScrollingWinControl::DescribeAccessible(info);
  info.Role = arPane;
}

// The pages.

TPageMetrics TPrintPreview::WantedMetrics() const {
  if (FMetrics) return *FMetrics;
  return Printer()->Printers().empty() ? StandardPage(poPortrait) : Printer()->Metrics();
}

void TPrintPreview::Draw(TPrintDocument& document) {
  document.SetTitle(FTitle);
  document.BeginDoc();
  const TOnFailure giveUp([&document] {
    if (document.Printing()) document.Abort();
  });
  OnPrint(this, document);
  if (document.Printing()) document.EndDoc();
}

void TPrintPreview::UpdatePages() {
  auto recorder = std::make_unique<TPageRecorder>(WantedMetrics());
  const TWatch watch(this);
  Draw(*recorder);
  if (!watch.Gone()) ShowPages(std::move(recorder));
}

void TPrintPreview::Print() { Draw(*Printer()); }

void TPrintPreview::Clear() { ShowPages(nullptr); }

void TPrintPreview::ShowPages(std::unique_ptr<TPageRecorder> recorder) {
  for (TPage* page : std::exchange(FPages, {})) delete page;
  FRecorder = std::move(recorder);
  FPage = PageCount() > 0 ? 0 : -1;
  for (int i = 0; i < PageCount(); ++i) FPages.push_back(new TPage(*this, i));
  HorzScrollBar()->SetPosition(0);
  VertScrollBar()->SetPosition(0);
  PlacePages();
  OnChange(this);
}

void TPrintPreview::CheckPage(int index) const {
  if (index >= 0 && index < PageCount()) return;
  throw EListError(Concat("There is no page of the index ", std::to_string(index), " among ",
                          std::to_string(PageCount())));
}

TRect TPrintPreview::PageRect(int index) const {
  CheckPage(index);
  return FPages[static_cast<std::size_t>(index)]->BoundsRect();
}

int TPrintPreview::PageIndex() const {
  const TRect inside = ClientRect();
  const auto seen = [&](int index) { return !Intersection(PageRect(index), inside).Empty(); };
  if (FPage < 0 || seen(FPage)) return FPage;
  for (int i = 0; i < PageCount(); ++i) {
    if (seen(i)) return i;
  }
  return FPage;
}

void TPrintPreview::SetPageIndex(int index) {
  CheckPage(index);
  FPage = index;
  const TRect page = PageRect(index);
  const TPoint offset = ScrollOffset();
  HorzScrollBar()->SetPosition(offset.X + page.Left - Gap());
  VertScrollBar()->SetPosition(offset.Y + page.Top - Gap());
}

void TPrintPreview::NextPage() {
  if (PageIndex() + 1 < PageCount()) SetPageIndex(PageIndex() + 1);
}

void TPrintPreview::PriorPage() {
  if (PageIndex() > 0) SetPageIndex(PageIndex() - 1);
}

// Their sizes and places.

int TPrintPreview::Gap() const { return ScaledPixels(GapAt96); }

TSize TPrintPreview::PageSize() const {
  const TPageMetrics page = FRecorder->Metrics();
  const int across = ::MulDiv(page.Paper.cx, CurrentPPI(), page.PixelsPerInch.cx);
  const int down = ::MulDiv(page.Paper.cy, CurrentPPI(), page.PixelsPerInch.cy);
  if (FSize == psZoom) return {::MulDiv(across, FZoom, 100), ::MulDiv(down, FZoom, 100)};
  // The bars may come and go by what is decided here: the room for them is always left.
  const int bar = ::GetSystemMetrics(SM_CXVSCROLL) + 2 * ::GetSystemMetrics(SM_CXEDGE);
  const int roomX = (Width() - bar - Gap() * (FPagesAcross + 1)) / FPagesAcross;
  const int roomY = Height() - bar - 2 * Gap();
  TSize size{std::max(roomX, 1), std::max(::MulDiv(roomX, down, across), 1)};
  if (FSize == psWholePage && size.cy > roomY) {
    size = {std::max(::MulDiv(roomY, across, down), 1), std::max(roomY, 1)};
  }
  return size;
}

void TPrintPreview::PlacePages() {
  if (FPages.empty() || FPlacing || Loading()) return;
  const TSetFor placing(FPlacing, true, this);
  const TSize size = PageSize();
  const TPoint offset = ScrollOffset();
  const int count = std::min(FPagesAcross, PageCount());
  const int row = count * (size.cx + Gap()) - Gap();
  const int left = std::max((ClientWidth() - row) / 2, Gap());
  DisableAutoRange();
  for (int i = 0; i < PageCount(); ++i) {
    FPages[static_cast<std::size_t>(i)]->SetBounds(
        left + i % FPagesAcross * (size.cx + Gap()) - offset.X,
        Gap() + i / FPagesAcross * (size.cy + Gap()) - offset.Y, size.cx, size.cy);
  }
  EnableAutoRange();
  Invalidate();
}

void TPrintPreview::SetZoom(int percent) {
  if (percent < LeastZoom || percent > GreatestZoom) {
    throw EArgumentOutOfRangeException(Concat("The zoom ", std::to_string(percent),
                                              " is not between ", std::to_string(LeastZoom),
                                              " and ", std::to_string(GreatestZoom)));
  }
  if (percent == FZoom && (FSize == psZoom || Loading())) return;
  FZoom = percent;
  if (!Loading()) FSize = psZoom;
  PlacePages();
  OnChange(this);
}

void TPrintPreview::SetSize(TPreviewSize size) {
  if (size == FSize) return;
  FSize = size;
  PlacePages();
  OnChange(this);
}

void TPrintPreview::SetPagesAcross(int count) {
  if (count < 1 || count > MostAcross) {
    throw EArgumentOutOfRangeException(
        Concat("No number of pages side by side: ", std::to_string(count)));
  }
  if (count == FPagesAcross) return;
  FPagesAcross = count;
  PlacePages();
}

void TPrintPreview::Loaded() {
  TScrollingWinControl::Loaded();
  PlacePages();
}

void TPrintPreview::Resize() {
  const TWatch watch(this);
  TScrollingWinControl::Resize();
  if (!watch.Gone()) PlacePages();
}

void TPrintPreview::ChangeScale(int m, int d) {
  TScrollingWinControl::ChangeScale(m, d);
  PlacePages();
}

// The user.

// The size that is shown is where zooming begins.
void TPrintPreview::ZoomBy(int percent) {
  if (FPages.empty()) return;
  const TPageMetrics page = FRecorder->Metrics();
  const int real = ::MulDiv(page.Paper.cx, CurrentPPI(), page.PixelsPerInch.cx);
  const int shown = ::MulDiv(PageSize().cx, 100, real);
  SetZoom(std::clamp(shown + percent, LeastZoom, GreatestZoom));
}

void TPrintPreview::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TScrollingWinControl::KeyDown(key, shift);
  if (watch.Gone() || !shift.Has(ssCtrl) || shift.Has(ssAlt)) return;
  const std::uint16_t pressed = std::exchange(key, std::uint16_t{0});
  switch (pressed) {
    case VK_NEXT: return NextPage();
    case VK_PRIOR: return PriorPage();
    case VK_ADD:
    case VK_OEM_PLUS: return ZoomBy(ZoomStep);
    case VK_SUBTRACT:
    case VK_OEM_MINUS: return ZoomBy(-ZoomStep);
    default: key = pressed;
  }
}

void TPrintPreview::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  if (CanFocus()) SetFocus();
  TScrollingWinControl::MouseDown(button, shift, x, y);
}

bool TPrintPreview::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
  if (!shift.Has(ssCtrl)) return TScrollingWinControl::DoMouseWheel(shift, wheelDelta, mousePos);
  ZoomBy(wheelDelta > 0 ? ZoomStep : -ZoomStep);
  return true;
}

}  // namespace vcl
