// A form with a header, or a list under one, for their tests.
#pragma once

#include "qel/qel.h"
#include "tests/vcl/standardform.h"

namespace qel {

class THeaderForm : public vcl::TStandardForm {
 protected:
  static void AddSections(TQELHeaderSections* sections) {
    for (const char* title : {"&Name", "Size", "Date"}) {
      TQELHeaderSection* section = sections->Add();
      section->SetText(title);
      section->SetWidth(80);
    }
  }
  static std::string TitlesOf(const TQELHeaderSections* sections) {
    std::string titles;
    for (int i = 0; i < sections->Count(); ++i) titles += sections->Items(i)->Text() + " ";
    return titles;
  }
  void Drag(const vcl::TControl& in, vcl::TPoint from, vcl::TPoint to) {
    testinput::MoveMouse(in.ClientToScreen(from));
    testinput::LeftDown();
    testinput::MoveMouse(in.ClientToScreen({(from.X + to.X) / 2, (from.Y + to.Y) / 2}));
    testinput::MoveMouse(in.ClientToScreen(to));
    testinput::LeftUp();
  }
};

}  // namespace qel
