// TStandardPage: the page of the class library's controls for numbers, choices, keys and dates.
#pragma once

#include "vcl/forms/frames.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace gallery {

/// The frame of standardpage.dfm.
class TStandardPage : public vcl::TFrame {
 public:
  explicit TStandardPage(vcl::TComponent* owner);
  ~TStandardPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  vcl::TTrackBar* ValueTrack = nullptr;
  vcl::TEdit* ValueEdit = nullptr;
  vcl::TUpDown* ValueSpin = nullptr;
  vcl::TScrollBar* ValueScroll = nullptr;
  vcl::TProgressBar* ValueProgress = nullptr;
  vcl::TRadioGroup* ShapeGroup = nullptr;
  vcl::TShape* SampleShape = nullptr;
  vcl::TCheckListBox* SideChecks = nullptr;
  vcl::THotKey* SampleKey = nullptr;
  vcl::TLabel* KeyText = nullptr;
  vcl::TPaintBox* WaveBox = nullptr;
  vcl::TDateTimePicker* SampleDate = nullptr;
  vcl::TDateTimePicker* SampleTime = nullptr;
  vcl::TMonthCalendar* SampleMonth = nullptr;
  vcl::TStaticText* DateText = nullptr;

  void TrackChange(vcl::TObject*) { ShowValue(ValueTrack->Position()); }
  void ScrollChange(vcl::TObject*) { ShowValue(ValueScroll->Position()); }
  void SpinClick(vcl::TObject*, vcl::TUDBtnType) { ShowValue(ValueSpin->Position()); }
  void EditExit(vcl::TObject*) { ShowValue(ValueSpin->Position()); }
  void ShowValue(int value);
  void ShapeClick(vcl::TObject*);
  void PartsClick(vcl::TObject*);
  void KeyChange(vcl::TObject*);
  void WavePaint(vcl::TObject*);
  void DateChange(vcl::TObject*);
  void MonthClick(vcl::TObject*);
  void ShowDate();
};

}  // namespace gallery
