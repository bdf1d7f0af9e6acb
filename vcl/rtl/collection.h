// TCollection: an ordered list of items with published properties of their own, kept in form files.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "vcl/rtl/keptdata.h"
#include "vcl/rtl/persistent.h"

namespace vcl {

class TCollection;

/// An item of a collection.
class VCL_API TCollectionItem : public TPersistent {
 public:
  /// Joins the collection at its end; null for an item of no collection.
  explicit TCollectionItem(TCollection* collection);
  /// Leaves its collection.
  ~TCollectionItem() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TCollection* Collection() const { return FCollection; }
  /// A number that no other item of the collection has had.
  int ID() const { return FID; }
  /// The place in the collection, from 0; -1 without one.
  int Index() const;
  /// Moves the item. Raises EListError outside 0 to Count - 1.
  void SetIndex(int index);
  /// What a designer's list shows for the item: its class name unless overridden.
  virtual std::string DisplayName() const { return ClassName(); }
  /// What a designer keeps of the item's form file beside what the item knows; null for nothing.
  const TKeptData* Kept() const { return FKept.get(); }
  TKeptData& Keep();

 protected:
  /// Tells the collection of a change, of this item or, when `allItems`, of the list.
  void Changed(bool allItems);

 private:
  friend class TCollection;
  TCollection* FCollection = nullptr;
  int FID = 0;
  mutable std::size_t FPlace = 0;  // Where it was last seen in the list.
  std::unique_ptr<TKeptData> FKept;
};

/// What happens to one item of a collection: it has joined the list, though its own class's part
/// may not have been made yet, or it has moved to another place there.
enum class TCollectionChange { Joined, Moved };

/// A list of items of one class, which it owns.
class VCL_API TCollection : public TPersistent {
 public:
  /// A collection whose items are of the class. Raises EArgumentOutOfRangeException when instances
  /// of the class cannot be made by name as items.
  explicit TCollection(const TClass& itemClass);
  /// Frees its items.
  ~TCollection() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const TClass& ItemClass() const { return FItemClass; }
  int Count() const { return static_cast<int>(FItems.size()); }
  /// The item at the index from 0. Raises EListError outside.
  TCollectionItem* Items(int index) const;
  /// Makes an item at the end.
  TCollectionItem* Add();
  /// Makes an item at the index. Raises EListError outside 0 to Count.
  TCollectionItem* Insert(int index);
  /// Frees the item at the index. Raises EListError outside.
  void Delete(int index);
  void Clear();
  TCollectionItem* FindItemID(int id) const;
  /// Replaces the items by copies of another collection's. Raises EConvertError, and keeps its
  /// items, when an item cannot be copied.
  void Assign(const TPersistent* source) override;
  /// Between the two, Update is not called; after the last EndUpdate it is called once, if anything
  /// changed.
  void BeginUpdate() { ++FUpdateCount; }
  void EndUpdate();
  /// Called after changes, with the changed item or null for the whole list. Unassigned it does
  /// nothing.
  std::function<void(TCollectionItem*)> OnUpdate;

 protected:
  /// A change of an item, or of the list when null. The inherited method calls OnUpdate.
  virtual void Update(TCollectionItem* item);
  /// Hears of each item at once, also between BeginUpdate and EndUpdate. Here: does nothing.
  virtual void ItemChanged(TCollectionItem* /*item*/, TCollectionChange /*change*/) {}
  /// Puts the items in an order of which the caller warrants that it holds the same items, once
  /// each.
  void Arrange(std::vector<TCollectionItem*> order);

 private:
  friend class TCollectionItem;
  void Attach(TCollectionItem* item);
  void Detach(TCollectionItem* item);
  void Changed(TCollectionItem* item);
  void CheckIndex(int index, int count) const;

  const TClass& FItemClass;
  std::vector<TCollectionItem*> FItems;
  int FNextID = 0;
  int FUpdateCount = 0;
  bool FChangedMeanwhile = false;
};

}  // namespace vcl
