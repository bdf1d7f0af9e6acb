// The insides of TReader.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/private/forminput.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/reader.h"

namespace vcl {

/// A component that takes part in a reading.
struct TReaderPart {
  TReaderPart(TComponent* component, bool made)
      : Component(component), Made(made), Watch(component) {}
  TComponent* Component;
  bool Made;
  TWatch Watch;
};

/// One step from a component to an object inside it: a property's object, an item of a collection,
/// or an object that is known by its address only.
struct TReaderStep {
  const TPropInfo* Prop = nullptr;
  int Item = -1;
  TObject* Object = nullptr;
};

/// A reference that waits for the root to be complete. Its holder is kept as the way to it, because
/// what is read later may put another object in its place.
struct TReaderFixup {
  TReaderPart* Part;
  std::vector<TReaderStep> Steps;
  const TPropInfo* Prop;
  std::string Target;
  std::string Context;
  std::size_t At;
  std::string After;
};

struct TReader::TImpl {
  TImpl(TReader& self, TStream& stream) : Self(self), Input(stream) {}

  // Whole files (reader.cpp).
  TComponent* ReadRoot(TComponent* root, bool toTheEnd);
  void ReadAll(TComponent* owner, TComponent* parent, std::vector<TComponent*>& outermost);
  /// Calls `read`; when it raises, undoes everything that it did.
  template <class Read>
  void AllOrNothing(const Read& read);
  void Undo();
  void Forget();
  void CallLoaded();

  // Components (reader_components.cpp).
  TComponent* ReadComponent();
  TComponent* Make(const TFormHeading& heading, TComponent* owner);
  TComponent* Existing(const TFormHeading& heading);
  TComponent* MakeFrame(const TFormHeading& heading, TComponent* owner);
  void Reparent(TComponent* component);
  void Enter(TComponent* component, bool made);
  void NameRoot(TComponent* root, const std::string& name);
  void Place(TComponent* component, const TFormHeading& heading);
  void PlaceOnRoot(TComponent* component);
  void FillField(TComponent* component, const std::string& name);
  void ReadBody(TComponent* component);
  void ReadChildren(TComponent* component);

  // Keeping what can't be used (reader_kept.cpp).
  static TKeptData* KeptOf(TObject* object);
  bool KeepProperty(TObject& object, const std::string& name, std::size_t value,
                    const std::string& after, const std::string& error);
  bool KeepReference(const TReaderFixup& fixup, const std::string& error);
  bool HasWidth();
  TComponent* MakeOrStandIn(const TFormHeading& heading, TComponent* owner);
  void SkipComponent(TKeptData& kept);
  void KeepChildren(TKeptData& kept);
  bool KeepInside(TComponent* standIn, std::size_t whole);
  bool KeepLost(const TFormHeading& heading, std::size_t whole);

  // References (reader_references.cpp).
  void ResolveReferences(bool required);
  TObject* Holder(const TReaderFixup& fixup) const;
  TComponent* Find(std::string_view path) const;
  TComponent* FindFirst(std::string_view name) const;

  // Properties (reader_properties.cpp).
  void ReadProperties(TPersistent& object);
  void ReadProperty(TPersistent& object, std::string& after);
  void ReadPath(TPersistent& object, const std::string& path);
  TObject* StepInto(TObject* object, std::string_view name);
  void ReadInto(TObject& object, const std::string& name);
  void ReadDefined(TObject& object, const std::string& name);
  void ReadEvent(TEventBase& event, const TPropInfo& prop);
  void ReadObject(TObject& object, const TPropInfo& prop);
  void ReadOwnCollection(TCollection& collection);
  void ReadCollection(TCollection& collection);
  void ReadItem(TCollection& collection);
  TValue ReadValue(const TPropInfo& prop);
  std::int64_t ReadOrdinal(const TPropInfo& prop);
  std::int64_t ReadSet(const TPropInfo& prop);
  std::int64_t Ordinal(const TPropInfo& prop, const std::string& ident);
  /// Calls `read`, and gives what it raises the place `at`.
  template <class Read>
  void Placed(std::size_t at, const Read& read);
  /// Calls the reader's half of a defined property, which must read exactly its value.
  template <class Read>
  void Define(const std::string& name, bool wanted, const Read& read);

  TReader& Self;
  TFormInput Input;
  TReaderKeeper* Keeper = nullptr;
  TComponent* Root = nullptr;
  /// Whose components are being read: the root, or the frame inside it.
  TComponent* Scope = nullptr;
  TComponent* Owner = nullptr;
  TComponent* Parent = nullptr;
  std::string RootClassName;
  /// The root's name in the file, and the one that it had.
  std::string RootName;
  std::string OldName;
  /// Pasted components may take other names than the file gives.
  bool Pasting = false;
  std::deque<TReaderPart> Parts;
  /// The root's components by their names in the file, in capitals.
  std::map<std::string, TReaderPart*, std::less<>> Named;
  std::vector<const TFieldInfo*> Fields;
  std::vector<TReaderFixup> Fixups;
  /// What is being read: a component and the way from it.
  TReaderPart* Part = nullptr;
  std::vector<TReaderStep> Steps;
  /// The defined property that is looked for; null when it has been found.
  const std::string* Defined = nullptr;
  /// The property in front of the one that is read.
  std::string After;
};

template <class Read>
void TReader::TImpl::Placed(std::size_t at, const Read& read) {
  try {
    read();
  } catch (const EPlacedReadError&) {
    throw;
  } catch (const EClassNotFound&) {
    throw;
  } catch (const EAbort&) {
    throw;
  } catch (const Exception& error) {
    Input.FailAt(at, error.what());
  }
}

}  // namespace vcl
