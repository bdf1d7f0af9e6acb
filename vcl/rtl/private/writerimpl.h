// The insides of TWriter.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/private/formoutput.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/writer.h"

namespace vcl {

struct TWriter::TImpl {
  TImpl(TWriter& self, TStream& stream) : Self(self), Stream(stream) {}

  /// Lets `write` write, and passes it on to the stream when the outermost call is done.
  template <class Write>
  void Change(const Write& write);
  void WriteComponent(TComponent* component);

  // Properties (writer_properties.cpp).
  void WriteAllProperties(TPersistent& object, const TKeptData* kept);
  void WriteProperties(TPersistent& object);
  void WriteProperty(TPersistent& object, const TPropInfo& prop);
  void WriteEvent(TPersistent& object, const TPropInfo& prop);
  void WriteObject(TPersistent& object, const TPropInfo& prop);
  void WriteInner(TPersistent& inner, const std::string& name);
  void WriteReference(const TComponent& component, const TPropInfo& prop);
  void WriteCollection(TCollection& collection);
  void WriteValue(const TPropInfo& prop, const TValue& value);
  void WriteOrdinal(const TPropInfo& prop, std::int64_t value);
  void WriteSet(const TPropInfo& prop, std::int64_t bits);
  std::string EnumName(const TPropInfo& prop, std::int64_t value) const;
  void WriteName(const std::string& name);
  void WriteKept(const std::string& after);
  void WriteKeptReference(const std::string& name);
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
  /// The names of the properties that lead to the object being written, a dot behind each.
  std::string Prefix;
  /// What is kept of the object being written (keptdata.h) and waits for its place, and the
  /// property that was written last.
  std::vector<const TKeptProperty*> KeptLeft;
  std::string Last;
};

}  // namespace vcl
