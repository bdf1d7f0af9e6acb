// TPalettePage: the buttons of one page of the component palette.
#pragma once

#include <functional>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/forms/hints.h"

namespace ide {

/// What the mouse makes on a form: a component of the class, or nothing (it selects) for null.
struct TPaletteTool {
  const vcl::TClass* Class = nullptr;
  bool Keep = false;  ///< It stays when a component has been made.
};

/// A row of buttons: the pointer, then the classes; arrows at the right scroll what does not fit.
/// Each button's hint says its class and unit, and what the class is.
class TPalettePage : public vcl::TCustomControl {
 public:
  /// The tool, which belongs to the palette, is shown pressed.
  TPalettePage(vcl::TComponent* owner, const TPaletteTool& tool);

  const std::vector<const vcl::TClass*>& Classes() const { return FClasses; }
  void SetClasses(std::vector<const vcl::TClass*> classes);
  /// Where the class's button (null: the pointer's) stands; empty when it is scrolled away.
  vcl::TRect ButtonRect(const vcl::TClass* aClass) const;
  bool CanScroll(int by) const;
  void Scroll(int by);

  // Screen readers: a part for each place, those that are scrolled away too.
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  /// A button was pressed; `keep`: with Shift.
  std::function<void(const vcl::TClass*, bool keep)> OnPick;
  /// A class was double-clicked.
  std::function<void(const vcl::TClass&)> OnAdd;

 protected:
  void Paint() override;
  void Resize() override;
  void Dispatch(vcl::TMessage& message) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;

 private:
  // Places are counted from the pointer's, 0; the classes follow from 1.
  static constexpr int NoPlace = -1;
  int FirstPlaces() const { return 1 + FFirst; }
  int Visible() const;
  /// In pixels, at the dots per inch that the page is shown with.
  struct TMeasures {
    int Margin;  // Around a button's picture.
    int Button;  // With that.
    int PointerGap;
    int Arrow;
  };
  TMeasures Measures() const;
  bool Fits() const;
  vcl::TRect PlaceRect(int place) const;
  int PlaceAt(vcl::TPoint point) const;
  const vcl::TClass* ClassAt(int place) const;
  vcl::TRect ArrowRect(int by) const;
  void SetHot(int place);
  void PaintPlace(int place);
  void PaintArrow(int by);
  bool GiveHint(vcl::THintInfo& info) const;

  const TPaletteTool& FTool;
  std::vector<const vcl::TClass*> FClasses;
  int FFirst = 0;  // The first class that is seen.
  int FHot = NoPlace;
};

}  // namespace ide
