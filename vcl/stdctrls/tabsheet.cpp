// TTabSheet: its place among the pages and its tab.
#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/pagecontrol.h"

namespace vcl {

const TClass& TTabSheet::Class() {
  using T = TTabSheet;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TTabSheet", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Caption"),
          Inherit("Enabled"),
          Inherit("Font"),
          // A page fills the page control, whatever a form file says.
          Inherit("Height").Stored(false),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1),
          Inherit("Left").Stored(false),
          Property<&T::PageIndex, &T::SetPageIndex>("PageIndex").Stored(false),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::TabVisible, &T::SetTabVisible>("TabVisible").Default(true),
          Inherit("Top").Stored(false),
          Inherit("Width").Stored(false),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Event<&T::OnHide>("OnHide"),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Event<&T::OnShow>("OnShow"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TTabSheet::TTabSheet(TComponent* owner) : TWinControl(owner) {
  SetControlStyle(ControlStyle() + TControlStyle{csAcceptsControls, csNoDesignVisible});
  SetAlign(alClient);
  TWinControl::SetVisible(false);
}

TTabSheet::~TTabSheet() {
  AnnounceEnd();
  TTabSheet::SetParent(nullptr);
}

TPageControl* TTabSheet::PageControl() const { return dynamic_cast<TPageControl*>(Parent()); }
const TWinControl* TTabSheet::SizeGiver() const {
  const TWinControl* pages = PageControl();
  return pages ? pages : this;
}
void TTabSheet::SetPageControl(TPageControl* pageControl) { SetParent(pageControl); }

void TTabSheet::SetParent(TWinControl* parent) {
  auto* pages = dynamic_cast<TPageControl*>(parent);
  if (parent && !pages) {
    throw EInvalidOperation(Concat("Page '", Name(), "' cannot stand in a ", parent->ClassName()));
  }
  TPageControl* former = PageControl();
  if (pages == former) return;
  TWinControl::SetParent(parent);
  if (former) former->RemovePage(this);
  if (pages) pages->InsertPage(this);
}

void TTabSheet::SetVisible(bool visible) {
  TPageControl* pages = PageControl();
  const bool active = pages && pages->ActivePage() == this;
  if (!pages || visible == active) return TWinControl::SetVisible(visible);
  pages->SetActivePage(visible ? this : nullptr);
}

int TTabSheet::PageIndex() const {
  const TPageControl* pages = PageControl();
  if (!pages) return -1;
  const auto place = std::ranges::find(pages->FPages, this);
  return place == pages->FPages.end() ? -1 : static_cast<int>(place - pages->FPages.begin());
}

void TTabSheet::SetPageIndex(int index) {
  if (TPageControl* pages = PageControl()) pages->MovePage(this, index);
}

int TTabSheet::TabIndex() const {
  const int index = FTabVisible ? PageIndex() : -1;
  if (index < 0) return -1;
  const auto first = PageControl()->FPages.begin();
  const auto hasTab = [](const TTabSheet* page) { return page->TabVisible(); };
  return static_cast<int>(std::count_if(first, first + index, hasTab));
}

void TTabSheet::SetImageIndex(int index) {
  FImageIndex = std::max(index, -1);
  if (PageControl()) PageControl()->UpdateTab(TabIndex());
}

void TTabSheet::SetTabVisible(bool visible) {
  if (visible == FTabVisible) return;
  FTabVisible = visible;
  TPageControl* pages = PageControl();
  if (!pages) return;
  if (!visible && pages->ActivePage() == this) pages->PageGone(PageIndex());
  pages->UpdateTabs();
}

void TTabSheet::Dispatch(TMessage& message) {
  TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_TEXTCHANGED && PageControl()) PageControl()->UpdateTab(TabIndex());
  if (message.Msg == CM_SHOWINGCHANGED) (Showing() ? OnShow : OnHide)(this);
}

void TTabSheet::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arPropertyPage;
  info.KeyboardShortcut.clear();
}

}  // namespace vcl
