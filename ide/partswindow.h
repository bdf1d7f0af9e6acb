// TPartsWindow: the parts of one component on the form, such as a menu's items, in a window.
#pragma once

#include <string>
#include <vector>

#include "ide/designerpart.h"
#include "ide/listwindow.h"
#include "vcl/rtl/strings.h"

namespace ide {

/// The selected part is selected in the designer too; a double click makes or shows its handler.
/// When the form is made anew (undo), the window finds its component again by the name; when that
/// is gone, the window closes.
class TPartsWindow : public TListWindow, public TDesignerPart {
 public:
  explicit TPartsWindow(vcl::TComponent* owner);
  ~TPartsWindow() override;

  void SetDesigner(vcl::TDesigner* designer) override;
  void SelectionChanged() override;
  void Refresh() override;

 protected:
  /// Shows the parts of a component of the designer's form.
  void ShowParts(vcl::TDesigner& designer, vcl::TComponent& component);
  /// True for a component of the class that the window is for.
  virtual bool Takes(const vcl::TComponent& component) const = 0;
  /// What stands in front of the component's name in the caption.
  virtual const char* Title() const = 0;
  /// Calls `AddPart` for each line.
  virtual void ListParts() = 0;
  /// A line with a part of the component, or with what is none (null).
  void AddPart(const std::string& line, vcl::TComponent* part);

  vcl::TDesigner& FormDesigner() const { return *FDesigner; }
  /// The component whose parts are shown; null for none.
  vcl::TComponent* Edited() const { return FEdited; }
  /// The part in the selected line resp. in one; null for none.
  vcl::TComponent* SelectedPart() const { return PartAt(List().ItemIndex()); }
  vcl::TComponent* PartAt(int line) const;
  /// Tells the designer of a change and selects a part; null selects the component itself.
  void Changed(vcl::TComponent* selected);
  /// Makes or shows the handler of the selected part.
  void EditHandler();

 private:
  bool Find();

  vcl::TDesigner* FDesigner = nullptr;
  vcl::TComponent* FEdited = nullptr;
  std::string FName;
  std::vector<vcl::TComponent*> FParts;  // One for each line.
  vcl::TStringList FLines;
};

}  // namespace ide
