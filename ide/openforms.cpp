// TOpenForms: forms that come and go, which one is worked on, their names and references.
#include "ide/openforms.h"

#include <algorithm>
#include <filesystem>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace ide {

using namespace vcl;

TOpenForms::TOpenForms(TWinControl& window) : FPages(new TPageControl(&window)) {
  FPages->SetParent(&window);
  FPages->SetAlign(alClient);
  FPages->SetTabStop(false);
  FPages->OnChange = TNotifyEvent([this](TObject*) { TabChanged(); });
}

TOpenForms::~TOpenForms() { FPages->OnChange.Clear(); }

std::vector<TFormDesigner*> TOpenForms::All() const {
  std::vector<TFormDesigner*> all;
  for (const TPage& each : FOpen) all.push_back(each.Designer.get());
  return all;
}

TOpenForms::TPage& TOpenForms::PageOf(const TFormDesigner& designer) {
  return *std::ranges::find(FOpen, &designer,
                            [](const TPage& each) { return each.Designer.get(); });
}

// Coming and going.

TFormDesigner& TOpenForms::Add() {
  auto* sheet = new TTabSheet(FPages->Owner());
  auto* workspace = new TWorkspace(sheet);
  workspace->SetParent(sheet);
  workspace->SetAlign(alClient);
  sheet->SetPageControl(FPages);
  FOpen.push_back({sheet, workspace, std::make_unique<TFormDesigner>(workspace->Desktop())});
  auto* made = FOpen.back().Designer.get();
  made->Document().SetOthers([this, made] {
    std::vector<TComponent*> others;
    for (const TPage& each : FOpen) {
      TFormDocument& document = each.Designer->Document();
      if (each.Designer.get() != made && document.HasRoot()) others.push_back(&document.Root());
    }
    return others;
  });
  return *made;
}

void TOpenForms::Remove(TFormDesigner& designer) {
  TPage& page = PageOf(designer);
  TTabSheet* sheet = page.Sheet;
  if (FActive == &designer) FActive = nullptr;
  // While it ends it is none of the forms that are open.
  std::unique_ptr<TFormDesigner> ended = std::move(page.Designer);
  FOpen.erase(FOpen.begin() + (&page - FOpen.data()));
  ended.reset();
  ShowOthers(nullptr);
  delete sheet;
}

// Which one is worked on.

void TOpenForms::Activate(TFormDesigner& designer) {
  TDesignSurface& surface = designer.Surface();
  if (FActive) {
    TDesignSurface& former = FActive->Surface();
    former.SetPlacing(nullptr);
    surface.SetShowGrid(former.ShowGrid());
    surface.SetSnapToGrid(former.SnapToGrid());
  }
  FActive = &designer;
  FPages->SetActivePage(PageOf(designer).Sheet);
  if (FPages->Showing()) ::SetFocus(designer.Document().Stage().Form().Handle());
}

TFormDesigner& TOpenForms::Next(bool forward) const {
  const auto all = All();
  const std::size_t at = static_cast<std::size_t>(std::ranges::find(all, FActive) - all.begin());
  return *all[(at + (forward ? 1 : all.size() - 1)) % all.size()];
}

void TOpenForms::TabChanged() {
  const auto wanted = std::ranges::find(FOpen, FPages->ActivePage(), &TPage::Sheet);
  if (wanted != FOpen.end() && OnWanted) OnWanted(*wanted->Designer);
}

// References between forms.

void TOpenForms::ShowOthers(const TFormDesigner* changed) {
  if (FFollowing) return;  // What the others show changes nothing.
  const vcl::TSetFor following(FFollowing, true);
  for (TFormDesigner* each : All()) {
    if (each != changed) each->Try([each] { each->Document().FollowOthers(); });
  }
}

void TOpenForms::Save(TFormDesigner& designer, const std::string& fileName) {
  const TFormDesigner* open = OfFile(fileName);
  if (open && open != &designer) {
    throw EInOutError(Concat("The file ", fileName, " is open as another form"));
  }
  designer.Document().Save(fileName);
  for (TFormDesigner* each : All()) {
    if (each != &designer) each->Document().TakeNamesOf(designer.Root());
  }
  // Its descendants, and forms with such a frame, show at once what it has become.
  const std::string className = designer.Root().FileClassName();
  for (TFormDesigner* each : All()) {
    TFormDocument& document = each->Document();
    if (each == &designer || !document.StandsOn(className)) continue;
    each->Try([&document] { document.Rebase(); });
  }
}

// Names.

TFormDesigner* TOpenForms::OfFile(const std::string& fileName) const {
  const std::filesystem::path wanted(ToUtf16(fileName));
  for (const TPage& each : FOpen) {
    const std::string& name = each.Designer->Document().FileName();
    std::error_code missing;  // Two names of no file are none of the same.
    const bool same =
        !name.empty() &&
        (SameText(name, fileName) || std::filesystem::equivalent(wanted, ToUtf16(name), missing));
    if (same) return each.Designer.get();
  }
  return nullptr;
}

std::string TOpenForms::UniqueName(const std::string& stem) const {
  for (int i = 1;; ++i) {
    std::string name = stem + IntToStr(i);
    const bool taken = std::ranges::any_of(FOpen, [&](const TPage& each) {
      const TFormDocument& document = each.Designer->Document();
      return document.HasRoot() && SameText(document.Root().Name(), name);
    });
    if (!taken) return name;
  }
}

std::string ShortName(TFormDesigner& designer) {
  const TFormDocument& document = designer.Document();
  const std::string& name = document.FileName();
  if (name.empty()) return document.Root().Name();
  return ExtractFileName(name);
}

// What is shown.

void TOpenForms::ShowChanged(const TFormDesigner& designer) {
  TPage& page = PageOf(designer);
  const TFormDocument& document = page.Designer->Document();
  constexpr int margin = 40;
  const TForm& form = document.Stage().Form();
  page.Workspace->SetExtent(
      {form.Left() + form.Width() + margin, form.Top() + form.Height() + margin});
  page.Sheet->SetCaption(Concat(ShortName(*page.Designer), document.Modified() ? " *" : ""));
}

void TOpenForms::ShowWhole() {
  if (!FActive) return;
  constexpr int margin = 8;
  const TForm& form = FActive->Document().Stage().Form();
  PageOf(*FActive).Workspace->ScrollTo(form.Left() - margin, form.Top() - margin);
}

}  // namespace ide
