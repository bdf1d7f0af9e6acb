// TDesignMenuBar: the main menu of a form that is being designed.
#pragma once

#include <functional>
#include <vector>

#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"

namespace ide {

/// The system has no menu bars in windows inside others, so the bar is drawn here, in a strip of
/// the form's frame, where the running form has it. A form's inside keeps its size when the bar
/// comes or goes.
class TDesignMenuBar {
 public:
  /// The form that has the bar; null for none.
  void SetForm(vcl::TForm* form);
  /// Shows the menu as it is now.
  void Refresh();
  /// Does what the message to the form's window has to do with the bar; true when nobody else
  /// should see it.
  bool Handle(vcl::TMessage& message);

  /// A press has selected an item of the bar or of the menu below it, or the menu itself.
  std::function<void(vcl::TComponent& selected)> OnSelect;
  /// A double click on an item, or beside them on the menu.
  std::function<void(vcl::TComponent& clicked)> OnDoubleClick;

 private:
  struct TPlace {
    vcl::TMenuItem* Item;
    int Left;
    int Right;
  };
  void CutOff(vcl::TMessage& message) const;
  void Paint() const;
  vcl::TRect Bar() const;
  std::vector<TPlace> Places() const;
  bool Contains(vcl::TPoint screen) const;
  void Press(vcl::TPoint screen, bool twice);
  void DropDown(const TPlace& place);

  vcl::TForm* FForm = nullptr;
  int FHeight = 0;
};

}  // namespace ide
