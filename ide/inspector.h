// TObjectInspector: the window part in which the properties and events of what is selected on a
// form are seen and changed.
#pragma once

#include <string>
#include <vector>

#include "ide/designerpart.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace ide {

class TInspectorGrid;

/// The list of the form's components, a page each for properties and events, and below them, where
/// there is room, what the selected property is. It shows what the designer has selected, and asks
/// it for everything.
///
/// Who selects, changes or frees objects of the form tells the inspector. It forgets components
/// that are freed by itself, but not items of collections.
class TObjectInspector : public vcl::TWinControl, public TDesignerPart {
 public:
  explicit TObjectInspector(vcl::TComponent* owner);
  ~TObjectInspector() override;

  vcl::TDesigner* Designer() const { return FDesigner; }
  /// Shows another form's designer, with its selection; null for none.
  void SetDesigner(vcl::TDesigner* designer) override;
  /// The designer has selected something else. What is typed and does not hold yet is dropped.
  void SelectionChanged() override;
  /// Something on the form has changed, or its components have: shows what looks different now.
  void Refresh() override;
  /// Makes what is typed hold, as before a file is saved. False when it is refused.
  bool Apply();

  /// The same for all changes that one stretch of typing makes, so that they can be undone
  /// together; empty while nothing is typed.
  std::string ChangeKey() const;

  /// The component list.
  vcl::TComboBox& Components() const { return *FComponents; }
  TInspectorGrid& Properties() const { return *FProperties; }
  TInspectorGrid& Events() const { return *FEvents; }
  /// What is said of the selected property; empty when nothing is known.
  std::string HelpText() const { return FHelpText->Caption(); }
  bool EventsShown() const { return FPages->ActivePage() == FEventsPage; }
  void ShowEvents(bool events);

 protected:
  void Resize() override;
  void Dispatch(vcl::TMessage& message) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  TInspectorGrid* MakePage(vcl::TTabSheet*& sheet, const char* caption, bool events);
  TInspectorGrid& ActiveGrid() const { return EventsShown() ? *FEvents : *FProperties; }
  vcl::TLabel* MakeHelpLabel();
  void PlaceHelp(int top, int bottom);
  void ShowHelp(vcl::TObject* sender);
  void ShowObjects();
  void ListComponents();
  void ComponentChosen(vcl::TObject* sender);
  void PageChanging(vcl::TObject* sender, bool& allow);
  void PageChanged(vcl::TObject* sender);
  void SplitterMoved(vcl::TObject* sender);

  vcl::TDesigner* FDesigner = nullptr;
  std::vector<vcl::TPersistent*> FSelection;
  std::vector<vcl::TComponent*> FListed;  // In the order of the list.
  vcl::TComboBox* FComponents;
  vcl::TPageControl* FPages;
  vcl::TTabSheet* FPropertiesPage = nullptr;
  vcl::TTabSheet* FEventsPage = nullptr;
  TInspectorGrid* FProperties;
  TInspectorGrid* FEvents;
  vcl::TLabel* FHelpName;
  vcl::TLabel* FHelpText;
};

}  // namespace ide
