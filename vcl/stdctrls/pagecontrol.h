// TPageControl and its pages, TTabSheet.
#pragma once

#include <string>
#include <vector>

#include "vcl/stdctrls/customtabs.h"

namespace vcl {

class TTabSheet;

/// Pages behind each other, each with a tab.
class VCL_API TPageControl : public TCustomTabControl {
 public:
  explicit TPageControl(TComponent* owner);
  ~TPageControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  int PageCount() const { return static_cast<int>(FPages.size()); }
  /// The page at the index from 0, tab or not. Raises EListError outside.
  TTabSheet* Pages(int index) const;
  /// The page in front; null for none.
  TTabSheet* ActivePage() const { return FActivePage; }
  /// Shows the page; null for none. Raises EInvalidOperation for a page of another page control.
  void SetActivePage(TTabSheet* page);
  int ActivePageIndex() const;
  /// -1 for none; raises EListError outside.
  void SetActivePageIndex(int index);
  /// The page after (or before) `current` with a tab, when `checkTabVisible`; round the end. Null
  /// when there is none. The one after null is the first.
  TTabSheet* FindNextPage(TTabSheet* current, bool goForward, bool checkTabVisible) const;
  /// Goes to the next page with a tab, as the user does with Ctrl+Tab.
  void SelectNextPage(bool goForward) { UserSelectsNext(goForward); }
  /// The page whose tab is at the position; null for none.
  TTabSheet* PageAtPos(TPoint position) const;

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

 protected:
  std::vector<TTabLook> TabLooks() const override;
  int ActiveTab() const override;
  void ActivateTab(int tab) override { SetActivePage(PageOfTab(tab)); }
  bool HasFocusInside() const override { return Focused() || PageHasFocus(); }
  void UserSelectsNext(bool goForward) override;
  void ShowControl(TControl* control) override;
  void Loaded() override;

 private:
  friend class TTabSheet;
  void InsertPage(TTabSheet* page);
  void RemovePage(TTabSheet* page);
  void MovePage(TTabSheet* page, int index);
  void PageGone(int formerIndex);
  TTabSheet* PageOfTab(int tab) const;
  bool PageHasFocus() const;
  void MoveFocusTo(TTabSheet* page);

  std::vector<TTabSheet*> FPages;
  TTabSheet* FActivePage = nullptr;
};

/// A page. Its caption is its tab's text; it fills the page control, which shows and hides it.
class VCL_API TTabSheet : public TWinControl {
 public:
  explicit TTabSheet(TComponent* owner);
  ~TTabSheet() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TPageControl* PageControl() const;
  /// Puts the page into the page control, behind its other pages; null takes it out.
  void SetPageControl(TPageControl* pageControl);
  /// Raises EInvalidOperation for a parent that is no page control.
  void SetParent(TWinControl* parent) override;
  /// In a page control the active page is visible, and no other: true makes this one active, false
  /// leaves none active when this one is.
  void SetVisible(bool visible) override;
  /// The place among the pages; -1 without a page control.
  int PageIndex() const;
  /// Raises EListError outside. While a form is being read, it is taken from the order there.
  void SetPageIndex(int index);
  int ImageIndex() const { return FImageIndex; }
  /// The picture on the tab, in the page control's Images; -1 for none. Less is taken as -1.
  void SetImageIndex(int index);
  bool TabVisible() const { return FTabVisible; }
  /// False: the page has no tab; when it is the active one, another page becomes active.
  void SetTabVisible(bool visible);
  /// The place among the tabs; -1 without one.
  int TabIndex() const;

  /// The page has become visible.
  TNotifyEvent OnShow;
  /// The page is no longer visible.
  TNotifyEvent OnHide;

 protected:
  void Dispatch(TMessage& message) override;
  const TWinControl* SizeGiver() const override;

 private:
  int FImageIndex = -1;
  bool FTabVisible = true;
};

}  // namespace vcl
