// TCustomTreeView and TTreeView.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/stdctrls/linkedimages.h"
#include "vcl/stdctrls/sorttype.h"
#include "vcl/stdctrls/treenodes.h"

namespace vcl {

/// Sender and node.
using TTVNodeEvent = TEvent<TObject*, TTreeNode*>;
/// Sender, node, whether it may happen.
using TTVAllowEvent = TEvent<TObject*, TTreeNode*, bool&>;
/// Sender, node, the new text.
using TTVEditedEvent = TEvent<TObject*, TTreeNode*, std::string&>;
/// Sender, the two nodes, a number of the caller's, and the answer: below 0 when the first one
/// comes first.
using TTVCompareEvent = TEvent<TObject*, TTreeNode*, TTreeNode*, int, int&>;

/// The system's tree view. Its nodes are kept here, so that they outlive the window; the window
/// asks for texts and pictures when it shows them.
class VCL_API TCustomTreeView : public TWinControl {
 public:
  explicit TCustomTreeView(TComponent* owner);
  /// OnDeletion hears of every node.
  ~TCustomTreeView() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TTreeNodes* Items() const { return FItems.get(); }
  /// The nodes.
  void SetItems(const TTreeNodes* items) { FItems->Assign(items); }
  /// The selected node; null for none.
  TTreeNode* Selected() const { return FSelected; }
  /// Fires OnChanging, which may refuse, and OnChange. Raises ETreeViewError for another tree's
  /// node.
  void SetSelected(TTreeNode* node);
  /// The first node in sight; null for none.
  TTreeNode* TopItem() const;
  void SetTopItem(TTreeNode* node);
  TTreeNode* DropTarget() const;
  /// Marks the node as the one that takes what is dropped; null marks none.
  void SetDropTarget(TTreeNode* node);
  /// The node at the position in the tree view, text, picture or button; null when there is none.
  TTreeNode* GetNodeAt(int x, int y) const;
  bool IsEditing() const;
  virtual void FullExpand();
  void FullCollapse();
  /// Orders all nodes by OnCompare, or by their texts without it.
  void AlphaSort();

  /// bsSingle for a border, bsNone for none.
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Takes bsNone and bsSingle; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);
  bool HideSelection() const { return FHideSelection; }
  /// True: the selection is seen only while the tree has the focus.
  void SetHideSelection(bool hide);
  TImageList* Images() const { return FImages.List; }
  /// The pictures beside the texts; null for none.
  void SetImages(TImageList* images);
  TImageList* StateImages() const { return FStateImages.List; }
  /// The pictures that show the nodes' states; null for none.
  void SetStateImages(TImageList* images);
  int Indent() const { return FIndent; }
  /// How far children stand from their parent, in pixels; the system keeps a least value.
  void SetIndent(int indent);
  bool ReadOnly() const { return FReadOnly; }
  /// False: the user may edit the texts.
  void SetReadOnly(bool readOnly);
  bool RightClickSelect() const { return FRightClickSelect; }
  /// True: the right button, too, selects the node that it is pressed on.
  void SetRightClickSelect(bool select) { FRightClickSelect = select; }
  bool ShowButtons() const { return FShowButtons; }
  /// True: nodes with children have a button that expands and collapses them.
  void SetShowButtons(bool show);
  bool ShowLines() const { return FShowLines; }
  /// True: lines lead from parents to children.
  void SetShowLines(bool show);
  bool ShowRoot() const { return FShowRoot; }
  /// False: no lines and buttons on the top level.
  void SetShowRoot(bool show);
  TSortType SortType() const { return FSortType; }
  /// Orders the nodes, and keeps them so.
  void SetSortType(TSortType type);

  // What the first four answer the window may be waiting for: they may delete nodes, but not free
  // the tree.

  /// Another node is about to be selected, which the handler may refuse.
  TTVAllowEvent OnChanging;
  /// A node is about to be expanded, which the handler may refuse.
  TTVAllowEvent OnExpanding;
  /// A node is about to be collapsed, which the handler may refuse.
  TTVAllowEvent OnCollapsing;
  /// The user is about to edit a node's text, which the handler may refuse.
  TTVAllowEvent OnEditing;
  /// Another node has been selected; null for none.
  TTVNodeEvent OnChange;
  /// A node has been expanded.
  TTVNodeEvent OnExpanded;
  /// A node has been collapsed.
  TTVNodeEvent OnCollapsed;
  /// A node is being deleted.
  TTVNodeEvent OnDeletion;
  /// A node's picture is about to be shown: the handler sets its ImageIndex.
  TTVNodeEvent OnGetImageIndex;
  /// The picture of a node while it is selected is asked for: the handler sets its SelectedIndex.
  TTVNodeEvent OnGetSelectedIndex;
  /// The user has edited a node's text, which the handler may change.
  TTVEditedEvent OnEdited;
  /// Two nodes are compared to be ordered.
  TTVCompareEvent OnCompare;

 protected:
  /// The node for an item; a tree with nodes of its own class makes them here.
  virtual std::unique_ptr<TTreeNode> CreateNode();
  virtual bool CanChange(TTreeNode* node);
  /// Another node has been selected; null for none.
  virtual void Change(TTreeNode* node);
  virtual bool CanExpand(TTreeNode* node);
  virtual void Expand(TTreeNode* node);
  /// Whether expanding a node with all below it goes on into this one below it. Here: true.
  virtual bool ExpandsInto(TTreeNode*) { return true; }
  virtual bool CanCollapse(TTreeNode* node);
  virtual void Collapse(TTreeNode* node);
  virtual bool CanEdit(TTreeNode* node);
  /// The user has edited the text. The inherited method gives it to OnEdited, then to the node.
  virtual void Edit(TTreeNode* node, std::string text);
  virtual void Delete(TTreeNode* node);
  /// The node's text for the window, which shows or measures it.
  virtual std::string GetText(TTreeNode* node) { return node->Text(); }
  /// Asked before a picture is shown; they set the node's index.
  virtual void GetImageIndex(TTreeNode* node);
  virtual void GetSelectedIndex(TTreeNode* node);
  /// Below 0 when the first node comes first.
  virtual int Compare(TTreeNode* first, TTreeNode* second);
  /// The pictures beside the texts; those of Images unless overridden.
  virtual HIMAGELIST NormalImages() const;

  void BeginAutoDrag(TMessage& press) override;
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void DefaultHandler(TMessage& message) override;
  void Dispatch(TMessage& message) override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  friend class TTreeNode;
  friend class TTreeNodes;
  struct TPending {
    TWatch Node;
    std::function<void()> Tell;
  };

  template <class T>
  void ChangeStyle(T& field, T value, DWORD style, bool on);
  void LinkImages(TLinkedImages& linked, TImageList* images);
  HIMAGELIST HandleFor(TImageList* images) const;
  void SendImages();
  void SendColors();
  bool Sorted() const { return FSortType != stNone; }

  // What the nodes tell their tree.
  void SetExpanded(TTreeNode* node, bool expand);
  void NodeChanged(TTreeNode* node);
  void NodesSorted(TTreeNode* parent);
  void NodesGone(TTreeNode* parent);
  void Forget(const TTreeNode* node);
  void Reinsert(TTreeNode* node);

  // The window's items.
  void InsertItem(TTreeNode* node);
  void InsertItemsBelow(TTreeNode* parent);
  static int __stdcall CompareOrder(LPARAM first, LPARAM second, LPARAM);
  void RemoveItem(TTreeNode* node);
  void RemoveItemsBelow(TTreeNode* parent);
  void ExpandItem(const TTreeNode* node);
  void SelectItem(const TTreeNode* node);
  TTreeNode* NodeFromWindow(UINT which) const;
  void SelectionMayHaveMoved();
  void SetRedraw(bool redraw);

  // What the window tells.
  void NotifyFromWindow(TMessage& message);
  void NotifyOfSelection(const NMTREEVIEWW& told, TMessage& message);
  void NotifyOfExpansion(const NMTREEVIEWW& told, TMessage& message);
  void NotifyOfEdit(const NMTVDISPINFOW& told, TMessage& message);
  void Later(TTreeNode* node, std::function<void()> tell);
  void TellItem(NMTVDISPINFOW& asked);
  void PressButton(TMessage& message, UINT release);

  std::unique_ptr<TTreeNodes> FItems;
  std::vector<TPending> FPending;  // Events that wait for the window.
  TTreeNode* FSelected = nullptr;
  TTreeNode* FTop = nullptr;      // The first node in sight, while there is no window.
  TTreeNode* FTelling = nullptr;  // The node that the window is being told about.
  TLinkedImages FImages, FStateImages;
  TBorderStyle FBorderStyle = bsSingle;
  TSortType FSortType = stNone;
  int FIndent = 19;
  bool FOwnDoing = false;  // What the window tells now is our own doing.
  bool FInWindow = false;  // In the window's own procedure.
  bool FHideSelection = true;
  bool FReadOnly = false;
  bool FRightClickSelect = false;
  bool FShowButtons = true;
  bool FShowLines = true;
  bool FShowRoot = true;
  bool FSelectionGone = false;  // The selected node was freed, which nobody knows yet.
  bool FClicked = false;        // The button came up while the window handled the press.
  bool FDragWanted = false;     // The mouse moved with the button down, on a node.
};

/// A tree view for forms.
class VCL_API TTreeView : public TCustomTreeView {
 public:
  explicit TTreeView(TComponent* owner) : TCustomTreeView(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
