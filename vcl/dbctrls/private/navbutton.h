// TNavButton: a button of a navigator, with its picture drawn at any size.
#pragma once

#include "vcl/dbctrls/dbnavigator.h"
#include "vcl/stdctrls/speedbutton.h"

namespace vcl {

class TNavButton : public TSpeedButton {
 public:
  TNavButton(TDBNavigator& navigator, TNavigateBtn button);
  void Click() override;

 protected:
  void Paint() override;

 private:
  TDBNavigator& FNavigator;
  TNavigateBtn FButton;
};

}  // namespace vcl
