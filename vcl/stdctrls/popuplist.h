// TPopupList: a list of values that drops down from a line or a cell.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vcl/stdctrls/listbox.h"

namespace vcl {

/// A list in a window of its own above all others, which never takes the keyboard: who shows it
/// hands it the keys. OnClick tells that the user has chosen an item.
class VCL_API TPopupList : public TCustomListBox {
 public:
  explicit TPopupList(TComponent* owner);

  /// Shows the values below the rectangle of the screen, or above it where there is no room, with
  /// the current one selected.
  void DropDown(const TRect& below, const std::vector<std::string>& values,
                const std::string& current);
  void CloseUp();
  bool DroppedDown() const { return FDown; }
  /// The selected item's text; empty for none.
  std::string Chosen() const;
  void Choose(const std::string& value) { SetItemIndex(Items()->IndexOf(value)); }
  /// A key, while the list is down: arrows, Page Up and the like move the selection, Enter chooses,
  /// Escape and F4 close the list. False when the key is not the list's.
  bool TakeKey(std::uint16_t key);
  /// The number of items that are seen at once.
  int PageSize() const { return ClientHeight() / ItemHeight(); }

 protected:
  /// Shows the window, high enough for the lines but for no more than `most`.
  void Open(const TRect& below, int most);
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;

 private:
  void Step(int by);
  bool DispatchOwn(TMessage& message);
  int LineAt(const TMessage& message) const;
  void SelectAt(const TMessage& message);

  bool FDown = false;
};

}  // namespace vcl
