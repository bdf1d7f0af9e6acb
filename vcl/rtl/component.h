// TComponent: named, owned objects that a form file holds and a designer shows.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "vcl/rtl/keptdata.h"
#include "vcl/rtl/persistent.h"
#include "vcl/rtl/typeinfo.h"
#include "vcl/rtl/watch.h"

namespace vcl {

enum class TOperation { opInsert, opRemove };
using TOperation::opInsert;
using TOperation::opRemove;

enum TComponentStateValue {
  csLoading,         ///< Being read from a form file; Loaded has not been called.
  csReading,         ///< A property is being read.
  csWriting,         ///< Being written to a form file.
  csDestroying,      ///< Being destroyed.
  csDesigning,       ///< On a form in the designer.
  csDesignInstance,  ///< The root of what the designer edits.
  csInline,          ///< Has a form file of its own: its components are the component's own.
};
using TComponentState = TSet<TComponentStateValue>;

/// A component: it has a name, unique among its owner's; it owns other components, which it frees;
/// and it hears when a component that it links to is freed. Whatever else calls it can watch it
/// (TWatch).
///
/// A class that others link to calls `AnnounceEnd` first thing in its destructor, while it is
/// whole.
class VCL_API TComponent : public TPersistent, public TWatched {
 public:
  /// Joins the owner's components, at the end; null for a component that the caller frees.
  explicit TComponent(TComponent* owner);
  /// Tells all that asked (`FreeNotification`) and the owner's other components, frees the
  /// components that it owns, last one first, and leaves its owner.
  ~TComponent() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The component's name, by which code and form files know it; unique among its owner's.
  const std::string& Name() const { return FName; }
  /// Raises EComponentError for a text that is no identifier or a name that another component of
  /// the owner has, compared without case. An empty name is allowed and may stand many times.
  virtual void SetName(const std::string& name);
  TComponent* Owner() const { return FOwner; }
  std::intptr_t Tag() const { return FTag; }
  /// A number that is the application's own to use.
  void SetTag(std::intptr_t tag) { FTag = tag; }

  int ComponentCount() const { return static_cast<int>(FComponents.size()); }
  /// The component at the index from 0. Raises EListError outside.
  TComponent* Components(int index) const;
  /// The place among the owner's components; -1 without an owner.
  int ComponentIndex() const;
  void SetComponentIndex(int index);
  /// The owned component of that name, compared without case; null when there is none.
  TComponent* FindComponent(std::string_view name) const;
  void InsertComponent(TComponent* component);
  void RemoveComponent(TComponent* component);
  /// Frees all owned components.
  void DestroyComponents();

  TComponentState ComponentState() const { return FState; }
  bool Designing() const { return FState.Has(csDesigning); }
  bool Loading() const { return FState.Has(csLoading); }
  bool Destroying() const { return FState.Has(csDestroying); }
  /// True for a frame: what stands on it belongs to it and is named inside it, and the form file
  /// that shows it holds only what differs from its own.
  bool Inline() const { return FState.Has(csInline); }
  /// Puts the component and all that it owns into the designing state, or takes them out of it.
  void SetDesigning(bool designing);

  /// Where a designer shows a component that is not a control, in pixels.
  int DesignLeft() const { return FDesignLeft; }
  int DesignTop() const { return FDesignTop; }
  /// What lies outside 16 bits is taken as the nearest that does not.
  void SetDesignPosition(int left, int top);

  /// What a designer keeps of the component's form file beside what the component knows; null for
  /// nothing.
  const TKeptData* Kept() const { return FKept.get(); }
  TKeptData& Keep();
  /// The class that form files give the component: its own, or the one that it stands in for.
  const std::string& FileClassName() const;

  /// Asks that `component` be told (`Notification`, opRemove) when this one is freed, wherever the
  /// two belong. Asking twice is asking once.
  void FreeNotification(TComponent* component);
  void RemoveFreeNotification(TComponent* component);

  /// The component that a form file shows it inside; null when that is not another than the root.
  virtual TComponent* GetParentComponent() const { return nullptr; }
  virtual bool HasParent() const { return false; }
  /// Puts the component into the parent that a form file gives.
  virtual void SetParentComponent(TComponent* /*parent*/) {}
  /// Calls `each` for the components that a form file shows inside this one; `root` is the
  /// component that the file is about.
  virtual void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root);
  /// The owner and the parent of components that a form file shows inside this one; null for the
  /// file's own root.
  virtual TComponent* GetChildOwner() { return nullptr; }
  virtual TComponent* GetChildParent() { return this; }
  /// Puts a component that a form file shows inside this one at a place among its siblings, from 0.
  virtual void SetChildOrder(TComponent* /*child*/, int /*order*/) {}

 protected:
  /// A component is being added to or freed from this one, its owner, or one it asked about.
  /// Overriders call the inherited method first.
  virtual void Notification(TComponent* component, TOperation operation);
  /// For the end of a constructor: Notification of this very class is about nothing but components
  /// that it has asked about (FreeNotification), so that its owner, which may have thousands, need
  /// not tell it of each that comes or is freed. A class derived from it hears of all, unless its
  /// own constructor says the same.
  template <class Self>
  void HearOnlyAsked() {
    FAskingClass = &typeid(Self);
  }
  /// The form file that holds the component has been read completely.
  virtual void Loaded();
  /// Called for each part of the component's form file as it is read resp. written.
  virtual void ReadState(TReader& reader);
  virtual void WriteState(TWriter& writer);
  void DefineProperties(TFiler& filer) override;
  /// Refuses (EComponentError) what `SetName` must refuse.
  virtual void ValidateRename(TComponent* component, const std::string& oldName,
                              const std::string& newName);
  /// Sends the news of this component's end, once; see the class's comment.
  void AnnounceEnd();
  void Include(TComponentStateValue state) { FState.Include(state); }
  void Exclude(TComponentStateValue state) { FState.Exclude(state); }

 private:
  friend class TReader;
  friend class TWriter;
  struct TNames;
  void MarkDestroying();
  bool HearsOnlyAsked() const;
  void PutName(const std::string& name);
  void DefinePosition(TFiler& filer, const char* name, std::int16_t& coordinate);

  TComponent* FOwner = nullptr;
  std::string FName;
  std::intptr_t FTag = 0;
  std::vector<TComponent*> FComponents;
  const std::type_info* FAskingClass = nullptr;  // See HearOnlyAsked.
  mutable std::unique_ptr<TNames> FNames;  // Made when many components are looked for by name.
  std::vector<TComponent*> FFreeNotifies;
  TComponentState FState;
  bool FEndAnnounced = false;
  std::int16_t FDesignLeft = 0;
  std::int16_t FDesignTop = 0;
  std::unique_ptr<TKeptData> FKept;
};

}  // namespace vcl
