// The editors of tool bars, pages, and controls with a collection.
#include "vcl/designintf/containereditors.h"

#include <memory>
#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/comctrls.h"

namespace vcl {

namespace {

/// A new component of the form, with a name.
template <class T>
std::unique_ptr<T> MakeNamed(const TDesigner& designer) {
  auto made = std::make_unique<T>(&designer.Root());
  made->SetName(designer.UniqueName(made->ClassName()));
  return made;
}

/// The form has become another one, with the component selected.
void Select(TDesigner& designer, TComponent& component) {
  designer.SetSelection({&component});
  designer.Modified();
}

}  // namespace

// Tool bars.

std::string TToolBarEditor::GetVerb(int index) const {
  if (index < 0 || index >= GetVerbCount()) return TComponentEditor::GetVerb(index);
  return index == 0 ? "New Button" : "New Separator";
}

void TToolBarEditor::ExecuteVerb(int index) {
  if (index < 0 || index >= GetVerbCount()) return TComponentEditor::ExecuteVerb(index);
  auto* selected = dynamic_cast<TToolButton*>(&Component());
  auto* bar = selected ? selected->ToolBar() : dynamic_cast<TToolBar*>(&Component());
  if (!bar) throw EComponentError(Concat(Component().Name(), " does not stand on a tool bar"));
  auto made = MakeNamed<TToolButton>(Designer());
  if (index == 1) made->SetStyle(tbsSeparator);
  made->SetParent(bar);
  TToolButton& button = *made.release();
  if (selected) bar->SetControlIndex(&button, selected->Index() + 1);
  Select(Designer(), button);
}

// Pages.

namespace {

enum TPageVerb { NewPage, NextPage, PreviousPage, DeletePage };

TPageControl& PagesOf(TComponent& component) {
  auto* sheet = dynamic_cast<TTabSheet*>(&component);
  auto* pages = sheet ? sheet->PageControl() : dynamic_cast<TPageControl*>(&component);
  if (!pages) throw EComponentError(Concat(component.Name(), " is no page of a page control"));
  return *pages;
}

void AddPage(TDesigner& designer, TPageControl& pages) {
  auto made = MakeNamed<TTabSheet>(designer);
  made->SetPageControl(&pages);
  TTabSheet& page = *made.release();
  pages.SetActivePage(&page);
  Select(designer, page);
}

/// Pages without a tab, too, for they can be designed as well.
void GoToPage(TDesigner& designer, TPageControl& pages, bool forward) {
  TTabSheet* next = pages.FindNextPage(pages.ActivePage(), forward, false);
  if (!next) return;
  pages.SetActivePage(next);
  Select(designer, *next);
}

void DeleteActivePage(TDesigner& designer, TPageControl& pages) {
  TTabSheet* page = pages.ActivePage();
  if (!page) return;
  if (page->Owner() != &designer.Root() || designer.AncestorOf(*page)) {
    throw EComponentError(Concat("Page '", page->Name(), "' is inherited and cannot be deleted"));
  }
  designer.SetSelection({&pages});
  delete page;
  designer.Modified();
}

}  // namespace

std::string TPageControlEditor::GetVerb(int index) const {
  static constexpr const char* verbs[] = {"New Page", "Next Page", "Previous Page", "Delete Page"};
  return index < 0 || index >= GetVerbCount() ? TComponentEditor::GetVerb(index) : verbs[index];
}

void TPageControlEditor::ExecuteVerb(int index) {
  TPageControl& pages = PagesOf(Component());
  switch (index) {
    case NewPage: return AddPage(Designer(), pages);
    case NextPage:
    case PreviousPage: return GoToPage(Designer(), pages, index == NextPage);
    case DeletePage: return DeleteActivePage(Designer(), pages);
    default: return TComponentEditor::ExecuteVerb(index);
  }
}

// Collections.

namespace {

/// The property of the component that is a collection, and that collection.
std::pair<const TPropInfo*, TCollection*> ItemsOf(TComponent& component) {
  for (const TPropInfo* each : component.ClassType().Published()) {
    if (each->IsEvent() || !each->Type->ClassOf) continue;
    auto* items = dynamic_cast<TCollection*>(std::get<TObject*>(each->Get(component)));
    if (items) return {each, items};
  }
  return {nullptr, nullptr};
}

}  // namespace

std::string TItemsEditor::GetVerb(int index) const {
  if (index != 0) return TComponentEditor::GetVerb(index);
  const TPropInfo* property = ItemsOf(Component()).first;
  return Concat(property ? property->Name : "Items", "...");
}

void TItemsEditor::ExecuteVerb(int index) {
  if (index != 0) return TComponentEditor::ExecuteVerb(index);
  const auto [property, items] = ItemsOf(Component());
  if (items) Designer().ShowCollection(Component(), *items, std::string(property->Name));
}

void RegisterContainerEditors() {
  const auto toolBar = ComponentEditorClass<TToolBarEditor>("TToolBarEditor");
  RegisterComponentEditor(TToolBar::Class(), toolBar);
  RegisterComponentEditor(TToolButton::Class(), toolBar);
  const auto pages = ComponentEditorClass<TPageControlEditor>("TPageControlEditor");
  RegisterComponentEditor(TPageControl::Class(), pages);
  RegisterComponentEditor(TTabSheet::Class(), pages);
  const auto items = ComponentEditorClass<TItemsEditor>("TItemsEditor");
  for (const TClass* each : {&TCoolBar::Class(), &THeaderControl::Class(), &TStatusBar::Class()}) {
    RegisterComponentEditor(*each, items);
  }
}

}  // namespace vcl
