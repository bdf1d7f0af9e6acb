// TPropertyEditor: how an object inspector shows and changes one published property of one object,
// or of several at once, and how a package gives properties editors of its own.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/designintf/designer.h"
#include "vcl/rtl/properties.h"

namespace vcl {

/// What an inspector offers for a property.
enum TPropertyAttribute {
  paValueList,      ///< GetValues gives the values to choose from.
  paSubProperties,  ///< GetProperties gives properties inside this one.
  paDialog,         ///< Edit shows a dialog: there is a button for it.
  paMultiSelect,    ///< Shown for several selected objects too.
  paAutoUpdate,     ///< SetValue is called with every character that is typed.
  paSortList,       ///< The list of values is shown sorted.
  paReadOnly,       ///< The text can't be typed into.
  paRevertable,     ///< Can be taken back to its default.
};
using TPropertyAttributes = TSet<TPropertyAttribute>;

/// A property of an object.
struct TEditedProperty {
  TObject* Object;
  const TPropInfo* Property;
};
using TEditedProperties = std::vector<TEditedProperty>;

class TPropertyEditor;
using TPropertyEditors = std::vector<std::unique_ptr<TPropertyEditor>>;

/// Base of the editors. One is made for the same property of one or more objects, and lives while
/// they stand in the inspector.
class VCL_API TPropertyEditor {
 public:
  /// `edited` has at least one line; all are of one type. Raises EPropertyError for none.
  TPropertyEditor(TDesigner& designer, TEditedProperties edited);
  TPropertyEditor(const TPropertyEditor&) = delete;
  TPropertyEditor& operator=(const TPropertyEditor&) = delete;
  virtual ~TPropertyEditor();

  /// Here: paMultiSelect and paRevertable.
  virtual TPropertyAttributes GetAttributes() const;
  /// What stands in front of the value: the property's name.
  virtual std::string GetName() const;
  /// The first object's value as a text. What an inspector shows is `ShownValue`.
  virtual std::string GetValue() const;
  /// Gives all objects the value that the text says. Raises EConvertError or EPropertyError, with
  /// the text, or what the object's setter raises; then all objects keep the values that they had.
  virtual void SetValue(const std::string& text);
  /// Calls `each` for every value to choose from.
  virtual void GetValues(const std::function<void(const std::string&)>& each) const;
  /// Editors of what is inside the property.
  virtual TPropertyEditors GetProperties() const;
  /// The user has double-clicked the value or pressed its button. Here: chooses the next value of
  /// the list, if there is one.
  virtual void Edit();
  /// The property has been selected in the inspector.
  virtual void Activate() {}
  /// True when all objects have the same value.
  virtual bool AllEqual() const;
  /// True when a form file would hold the property of none of the objects: each is at its default,
  /// or at what it inherits. An inspector marks the others.
  virtual bool IsDefault() const;
  /// True when `Revert` has an inherited value or a default to go back to.
  virtual bool CanRevert() const;
  /// True when the objects have what `Revert` goes back to from the form that theirs descends from.
  bool Inherits() const;
  /// Gives each object the inherited value (TDesigner::AncestorOf), where there is none the
  /// declared default. Raises EPropertyError when there is neither.
  virtual void Revert();

  /// The value that all objects have; empty when they differ.
  std::string ShownValue() const { return AllEqual() ? GetValue() : std::string(); }
  /// True when the text can't be typed into: the editor says so, or the property can only be read.
  bool ReadOnly() const;
  bool Offers(TPropertyAttribute attribute) const { return GetAttributes().Has(attribute); }
  const TEditedProperties& Edited() const { return FEdited; }
  int PropCount() const { return static_cast<int>(FEdited.size()); }
  /// The property of the first object.
  const TPropInfo& PropInfo() const { return *FEdited.front().Property; }
  TDesigner& Designer() const { return FDesigner; }

 protected:
  /// Changes one object, and the way to take that back.
  using TChange = std::function<void(const TEditedProperty&)>;
  using TKeep = std::function<std::function<void()>(const TEditedProperty&)>;

  TValue Value(int index = 0) const;
  TObject* ObjectValue(int index = 0) const { return std::get<TObject*>(Value(index)); }
  /// Gives all objects the value and tells the designer. When one refuses it, those before it get
  /// back what they had and the error leaves.
  void SetAll(const TValue& value);
  /// The same for changes of any sort: `keep` is called before each change and returns what takes
  /// it back.
  void ChangeAll(const TKeep& keep, const TChange& change);
  /// What gives the object the value that it has now.
  static std::function<void()> KeepValue(const TEditedProperty& edited);
  /// Tells the designer that the form has changed.
  void Modified() const { FDesigner.Modified(); }

 private:
  TDesigner& FDesigner;
  TEditedProperties FEdited;
};

/// How editors of a class are made, and what the class is called.
struct TPropertyEditorClass {
  std::string_view Name;
  std::unique_ptr<TPropertyEditor> (*Make)(TDesigner& designer, TEditedProperties edited);
};

/// The editor class T, whose constructor is TPropertyEditor's. The name must outlive the module.
template <class T>
constexpr TPropertyEditorClass PropertyEditorClass(std::string_view name) {
  return {name,
          [](TDesigner& designer, TEditedProperties edited) -> std::unique_ptr<TPropertyEditor> {
            return std::make_unique<T>(designer, std::move(edited));
          }};
}

/// One call of RegisterPropertyEditor.
struct TPropertyEditorEntry {
  TPropertyEditorClass Editor;
  std::string Type;
  const TClass* Class;
  std::string Property;

  /// True when the entry is for the property of an object of that class.
  VCL_API bool Fits(const TClass& aClass, const TPropInfo& property) const;
};

/// Gives an editor to the properties of a type: of the objects of the class and its descendants
/// (null: of all), and of that name, compared without case (empty: of all names).
///
/// The type is the name that the property shows: "Integer", "Boolean", "string", or an alias, which
/// is a type of its own ("TCaption" is not "string"); or the name of a class, which stands for its
/// descendants too.
///
/// Of several entries that fit a property, one with a name is before one without; then that for the
/// nearer class of object; then that for the nearer class of property; then the newest.
VCL_API void RegisterPropertyEditor(const std::string& type, const TClass* aClass,
                                    const std::string& property,
                                    const TPropertyEditorClass& editor);
/// The calls so far, in order; the standard editors, which every property falls back to, are not
/// among them.
VCL_API const std::vector<TPropertyEditorEntry>& RegisteredPropertyEditors();
/// The editor class for the property of an object of that class.
VCL_API const TPropertyEditorClass& EditorClassOf(const TClass& aClass, const TPropInfo& property);

/// The editor of the property of the objects.
VCL_API std::unique_ptr<TPropertyEditor> MakePropertyEditor(TDesigner& designer,
                                                            TEditedProperties edited);
/// What an inspector shows for the objects: editors of the published properties that all of them
/// have, with the same type and the same editor class, in the first object's order; of several
/// objects only what offers paMultiSelect. `wanted` chooses among the properties.
VCL_API TPropertyEditors PropertiesOf(TDesigner& designer, const std::vector<TObject*>& objects,
                                      const std::function<bool(const TPropInfo&)>& wanted);

}  // namespace vcl
