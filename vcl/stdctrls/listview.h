// TCustomListView and TListView.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/stdctrls/linkedimages.h"
#include "vcl/stdctrls/listcolumns.h"
#include "vcl/stdctrls/listgroups.h"
#include "vcl/stdctrls/listitems.h"
#include "vcl/stdctrls/sorttype.h"

namespace vcl {

class TControlCanvas;

/// How a list view shows its items: large pictures with the text below, small ones with the text
/// beside them, the same in columns from top to bottom, or as rows with columns and a header.
enum TViewStyle { vsIcon, vsSmallIcon, vsList, vsReport };
template <>
inline constexpr TEnumText EnumText<TViewStyle>{"TViewStyle", "vsIcon vsSmallIcon vsList vsReport"};

/// What an item that is looked for is near to, or where from it is looked for.
enum TSearchDirection { sdLeft, sdRight, sdAbove, sdBelow, sdAll };
/// What OnDataFind looks for: a caption that begins so, one that is equal, an item's Data, or what
/// is nearest to a position.
enum TItemFind { ifPartialString, ifExactString, ifData, ifNearest };
/// States of items.
enum TItemStateValue { isCut, isDropHilited, isFocused, isSelected };
using TItemStates = TSet<TItemStateValue>;
/// States of an item that is being drawn.
enum TCustomDrawStateValue { cdsSelected, cdsDisabled, cdsFocused, cdsHot };
using TCustomDrawState = TSet<TCustomDrawStateValue>;

/// Sender and item.
using TLVItemEvent = TEvent<TObject*, TListItem*>;
/// Sender, item, what has changed.
using TLVChangeEvent = TEvent<TObject*, TListItem*, TItemChange>;
/// Sender, item, what is about to change, whether it may.
using TLVChangingEvent = TEvent<TObject*, TListItem*, TItemChange, bool&>;
/// Sender, item, whether it is selected now.
using TLVSelectItemEvent = TEvent<TObject*, TListItem*, bool>;
/// Sender, item, whether it may happen.
using TLVAllowEvent = TEvent<TObject*, TListItem*, bool&>;
/// Sender, item, the new text.
using TLVEditedEvent = TEvent<TObject*, TListItem*, std::string&>;
/// Sender, column.
using TLVColumnEvent = TEvent<TObject*, TListColumn*>;
/// Sender, column, the mouse's position in the list view.
using TLVColumnRightClickEvent = TEvent<TObject*, TListColumn*, TPoint>;
/// Sender, item, the place in SubItems, the picture.
using TLVSubItemImageEvent = TEvent<TObject*, TListItem*, int, int&>;
/// Sender, the two items, a number of the caller's, and the answer: below 0 when the first one
/// comes first.
using TLVCompareEvent = TEvent<TObject*, TListItem*, TListItem*, int, int&>;
/// Sender, what is looked for: in what sense, the text, the position or the data; the first row to
/// look at, the direction from there, whether to go on round the end; the row found, -1 for none.
using TLVDataFindEvent = TEvent<TObject*, TItemFind, const std::string&, TPoint, void*, int,
                                TSearchDirection, bool, int&>;
/// Sender, the first and the last row that will be shown next.
using TLVDataHintEvent = TEvent<TObject*, int, int>;
/// Sender, the client rectangle, whether the system draws, too.
using TLVCustomDrawEvent = TEvent<TObject*, const TRect&, bool&>;
/// Sender, item, its state, whether the system draws it.
using TLVCustomDrawItemEvent = TEvent<TObject*, TListItem*, TCustomDrawState, bool&>;
/// Sender, item, column from 1, the item's state, whether the system draws it.
using TLVCustomDrawSubItemEvent = TEvent<TObject*, TListItem*, int, TCustomDrawState, bool&>;

/// The system's list view. Its items, columns and groups are kept here, so that they outlive the
/// window; the window asks for texts and pictures when it shows them.
class VCL_API TCustomListView : public TWinControl {
 public:
  explicit TCustomListView(TComponent* owner);
  /// OnDeletion hears of every item.
  ~TCustomListView() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TListItems* Items() const { return FItems.get(); }
  /// The items.
  void SetItems(const TCollection* items) { FItems->Assign(items); }
  TListColumns* Columns() const { return FColumns.get(); }
  /// The columns of vsReport, from left to right.
  void SetColumns(const TCollection* columns) { FColumns->Assign(columns); }
  TListGroups* Groups() const { return FGroups.get(); }
  /// The groups that GroupView shows.
  void SetGroups(const TCollection* groups) { FGroups->Assign(groups); }
  /// What the handlers of OnCustomDraw and its like draw on.
  TCanvas* Canvas() const;

  // Selection and places.
  /// The first selected item; null for none.
  TListItem* Selected() const;
  /// Selects the item and no other; null selects none. Raises EListViewError for another list
  /// view's item.
  void SetSelected(TListItem* item);
  int SelCount() const;
  void SelectAll();
  void ClearSelection();
  /// The place of the first selected item; -1 for none.
  int ItemIndex() const;
  /// Selects the item at the place, and no other; -1 selects none. Raises EListError outside.
  void SetItemIndex(int index);
  /// The item that the keyboard is at; null for none.
  TListItem* ItemFocused() const;
  void SetItemFocused(TListItem* item);
  /// The item that takes what is dropped; null for none.
  TListItem* DropTarget() const;
  void SetDropTarget(TListItem* item);
  /// The first item in sight, in vsReport and vsList; null for none.
  TListItem* TopItem() const;
  /// How many items are wholly in sight in vsReport and vsList.
  int VisibleRowCount() const;
  /// The item at the position in the list view, its text or picture, with RowSelect all of its row;
  /// null when there is none.
  TListItem* GetItemAt(int x, int y) const;
  /// The item whose caption is the text, or begins with it where `partial`, without case: from
  /// `start`, itself included where `inclusive`, to the end, and on from the beginning where
  /// `wrap`. Null for none. With OwnerData OnDataFind says.
  TListItem* FindCaption(int start, const std::string& text, bool partial, bool inclusive,
                         bool wrap);
  /// The item with that Data, in the same way.
  TListItem* FindData(int start, void* data, bool inclusive, bool wrap);
  /// The next item in a direction that has all of the states; null for none. sdAll is the order of
  /// the items, from the beginning for a null item.
  TListItem* GetNextItem(TListItem* start, TSearchDirection direction, TItemStates states) const;
  /// Scrolls by so many pixels.
  void Scroll(int dx, int dy);
  /// Shows these items anew, after what they show has changed.
  void UpdateItems(int first, int last);
  bool IsEditing() const;
  /// How wide a text is when an item shows it, in pixels.
  int StringWidth(const std::string& text) const;
  /// The places of the columns as they are shown from left to right, which FullDrag changes.
  std::vector<int> ColumnOrder() const;
  /// Raises EListError unless each column stands in it once.
  void SetColumnOrder(const std::vector<int>& order);

  // Order.
  /// Orders the items by OnCompare, or by their captions without it; equal ones keep their order.
  /// False when a handler has added or deleted items meanwhile, and with OwnerData.
  bool AlphaSort();
  /// The same by the call, which answers below 0 when its first item comes first.
  bool CustomSort(const std::function<int(TListItem*, TListItem*)>& compare);
  TSortType SortType() const { return FSortType; }
  /// Orders the items, and keeps them so.
  void SetSortType(TSortType type);

  // Settings.
  /// bsSingle for a border, bsNone for none.
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Takes bsNone and bsSingle; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);
  bool Checkboxes() const { return FCheckboxes; }
  /// True: each item has a check that the user can change.
  void SetCheckboxes(bool checkboxes);
  bool ColumnClick() const { return FColumnClick; }
  /// True: the headers of the columns can be clicked like buttons.
  void SetColumnClick(bool click);
  bool FullDrag() const { return FFullDrag; }
  /// True: the user may drag columns to other places.
  void SetFullDrag(bool drag);
  bool GridLines() const { return FGridLines; }
  /// True: lines stand between rows and between columns.
  void SetGridLines(bool lines);
  bool GroupView() const { return FGroupView; }
  /// True: the items stand in their groups.
  void SetGroupView(bool groups);
  bool HideSelection() const { return FHideSelection; }
  /// True: the selection is seen only while the list view has the focus.
  void SetHideSelection(bool hide);
  bool HotTrack() const { return FHotTrack; }
  /// True: the item under the mouse is shown as such, and selected when the mouse rests there.
  void SetHotTrack(bool track);
  TImageList* LargeImages() const { return FLargeImages.List; }
  /// The pictures of vsIcon; null for none.
  void SetLargeImages(TImageList* images);
  bool MultiSelect() const { return FMultiSelect; }
  /// True: more than one item can be selected.
  void SetMultiSelect(bool multiSelect);
  bool OwnerData() const { return FOwnerData; }
  /// True: the list view has rows and no items of its own, which are freed: Items.Count is the
  /// number of rows, and OnData says what one of them shows.
  void SetOwnerData(bool ownerData);
  bool ReadOnly() const { return FReadOnly; }
  /// False: the user may edit the captions.
  void SetReadOnly(bool readOnly);
  bool RowSelect() const { return FRowSelect; }
  /// True: all of a row is shown as selected, and can be clicked.
  void SetRowSelect(bool rowSelect);
  bool ShowColumnHeaders() const { return FShowColumnHeaders; }
  /// True: vsReport has a header.
  void SetShowColumnHeaders(bool show);
  TImageList* SmallImages() const { return FSmallImages.List; }
  /// The pictures of the other styles, and of headers; null for none.
  void SetSmallImages(TImageList* images);
  TImageList* StateImages() const { return FStateImages.List; }
  /// The pictures that show the items' states; null for none. With Checkboxes the first one is
  /// unchecked, the second one checked.
  void SetStateImages(TImageList* images);
  TViewStyle ViewStyle() const { return FViewStyle; }
  /// How the items are shown.
  void SetViewStyle(TViewStyle style);

  // The handlers of the events whose answer the window waits for (OnChanging, OnEditing, OnData and
  // its like, the pictures' and the drawing's) may delete other items, but not free the list view.

  /// An item is about to be selected or focused, or no longer so, which the handler may refuse.
  TLVChangingEvent OnChanging;
  /// An item has changed; null for all rows of OwnerData.
  TLVChangeEvent OnChange;
  /// An item has been selected, or is no longer; null for all rows of OwnerData.
  TLVSelectItemEvent OnSelectItem;
  /// An item has been checked, or is no longer.
  TLVItemEvent OnItemChecked;
  /// The user is about to edit a caption, which the handler may refuse.
  TLVAllowEvent OnEditing;
  /// The user has edited a caption, which the handler may change.
  TLVEditedEvent OnEdited;
  /// A column's header was clicked.
  TLVColumnEvent OnColumnClick;
  /// A column's header was clicked with the right button.
  TLVColumnRightClickEvent OnColumnRightClick;
  /// The user has given a column another width.
  TLVColumnEvent OnColumnResized;
  /// The user has dragged a column to another place; ColumnOrder says how they stand.
  TNotifyEvent OnColumnDragged;
  /// Two items are compared to be ordered.
  TLVCompareEvent OnCompare;
  /// An item has been added.
  TLVItemEvent OnInsert;
  /// An item is being deleted.
  TLVItemEvent OnDeletion;
  /// An item's picture is about to be shown: the handler sets its ImageIndex.
  TLVItemEvent OnGetImageIndex;
  /// The picture of a column's text is about to be shown, which the handler may change.
  TLVSubItemImageEvent OnGetSubItemImage;
  /// With OwnerData: a row is about to be shown, and the handler sets what it shows.
  TLVItemEvent OnData;
  /// With OwnerData: a row is looked for, and the handler says which it is.
  TLVDataFindEvent OnDataFind;
  /// With OwnerData: these rows will be shown next.
  TLVDataHintEvent OnDataHint;
  /// The list view is about to be drawn.
  TLVCustomDrawEvent OnCustomDraw;
  /// An item is about to be drawn: the handler draws it on Canvas, or sets Canvas's font and brush
  /// for the system.
  TLVCustomDrawItemEvent OnCustomDrawItem;
  /// The same of the text in another column than the first.
  TLVCustomDrawSubItemEvent OnCustomDrawSubItem;

 protected:
  virtual bool CanChange(TListItem* item, TItemChange change);
  virtual void Change(TListItem* item, TItemChange change);
  virtual bool CanEdit(TListItem* item);
  /// The user has edited the caption. The inherited method gives it to OnEdited, then to the item;
  /// with OwnerData the handler has to keep it.
  virtual void Edit(TListItem* item, std::string text);
  virtual void Delete(TListItem* item);
  /// Fills the item that stands for a row.
  virtual void Data(TListItem* item);
  virtual void GetImageIndex(TListItem* item);
  /// The user has clicked the column's header.
  virtual void HeaderClick(TListColumn* column);
  /// With OwnerData: the row that is looked for; -1 for none. Here OnDataFind says.
  virtual int DataFind(TItemFind find, const std::string& text, TPoint position, void* data,
                       int start, TSearchDirection direction, bool wrap);
  /// The user begins to drag an item with the left button. The inherited method drags the list view
  /// where DragMode is dmAutomatic.
  virtual void BeginItemDrag();
  /// What the window draws as LargeImages and SmallImages; it stays whose it is.
  virtual HIMAGELIST LargePictures() const;
  virtual HIMAGELIST SmallPictures() const;
  /// Below 0 when the first item comes first.
  virtual int Compare(TListItem* first, TListItem* second);

  void BeginAutoDrag(TMessage& press) override;
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void DefaultHandler(TMessage& message) override;
  void Dispatch(TMessage& message) override;
  void Notification(TComponent* component, TOperation operation) override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;

 private:
  friend class TListItem;
  friend class TListItems;
  /// An event that waits for the window: of a row of OwnerData, or of an item.
  struct TPending {
    int Row;
    TListItem* Item;
    TWatch Watch;
    std::function<void(TListItem*)> Tell;
  };
  using TRowRange = std::pair<int, int>;  // The first and the last row.

  template <class T>
  void ChangeStyle(T& field, T value, DWORD style, bool on);
  void ChangeExtended(bool& field, bool value);
  void ChangeWindow(bool& field, bool value);
  bool Sorted() const { return FSortType != stNone && !FOwnerData; }
  void CheckItem(const TListItem* item) const;
  void DeselectOthers(const TListItem* item);

  // What the items tell.
  void ItemsChanged();
  void ItemChanged(TListItem* item, TItemChange change);
  void ItemChecked(TListItem* item);
  void KeepInPlace(TListItem* item);
  void RowsCounted();
  void RemoveRow(TListItem* item);
  void RemoveRows();
  void SetRedraw(bool redraw);
  bool ItemHasState(const TListItem& item, unsigned state) const;
  void SetItemState(TListItem* item, unsigned state, bool on);

  // The window (listview_window.cpp).
  int WindowRow(const TListItem& item) const;
  TListItem* ItemOfRow(int row) const;
  int NextIndex(int row, UINT flags) const;
  DWORD ExtendedStyle() const;
  void SendExtended();
  void SendImages();
  void SendColors();
  void InsertRow(TListItem* item, int row);
  void UpdateRow(TListItem* item);
  void SendRowState(int row, unsigned state, unsigned mask);
  unsigned ImageState(const TListItem& item) const;
  void KeepStates();
  void RestoreStates();
  void RestoreTop();
  bool RowKept(int row) const;
  void KeepRow(int row, bool selected);
  void NewlyAdded(const std::vector<TCollectionItem*>& added);

  // Columns and groups (listview_columns.cpp).
  void ColumnsChanged(TCollectionItem* item);
  void SendColumns();
  void SendColumn(const TListColumn& column, UINT message);
  void SendMark(const TListColumn& column);
  void FitColumns();
  void SendGroups();
  TListColumn* ColumnAt(TPoint header) const;
  void NotifyFromHeader(TMessage& message);
  void HeaderSized(TMessage& message);

  // What the window tells (listview_notify.cpp, listview_draw.cpp).
  void NotifyFromWindow(TMessage& message);
  TListItem* ItemOf(int row, LPARAM param) const;
  void TellItem(LPARAM asked);
  void NotifyOfChanging(TMessage& message);
  void NotifyOfChange(LPARAM told);
  void NotifyOfCheck(TListItem* item, unsigned state);
  void NotifyOfEdit(TMessage& message);
  void NotifyOfClick(TMessage& message);
  void FindRow(TMessage& message);
  void CheckRow(int row);
  void CustomDraw(TMessage& message);
  LRESULT DrawItem(LPARAM drawn);
  void Later(int row, TListItem* item, std::function<void(TListItem*)> tell);
  void PressButton(TMessage& message, UINT release);

  std::unique_ptr<TListItems> FItems;
  std::unique_ptr<TListColumns> FColumns;
  std::unique_ptr<TListGroups> FGroups;
  std::unique_ptr<TControlCanvas> FCanvas;
  std::unique_ptr<TFont> FDrawnFont;  // What a handler has the system draw an item with.
  std::vector<TPending> FPending;     // Events that wait for the window.
  std::vector<TRowRange> FKeptRows;   // The selected rows of OwnerData, while there is no window.
  std::vector<int> FColumnOrder;      // Empty while the columns stand as they do in Columns.
  int FKeptFocus = -1;
  int FKeptTop = 0;
  int FColumnCount = 0;           // In the window.
  TListItem* FTelling = nullptr;  // The item that the window is being told about.
  TLinkedImages FLargeImages, FSmallImages, FStateImages;
  TBorderStyle FBorderStyle = bsSingle;
  TSortType FSortType = stNone;
  TViewStyle FViewStyle = vsIcon;
  bool FCheckboxes = false;
  bool FColumnClick = true;
  bool FFullDrag = false;
  bool FGridLines = false;
  bool FGroupView = false;
  bool FHideSelection = true;
  bool FHotTrack = false;
  bool FMultiSelect = false;
  bool FOwnerData = false;
  bool FReadOnly = false;
  bool FRowSelect = false;
  bool FShowColumnHeaders = true;
  bool FOwnDoing = false;     // What the window tells now is our own doing.
  bool FInWindow = false;     // In the window's own procedure.
  bool FHeaderWaits = false;  // Events wait until the header has done.
  bool FFitting = false;      // The columns are getting their widths.
  bool FClicked = false;      // The button came up while the window handled the press.
  bool FPressing = false;     // A button's press is being handled.
};

/// A list view for forms.
class VCL_API TListView : public TCustomListView {
 public:
  explicit TListView(TComponent* owner) : TCustomListView(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
