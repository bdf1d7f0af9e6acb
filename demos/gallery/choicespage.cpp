// The page of choices: what was clicked last, and where the arrows have gone.
#include "demos/gallery/choicespage.h"

#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace vcl;

const TClass& TChoicesPage::Class() {
  using T = TChoicesPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TChoicesPage", "demos/gallery/choicespage.h",
                          {
                              Field<&T::ArrowUp>("ArrowUp"),
                              Field<&T::ArrowDown>("ArrowDown"),
                              Field<&T::ArrowRight>("ArrowRight"),
                              Field<&T::ArrowCount>("ArrowCount"),
                              Field<&T::LastText>("LastText"),
                              Method<&T::ButtonClick>("ButtonClick"),
                              Method<&T::ArrowClick>("ArrowClick"),
                          });
  return info;
}

TChoicesPage::TChoicesPage(TComponent* owner) : TFrame(owner) {
  RegisterClasses({&qel::TQELArrowButton::Class(), &qel::TQELBackground::Class(),
                   &qel::TQELCheckbox::Class(), &qel::TQELFillBackground::Class(),
                   &qel::TQELFormDivider::Class(), &qel::TQELIEButton::Class(),
                   &qel::TQELOfficeButton::Class(), &qel::TQELPanel::Class(),
                   &qel::TQELRadiobutton::Class(), &qel::TQELRoundButton::Class()});
  LoadFrame();
}

TChoicesPage::~TChoicesPage() { AnnounceEnd(); }

void TChoicesPage::ButtonClick(TObject* sender) {
  LastText->SetCaption(dynamic_cast<const TComponent&>(*sender).Name());
}

void TChoicesPage::ArrowClick(TObject* sender) {
  if (sender == ArrowUp)
    ++FPlace.Y;
  else if (sender == ArrowDown)
    --FPlace.Y;
  else
    FPlace.X += sender == ArrowRight ? 1 : -1;
  ArrowCount->SetCaption(Concat(IntToStr(FPlace.X), ", ", IntToStr(FPlace.Y)));
}

}  // namespace gallery
