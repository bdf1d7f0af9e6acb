// TInspectorGrid: names and values of properties in two columns, edited in place.
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "ide/inspectorrows.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/menus/menus.h"

namespace vcl {
class TInplaceEdit;
class TPopupList;
}  // namespace vcl

namespace ide {

/// The grid of one page of an object inspector. The value of the selected line is edited; what is
/// typed holds when Enter is pressed, another line is selected, or the keyboard goes elsewhere;
/// some properties take every character at once. What is typed of a listed value is completed. A
/// value that is refused is shown by the application, and the old one is back.
///
/// Keys: Up, Down, PgUp and PgDn select lines; F4 or Alt+Down drops the list of values down;
/// Ctrl+Enter opens the property's dialog; Escape brings back the old value; Tab goes to the names,
/// where letters search, Left and Right fold, and Tab goes back.
class TInspectorGrid : public vcl::TCustomControl {
 public:
  /// Shows only the properties for which `wanted` is true.
  TInspectorGrid(vcl::TComponent* owner, std::function<bool(const vcl::TPropInfo&)> wanted);
  ~TInspectorGrid() override;

  /// Shows the objects' properties; what is typed and does not hold yet is dropped. The selected
  /// line and what is expanded stay, by their names.
  void SetObjects(vcl::TDesigner* designer, std::vector<vcl::TObject*> objects);
  /// Reads the values anew and paints the lines that look different.
  void Refresh();
  /// Makes what is typed hold. False when it is refused; the old value is back then.
  bool Apply();

  /// See TObjectInspector::ChangeKey.
  std::string ChangeKey() const;

  int RowCount() const { return FRows.Count(); }
  const TInspectorRow& Row(int row) const { return FRows[row]; }
  int IndexOf(const std::string& path) const { return FRows.IndexOf(path); }
  /// The selected line; -1 for none.
  int SelectedRow() const { return FSelected; }
  /// Selects the line and brings it into view; false when what is typed in another is refused.
  bool SelectRow(int row);
  void SetExpanded(int row, bool expanded);
  /// Where the line stands in the grid; its value begins at `Splitter`.
  vcl::TRect RowRect(int row) const;
  /// The line at the height; -1 for none.
  int RowAt(int y) const;
  /// The width of the column of names: the one that was set, as far as both columns stay to be
  /// seen.
  int Splitter() const;
  void SetSplitter(int x);
  /// Runs the property's dialog, or goes on to the next value of its list.
  void EditValue();
  /// Takes the property back to its default.
  void Revert();

  // Screen readers: a part for each line.
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  /// Another line may be the selected one now.
  vcl::TNotifyEvent OnSelect;
  /// The user has moved the splitter.
  vcl::TNotifyEvent OnSplitter;

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void CreateWnd() override;
  void Paint() override;
  void Resize() override;
  void ChangeScale(int m, int d) override;
  void Dispatch(vcl::TMessage& message) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void DblClick() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyPress(char32_t& key) override;

 private:
  enum TButtonKind { bkNone, bkList, bkDialog };
  using TEditorCall = std::function<void(vcl::TPropertyEditor&)>;

  // Lines and their place.
  int RowHeight() const;
  int VisibleRows() const;
  void RowsReplaced(const std::string& selectedPath);
  void InvalidateRow(int row);
  void ScrollTo(int top);
  void Scroll(const vcl::TMessage& message);
  void UpdateScrollBar();

  // Painting.
  void PaintRow(int row);
  void PaintName(vcl::TCanvas* canvas, const TInspectorRow& row, const vcl::TRect& cell,
                 bool selected);
  void PaintValue(vcl::TCanvas* canvas, const TInspectorRow& row, vcl::TRect cell);
  void PaintButton(vcl::TCanvas* canvas, const vcl::TRect& button);
  vcl::TRect SignRect(const TInspectorRow& row, const vcl::TRect& cell) const;

  // The selected line's value.
  TButtonKind ButtonKind() const;
  vcl::TRect ButtonRect() const;
  void PlaceEdit();
  void ShowValue();
  void TellSelected();
  void FocusEdit();
  /// Calls the editor of the selected line; false when it raises, which the application shows.
  bool Call(const TEditorCall& call);
  bool SetValue(const std::string& text);
  std::vector<std::string> ListedValues() const;
  void Complete();
  void TakeBack();
  void KeepValues();
  void EndStretch();
  void DropDown();
  void PressButton();
  void ListChosen(vcl::TObject* sender);
  void EditChanged(vcl::TObject* sender);
  void EditKeyDown(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);
  void EditKeyPress(vcl::TObject* sender, char32_t& key);
  void EditMouseDown(vcl::TObject* sender, vcl::TMouseButton button, vcl::TShiftState shift, int x,
                     int y);
  void EditLeft(vcl::TObject* sender);

  // Keys.
  bool ValueKey(std::uint16_t key, vcl::TShiftState shift);
  bool MoveKey(std::uint16_t key, vcl::TShiftState shift);
  bool FoldKey(std::uint16_t key);
  void Search(char32_t key);
  void MenuPopup(vcl::TObject* sender);

  TInspectorRows FRows;
  int FSelected = -1;
  std::string FSelectedPath;  // Kept while no object has the property.
  int FTop = 0;
  int FSplitter = 112;
  bool FDragsSplitter = false;
  vcl::TInplaceEdit* FEdit;
  vcl::TPopupList* FList;
  vcl::TPopupMenu* FMenu;
  bool FTyped = false;               // The edit holds what the user has typed.
  bool FCompletes = false;           // A character has been typed, not one deleted.
  std::vector<vcl::TValue> FBefore;  // The objects' values, while another is typed and holds.
  int FStretch = 0;                  // Of typing, counted.
  bool FShowing = false;             // The edit's text is being changed by the grid.
  DWORD FPressTime = 0;              // When the press that brought the edit here came.
  std::string FSearch;
  DWORD FSearchTime = 0;
  std::exception_ptr FError;
  vcl::TBitmap FLine;  // What a line is drawn on first.
};

}  // namespace ide
