// The page of data-aware controls: who is shown is edited in several of them at once.
#include "demos/gallery/fieldspage.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"

namespace gallery {

using namespace vcl;

namespace {

/// A face of that colour, as a field holds it.
std::string Face(TColor color) {
  TBitmap picture(96, 96);
  picture.Canvas()->Brush()->SetColor(color);
  picture.Canvas()->Ellipse(4, 4, 92, 92);
  picture.Canvas()->Brush()->SetColor(clBlack);
  picture.Canvas()->Ellipse(30, 32, 40, 44);
  picture.Canvas()->Ellipse(56, 32, 66, 44);
  picture.Canvas()->MoveTo(30, 64);
  picture.Canvas()->LineTo(66, 64);
  TMemoryStream stream;
  picture.SaveToStream(stream);
  stream.SetPosition(0);
  return stream.ReadRest();
}

}  // namespace

const TClass& TFieldsPage::Class() {
  using T = TFieldsPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TFieldsPage", "demos/gallery/fieldspage.h",
                          {
                              Field<&T::People>("People"),
                              Field<&T::Kinds>("Kinds"),
                              Field<&T::FoundText>("FoundText"),
                              Method<&T::NotFound>("NotFound"),
                          });
  return info;
}

TFieldsPage::TFieldsPage(TComponent* owner) : TFrame(owner) {
  RegisterDataControls();
  RegisterClasses({&qel::TQELDBImageView::Class(), &qel::TQELDBIndexLookup::Class(),
                   &qel::TQELDBLabel::Class(), &qel::TQELDBLookupedit::Class(),
                   &qel::TQELDBMemoView::Class(), &qel::TQELDBNavigator::Class(),
                   &qel::TQELDBOfficeEdit::Class(), &qel::TQELDBSpinEdit::Class(),
                   &qel::TQELDBStickyLabel::Class()});
  LoadFrame();
  FillKinds();
  FillPeople();
}

TFieldsPage::~TFieldsPage() { AnnounceEnd(); }

void TFieldsPage::FillKinds() {
  Kinds->Open();
  std::int64_t id = 1;
  for (const char* kind : {"Customer", "Supplier", "Friend"}) Kinds->AppendRecord({id++, kind});
}

void TFieldsPage::FillPeople() {
  struct TPerson {
    const char* Name;
    std::int64_t Kind;
    double Balance;
    TColor Color;
  };
  constexpr TPerson people[] = {{"Ada Acre", 1, 120.5, clYellow},
                                {"Bela Brook", 2, -30, clAqua},
                                {"Cora Cliff", 3, 0, clLime},
                                {"Dan Dale", 1, 999.99, clFuchsia}};
  People->Open();
  for (const TPerson& each : people) {
    People->AppendRecord({each.Name, each.Kind, each.Balance, Face(each.Color),
                          std::string("Notes on ") + each.Name +
                              ".\r\nA double click opens a window for long texts."});
  }
  People->First();
}

void TFieldsPage::NotFound(TObject*) { FoundText->SetCaption("Nobody begins like that"); }

}  // namespace gallery
