// The editors of values that are no objects.
#include "vcl/designintf/standardeditors.h"

#include <iterator>

#include "vcl/graphics/private/fontnames.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr TPropertyAttributes ListAttributes{paMultiSelect, paValueList, paRevertable};

void ListEnum(const TTypeInfo& type, const std::function<void(const std::string&)>& each) {
  for (std::int64_t ordinal = type.Min; ordinal <= type.Max; ++ordinal) {
    if (const auto name = type.EnumName(ordinal)) each(std::string(*name));
  }
}

}  // namespace

// Integers.

TPropertyAttributes TIntegerProperty::GetAttributes() const {
  return PropInfo().Type->Integer.GetIdents ? ListAttributes : TOrdinalProperty::GetAttributes();
}

void TIntegerProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  if (const auto names = PropInfo().Type->Integer.GetIdents) names(each);
}

// Enumerations.

TPropertyAttributes TEnumProperty::GetAttributes() const {
  return ListAttributes + TPropertyAttributes{paSortList};
}

void TEnumProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  ListEnum(*PropInfo().Type, each);
}

// Texts.

TPropertyAttributes TCaptionProperty::GetAttributes() const {
  return TStringProperty::GetAttributes() + TPropertyAttributes{paAutoUpdate};
}

void TComponentNameProperty::SetValue(const std::string& text) {
  if (text.empty()) throw EComponentError("A component on a form needs a name");
  for (const TEditedProperty& each : Edited()) {
    const auto& component = dynamic_cast<const TComponent&>(*each.Object);
    const std::string problem = Designer().NameProblem(component, text);
    if (!problem.empty()) throw EComponentError(problem);
  }
  TStringProperty::SetValue(text);
}

TPropertyAttributes TFontNameProperty::GetAttributes() const {
  return ListAttributes + TPropertyAttributes{paSortList};
}

void TFontNameProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  for (const std::string& name : FontNames()) each(name);
}

// Sets.

TPropertyAttributes TSetProperty::GetAttributes() const {
  return {paMultiSelect, paSubProperties, paRevertable};
}

TPropertyEditors TSetProperty::GetProperties() const {
  TPropertyEditors elements;
  for (int i = 0; PropInfo().Type->EnumName(i); ++i) {
    elements.push_back(std::make_unique<TSetElementProperty>(Designer(), Edited(), i));
  }
  return elements;
}

TSetElementProperty::TSetElementProperty(TDesigner& designer, TEditedProperties edited, int element)
    : TPropertyEditor(designer, std::move(edited)), FElement(element) {}

TPropertyAttributes TSetElementProperty::GetAttributes() const { return ListAttributes; }

std::string TSetElementProperty::GetName() const {
  return std::string(PropInfo().Type->EnumName(FElement).value());
}

std::string TSetElementProperty::GetValue() const {
  return ValueToText(TypeInfoOf<bool>(), std::int64_t{Has(Value())});
}

void TSetElementProperty::SetValue(const std::string& text) {
  const bool included = std::get<std::int64_t>(TextToValue(TypeInfoOf<bool>(), text)) != 0;
  Put([included](const TPropInfo&) { return included; });
}

void TSetElementProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  ListEnum(TypeInfoOf<bool>(), each);
}

bool TSetElementProperty::AllEqual() const {
  for (int i = 1; i < PropCount(); ++i) {
    if (Has(Value(i)) != Has(Value())) return false;
  }
  return true;
}

bool TSetElementProperty::IsDefault() const {
  for (int i = 0; i < PropCount(); ++i) {
    const auto& standard = Edited()[static_cast<std::size_t>(i)].Property->DefaultValue;
    if (standard ? Has(Value(i)) != Has(*standard) : !TPropertyEditor::IsDefault()) return false;
  }
  return true;
}

void TSetElementProperty::Revert() {
  if (!CanRevert()) return TPropertyEditor::Revert();
  Put([this](const TPropInfo& property) { return Has(*property.DefaultValue); });
}

bool TSetElementProperty::Has(const TValue& set) const {
  return std::get<std::int64_t>(set) >> FElement & 1;
}

// The other elements of each object's set stay as they are, so the sets may differ.
void TSetElementProperty::Put(const std::function<bool(const TPropInfo&)>& included) {
  ChangeAll(&KeepValue, [&](const TEditedProperty& edited) {
    const std::int64_t bit = std::int64_t{1} << FElement;
    const std::int64_t set = std::get<std::int64_t>(edited.Property->Get(*edited.Object));
    edited.Property->Set(*edited.Object, included(*edited.Property) ? set | bit : set & ~bit);
  });
}

// Shortcuts.

namespace {

constexpr const char* NoShortCut = "(None)";

/// Keys as menus use them, with the modifiers that go with them.
constexpr struct {
  TShortCut Modifiers;
  std::uint16_t First;
  std::uint16_t Last;
} OfferedKeys[] = {
    {scCtrl, 'A', 'Z'},
    {scCtrl | scAlt, 'A', 'Z'},
    {scNone, VK_F1, VK_F12},
    {scCtrl, VK_F1, VK_F12},
    {scShift, VK_F1, VK_F12},
    {scShift | scCtrl, VK_F1, VK_F12},
    {scNone, VK_INSERT, VK_DELETE},
    {scCtrl, VK_INSERT, VK_DELETE},
    {scShift, VK_INSERT, VK_DELETE},
};

}  // namespace

TPropertyAttributes TShortCutProperty::GetAttributes() const { return ListAttributes; }

std::string TShortCutProperty::GetValue() const {
  const auto shortCut = static_cast<TShortCut>(std::get<std::int64_t>(Value()));
  return shortCut == scNone ? NoShortCut : ShortCutToText(shortCut);
}

void TShortCutProperty::SetValue(const std::string& text) {
  const bool none = Trim(text).empty() || SameText(Trim(text), NoShortCut);
  const TShortCut shortCut = none ? scNone : TextToShortCut(text);
  if (!none && shortCut == scNone) {
    throw EConvertError(Concat("'", Shown(text), "' is not a shortcut"));
  }
  SetAll(std::int64_t{shortCut});
}

void TShortCutProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  each(NoShortCut);
  for (const auto& [modifiers, first, last] : OfferedKeys) {
    for (unsigned key = first; key <= last; ++key) {
      each(ShortCutToText(modifiers | static_cast<TShortCut>(key)));
    }
  }
}

}  // namespace vcl
