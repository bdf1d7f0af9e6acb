// TObject, the root of every class that has a name at run time, and TClass, that run-time class:
// its name, its ancestor and its published properties.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "vcl/rtl/api.h"

namespace vcl {

class TClass;
class TCollection;
class TComponent;
class TPropInfo;
struct TFieldInfo;
struct TMethodInfo;
class TClassEntry;

/// Root of the class library. A class with a table of its own declares both
///
///     static const TClass& Class();
///     const TClass& ClassType() const override { return Class(); }
class VCL_API TObject {
 public:
  TObject() = default;
  TObject(const TObject&) = delete;
  TObject& operator=(const TObject&) = delete;
  virtual ~TObject() = default;

  static const TClass& Class();
  /// The class that this object is an instance of.
  virtual const TClass& ClassType() const { return Class(); }
  const std::string& ClassName() const;
  /// True when the object's class is `ancestor` or descends from it.
  bool InheritsFrom(const TClass& ancestor) const;
};

/// How instances of a class are made; a class that cannot be made by name has none of them.
struct TMaker {
  TComponent* (*Component)(TComponent* owner) = nullptr;
  TObject* (*Item)(TCollection* collection) = nullptr;
  TObject* (*Plain)() = nullptr;
};

/// A class at run time. Instances are made once by `Describe` (properties.h) and live for ever.
class VCL_API TClass {
 public:
  TClass(std::string_view name, std::string_view header, const std::type_info& type,
         const TClass* parent, TMaker maker, const TClassEntry* entries, std::size_t count);
  TClass(TClass&&) noexcept;
  ~TClass();

  const std::string& Name() const { return FName; }
  /// The unit that declares the class: the header's name without folders and ending.
  const std::string& Unit() const { return FUnit; }
  /// What code includes for the class.
  const std::string& Header() const { return FHeader; }
  /// The name in C++, with its namespaces.
  const std::string& CppName() const { return FCppName; }
  /// The class itself, as C++ knows it.
  const std::type_info& CppType() const { return *FType; }
  /// The class that it descends from; null for TObject.
  const TClass* Parent() const { return FParent; }
  bool InheritsFrom(const TClass& ancestor) const;
  const TMaker& Maker() const { return FMaker; }

  /// What this class itself publishes, in declared order.
  const std::vector<TPropInfo>& Own() const { return FPublished; }
  /// Everything published by this class and its ancestors, ancestors first, each name once, with
  /// the entry of the narrowest class that publishes it.
  std::vector<const TPropInfo*> Published() const;
  /// The published property of that name (compared without case); null when there is none.
  const TPropInfo* FindPublished(std::string_view name) const;
  /// Like FindPublished, but also finds what is only described for descendants to publish.
  const TPropInfo* FindDescribed(std::string_view name) const;
  /// The field or handler that a form class lists under that name; null when there is none.
  const TFieldInfo* FindField(std::string_view name) const;
  const TMethodInfo* FindMethod(std::string_view name) const;
  /// What this class itself lists as its components, in declared order.
  const std::vector<TFieldInfo>& OwnFields() const { return FFields; }
  /// The class of that name that one of the listed fields is of; null when there is none.
  const TClass* FindFieldClass(std::string_view name) const;

 private:
  void Add(const TClassEntry& entry);
  const TPropInfo& InheritedOf(std::string_view name) const;
  void AddProperty(TPropInfo prop, const TClassEntry& entry);

  std::string FName;
  std::string FUnit;
  std::string FHeader;
  std::string FCppName;
  const std::type_info* FType;
  const TClass* FParent;
  TMaker FMaker;
  std::vector<TPropInfo> FPublished;
  std::vector<TPropInfo> FUnpublished;
  std::vector<TFieldInfo> FFields;
  std::vector<TMethodInfo> FMethods;
};

}  // namespace vcl
