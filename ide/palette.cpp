// TComponentPalette: its pages, the filter, and the class that is being placed.
#include "ide/palette.h"

#include <algorithm>
#include <iterator>

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/text.h"

namespace ide {

namespace {

// In pixels at 96 dots per inch.
constexpr int FilterWidth = 110;
constexpr int Gap = 4;

bool Matches(const vcl::TClass& aClass, const std::string& filter) {
  return vcl::UpperCase(aClass.Name()).find(vcl::UpperCase(filter)) != std::string::npos;
}

}  // namespace

TComponentPalette::TComponentPalette(vcl::TComponent* owner)
    : TWinControl(owner), FPages(new vcl::TPageControl(this)), FFilterEdit(new vcl::TEdit(this)) {
  SetBounds(0, 0, 600, 60);
  FPages->SetTabStop(false);
  FPages->SetParent(this);
  FFilterEdit->SetAccessibleName("Classes whose name contains");
  FFilterEdit->SetParent(this);
  FFilterEdit->SetHint("Shows only the classes whose name contains this");
  FFilterEdit->SetShowHint(true);
  FFilterEdit->OnChange = [this](vcl::TObject*) { SetFilter(FFilterEdit->Text()); };
}

TComponentPalette::~TComponentPalette() { AnnounceEnd(); }

void TComponentPalette::Resize() {
  TWinControl::Resize();
  const int gap = ScaledPixels(Gap);
  const int width = ScaledPixels(FilterWidth);
  const int right = std::max(ClientWidth() - width - 2 * gap, 0);
  FPages->SetBounds(0, 0, right, ClientHeight());
  FFilterEdit->SetBounds(right + gap, gap, width, FFilterEdit->Height());
}

// The pages.

void TComponentPalette::SetPages(const std::vector<vcl::TPaletteEntry>& entries) {
  SelectTool(nullptr);
  for (const TPage& page : FPageList) delete page.Sheet;
  FPageList.clear();
  for (const vcl::TPaletteEntry& entry : entries) {
    auto& classes = PageFor(entry.Page).Classes;
    for (const vcl::TClass* each : entry.Classes) {
      if (std::ranges::count(classes, each) == 0) classes.push_back(each);
    }
  }
  for (TPage& page : FPageList) ShowPage(page);
  if (!FPageList.empty()) FPages->SetActivePage(FPageList.front().Sheet);
}

TComponentPalette::TPage& TComponentPalette::PageFor(const std::string& name) {
  const auto found = std::ranges::find(FPageList, name, &TPage::Name);
  if (found != FPageList.end()) return *found;
  auto* sheet = new vcl::TTabSheet(this);
  sheet->SetCaption(name);
  sheet->SetPageControl(FPages);
  auto* buttons = new TPalettePage(sheet, FTool);
  buttons->SetAlign(vcl::alClient);
  buttons->SetParent(sheet);
  buttons->OnPick = [this](const vcl::TClass* aClass, bool keep) { SelectTool(aClass, keep); };
  buttons->OnAdd = [this](const vcl::TClass& aClass) {
    SelectTool(nullptr);
    if (OnAdd) OnAdd(aClass);
  };
  FPageList.push_back({name, sheet, buttons, {}});
  return FPageList.back();
}

void TComponentPalette::ShowPage(TPage& page) {
  std::vector<const vcl::TClass*> shown;
  std::ranges::copy_if(page.Classes, std::back_inserter(shown),
                       [&](const vcl::TClass* each) { return Matches(*each, FFilter); });
  page.Sheet->SetTabVisible(!shown.empty());
  page.Buttons->SetClasses(std::move(shown));
}

TPalettePage* TComponentPalette::ActivePage() const {
  const auto found = std::ranges::find(FPageList, FPages->ActivePage(), &TPage::Sheet);
  return found == FPageList.end() ? nullptr : found->Buttons;
}

TPalettePage* TComponentPalette::PageOf(const std::string& name) const {
  const auto found = std::ranges::find(FPageList, name, &TPage::Name);
  return found == FPageList.end() ? nullptr : found->Buttons;
}

void TComponentPalette::SetFilter(const std::string& filter) {
  if (filter == FFilter) return;
  FFilter = filter;
  if (FFilterEdit->Text() != filter) FFilterEdit->SetText(filter);
  for (TPage& page : FPageList) ShowPage(page);
  if (!FPages->ActivePage()) FPages->SetActivePage(FPages->FindNextPage(nullptr, true, true));
}

// The tool.

void TComponentPalette::SelectTool(const vcl::TClass* aClass, bool keep) {
  if (FTool.Class == aClass && FTool.Keep == keep) return;
  FTool = {aClass, keep};
  if (TPalettePage* page = ActivePage()) page->Invalidate();
  OnSelect(this);
}

void TComponentPalette::Placed() {
  if (!FTool.Keep) SelectTool(nullptr);
}

}  // namespace ide
