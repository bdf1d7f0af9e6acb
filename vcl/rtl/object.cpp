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
TPropInfo Redeclared(const TPropInfo& inherited, const TClassEntry& entry) {
  TPropInfo info = inherited;
  if (entry.WithoutDefault) info.DefaultValue.reset();
  if (entry.AskDefault) info.AskDefault = entry.AskDefault;
  if (!entry.Alias.empty()) info.Alias = entry.Alias;
  if (!entry.Parameters.empty()) info.Parameters = entry.Parameters;
  return info;
}

TPropInfo Declared(const TClassEntry& entry) {
  TPropInfo info;
  info.Name = entry.Name;
  info.Type = &entry.TypeOf();
  info.Alias = entry.Alias;
  info.Parameters = entry.Parameters;
  info.Getter = entry.Getter;
  info.Setter = entry.Setter;
  info.EventOf = entry.EventOf;
  info.Signature = entry.Signature;
  info.AskDefault = entry.AskDefault;
  return info;
}

/// The declared default as a value; a float may be declared by a whole number.
TValue DefaultOf(const TDeclaredDefault& declared, bool isFloat) {
  using TKind = TDeclaredDefault::TKind;
  if (declared.Kind == TKind::Text) return std::string(declared.Text);
  if (declared.Kind == TKind::Float) return declared.Float;
  if (isFloat) return static_cast<double>(declared.Ordinal);
  return declared.Ordinal;
}

std::string UnitOf(std::string_view header) {
  header.remove_prefix(header.rfind('/') + 1);
  return std::string(header.substr(0, header.rfind('.')));
}

}  // namespace

const TClass& TObject::Class() {
  static const TClass info("vcl::TObject", "vcl/rtl/object.h", typeid(TObject), nullptr, {},
                           nullptr, 0);
  return info;
}

const std::string& TObject::ClassName() const { return ClassType().Name(); }

bool TObject::InheritsFrom(const TClass& ancestor) const {
  return ClassType().InheritsFrom(ancestor);
}

TClass::TClass(std::string_view name, std::string_view header, const std::type_info& type,
               const TClass* parent, TMaker maker, const TClassEntry* entries, std::size_t count)
    : FName(name.substr(name.rfind(':') + 1)),
      FUnit(UnitOf(header)),
      FHeader(header),
      FCppName(name),
      FType(&type),
      FParent(parent),
      FMaker(maker) {
  for (std::size_t i = 0; i < count; ++i) Add(entries[i]);
  for (const TFieldInfo& field : FFields) {
    const TPropInfo* hidden = FindPublished(field.Name);
    if (!hidden) continue;
    throw EPropertyError(
        Concat("The field ", field.Name, " of ", FCppName, " hides its property ", hidden->Name));
  }
}

TClass::TClass(TClass&&) noexcept = default;
TClass::~TClass() = default;

void TClass::Add(const TClassEntry& entry) {
  switch (entry.Sort) {
    case TClassEntry::TSort::Field:
      return FFields.push_back({entry.Name, entry.FieldClass, entry.AssignField});
    case TClassEntry::TSort::Method:
      return FMethods.push_back({entry.Name, entry.Signature, entry.BindMethod});
    case TClassEntry::TSort::Inherit:
      if (!entry.Group) return AddProperty(Redeclared(InheritedOf(entry.Name), entry), entry);
      for (std::size_t i = 0; i < entry.GroupSize; ++i) Add(Inherit(entry.Group[i]));
      return;
    case TClassEntry::TSort::Property: return AddProperty(Declared(entry), entry);
  }
}

const TPropInfo& TClass::InheritedOf(std::string_view name) const {
  const TPropInfo* inherited = FParent ? FParent->FindDescribed(name) : nullptr;
  if (inherited) return *inherited;
  throw EPropertyError(Concat(FName, " publishes ", name, ", which no ancestor describes"));
}

void TClass::AddProperty(TPropInfo prop, const TClassEntry& entry) {
  if (entry.DefaultValue.Kind != TDeclaredDefault::TKind::None) {
    prop.DefaultValue = DefaultOf(entry.DefaultValue, prop.Kind() == TTypeKind::Float);
    if (prop.DefaultValue->index() != prop.ValueIndex()) {
      throw EPropertyError(Concat("The default of ", FName, ".", prop.Name,
                                  " is no value of its type: ", prop.TypeName()));
    }
  }
  if (entry.StoredAs) {
    prop.Stored = *entry.StoredAs;
    prop.AskStored = entry.AskStored;
  }
  (entry.OnlyDescribed ? FUnpublished : FPublished).push_back(std::move(prop));
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
