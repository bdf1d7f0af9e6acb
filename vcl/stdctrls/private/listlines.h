// TListLines: the items of a list box or combo box, kept here and shown by its window.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "vcl/rtl/strings.h"
#include "vcl/rtl/win32.h"

namespace vcl {

class TCustomListControl;

/// What a list's window calls its messages.
struct TListMessages {
  UINT Insert;
  UINT Delete;
  UINT Reset;
  UINT GetSelected;
  UINT SetSelected;
  UINT GetItemSelected;  ///< 0 where at most one item is selected.
  UINT SetItemSelected;
  UINT SetItemHeight;
  UINT SetFieldHeight;  ///< For -1 as index; 0 where there is no field.
};
extern const TListMessages ListBoxMessages;
extern const TListMessages ComboBoxMessages;

/// The items. The lines here are the list; the window, while there is one, is told of every change.
/// When it refuses (EOutOfResources), the list stays as it was. While there is no window, the lines
/// also remember which of them are selected.
class TListLines : public TStrings {
 public:
  TListLines(TCustomListControl& control, const TListMessages& messages)
      : FControl(control), FMessages(messages) {}

  int Count() const override { return static_cast<int>(FLines.size()); }
  std::string Strings(int index) const override;
  /// Raises EStringListError for a sorted list, as InsertObject does.
  void SetStrings(int index, const std::string& text) override;
  TObject* Objects(int index) const override;
  void SetObjects(int index, TObject* object) override;
  int AddObject(const std::string& text, TObject* object) override;
  void InsertObject(int index, const std::string& text, TObject* object) override;
  void Delete(int index) override;
  void Clear() override;

  bool Sorted() const { return FSorted; }
  /// Sorts by the user's language, without case. To be called with the selection kept here.
  void SetSorted(bool sorted);
  /// Raises EStringListError for an index that is not an item's.
  void CheckItem(int index) const { CheckIndex(index, Count()); }

  // What the lines remember for the window.
  bool Selected(int index) const;
  void SetSelected(int index, bool selected);
  /// What a class keeps of its own with an item; 0 at first.
  int Mark(int index) const { return Line(index).Mark; }
  void SetMark(int index, int mark) { Line(index).Mark = mark; }
  int FirstSelected() const;
  /// Selects this one only; -1: none.
  void SelectOnly(int index);
  /// Gives the window all items.
  void FillWindow();

 protected:
  void SetUpdateState(bool updating) override;

 private:
  struct TLine {
    std::string Text;
    TObject* Object;
    bool Selected;
    int Mark = 0;
  };
  TLine& Line(int index);
  const TLine& Line(int index) const;
  int SortedPlace(const std::string& text) const;
  void RefuseWhenSorted() const;
  void InsertLine(int index, const std::string& text, TObject* object);
  void TellInserted(int index, const std::string& text);
  bool SelectedInWindow(int index) const;
  void SelectInWindow(int index);

  TCustomListControl& FControl;
  const TListMessages& FMessages;
  std::vector<TLine> FLines;
  bool FSorted = false;
};

}  // namespace vcl
