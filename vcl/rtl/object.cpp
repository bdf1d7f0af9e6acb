// TObject and TClass: the run-time class, and what of its table descendants inherit and redeclare.
#include "vcl/rtl/object.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

template <class Info>
const Info* FindIn(const std::vector<Info>& infos, std::string_view name) {
  const auto found =
      std::ranges::find_if(infos, [&](const Info& info) { return SameText(info.Name, name); });
  return found == infos.end() ? nullptr : &*found;
}

/// The line that a descendant gets of an ancestor's property, with what the descendant redeclares.
TPropInfo Redeclared(const TPropInfo& inherited, TClassEntry& entry) {
  TPropInfo info = inherited;
  if (entry.FNoDefault) info.DefaultValue.reset();
  if (entry.Prop.DefaultValue) info.DefaultValue = entry.Prop.DefaultValue;
  if (entry.Prop.AskDefault) info.AskDefault = entry.Prop.AskDefault;
  if (!entry.Prop.Alias.empty()) info.Alias = entry.Prop.Alias;
  if (entry.FStored) {
    info.Stored = *entry.FStored;
    info.AskStored = entry.Prop.AskStored;
  }
  return info;
}

/// A whole number may be declared as a float's default; any other value of a wrong sort is a
/// mistake.
void CheckDefault(const std::string& className, TPropInfo& prop) {
  if (!prop.DefaultValue) return;
  const auto* whole = std::get_if<std::int64_t>(&*prop.DefaultValue);
  if (whole && prop.Kind() == TTypeKind::Float) prop.DefaultValue = static_cast<double>(*whole);
  if (prop.DefaultValue->index() == prop.ValueIndex()) return;
  throw EPropertyError(Concat("The default of ", className, ".", prop.Name,
                              " is no value of its type: ", prop.TypeName()));
}

}  // namespace

const TClass& TObject::Class() {
  static const TClass info("TObject", "object", nullptr, {}, {});
  return info;
}

const std::string& TObject::ClassName() const { return ClassType().Name(); }

bool TObject::InheritsFrom(const TClass& ancestor) const {
  return ClassType().InheritsFrom(ancestor);
}

TClass::TClass(std::string name, std::string unit, const TClass* parent, TMaker maker,
               std::vector<TClassEntry> entries)
    : FName(std::move(name)), FUnit(std::move(unit)), FParent(parent), FMaker(maker) {
  for (TClassEntry& entry : entries) Add(std::move(entry));
}

TClass::TClass(TClass&&) noexcept = default;
TClass::~TClass() = default;

void TClass::Add(TClassEntry entry) {
  using Sort = TClassEntry::TSort;
  if (entry.Sort == Sort::Field) return FFields.push_back(std::move(entry.Field));
  if (entry.Sort == Sort::Method) return FMethods.push_back(std::move(entry.Method));
  for (const char* name : entry.Group) Add(Inherit(std::string(name)));
  if (!entry.Group.empty()) return;
  if (entry.Sort == Sort::Inherit) {
    const TPropInfo* inherited = FParent ? FParent->FindDescribed(entry.Prop.Name) : nullptr;
    if (!inherited) {
      throw EPropertyError(
          Concat(FName, " publishes ", entry.Prop.Name, ", which no ancestor describes"));
    }
    entry.Prop = Redeclared(*inherited, entry);
  } else if (entry.FStored) {
    entry.Prop.Stored = *entry.FStored;
  }
  CheckDefault(FName, entry.Prop);
  (entry.FUnpublished ? FUnpublished : FPublished).push_back(std::move(entry.Prop));
}

bool TClass::InheritsFrom(const TClass& ancestor) const {
  const TClass* each = this;
  while (each && each != &ancestor) each = each->Parent();
  return each != nullptr;
}

std::vector<const TPropInfo*> TClass::Published() const {
  std::vector<const TPropInfo*> all =
      FParent ? FParent->Published() : std::vector<const TPropInfo*>{};
  for (const TPropInfo& own : FPublished) {
    const auto same = std::ranges::find_if(
        all, [&](const TPropInfo* info) { return SameText(info->Name, own.Name); });
    if (same == all.end()) {
      all.push_back(&own);
    } else {
      *same = &own;
    }
  }
  return all;
}

const TPropInfo* TClass::FindPublished(std::string_view name) const {
  if (const TPropInfo* own = FindIn(FPublished, name)) return own;
  return FParent ? FParent->FindPublished(name) : nullptr;
}

const TPropInfo* TClass::FindDescribed(std::string_view name) const {
  if (const TPropInfo* own = FindIn(FPublished, name)) return own;
  if (const TPropInfo* own = FindIn(FUnpublished, name)) return own;
  return FParent ? FParent->FindDescribed(name) : nullptr;
}

const TFieldInfo* TClass::FindField(std::string_view name) const {
  if (const TFieldInfo* own = FindIn(FFields, name)) return own;
  return FParent ? FParent->FindField(name) : nullptr;
}

const TClass* TClass::FindFieldClass(std::string_view name) const {
  for (const TFieldInfo& field : FFields) {
    if (SameText(field.ClassOf().Name(), name)) return &field.ClassOf();
  }
  return FParent ? FParent->FindFieldClass(name) : nullptr;
}

const TMethodInfo* TClass::FindMethod(std::string_view name) const {
  if (const TMethodInfo* own = FindIn(FMethods, name)) return own;
  return FParent ? FParent->FindMethod(name) : nullptr;
}

}  // namespace vcl
