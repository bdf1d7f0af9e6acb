// The page of lists to choose from: a million rows are made up when they are seen.
#include "demos/gallery/picklistspage.h"

#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"

namespace gallery {

using namespace vcl;

const TClass& TPickListsPage::Class() {
  using T = TPickListsPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TPickListsPage", "demos/gallery/picklistspage.h",
                          {
                              Field<&T::SampleHeader>("SampleHeader"),
                              Method<&T::RowText>("RowText"),
                              Method<&T::SectionClick>("SectionClick"),
                          });
  return info;
}

TPickListsPage::TPickListsPage(TComponent* owner) : TFrame(owner) {
  RegisterClasses({&qel::TQELAutoCombo::Class(), &qel::TQELCheckList::Class(),
                   &qel::TQELColorCombo::Class(), &qel::TQELFontBox::Class(),
                   &qel::TQELFontCombo::Class(), &qel::TQELHeader::Class(),
                   &qel::TQELHeaderList::Class(), &qel::TQELLanguageCombo::Class(),
                   &qel::TQELLookupEdit::Class(), &qel::TQELLookupMenu::Class(),
                   &qel::TQELOfficeEdit::Class(), &qel::TQELRealSpinEdit::Class()});
  LoadFrame();
}

TPickListsPage::~TPickListsPage() { AnnounceEnd(); }

void TPickListsPage::RowText(TObject*, int column, int row, std::string& text) {
  const std::int64_t number = row + 1;
  if (column == 0) text = IntToStr(number);
  if (column == 1) text = IntToStr(number * number);
  if (column == 2) text = IntToStr(static_cast<int>(IntToStr(number).size()));
}

/// The section that is clicked gets the mark; a second click turns it round.
void TPickListsPage::SectionClick(TObject*, qel::TQELHeaderSection* section) {
  const bool again = SampleHeader->SortColumn() == section->Index();
  SampleHeader->SetSortDescending(again && !SampleHeader->SortDescending());
  SampleHeader->SetSortColumn(section->Index());
}

}  // namespace gallery
