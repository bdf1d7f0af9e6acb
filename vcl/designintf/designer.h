// TDesigner: what the editors of properties and components see of the form designer that runs them.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/component.h"

namespace vcl {

/// The designer of one form. The designer application derives its own; everything that a package
/// does to the form beyond the objects it was given goes by way of it.
class VCL_API TDesigner {
 public:
  TDesigner() = default;
  TDesigner(const TDesigner&) = delete;
  TDesigner& operator=(const TDesigner&) = delete;
  virtual ~TDesigner();

  /// Called after every change of the form, once for each action of the user: the designer shows it
  /// and can undo it.
  virtual void Modified() = 0;
  /// The form, or whatever else is designed.
  virtual TComponent& Root() const = 0;
  /// A name that no component of the root has, for a new one of that class: "TButton" gives
  /// "Button1".
  virtual std::string UniqueName(const std::string& className) const = 0;
  /// Why the component cannot have the name: no form file could hold it, or no member of the form's
  /// C++ class could be called so. Empty when it can.
  virtual std::string NameProblem(const TComponent& component, const std::string& name) const = 0;

  /// The handlers that an event can be given, which are those of its signature, in order.
  virtual std::vector<std::string> MethodNames(const TPropInfo& event) const = 0;
  virtual bool MethodExists(const std::string& name) const = 0;
  /// Adds an empty handler for the event. Raises EComponentError for a name that is no identifier
  /// or is taken.
  virtual void CreateMethod(const std::string& name, const TPropInfo& event) = 0;
  /// Renames the handler in every event that calls it. Raises like CreateMethod.
  virtual void RenameMethod(const std::string& name, const std::string& newName) = 0;
  /// Brings the handler before the user.
  virtual void ShowMethod(const std::string& name) = 0;

  /// The names of the components that a reference to the class can be given, in order; those of
  /// other open forms with their form's name in front ("Data.Table1").
  virtual std::vector<std::string> ComponentNames(const TClass& aClass) const = 0;
  /// The component that such a name says; null when there is none.
  virtual TComponent* FindComponent(const std::string& name) const = 0;
  /// How a reference to the component is spelled; the inverse of FindComponent.
  virtual std::string NameOf(const TComponent& component) const = 0;

  /// What the object of the form is in the form that this one descends from; null for what is new
  /// here, and for a form that descends from none. Its class is the object's.
  virtual const TObject* AncestorOf(const TObject& object) const;

  /// What is selected: components, or items of a collection; the root when nothing else is.
  virtual std::vector<TPersistent*> Selection() const = 0;
  virtual void SetSelection(const std::vector<TPersistent*>& selection) = 0;
  /// True when components that are no controls stand on the form, as icons.
  virtual bool ShowNonVisual() const = 0;
  virtual void SetShowNonVisual(bool show) = 0;
  /// Shows the items of a collection, to be added, removed, ordered and selected. `owner` is the
  /// object whose property the collection is.
  virtual void ShowCollection(TPersistent& owner, TCollection& collection,
                              const std::string& property) = 0;
};

}  // namespace vcl
