// The page of numbers, choices, keys and dates: controls that follow each other.
#include "demos/gallery/standardpage.h"

#include <cmath>

#include "vcl/menus/menus.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace vcl;

const TClass& TStandardPage::Class() {
  using T = TStandardPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TStandardPage", "demos/gallery/standardpage.h",
                          {
                              Field<&T::ValueTrack>("ValueTrack"),
                              Field<&T::ValueEdit>("ValueEdit"),
                              Field<&T::ValueSpin>("ValueSpin"),
                              Field<&T::ValueScroll>("ValueScroll"),
                              Field<&T::ValueProgress>("ValueProgress"),
                              Field<&T::ShapeGroup>("ShapeGroup"),
                              Field<&T::SampleShape>("SampleShape"),
                              Field<&T::SideChecks>("SideChecks"),
                              Field<&T::SampleKey>("SampleKey"),
                              Field<&T::KeyText>("KeyText"),
                              Field<&T::WaveBox>("WaveBox"),
                              Field<&T::SampleDate>("SampleDate"),
                              Field<&T::SampleTime>("SampleTime"),
                              Field<&T::SampleMonth>("SampleMonth"),
                              Field<&T::DateText>("DateText"),
                              Method<&T::TrackChange>("TrackChange"),
                              Method<&T::ScrollChange>("ScrollChange"),
                              Method<&T::SpinClick>("SpinClick"),
                              Method<&T::EditExit>("EditExit"),
                              Method<&T::ShapeClick>("ShapeClick"),
                              Method<&T::PartsClick>("PartsClick"),
                              Method<&T::KeyChange>("KeyChange"),
                              Method<&T::WavePaint>("WavePaint"),
                              Method<&T::DateChange>("DateChange"),
                              Method<&T::MonthClick>("MonthClick"),
                          });
  return info;
}

TStandardPage::TStandardPage(TComponent* owner) : TFrame(owner) {
  LoadFrame();
  for (int part = 0; part < SideChecks->Items()->Count(); ++part)
    SideChecks->SetChecked(part, true);
  KeyChange(nullptr);
  ShowDate();
}

TStandardPage::~TStandardPage() { AnnounceEnd(); }

void TStandardPage::ShowValue(int value) {
  ValueTrack->SetPosition(value);
  ValueScroll->SetPosition(value);
  ValueSpin->SetPosition(value);
  ValueProgress->SetPosition(value);
  WaveBox->Invalidate();
}

void TStandardPage::ShapeClick(TObject*) {
  SampleShape->SetShape(static_cast<TShapeType>(ShapeGroup->ItemIndex()));
}

void TStandardPage::PartsClick(TObject*) {
  SampleShape->Brush()->SetStyle(SideChecks->Checked(0) ? bsSolid : bsClear);
  SampleShape->Pen()->SetStyle(SideChecks->Checked(1) ? psSolid : psClear);
  SampleShape->Pen()->SetWidth(SideChecks->Checked(2) ? 2 : 1);
}

void TStandardPage::KeyChange(TObject*) {
  KeyText->SetCaption(ShortCutToText(SampleKey->HotKey()));
}

/// As many waves as the value says tenths of.
void TStandardPage::WavePaint(TObject*) {
  constexpr double turn = 6.283185307179586;
  TCanvas* canvas = WaveBox->Canvas();
  canvas->Brush()->SetColor(clWindow);
  canvas->FillRect(WaveBox->ClientRect());
  canvas->Pen()->SetColor(clNavy);
  const double waves = ValueTrack->Position() / 10.0;
  const int middle = WaveBox->Height() / 2;
  canvas->MoveTo(0, middle);
  for (int x = 1; x < WaveBox->Width(); ++x) {
    const double sine = std::sin(turn * waves * x / WaveBox->Width());
    canvas->LineTo(x, middle - static_cast<int>(std::lround(0.9 * middle * sine)));
  }
}

void TStandardPage::DateChange(TObject*) {
  SampleMonth->SetDate(SampleDate->Date());
  ShowDate();
}

void TStandardPage::MonthClick(TObject*) {
  SampleDate->SetDate(SampleMonth->Date());
  ShowDate();
}

void TStandardPage::ShowDate() {
  DateText->SetCaption(Concat(FormatDateTime("dddd, d mmmm yyyy", SampleDate->Date()), ", ",
                              FormatDateTime("hh:nn", SampleTime->Time())));
}

}  // namespace gallery
