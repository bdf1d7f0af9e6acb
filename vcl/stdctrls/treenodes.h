// The items of tree views: TTreeNode, and TTreeNodes, which holds those of one tree.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "vcl/graphics/types.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/persistent.h"
#include "vcl/rtl/systemmacros.h"
#include "vcl/rtl/systemtypes.h"
#include "vcl/rtl/watch.h"

namespace vcl {

class TCustomTreeView;
class TStream;
class TTreeNodes;

/// A node where it cannot be.
class VCL_API ETreeViewError : public Exception {
 public:
  using Exception::Exception;
  ~ETreeViewError() override;
};

/// Where a node goes, seen from another one: last or first on its level, last or first of its
/// children, right before it.
enum TNodeAttachMode { naAdd, naAddFirst, naAddChild, naAddChildFirst, naInsert };

/// An item of a tree view. The tree view makes it and frees it.
class VCL_API TTreeNode : public TPersistent, public TWatched {
 public:
  explicit TTreeNode(TTreeNodes* owner) : FOwner(owner) {}
  TTreeNode(const TTreeNode&) = delete;
  TTreeNode& operator=(const TTreeNode&) = delete;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies text, data, pictures and the button of another node, not its children.
  void Assign(const TPersistent* source) override;

  TTreeNodes* Owner() const { return FOwner; }
  TCustomTreeView* TreeView() const;
  /// The window's item; null without a window.
  HTREEITEM ItemId() const;

  // Place in the tree. Null where there is no such node.
  /// Null for a node of the top level.
  TTreeNode* Parent() const;
  TTreeNode* GetFirstChild() const { return FFirst; }
  TTreeNode* GetLastChild() const { return FLast; }
  TTreeNode* GetNextSibling() const { return FNext; }
  TTreeNode* GetPrevSibling() const { return FPrev; }
  /// The children after and before one of them.
  TTreeNode* GetNextChild(const TTreeNode* child) const { return child ? child->FNext : nullptr; }
  TTreeNode* GetPrevChild(const TTreeNode* child) const { return child ? child->FPrev : nullptr; }
  /// The next and the previous line of the tree with everything expanded.
  TTreeNode* GetNext() const;
  TTreeNode* GetPrev() const;
  /// The same among the nodes whose parents are expanded.
  TTreeNode* GetNextVisible() const;
  TTreeNode* GetPrevVisible() const;
  /// 0 on the top level.
  int Level() const;
  /// The place among the tree's nodes, and among its parent's children; both from 0.
  int AbsoluteIndex() const;
  int Index() const;
  /// The number of children, and the child at the index. Raises EListError outside.
  int Count() const { return FCount; }
  TTreeNode* Item(int index) const;
  /// The child's place; -1 for a node that is no child.
  int IndexOf(const TTreeNode* child) const;
  bool HasAsParent(const TTreeNode* node) const;
  /// Whether its parents are expanded.
  bool IsVisible() const;
  bool Deleting() const { return FDeleting; }

  // What it shows.
  virtual std::string Text() const { return FText; }
  virtual void SetText(const std::string& text);
  void* Data() const { return FData; }
  /// What the program wants to keep with the node; it stays the program's.
  void SetData(void* data);
  int ImageIndex() const { return FImageIndex; }
  /// The picture in the tree's Images; -1 for none.
  void SetImageIndex(int index) { Change(FImageIndex, index); }
  int SelectedIndex() const { return FSelectedIndex; }
  /// The picture while the node is selected.
  void SetSelectedIndex(int index) { Change(FSelectedIndex, index); }
  int StateIndex() const { return FStateIndex; }
  /// The picture before it, from the tree's StateImages, where 1 is the first that can be shown; -1
  /// or 0 for none.
  void SetStateIndex(int index) { Change(FStateIndex, index); }
  virtual bool HasChildren() const { return FHasChildren; }
  /// Whether it has a button to expand it. It gets one with its first child and loses it with the
  /// last; a program that adds the children in OnExpanding sets it before.
  virtual void SetHasChildren(bool hasChildren) { Change(FHasChildren, hasChildren); }

  // State.
  bool Expanded() const { return FExpanded; }
  /// A node without children stays as it is. OnExpanding or OnCollapsing may refuse.
  void SetExpanded(bool expanded);
  void Expand(bool recurse);
  void Collapse(bool recurse);
  bool Selected() const;
  void SetSelected(bool selected);
  bool Focused() const { return Selected(); }
  void SetFocused(bool focused) { SetSelected(focused); }

  // What can be done with it.
  /// Moves it, with its children. Raises ETreeViewError for a place inside itself or in another
  /// tree.
  void MoveTo(TTreeNode* destination, TNodeAttachMode mode);
  void Delete();
  void DeleteChildren();
  /// Orders the children by OnCompare, or by their texts without it.
  void AlphaSort();
  /// Expands the parents and scrolls the node into view.
  void MakeVisible();
  /// Where it, or only its text, stands in the tree view; empty when it is not in sight.
  TRect DisplayRect(bool textOnly) const;
  /// Has the user edit the text; false when the tree, or OnEditing, does not let him.
  bool EditText();
  /// Ends that.
  void EndEdit(bool cancel);

 private:
  friend class TTreeNodes;
  friend class TCustomTreeView;
  template <class T>
  void Change(T& field, T value) {
    if (value == field) return;
    field = value;
    Changed();
  }
  void Changed();

  TTreeNodes* FOwner;
  TTreeNode* FParent = nullptr;  // The hidden root for those of the top level.
  TTreeNode* FFirst = nullptr;
  TTreeNode* FLast = nullptr;
  TTreeNode* FPrev = nullptr;
  TTreeNode* FNext = nullptr;
  HTREEITEM FItem = nullptr;  // Good only while the tree has a window.
  std::string FText;
  void* FData = nullptr;
  int FCount = 0;
  int FImageIndex = 0;
  int FSelectedIndex = 0;
  int FStateIndex = -1;
  int FOrder = 0;  // The place that sorting gives it.
  bool FHasChildren = false;
  bool FExpanded = false;
  bool FDeleting = false;
};

/// The nodes of a tree view. Those that add a node return it; the node that they are given says
/// where: null is the top level. They raise ETreeViewError for a node of another tree, or one that
/// is being deleted.
class VCL_API TTreeNodes : public TPersistent {
 public:
  explicit TTreeNodes(TCustomTreeView* owner);
  ~TTreeNodes() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies the nodes of another tree, without their data.
  void Assign(const TPersistent* source) override;

  TCustomTreeView* Owner() const { return FOwner; }
  int Count() const { return FCount; }
  /// The node at the absolute index. Raises EListError outside. In order it costs no search.
  TTreeNode* Item(int index) const;
  TTreeNode* operator[](int index) const { return Item(index); }
  TTreeNode* GetFirstNode() const { return FRoot->FFirst; }
  /// The node of the window's item; null when it is none.
  TTreeNode* GetNode(HTREEITEM item) const;

  /// Last on the node's level.
  TTreeNode* Add(TTreeNode* sibling, const std::string& text);
  TTreeNode* AddFirst(TTreeNode* sibling, const std::string& text);
  /// Last of the node's children.
  TTreeNode* AddChild(TTreeNode* parent, const std::string& text);
  TTreeNode* AddChildFirst(TTreeNode* parent, const std::string& text);
  /// Right before the node.
  TTreeNode* Insert(TTreeNode* sibling, const std::string& text);
  /// The same with data.
  TTreeNode* AddObject(TTreeNode* sibling, const std::string& text, void* data);
  TTreeNode* AddObjectFirst(TTreeNode* sibling, const std::string& text, void* data);
  TTreeNode* AddChildObject(TTreeNode* parent, const std::string& text, void* data);
  TTreeNode* AddChildObjectFirst(TTreeNode* parent, const std::string& text, void* data);
  TTreeNode* InsertObject(TTreeNode* sibling, const std::string& text, void* data);
  /// Deletes the node with all below it; OnDeletion hears of each, children first. Does nothing for
  /// null or a node that is being deleted.
  void Delete(TTreeNode* node);
  void Clear();
  /// Between the two the tree is not painted. They nest.
  void BeginUpdate();
  void EndUpdate();

 protected:
  /// Keeps the nodes in form files, as the bytes of the property "Data".
  void DefineProperties(TFiler& filer) override;

 private:
  friend class TTreeNode;
  friend class TCustomTreeView;
  /// A place among the children of a parent: before one of them, or behind all.
  struct TPlace {
    TTreeNode* Parent;
    TTreeNode* Before;
  };
  TTreeNode* AddNode(TTreeNode* relative, TNodeAttachMode mode, const std::string& text,
                     void* data);
  void Attach(TTreeNode* node, TPlace place);
  void Check(const TTreeNode* node) const;
  TPlace PlaceOf(TTreeNode* relative, TNodeAttachMode mode) const;
  TPlace SortedPlace(TTreeNode* parent, TTreeNode* node) const;
  void Link(TTreeNode* node, TPlace place);
  void Unlink(TTreeNode* node);
  void Move(TTreeNode* node, TPlace place);
  void Resort(TTreeNode* node);
  void SortChildren(TTreeNode* parent, bool recurse);
  void DeleteBelow(TTreeNode* parent);
  void Announce(TTreeNode* node, const TWatch& tree);
  void CheckNoneBelowGoes(const TTreeNode* parent) const;
  void Free(TTreeNode* node);
  void CopyChildren(const TTreeNode* from, TTreeNode* to);
  void ReadData(TStream& stream);
  void WriteData(TStream& stream) const;
  TTreeNode* ReadNode(TStream& stream, TTreeNode* parent, int depth);

  TCustomTreeView* FOwner;
  std::unique_ptr<TTreeNode> FRoot;  // The parent of the top level.
  int FCount = 0;
  int FUpdateCount = 0;
  mutable TTreeNode* FLastFound = nullptr;  // What Item found last.
  mutable int FLastIndex = 0;
};

}  // namespace vcl
