// The standard property editors: one for each kind of value, and those of types that the class
// library itself declares. Packages derive theirs from them.
#pragma once

#include "vcl/designintf/propertyeditor.h"

namespace vcl {

/// Base of the editors of values that are numbers: integers, characters, enumerations, sets. An
/// integer type with named values (TCursor, TModalResult) lists the names.
class VCL_API TOrdinalProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
};

class VCL_API TIntegerProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
};

/// A character; control characters as "#" and their number.
class VCL_API TCharProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
};

class VCL_API TEnumProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
};

class VCL_API TBooleanProperty : public TEnumProperty {
 public:
  using TEnumProperty::TEnumProperty;
};

class VCL_API TFloatProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
};

class VCL_API TStringProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
};

/// A caption, which the form shows while it is typed.
class VCL_API TCaptionProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
};

/// The mask of an edit, with a dialog of samples in which it is tried out.
class VCL_API TMaskProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

/// A component's name: one at a time, and never without one.
class VCL_API TComponentNameProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override { return {}; }
  /// Raises EComponentError, beside the name's own reasons, for an empty one.
  void SetValue(const std::string& text) override;
  bool IsDefault() const override { return true; }
};

/// The name of a font, from those that the system has.
class VCL_API TFontNameProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
};

/// The place in a form's tab order, which no two controls share.
class VCL_API TTabOrderProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
  TPropertyAttributes GetAttributes() const override { return {}; }
};

/// A set, with its elements as Booleans inside it.
class VCL_API TSetProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  TPropertyEditors GetProperties() const override;
};

/// One element of a set.
class VCL_API TSetElementProperty : public TPropertyEditor {
 public:
  /// `element` is the ordinal in the set's enumeration.
  TSetElementProperty(TDesigner& designer, TEditedProperties edited, int element);
  TPropertyAttributes GetAttributes() const override;
  std::string GetName() const override;
  std::string GetValue() const override;
  void SetValue(const std::string& text) override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
  bool AllEqual() const override;
  bool IsDefault() const override;
  void Revert() override;

 private:
  bool Has(const TValue& set) const;
  void Put(const std::function<bool(const TPropInfo&)>& included);

  int FElement;
};

/// A colour: its name or number, and a dialog to mix it.
class VCL_API TColorProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

class VCL_API TShortCutProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  std::string GetValue() const override;
  /// Takes what ShortCutToText gives; an empty text or "(None)" for none.
  void SetValue(const std::string& text) override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
};

/// An object with properties of its own, which stand inside this one.
class VCL_API TClassProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  TPropertyEditors GetProperties() const override;
  /// Here: compares the properties inside.
  bool AllEqual() const override;
  bool IsDefault() const override;
  /// True when anything inside can revert.
  bool CanRevert() const override;
  /// Reverts what is inside and has a default.
  void Revert() override;

 protected:
  /// Copies the source into the objects behind the property, all or none, as SetAll does.
  void AssignAll(const TPersistent& source);
  /// An empty object that can hold a copy of the property's. Here: one of its own class; raises
  /// EPropertyError when none can be made by name.
  virtual std::unique_ptr<TPersistent> NewValue() const;
};

/// A font: its properties, and the system's dialog.
class VCL_API TFontProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

/// A list of texts, edited in a dialog of many lines.
class VCL_API TStringsProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
  bool AllEqual() const override;
  /// True when the list has no lines.
  bool IsDefault() const override;
  bool CanRevert() const override { return true; }
  /// Empties the list.
  void Revert() override;

 protected:
  std::unique_ptr<TPersistent> NewValue() const override;
};

/// A picture, bitmap or icon, which a dialog loads from a file.
class VCL_API TPictureProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  /// "(None)" for no picture.
  std::string GetValue() const override;
  /// Raises what loading a picture raises; the objects then keep theirs.
  void Edit() override;
  bool AllEqual() const override { return true; }
  bool IsDefault() const override;
  bool CanRevert() const override { return !IsDefault(); }
  /// Removes the picture.
  void Revert() override;
};

/// The items of a collection, which the designer shows.
class VCL_API TCollectionProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
  bool IsDefault() const override;
  bool CanRevert() const override { return false; }
};

/// Base of the editors of what is chosen by its name, or is nothing: references and handlers.
class VCL_API TChosenProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  bool CanRevert() const override { return true; }
};

/// A reference to a component: the names of those that fit.
class VCL_API TComponentProperty : public TChosenProperty {
 public:
  using TChosenProperty::TChosenProperty;
  std::string GetValue() const override;
  /// An empty text is no component.
  void SetValue(const std::string& text) override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
  void Revert() override;
};

/// An event: the names of the handlers that fit.
class VCL_API TMethodProperty : public TChosenProperty {
 public:
  using TChosenProperty::TChosenProperty;
  std::string GetValue() const override;
  /// The name of a handler that exists is taken; another one renames the event's handler, or makes
  /// one when the event has none. An empty text leaves the event without a handler.
  void SetValue(const std::string& text) override;
  void GetValues(const std::function<void(const std::string&)>& each) const override;
  /// Shows the event's handler, and makes it when there is none.
  void Edit() override;
  bool AllEqual() const override;
  bool IsDefault() const override;
  void Revert() override;
  /// The name that a new handler gets: the object's name and the event's without "On".
  std::string NewHandlerName() const;

 private:
  std::string HandlerOf(const TEditedProperty& edited) const;
  void SetHandlers(const std::string& name);
};

}  // namespace vcl
