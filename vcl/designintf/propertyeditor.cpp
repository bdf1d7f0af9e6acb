// TPropertyEditor: the value of one property of one or several objects, and changing all of them or
// none.
#include "vcl/designintf/propertyeditor.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"

namespace vcl {
namespace {

/// What has been changed so far. Unless it is kept, it is all taken back, last change first.
class TChanges {
 public:
  TChanges() = default;
  TChanges(const TChanges&) = delete;
  TChanges& operator=(const TChanges&) = delete;
  ~TChanges() {
    for (auto undo = FUndo.rbegin(); undo != FUndo.rend(); ++undo) TakeBack(*undo);
  }
  void Add(std::function<void()> undo) { FUndo.push_back(std::move(undo)); }
  void Keep() { FUndo.clear(); }

 private:
  static void TakeBack(const std::function<void()>& undo) {
    try {
      undo();
    } catch (...) {  // NOLINT(bugprone-empty-catch): what the user hears of is the first error.
    }
  }

  std::vector<std::function<void()>> FUndo;
};

}  // namespace

TPropertyEditor::TPropertyEditor(TDesigner& designer, TEditedProperties edited)
    : FDesigner(designer), FEdited(std::move(edited)) {
  if (FEdited.empty()) throw EPropertyError("A property editor needs a property to edit");
}

TPropertyEditor::~TPropertyEditor() = default;

TPropertyAttributes TPropertyEditor::GetAttributes() const { return {paMultiSelect, paRevertable}; }

std::string TPropertyEditor::GetName() const { return PropInfo().Name; }

std::string TPropertyEditor::GetValue() const { return ValueToText(*PropInfo().Type, Value()); }

void TPropertyEditor::SetValue(const std::string& text) {
  SetAll(TextToValue(*PropInfo().Type, text));
}

void TPropertyEditor::GetValues(const std::function<void(const std::string&)>&) const {}

TPropertyEditors TPropertyEditor::GetProperties() const { return {}; }

void TPropertyEditor::Edit() {
  if (!Offers(paValueList) || ReadOnly()) return;
  std::vector<std::string> values;
  GetValues([&](const std::string& value) { values.push_back(value); });
  if (values.empty()) return;
  const auto current = std::ranges::find(values, GetValue());
  const bool last = current == values.end() || current + 1 == values.end();
  SetValue(last ? values.front() : *(current + 1));
}

bool TPropertyEditor::AllEqual() const {
  for (int i = 1; i < PropCount(); ++i) {
    if (Value(i) != Value()) return false;
  }
  return true;
}

namespace {

/// The ancestor's value as the object would have it: a component by its name.
TValue InheritedValue(const TEditedProperty& edited, const TObject& ancestor,
                      const TDesigner& designer) {
  TValue value = edited.Property->Get(ancestor);
  const auto* reference = std::get_if<TObject*>(&value);
  const auto* component = reference ? dynamic_cast<TComponent*>(*reference) : nullptr;
  if (!component) return value;
  return static_cast<TObject*>(designer.FindComponent(component->Name()));
}

}  // namespace

bool TPropertyEditor::IsDefault() const {
  return std::ranges::none_of(FEdited, [this](const TEditedProperty& each) {
    const TObject* ancestor = FDesigner.AncestorOf(*each.Object);
    if (!ancestor || each.Property->ReadOnly()) return each.Property->NeedsWriting(*each.Object);
    return each.Property->IsStored(*each.Object) &&
           each.Property->Get(*each.Object) != InheritedValue(each, *ancestor, FDesigner);
  });
}

bool TPropertyEditor::Inherits() const {
  return std::ranges::all_of(FEdited, [this](const TEditedProperty& each) {
    return FDesigner.AncestorOf(*each.Object) != nullptr;
  });
}

bool TPropertyEditor::CanRevert() const {
  return Offers(paRevertable) && !ReadOnly() &&
         std::ranges::all_of(FEdited, [this](const TEditedProperty& each) {
           return each.Property->DefaultValue.has_value() || FDesigner.AncestorOf(*each.Object);
         });
}

void TPropertyEditor::Revert() {
  if (!TPropertyEditor::CanRevert()) {
    throw EPropertyError(Concat("Property ", GetName(), " has no default to go back to"));
  }
  ChangeAll(&KeepValue, [this](const TEditedProperty& each) {
    const TObject* ancestor = FDesigner.AncestorOf(*each.Object);
    each.Property->Set(*each.Object, ancestor ? InheritedValue(each, *ancestor, FDesigner)
                                              : *each.Property->DefaultValue);
  });
}

bool TPropertyEditor::ReadOnly() const {
  // An event has no setter and can be given handlers all the same.
  return Offers(paReadOnly) || (PropInfo().ReadOnly() && !PropInfo().IsEvent());
}

TValue TPropertyEditor::Value(int index) const {
  const TEditedProperty& edited = FEdited.at(static_cast<std::size_t>(index));
  return edited.Property->Get(*edited.Object);
}

void TPropertyEditor::SetAll(const TValue& value) {
  ChangeAll(&KeepValue,
            [&](const TEditedProperty& edited) { edited.Property->Set(*edited.Object, value); });
}

std::function<void()> TPropertyEditor::KeepValue(const TEditedProperty& edited) {
  return [edited, former = edited.Property->Get(*edited.Object)] {
    edited.Property->Set(*edited.Object, former);
  };
}

void TPropertyEditor::ChangeAll(const TKeep& keep, const TChange& change) {
  TChanges changes;
  for (const TEditedProperty& edited : FEdited) {
    changes.Add(keep(edited));
    change(edited);
  }
  changes.Keep();
  Modified();
}

}  // namespace vcl
