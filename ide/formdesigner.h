// TFormDesigner: one open form: its document, the surface that it is designed on, what is selected
// and the commands of the user, as editors of properties and components see them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ide/arrange.h"
#include "ide/designsurface.h"
#include "ide/formdocument.h"
#include "ide/handlers.h"
#include "ide/selection.h"
#include "vcl/actions/actions.h"
#include "vcl/db/dataset.h"
#include "vcl/designintf/designer.h"
#include "vcl/menus/menus.h"

namespace ide {

/// What a designer tells the application.
struct TDesignerEvents {
  /// The form, its file's name or its state of being modified has changed.
  std::function<void()> Changed;
  std::function<void()> SelectionChanged;
  /// The form ends, and another one, with which SelectionChanged follows, takes its place.
  std::function<void()> RootGoing;
  /// A file or a component could not be used as it is.
  std::function<void(const std::string& message)> Problem;
  std::function<void(const std::string& handler)> ShowMethod;
  std::function<void(vcl::TPersistent& owner, vcl::TCollection& collection,
                     const std::string& property)>
      ShowCollection;
  std::function<void(vcl::TMenu& menu)> ShowMenu;
  std::function<void(vcl::TActionList& list)> ShowActions;
  std::function<void(vcl::TDataSet& data)> ShowFields;
  /// Says with what a change that an editor makes now belongs together; see TUndoHistory::Add.
  std::function<std::string()> ChangeKey;
  /// A component was made of the palette's class.
  std::function<void()> Placed;
};

class TFormDesigner : public vcl::TDesigner {
 public:
  /// The form stands in the window of `host`, which must outlive the designer.
  explicit TFormDesigner(vcl::TWinControl& host);
  ~TFormDesigner() override;

  TFormDocument& Document() { return FDocument; }
  TDesignSurface& Surface() { return FSurface; }
  TSelection& Selected() { return FSelection; }
  const THandlers& Handlers() const { return FHandlers; }
  TDesignerEvents Events;

  // Commands of the user. Where a component refuses, that is told to Events.Problem.
  void Undo() { FDocument.Undo(); }
  void Redo() { FDocument.Redo(); }
  void DeleteSelected();
  void SelectAll();
  void Copy();
  void Cut();
  void Paste();
  /// The selected components as a form file's text, and components from such a text.
  std::string CopyText() const;
  void PasteText(const std::string& text);
  /// Puts the frame of a form file on the form, into the selected container.
  void AddFrame(const std::string& fileName);
  void BringToFront();
  void SendToBack();
  void Arrange(TArrangement horizontal, TArrangement vertical);
  void Resize(TSizing horizontal, TSizing vertical);
  /// Makes a component of the class in the selected container, at its middle.
  void Add(const vcl::TClass& aClass);
  /// Makes one at a place; an empty rectangle is the place of one of its own size.
  void Drop(const vcl::TClass& aClass, vcl::TWinControl& container, const vcl::TRect& place);
  /// Opens the component's editor.
  void EditComponent(vcl::TComponent& component);
  /// Calls `change`, tells what it raises, and shows what it has done.
  void Try(const std::function<void()>& change);

  void Modified() override;
  vcl::TComponent& Root() const override { return FDocument.Root(); }
  std::string UniqueName(const std::string& className) const override;
  std::string NameProblem(const vcl::TComponent& component, const std::string& name) const override;
  std::vector<std::string> MethodNames(const vcl::TPropInfo& event) const override;
  bool MethodExists(const std::string& name) const override;
  void CreateMethod(const std::string& name, const vcl::TPropInfo& event) override;
  void RenameMethod(const std::string& name, const std::string& newName) override;
  void ShowMethod(const std::string& name) override;
  std::vector<std::string> ComponentNames(const vcl::TClass& aClass) const override;
  vcl::TComponent* FindComponent(const std::string& name) const override;
  std::string NameOf(const vcl::TComponent& component) const override;
  const vcl::TObject* AncestorOf(const vcl::TObject& object) const override {
    return FDocument.AncestorOf(object);
  }
  std::vector<vcl::TPersistent*> Selection() const override;
  void SetSelection(const std::vector<vcl::TPersistent*>& selection) override;
  bool ShowNonVisual() const override { return FSurface.ShowIcons(); }
  void SetShowNonVisual(bool show) override { FSurface.SetShowIcons(show); }
  void ShowCollection(vcl::TPersistent& owner, vcl::TCollection& collection,
                      const std::string& property) override;

 private:
  void Changed(const std::string& key);
  void RootGoing();
  void RootMade();
  void SelectionChanged();
  void Report(const std::string& message) const;
  const vcl::TComponent* InheritedIn(vcl::TComponent& component) const;
  /// True for a component that the form has from the one that it descends from, or from a frame.
  bool IsInherited(const vcl::TComponent& component) const;
  std::string OriginOf(const vcl::TComponent& component) const;
  std::string RootNameProblem(const std::string& name) const;
  std::string MemberProblem(const std::string& name) const;
  void CheckMethodName(const std::string& name) const;
  bool IsNameTaken(const std::string& name) const;
  std::vector<vcl::TComponent*> SelectedOutermost() const;
  std::vector<vcl::TControl*> SelectedSiblings() const;
  /// Raises EComponentError for a control that would come into a data module.
  void CheckHolds(const vcl::TComponent& component) const;
  void ShowIconsOf(const std::vector<vcl::TComponent*>& made);
  void PlaceBeside(const std::vector<vcl::TComponent*>& pasted) const;

  TSelection FSelection;
  TDesignSurface FSurface;
  TFormDocument FDocument;
  THandlers FHandlers;
  std::vector<std::string> FSelectedNames;  // While the form is made anew.
  bool FBusy = false;
};

}  // namespace ide
