// TInspectorList: the list of values that drops down from an inspector's line.
#pragma once

#include <string>
#include <vector>

#include "vcl/stdctrls/listbox.h"

namespace ide {

/// A list in a window of its own above all others, which never takes the keyboard: who shows it
/// hands it the keys. OnClick tells that the user has chosen an item.
class TInspectorList : public vcl::TCustomListBox {
 public:
  explicit TInspectorList(vcl::TComponent* owner);

  /// Shows the values below the rectangle of the screen, or above it where there is no room, with
  /// the current one selected.
  void DropDown(const vcl::TRect& below, const std::vector<std::string>& values,
                const std::string& current);
  void CloseUp();
  bool DroppedDown() const { return FDown; }
  /// The selected item's text; empty for none.
  std::string Chosen() const;
  void Choose(const std::string& value) { SetItemIndex(Items()->IndexOf(value)); }
  /// Moves the selection by so many items, as far as there are some.
  void Step(int by);
  /// The number of items that are seen at once.
  int PageSize() const { return ClientHeight() / ItemHeight(); }

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  bool DispatchOwn(vcl::TMessage& message);
  void SelectAt(const vcl::TMessage& message);

  bool FDown = false;
};

}  // namespace ide
