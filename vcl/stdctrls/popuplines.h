// TPopupLines: a list that drops down, whose lines are asked for when they are seen; TListUnder:
// such a list under an edit that keeps the keyboard.
#pragma once

#include <functional>

#include "vcl/stdctrls/popuplist.h"

namespace vcl {

/// The text of a line, by its index from 0.
using TLineText = std::function<std::string(int)>;

/// A list that drops down and keeps no lines itself: a hundred thousand come as quickly as ten.
/// Owned by the control that it drops down from.
class VCL_API TPopupLines : public TPopupList {
 public:
  explicit TPopupLines(TControl* under);

  /// Shows so many lines below the rectangle of the screen, or above it where there is no room, at
  /// most `most` of them at once, with the current one selected.
  void DropDownLines(const TRect& below, int count, TLineText text, int current, int most);
  /// The selected line's text; empty for none.
  std::string Chosen() const;
  void SetItemIndex(int index) override;
  void DescribeAccessible(TAccessibleInfo& info) const override;
  /// The lines that are seen.
  std::vector<TAccessiblePart> AccessibleParts() override;

 protected:
  int LineCount() const override { return FCount; }
  bool OwnerDraw() const override { return true; }
  void DrawItem(int index, const TRect& rect, TOwnerDrawState state) override;
  void KeepSelection() override {}
  void RestoreSelection() override {}
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;

 private:
  int FCount = 0;
  TLineText FText;
};

/// The list under an edit. The edit opens it, offers it the keys that are pressed (TakeKey) and the
/// messages that it gets (Follow), and hears what has been chosen.
class VCL_API TListUnder {
 public:
  /// Both end with each other, whichever is first.
  explicit TListUnder(TWinControl& edit) : FEdit(edit) {}

  /// Shows the lines; none closes the list. `current` is -1 for no line selected.
  void Open(int count, TLineText text, int current, int most);
  void Close();
  bool IsOpen() const { return FList && FList->DroppedDown(); }
  /// The selected line's index; -1 for none.
  int Current() const { return IsOpen() ? FList->ItemIndex() : -1; }
  /// A key of the edit; true when it is the list's. Enter without a selected line closes the list
  /// and is the edit's.
  bool TakeKey(std::uint16_t key);
  /// What the edit does with a key that its form would take otherwise, while the list is open.
  bool WantsKey(std::uint16_t key) const;
  /// A message of the edit, before it handles that: closes the list when the edit is left, hidden
  /// or moved, and lets the wheel turn the list. True when the message was the list's.
  bool Follow(const TMessage& message);

  /// The user has chosen the line with the index; the list has closed.
  std::function<void(int)> OnChosen;
  /// The list has closed, whatever for.
  std::function<void()> OnClosed;

 private:
  TPopupLines& Needed();
  void Choose();

  TWinControl& FEdit;
  TPopupLines* FList = nullptr;  // The edit's own.
};

}  // namespace vcl
