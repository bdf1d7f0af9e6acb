// TPageControl and its pages, TTabSheet.
#pragma once

#include <string>
#include <vector>

#include "vcl/controls/wincontrol.h"

namespace vcl {

class TTabSheet;

/// Sender, whether the user may leave the page.
using TTabChangingEvent = TEvent<TObject*, bool&>;

/// Pages behind each other, each with a tab. What the user changes fires OnChanging and OnChange;
/// what code changes does not.
class VCL_API TPageControl : public TWinControl {
 public:
  explicit TPageControl(TComponent* owner);
  ~TPageControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const TAccessiblePath& part) override;

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
  void SelectNextPage(bool goForward);
  bool MultiLine() const { return FMultiLine; }
  /// True: tabs that do not fit stand in another row.
  void SetMultiLine(bool multiLine);
  /// The page whose tab is at the position; null for none.
  TTabSheet* PageAtPos(TPoint position) const;

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

  /// The user has brought another page to the front.
  TNotifyEvent OnChange;
  /// The user is about to leave the page, which the handler may refuse.
  TTabChangingEvent OnChanging;

 protected:
  virtual bool CanChange();
  virtual void Change();
  void ShowControl(TControl* control) override;
  void AdjustClientRect(TRect& rect) const override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;

 private:
  friend class TTabSheet;
  void InsertPage(TTabSheet* page);
  void RemovePage(TTabSheet* page);
  void MovePage(TTabSheet* page, int index);
  void UpdateTabs();
  void UpdateTab(TTabSheet* page);
  void ShowActiveTab();
  void PageGone(int formerIndex);
  void UserSelects(TTabSheet* page);
  TTabSheet* PageOfTab(int tab) const;
  bool HasFocusInside() const;
  void MoveFocusTo(TTabSheet* page);
  void NotifyFromWindow(TMessage& message);
  bool TakesAccel(WPARAM character);

  std::vector<TTabSheet*> FPages;
  TTabSheet* FActivePage = nullptr;
  bool FMultiLine = false;
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
  bool FTabVisible = true;
};

}  // namespace vcl
