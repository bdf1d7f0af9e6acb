// The insides of TWriter.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/private/formoutput.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/writer.h"

namespace vcl {

struct TWriter::TImpl {
  TImpl(TWriter& self, TStream& stream) : Self(self), Stream(stream) {}

  /// Lets `write` write, and passes it on to the stream when the outermost call is done.
  template <class Write>
  void Change(const Write& write);
  /// `inPlace` says that an ancestor has the component at the same place already.
  void WriteComponent(TComponent* component, std::optional<int> position = {},
                      bool inPlace = false);
  void WriteChildren(TComponent& component);

  // What a component descends from (writer_ancestor.cpp).
  TComponent* AncestorOf(const TComponent& component) const;
  std::unique_ptr<TComponent> MakePristine(const TComponent& frame) const;
  std::vector<std::string> OrderOf(TComponent& ancestor, const std::vector<TComponent*>& children);
  bool Differs(const TPersistent& object, const TPropInfo& prop, const TPersistent* ancestor) const;
  std::string ComparedReference(const TComponent& component) const;
  void WriteDefined(TPersistent& object, TPersistent* ancestor);
  /// What `write` writes, with references as they compare with those of the ancestor, or as the
  /// ancestor's own compare.
  template <class Write>
  std::string Compared(bool ofAncestor, const Write& write);
  /// Writes a property that the object defines itself.
  template <class Write>
  void Define(const std::string& name, bool hasData, const Write& write);

  // Properties (writer_properties.cpp).
  void WriteAllProperties(TPersistent& object, const TKeptData* kept,
                          TPersistent* ancestor = nullptr, const TKeptData* keptBefore = nullptr);
  void WriteProperties(TPersistent& object, TPersistent* ancestor);
  void WriteProperty(TPersistent& object, const TPropInfo& prop, TPersistent* ancestor);
  void WriteEvent(TPersistent& object, const TPropInfo& prop, TPersistent* ancestor);
  void WriteObject(TPersistent& object, const TPropInfo& prop, TPersistent* ancestor);
  void WriteOwnCollection(TCollection& collection, const TPropInfo& prop, TPersistent* before);
  void WriteInner(TPersistent& inner, const std::string& name, TPersistent* before);
  void WriteNothing(const TPropInfo& prop, const TPersistent* before);
  void WriteReference(const TComponent& component, const TPropInfo& prop,
                      const TPersistent* before);
  void WriteCollection(TCollection& collection);
  void WriteValue(const TPropInfo& prop, const TValue& value);
  void WriteOrdinal(const TPropInfo& prop, std::int64_t value);
  void WriteSet(const TPropInfo& prop, std::int64_t bits);
  std::string EnumName(const TPropInfo& prop, std::int64_t value) const;
  void WriteName(const std::string& name);
  void WriteKept(const std::string& after);
  bool WriteKeptReference(const std::string& name);
  std::string ReferenceTo(const TComponent& component) const;

  /// Counts how deep things stand in each other while it lives, and refuses too many.
  class TDepth {
   public:
    explicit TDepth(TImpl& impl);
    ~TDepth() { --FImpl.Depth; }
    TDepth(const TDepth&) = delete;
    TDepth& operator=(const TDepth&) = delete;

   private:
    TImpl& FImpl;
  };

  TWriter& Self;
  TStream& Stream;
  TFormOutput Output;
  bool Busy = false;
  int Depth = 0;
  TComponent* Root = nullptr;
  std::string RootClassName;
  TFormAncestry Ancestry;
  /// Whose components are being written: the root, or the frame inside it; and what it descends
  /// from, with that one's root.
  TComponent* Scope = nullptr;
  TComponent* AncestorScope = nullptr;
  TComponent* AncestorRoot = nullptr;
  /// What the component being written descends from; null for nothing.
  TComponent* Ancestor = nullptr;
  /// While values are compared, the scope and the root that references are told from.
  TComponent* ComparedScope = nullptr;
  TComponent* ComparedRoot = nullptr;
  /// The values that the ancestor defines itself, by name: being collected, or to compare with.
  using TDefined = std::map<std::string, std::string>;
  TDefined* Collected = nullptr;
  const TDefined* Inherited = nullptr;
  /// The names of the properties that lead to the object being written, a dot behind each.
  std::string Prefix;
  /// What is kept of the object being written (keptdata.h) and waits for its place, and the
  /// property that was written last.
  std::vector<const TKeptProperty*> KeptLeft;
  std::string Last;
};

template <class Write>
std::string TWriter::TImpl::Compared(bool ofAncestor, const Write& write) {
  const TSetFor scope(ComparedScope, ofAncestor ? AncestorScope : Scope);
  const TSetFor root(ComparedRoot, ofAncestor ? AncestorRoot : Root);
  const TSetFor aside(Output, TFormOutput());
  const TSetFor prefix(Prefix, std::string());
  write();
  return Output.Bytes();
}

template <class Write>
void TWriter::TImpl::Define(const std::string& name, bool hasData, const Write& write) {
  if (Collected) {
    if (hasData) (*Collected)[name] = Compared(true, write);
    return;
  }
  const auto before = Inherited ? Inherited->find(name) : TDefined::const_iterator();
  const bool inherits = Inherited && before != Inherited->end();
  if (!inherits && !hasData) return;
  if (inherits && Compared(false, write) == before->second) return;
  WriteName(name);
  // What the object writes now is no longer inside the properties that lead to it.
  const TSetFor prefix(Prefix, std::string());
  write();
}

}  // namespace vcl
