// TPageControl: its pages, which one is shown, and where the focus goes.
#include "vcl/stdctrls/pagecontrol.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TPageControl::Class() {
  using T = TPageControl;
  static const TClass info =
      Describe<T, TCustomTabControl>("vcl::TPageControl", "vcl/stdctrls/comctrls.h",
                                     {
                                         Property<&T::ActivePage, &T::SetActivePage>("ActivePage"),
                                         Inherit("Align"),
                                         Inherit("DragCursor"),
                                         Inherit("DragMode"),
                                         Inherit("Enabled"),
                                         Inherit("Font"),
                                         Inherit("HotTrack"),
                                         Inherit("Images"),
                                         Inherit("MultiLine"),
                                         Inherit("ParentFont"),
                                         Inherit("ParentShowHint"),
                                         Inherit("PopupMenu"),
                                         Inherit("RaggedRight"),
                                         Inherit("ShowHint"),
                                         Inherit("Style"),
                                         Inherit("TabHeight"),
                                         Inherit("TabOrder"),
                                         Inherit("TabPosition"),
                                         Inherit("TabStop").Default(true),
                                         Inherit("TabWidth"),
                                         Inherit("Visible"),
                                         Inherit("OnChange"),
                                         Inherit("OnChanging"),
                                         Inherit(DragEvents),
                                         Inherit(FocusEvents),
                                         Inherit(MouseEvents),
                                         Inherit(WheelEvents),
                                         Inherit("OnResize"),
                                         Inherit("OnStartDrag"),
                                     });
  return info;
}

TPageControl::TPageControl(TComponent* owner) : TCustomTabControl(owner) {}

TPageControl::~TPageControl() {
  AnnounceEnd();
  // The pages go with it; none of them is to come forward for another meanwhile.
  const std::vector<TTabSheet*> pages = std::exchange(FPages, {});
  FActivePage = nullptr;
  for (TTabSheet* page : pages) delete page;
}

TTabSheet* TPageControl::Pages(int index) const {
  if (index < 0 || index >= PageCount()) {
    throw EListError(Concat("Page index ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(PageCount()), " pages"));
  }
  return FPages[static_cast<std::size_t>(index)];
}

void TPageControl::SetActivePage(TTabSheet* page) {
  if (page && page->PageControl() != this) {
    throw EInvalidOperation(
        Concat("Page '", page->Name(), "' is not one of page control '", Name(), "'"));
  }
  if (page == FActivePage) return;
  TWatch watch(this);
  const bool focus = PageHasFocus();
  TTabSheet* former = std::exchange(FActivePage, page);
  if (page) {
    page->BringToFront();
    page->SetVisible(true);
  }
  // The focus leaves the former page while it can still be left.
  if (!watch.Gone() && focus) MoveFocusTo(FActivePage);
  if (watch.Gone()) return;
  const bool formerIsPage = std::ranges::find(FPages, former) != FPages.end();
  if (formerIsPage && former != FActivePage) former->SetVisible(false);
  if (watch.Gone()) return;
  ShowActiveTab();
  const int tab = ActiveTab();
  if (tab >= 0) AccessibleChanged(acSelection, {tab});
}

int TPageControl::ActivePageIndex() const { return FActivePage ? FActivePage->PageIndex() : -1; }

void TPageControl::SetActivePageIndex(int index) {
  SetActivePage(index == -1 ? nullptr : Pages(index));
}

TTabSheet* TPageControl::FindNextPage(TTabSheet* current, bool goForward,
                                      bool checkTabVisible) const {
  const int count = PageCount();
  const auto place = std::ranges::find(FPages, current);
  const int none = goForward ? -1 : count;
  int index = place == FPages.end() ? none : static_cast<int>(place - FPages.begin());
  for (int i = 0; i < count; ++i) {
    index = (index + (goForward ? 1 : count - 1)) % count;
    TTabSheet* page = FPages[static_cast<std::size_t>(index)];
    if (page->TabVisible() || !checkTabVisible) return page;
  }
  return nullptr;
}

// Tabs.

std::vector<TTabLook> TPageControl::TabLooks() const {
  std::vector<TTabLook> looks;
  for (const TTabSheet* page : FPages) {
    if (page->TabVisible()) {
      looks.push_back({page->Caption(), page->ImageIndex(), page->Accessible().Name});
    }
  }
  return looks;
}

int TPageControl::ActiveTab() const { return FActivePage ? FActivePage->TabIndex() : -1; }

TTabSheet* TPageControl::PageOfTab(int tab) const {
  if (tab < 0) return nullptr;  // Pages without a tab have the index -1, as has no tab at all.
  const auto found = std::ranges::find(FPages, tab, &TTabSheet::TabIndex);
  return found == FPages.end() ? nullptr : *found;
}

/// An active page without a tab has its place among the others all the same.
void TPageControl::UserSelectsNext(bool goForward) {
  const TTabSheet* next = FindNextPage(FActivePage, goForward, true);
  if (next) UserSelects(next->TabIndex());
}

TTabSheet* TPageControl::PageAtPos(TPoint position) const {
  return PageOfTab(IndexOfTabAt(position));
}

void TPageControl::GetChildren(const std::function<void(TComponent*)>& each, TComponent*) {
  for (TTabSheet* page : std::vector<TTabSheet*>(FPages)) each(page);
}

void TPageControl::SetChildOrder(TComponent* child, int order) {
  auto* page = dynamic_cast<TTabSheet*>(child);
  if (page && std::ranges::count(FPages, page) > 0) {
    page->SetPageIndex(std::clamp(order, 0, PageCount() - 1));
  }
}

void TPageControl::ShowControl(TControl* control) {
  if (auto* page = dynamic_cast<TTabSheet*>(control)) SetActivePage(page);
  TCustomTabControl::ShowControl(control);
}

void TPageControl::Loaded() {
  TCustomTabControl::Loaded();
  if (!FActivePage) SetActivePage(FindNextPage(nullptr, true, true));
}

void TPageControl::InsertPage(TTabSheet* page) {
  FPages.push_back(page);
  UpdateTabs();
  if (!FActivePage && page->TabVisible() && !Loading()) return SetActivePage(page);
  page->SetVisible(false);  // It may have been the active one elsewhere.
}

void TPageControl::RemovePage(TTabSheet* page) {
  const auto place = std::ranges::find(FPages, page);
  if (place == FPages.end()) return;
  const int index = static_cast<int>(place - FPages.begin());
  FPages.erase(place);
  if (page == FActivePage) {
    FActivePage = nullptr;
    PageGone(index);
  }
  UpdateTabs();
}

/// Has another page stand in for the active one, which was at the index: the next one, at the end
/// the one before.
void TPageControl::PageGone(int formerIndex) {
  const auto hasTab = [](const TTabSheet* page) { return page->TabVisible(); };
  const auto middle = FPages.begin() + std::min(formerIndex, PageCount());
  const auto next = std::find_if(middle, FPages.end(), hasTab);
  if (next != FPages.end()) return SetActivePage(*next);
  const auto before = std::find_if(std::make_reverse_iterator(middle), FPages.rend(), hasTab);
  SetActivePage(before == FPages.rend() ? nullptr : *before);
}

void TPageControl::MovePage(TTabSheet* page, int index) {
  Pages(index);  // Refuses what is no place of a page.
  std::erase(FPages, page);
  FPages.insert(FPages.begin() + index, page);
  UpdateTabs();
}

bool TPageControl::PageHasFocus() const {
  const TCustomForm* form = ParentForm();
  return form && FActivePage && form->ActiveControl() &&
         FActivePage->ContainsControl(form->ActiveControl());
}

void TPageControl::MoveFocusTo(TTabSheet* page) {
  TCustomForm* form = ParentForm();
  TWinControl* first = page ? page->FindNextControl(nullptr, true, true, false) : nullptr;
  TWinControl* next = first ? first : this;
  if (next->CanFocus()) form->SetActiveControl(next);
}

}  // namespace vcl
