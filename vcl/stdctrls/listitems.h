// The rows of list views: TListItem, and TListItems, which holds those of one list view.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/graphics/types.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/systemmacros.h"
#include "vcl/rtl/watch.h"

namespace vcl {

class TCustomListView;
class TListItems;

/// What a list view cannot do, as it is set up.
class VCL_API EListViewError : public Exception {
 public:
  using Exception::Exception;
  ~EListViewError() override;
};

/// What of an item has changed: a text, its picture, or whether it is selected, focused, checked.
enum TItemChange { ctText, ctImage, ctState };

/// What of an item a rectangle bounds: all, the picture, the text, or both of these.
enum TDisplayCode { drBounds, drIcon, drLabel, drSelectBounds };

/// An item of a list view. With OwnerData it stands for the row that was asked for last.
class VCL_API TListItem : public TCollectionItem, public TWatched {
 public:
  /// Raises EListViewError for a list view with OwnerData, which has no items of its own.
  explicit TListItem(TCollection* items);
  /// OnDeletion hears of it, unless it has already.
  ~TListItem() override;
  TListItem(const TListItem&) = delete;
  TListItem& operator=(const TListItem&) = delete;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies texts, pictures, check, group and data of another item.
  void Assign(const TPersistent* source) override;
  /// The caption, where there is one.
  std::string DisplayName() const override;

  /// Null for an item of no list view.
  TListItems* Owner() const;
  TCustomListView* ListView() const;
  /// The place in the list, from 0; with OwnerData the row.
  int Index() const;
  bool Deleting() const { return FAnnounced; }

  // What it shows.
  const std::string& Caption() const { return FCaption; }
  /// The text, which in vsReport stands in the first column.
  void SetCaption(const std::string& caption);
  /// The texts of the other columns.
  TStrings* SubItems() const;
  void SetSubItems(const TStrings* subItems);
  /// The picture of a column's text, in SmallImages; -1 for none. `subItem` is the text's place in
  /// SubItems. Raises EListError below 0.
  int SubItemImage(int subItem) const;
  void SetSubItemImage(int subItem, int image);
  std::string SubItemImages() const;
  /// The pictures of the other columns as a text, "2,-1,5"; empty for none. Raises EConvertError
  /// for another text.
  void SetSubItemImages(const std::string& images);
  int ImageIndex() const { return FImageIndex; }
  /// The picture in LargeImages and SmallImages; -1 for none.
  void SetImageIndex(int index);
  int StateIndex() const { return FStateIndex; }
  /// The picture before it, in StateImages; -1 for none. With Checkboxes the check stands there.
  void SetStateIndex(int index);
  int Indent() const { return FIndent; }
  /// How far the item is moved to the right in vsReport, in widths of a small picture. Less than 0
  /// is taken as 0.
  void SetIndent(int indent);
  int GroupID() const { return FGroupID; }
  /// The GroupID of the group that the item stands in; -1 for none.
  void SetGroupID(int id);
  void* Data() const { return FData; }
  /// What the program wants to keep with the item; it stays the program's.
  void SetData(void* data);

  // State.
  bool Checked() const { return FChecked; }
  /// The check that Checkboxes shows. OnItemChecked hears of it.
  void SetChecked(bool checked);
  bool Selected() const;
  /// OnChanging may refuse. Without MultiSelect the one that was selected is no longer.
  void SetSelected(bool selected);
  bool Focused() const;
  /// Whether the keyboard is at the item.
  void SetFocused(bool focused);
  bool Cut() const;
  /// Shows the item as one that has been cut, which is paler.
  void SetCut(bool cut);
  bool DropTarget() const;
  /// Marks the item as the one that takes what is dropped.
  void SetDropTarget(bool target);

  // What can be done with it.
  /// Frees the item. With OwnerData raises EListViewError.
  void Delete();
  /// Scrolls the item into view, all of it unless `partlyIsEnough`.
  void MakeVisible(bool partlyIsEnough);
  /// Has the user edit the caption; false when the list view is read-only, or refuses.
  bool EditCaption();
  void CancelEdit();
  /// Shows the item anew, after what OnData gives has changed.
  void Update();
  /// Where it stands in the list view; empty when it has no place.
  TRect DisplayRect(TDisplayCode code) const;

 private:
  friend class TCustomListView;
  friend class TListItems;
  struct TSubItems;
  TListItem(TListItems& owner, int row);
  template <class T>
  void Change(T& field, T value, TItemChange change);
  void Changed(TItemChange change);
  bool HasSubItems() const;
  bool HasSubItemImages() const { return !FSubItemImages.empty(); }
  bool HasState(unsigned state) const;
  void SetState(unsigned state, bool on);

  TListItems* FRows = nullptr;  // Of an item that stands for rows.
  int FRow = -1;
  std::string FCaption;
  mutable std::unique_ptr<TSubItems> FSubItems;  // Made when asked for.
  std::vector<int> FSubItemImages;
  void* FData = nullptr;
  int FImageIndex = -1;
  int FStateIndex = -1;
  int FIndent = 0;
  int FGroupID = -1;
  unsigned FState = 0;  // LVIS_...; what the window shows is the window's to say.
  bool FChecked = false;
  bool FListed = false;  // The list view has heard of it.
  bool FInWindow = false;
  bool FAnnounced = false;  // OnDeletion has heard of its end.
};

/// The items of a list view. With OwnerData there are only rows: Count says how many, and OnData
/// what one of them shows.
class VCL_API TListItems : public TCollection {
 public:
  explicit TListItems(TCustomListView* owner);
  ~TListItems() override;
  /// Copies another list's items. Raises EListViewError with OwnerData.
  void Assign(const TPersistent* source) override;

  TCustomListView* Owner() const { return FOwner; }
  int Count() const;
  /// The number of rows, for OwnerData only: raises EListViewError without, and for less than 0 or
  /// more than 100,000,000, which is what the system's list view can count.
  void SetCount(int count);
  /// The item at the index from 0. Raises EListError outside. With OwnerData it is the same object
  /// for all rows, filled by OnData each time: it is good until the next one is asked for.
  TListItem* Items(int index) const;
  TListItem* operator[](int index) const { return Items(index); }
  /// The place of an item; -1 for one of another list, and for null.
  int IndexOf(const TListItem* item) const;

  /// Raise EListViewError with OwnerData.
  TListItem* Add() { return static_cast<TListItem*>(TCollection::Add()); }
  TListItem* Insert(int index) { return static_cast<TListItem*>(TCollection::Insert(index)); }
  /// An item with that caption, at the end or in its place by SortType.
  TListItem* AddItem(const std::string& caption);
  /// OnDeletion hears of it. Raises EListError outside; EListViewError with OwnerData.
  void Delete(int index);
  /// OnDeletion hears of every item. With OwnerData there are no rows any more.
  void Clear();
  /// Between the two the list view is not painted, and new items are not yet shown. They nest.
  void BeginUpdate();
  void EndUpdate();

 protected:
  void Update(TCollectionItem* item) override;
  void ItemChanged(TCollectionItem* item, TCollectionChange change) override;

 private:
  friend class TCustomListView;
  friend class TListItem;
  TListItem* Row(int row) const;
  TListItem* Own(int index) const { return static_cast<TListItem*>(TCollection::Items(index)); }
  int OwnCount() const { return TCollection::Count(); }
  /// Whether the window has the same items in the same order.
  bool InOrder() const { return FNew.empty() && !FMoved; }
  bool Announce(TListItem* item);
  void Forget(TListItem* item);
  bool Sort(const std::function<int(TListItem*, TListItem*)>& compare);
  void PutInPlace(TListItem* item);

  TCustomListView* FOwner;
  std::unique_ptr<TListItem> FRowItem;  // The item that stands for rows.
  std::vector<TCollectionItem*> FNew;   // Items that the list view has not heard of yet.
  int FRows = 0;
  int FHeld = 0;           // How often BeginUpdate was called.
  int FRevision = 0;       // Counts items that come and go.
  bool FMoved = false;     // The window has the items in another order.
  bool FUnsorted = false;  // By SortType one has to move, when the update ends.
  bool FSorting = false;
};

}  // namespace vcl
