// TCustomTreeView: its settings, the selected and the expanded nodes, and its events.
#include "vcl/stdctrls/treeview.h"

#include <utility>

#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TCustomTreeView::Class() {
  using T = TCustomTreeView;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCustomTreeView", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::ShowButtons, &T::SetShowButtons>("ShowButtons").Default(true).Unpublished(),
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsSingle)
              .Unpublished(),
          Property<&T::ShowLines, &T::SetShowLines>("ShowLines").Default(true).Unpublished(),
          Property<&T::ShowRoot, &T::SetShowRoot>("ShowRoot").Default(true).Unpublished(),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false).Unpublished(),
          Property<&T::RightClickSelect, &T::SetRightClickSelect>("RightClickSelect")
              .Default(false)
              .Unpublished(),
          Property<&T::HideSelection, &T::SetHideSelection>("HideSelection")
              .Default(true)
              .Unpublished(),
          Property<&T::Indent, &T::SetIndent>("Indent").Unpublished(),
          Property<&T::Images, &T::SetImages>("Images").Unpublished(),
          Property<&T::StateImages, &T::SetStateImages>("StateImages").Unpublished(),
          Property<&T::SortType, &T::SetSortType>("SortType").Default(stNone).Unpublished(),
          Property<&T::Items, &T::SetItems>("Items").Unpublished(),
          Event<&T::OnEditing>("OnEditing")
              .Type("TTVEditingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow")
              .Unpublished(),
          Event<&T::OnEdited>("OnEdited")
              .Type("TTVEditedEvent",
                    "vcl::TObject* sender, vcl::TTreeNode* node, std::string& text")
              .Unpublished(),
          Event<&T::OnExpanding>("OnExpanding")
              .Type("TTVExpandingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow")
              .Unpublished(),
          Event<&T::OnExpanded>("OnExpanded")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node")
              .Unpublished(),
          Event<&T::OnCollapsing>("OnCollapsing")
              .Type("TTVCollapsingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow")
              .Unpublished(),
          Event<&T::OnCompare>("OnCompare")
              .Type("TTVCompareEvent",
                    "vcl::TObject* sender, vcl::TTreeNode* first, vcl::TTreeNode* second, int "
                    "data, int& order")
              .Unpublished(),
          Event<&T::OnCollapsed>("OnCollapsed")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node")
              .Unpublished(),
          Event<&T::OnChanging>("OnChanging")
              .Type("TTVChangingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow")
              .Unpublished(),
          Event<&T::OnChange>("OnChange")
              .Type("TTVChangedEvent", "vcl::TObject* sender, vcl::TTreeNode* node")
              .Unpublished(),
          Event<&T::OnDeletion>("OnDeletion")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node")
              .Unpublished(),
          Event<&T::OnGetImageIndex>("OnGetImageIndex")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node")
              .Unpublished(),
          Event<&T::OnGetSelectedIndex>("OnGetSelectedIndex")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node")
              .Unpublished(),
      });
  return info;
}

const TClass& TTreeView::Class() {
  static const TClass info =
      Describe<TTreeView, TCustomTreeView>("vcl::TTreeView", "vcl/stdctrls/comctrls.h",
                                           {
                                               Inherit("ShowButtons"),
                                               Inherit("BorderStyle"),
                                               Inherit("DragCursor"),
                                               Inherit("ShowLines"),
                                               Inherit("ShowRoot"),
                                               Inherit("ReadOnly"),
                                               Inherit("RightClickSelect"),
                                               Inherit("DragMode"),
                                               Inherit("HideSelection"),
                                               Inherit("Indent"),
                                               Inherit("OnEditing"),
                                               Inherit("OnEdited"),
                                               Inherit("OnExpanding"),
                                               Inherit("OnExpanded"),
                                               Inherit("OnCollapsing"),
                                               Inherit("OnCompare"),
                                               Inherit("OnCollapsed"),
                                               Inherit("OnChanging"),
                                               Inherit("OnChange"),
                                               Inherit("OnDeletion"),
                                               Inherit("OnGetImageIndex"),
                                               Inherit("OnGetSelectedIndex"),
                                               Inherit("Align"),
                                               Inherit("Enabled"),
                                               Inherit("Font"),
                                               Inherit("Color"),
                                               Inherit("ParentColor").Default(false),
                                               Inherit("ParentCtl3D"),
                                               Inherit("Ctl3D"),
                                               Inherit("SortType"),
                                               Inherit("TabOrder"),
                                               Inherit("TabStop").Default(true),
                                               Inherit("Visible"),
                                               Inherit("OnClick"),
                                               Inherit(FocusEvents),
                                               Inherit("OnDragDrop"),
                                               Inherit("OnDragOver"),
                                               Inherit("OnStartDrag"),
                                               Inherit("OnEndDrag"),
                                               Inherit(MouseEvents),
                                               Inherit(WheelEvents),
                                               Inherit("OnDblClick"),
                                               Inherit(KeyEvents),
                                               Inherit("PopupMenu"),
                                               Inherit("ParentFont"),
                                               Inherit("ParentShowHint"),
                                               Inherit("ShowHint"),
                                               Inherit("Images"),
                                               Inherit("StateImages"),
                                               // The nodes come when what they need is there.
                                               Inherit("Items"),
                                           });
  return info;
}

TCustomTreeView::TCustomTreeView(TComponent* owner)
    : TWinControl(owner), FItems(std::make_unique<TTreeNodes>(this)) {
  // The window captures the mouse itself, and lets it go, while it handles a press.
  SetControlStyle(ControlStyle() - TControlStyle{csCaptureMouse, csSetCaption});
  SetBounds(0, 0, 121, 97);
  SetTabStop(true);
  SetParentColor(false);
  FImages.Link.OnChange = [this](TObject*) { SendImages(); };
  FStateImages.Link.OnChange = [this](TObject*) { SendImages(); };
}

TCustomTreeView::~TCustomTreeView() {
  AnnounceEnd();
  FItems->Clear();
}

std::unique_ptr<TTreeNode> TCustomTreeView::CreateNode() {
  return std::make_unique<TTreeNode>(FItems.get());
}

// ---- Settings ----

/// What the window takes as a style.
template <class T>
void TCustomTreeView::ChangeStyle(T& field, T value, DWORD style, bool on) {
  if (value == field) return;
  field = value;
  if (!HandleAllocated()) return;
  const auto now = static_cast<DWORD>(::GetWindowLongW(Handle(), GWL_STYLE));
  ::SetWindowLongW(Handle(), GWL_STYLE, static_cast<LONG>(on ? now | style : now & ~style));
  Invalidate();
}

void TCustomTreeView::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  RecreateWnd();
}

void TCustomTreeView::SetHideSelection(bool hide) {
  ChangeStyle(FHideSelection, hide, TVS_SHOWSELALWAYS, !hide);
}
void TCustomTreeView::SetReadOnly(bool readOnly) {
  ChangeStyle(FReadOnly, readOnly, TVS_EDITLABELS, !readOnly);
}
void TCustomTreeView::SetShowButtons(bool show) {
  ChangeStyle(FShowButtons, show, TVS_HASBUTTONS, show);
}
void TCustomTreeView::SetShowLines(bool show) { ChangeStyle(FShowLines, show, TVS_HASLINES, show); }
void TCustomTreeView::SetShowRoot(bool show) {
  ChangeStyle(FShowRoot, show, TVS_LINESATROOT, show);
}

void TCustomTreeView::ChangeScale(int m, int d) {
  TWinControl::ChangeScale(m, d);
  SetIndent(ScaleMeasure(FIndent, m, d));
  SendImages();
}

void TCustomTreeView::SetIndent(int indent) {
  FIndent = indent;
  SendIfAllocated(*this, TVM_SETINDENT, static_cast<WPARAM>(indent));
}

void TCustomTreeView::SetSortType(TSortType type) {
  if (type == FSortType) return;
  FSortType = type;
  if (Sorted()) AlphaSort();
}

void TCustomTreeView::SetImages(TImageList* images) { LinkImages(FImages, images); }
void TCustomTreeView::SetStateImages(TImageList* images) { LinkImages(FStateImages, images); }

void TCustomTreeView::LinkImages(TLinkedImages& linked, TImageList* images) {
  if (linked.Take(images, *this)) SendImages();
}

void TCustomTreeView::Notification(TComponent* component, TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FImages.List) SetImages(nullptr);
  if (component == FStateImages.List) SetStateImages(nullptr);
}

HIMAGELIST TCustomTreeView::NormalImages() const { return HandleFor(FImages.List); }

/// The pictures at the size for the tree's dots per inch.
HIMAGELIST TCustomTreeView::HandleFor(TImageList* images) const {
  return images ? images->ForPPI(CurrentPPI())->Handle() : nullptr;
}

// ---- Nodes ----

void TCustomTreeView::FullExpand() {
  for (TTreeNode* node = FItems->GetFirstNode(); node;) {
    TWatch watch(node);
    node->Expand(true);
    if (watch.Gone()) return;
    node = node->GetNextSibling();
  }
}

void TCustomTreeView::FullCollapse() {
  for (TTreeNode* node = FItems->GetFirstNode(); node;) {
    TWatch watch(node);
    node->Collapse(true);
    if (watch.Gone()) return;
    node = node->GetNextSibling();
  }
}

void TCustomTreeView::AlphaSort() { FItems->SortChildren(FItems->FRoot.get(), true); }

int TCustomTreeView::Compare(TTreeNode* first, TTreeNode* second) {
  int order = 0;
  if (OnCompare) {
    OnCompare(this, first, second, 0, order);
  } else {
    order = ::lstrcmpW(ToUtf16(first->Text()).c_str(), ToUtf16(second->Text()).c_str());
  }
  return order;
}

void TCustomTreeView::SetSelected(TTreeNode* node) {
  FItems->Check(node);
  if (node == FSelected) return;
  // The window asks and tells by its notifications.
  if (HandleAllocated()) return SelectItem(node);
  TWatch watch(this);
  if (!CanChange(node) || watch.Gone()) return;
  FSelected = node;
  if (node) node->MakeVisible();
  if (!watch.Gone()) Change(FSelected);
}

void TCustomTreeView::SetExpanded(TTreeNode* node, bool expand) {
  if (node->FExpanded == expand || (expand && !node->HasChildren())) return;
  TWatch watch(node);
  if (!(expand ? CanExpand(node) : CanCollapse(node)) || watch.Gone()) return;
  if (expand && !node->FFirst) return;
  node->FExpanded = expand;
  ExpandItem(node);
  // A collapsed node hides nothing that is selected.
  if (!HandleAllocated() && !expand && FSelected && FSelected->HasAsParent(node)) {
    SetSelected(node);
  }
  if (!watch.Gone()) SelectionMayHaveMoved();
  if (watch.Gone()) return;
  expand ? Expand(node) : Collapse(node);
}

// ---- Events ----

bool TCustomTreeView::CanChange(TTreeNode* node) {
  bool allow = true;
  OnChanging(this, node, allow);
  return allow;
}
void TCustomTreeView::Change(TTreeNode* node) { OnChange(this, node); }

bool TCustomTreeView::CanExpand(TTreeNode* node) {
  bool allow = true;
  OnExpanding(this, node, allow);
  return allow;
}
void TCustomTreeView::Expand(TTreeNode* node) { OnExpanded(this, node); }

bool TCustomTreeView::CanCollapse(TTreeNode* node) {
  bool allow = true;
  OnCollapsing(this, node, allow);
  return allow;
}
void TCustomTreeView::Collapse(TTreeNode* node) { OnCollapsed(this, node); }

bool TCustomTreeView::CanEdit(TTreeNode* node) {
  bool allow = !FReadOnly;
  if (allow) OnEditing(this, node, allow);
  return allow;
}

void TCustomTreeView::Edit(TTreeNode* node, std::string text) {
  TWatch watch(node);
  OnEdited(this, node, text);
  if (!watch.Gone()) node->SetText(text);
}

void TCustomTreeView::Delete(TTreeNode* node) { OnDeletion(this, node); }
void TCustomTreeView::GetImageIndex(TTreeNode* node) { OnGetImageIndex(this, node); }
void TCustomTreeView::GetSelectedIndex(TTreeNode* node) { OnGetSelectedIndex(this, node); }

void TCustomTreeView::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arOutline;
  info.SystemItems = true;
}

}  // namespace vcl
