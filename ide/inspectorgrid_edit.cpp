// TInspectorGrid: the value of the selected line: its edit, its button, its list.
#include <algorithm>

#include "ide/inspectorgrid.h"
#include "ide/inspectorlayout.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/inplaceedit.h"
#include "vcl/stdctrls/popuplist.h"

namespace ide {

using vcl::TRect;

// Where it stands.

TInspectorGrid::TButtonKind TInspectorGrid::ButtonKind() const {
  if (FSelected < 0) return bkNone;
  const vcl::TPropertyEditor& editor = *Row(FSelected).Editor;
  if (editor.Offers(vcl::paValueList) && !editor.ReadOnly()) return bkList;
  return editor.Offers(vcl::paDialog) ? bkDialog : bkNone;
}

TRect TInspectorGrid::ButtonRect() const {
  const TRect row = RowRect(FSelected);
  return {row.Right - ScaledPixels(layout::ButtonWidth), row.Top, row.Right, row.Bottom - 1};
}

void TInspectorGrid::PlaceEdit() {
  FEdit->SetVisible(FSelected >= 0);
  if (FSelected < 0 || !HandleAllocated()) return;
  const TInspectorRow& row = Row(FSelected);
  TRect cell = RowRect(FSelected);
  cell.Left = Splitter() + 1 + ScaledPixels(layout::TextIndent) +
              (row.Color ? ScaledPixels(layout::SwatchWidth) : 0);
  if (ButtonKind() != bkNone) cell.Right = ButtonRect().Left;
  FEdit->SetBounds(cell.Left, cell.Top + ScaledPixels(layout::TextMargin),
                   std::max(cell.Width(), 0), cell.Height() - ScaledPixels(layout::TextMargin) - 1);
  ShowValue();
}

// What the user has typed stays until it holds or is dropped.
void TInspectorGrid::ShowValue() {
  if (FSelected < 0 || FTyped) return;
  const TInspectorRow& row = Row(FSelected);
  const vcl::TSetFor showing(FShowing, true, this);
  FEdit->Font()->SetStyle(row.Default ? vcl::TFontStyles{} : vcl::TFontStyles{vcl::fsBold});
  FEdit->SetReadOnly(row.ReadOnly);
  FEdit->SetAccessibleName(row.Path);
  if (FEdit->Text() != row.Value) FEdit->SetText(row.Value);
}

void TInspectorGrid::FocusEdit() {
  if (!FEdit->CanFocus()) return;
  FEdit->SetFocus();
  FEdit->SelectAll();
}

// Changing it.

bool TInspectorGrid::Call(const TEditorCall& call) {
  if (FSelected < 0) return true;
  // Kept alive until it returns, whatever the call does to the selection.
  const auto editor = Row(FSelected).Editor;
  vcl::TWatch watch(this);
  std::exception_ptr error;
  try {
    call(*editor);
  } catch (...) {
    error = std::current_exception();
  }
  if (watch.Gone()) return false;
  // Shown when what happens now is over: a box in the middle of a change of focus confuses it.
  if (error) {
    FError = error;
    ::PostMessageW(Handle(), layout::MessageShowError, 0, 0);
  }
  Refresh();
  return !error;
}

bool TInspectorGrid::SetValue(const std::string& text) {
  return Call([&](vcl::TPropertyEditor& editor) { editor.SetValue(text); });
}

bool TInspectorGrid::Apply() {
  EndStretch();
  if (!FTyped) return true;
  FTyped = false;
  return SetValue(FEdit->Text());
}

void TInspectorGrid::EditChanged(vcl::TObject* /*sender*/) {
  if (FShowing || FSelected < 0) return;
  FTyped = true;
  Complete();
  if (!Row(FSelected).Editor->Offers(vcl::paAutoUpdate)) return;
  KeepValues();
  // The text itself stays as it is typed.
  const std::string text = FEdit->Text();
  if (SetValue(text)) FTyped = false;
}

void TInspectorGrid::KeepValues() {
  if (!FBefore.empty()) return;
  for (const vcl::TEditedProperty& each : Row(FSelected).Editor->Edited()) {
    FBefore.push_back(each.Property->Get(*each.Object));
  }
}

void TInspectorGrid::EndStretch() {
  FBefore.clear();
  ++FStretch;
}

std::string TInspectorGrid::ChangeKey() const {
  return FBefore.empty() ? std::string() : vcl::Concat("type ", vcl::IntToStr(FStretch));
}

// Adds to what has been typed of a listed value the rest, selected so that typing goes on over it.
void TInspectorGrid::Complete() {
  if (!std::exchange(FCompletes, false) || ButtonKind() != bkList) return;
  const int length = FEdit->SelStart();
  const std::string typed = FEdit->Text();
  if (length != static_cast<int>(vcl::ToUtf16(typed).size())) return;
  const auto values = ListedValues();
  const auto found = std::ranges::find_if(values, [&](const std::string& value) {
    return vcl::SameText(value.substr(0, typed.size()), typed);
  });
  if (found == values.end()) return;
  {
    const vcl::TSetFor showing(FShowing, true, this);
    FEdit->SetText(*found);
  }
  FEdit->SetSelStart(length);
  FEdit->SetSelLength(static_cast<int>(vcl::ToUtf16(*found).size()) - length);
  if (FList->DroppedDown()) FList->Choose(*found);
}

// Gives the objects the values back that they had before the user typed.
void TInspectorGrid::TakeBack() {
  FTyped = false;
  const auto before = FBefore;
  Call([&](vcl::TPropertyEditor& editor) {
    for (std::size_t i = 0; i < std::min(before.size(), editor.Edited().size()); ++i) {
      const vcl::TEditedProperty& each = editor.Edited()[i];
      each.Property->Set(*each.Object, before[i]);
    }
    if (!before.empty()) editor.Designer().Modified();
  });
  EndStretch();
  ShowValue();
}

void TInspectorGrid::EditLeft(vcl::TObject* /*sender*/) {
  FList->CloseUp();
  Apply();
  EndStretch();
}

void TInspectorGrid::EditValue() {
  if (!Apply()) return;
  Call([](vcl::TPropertyEditor& editor) { editor.Edit(); });
}

void TInspectorGrid::Revert() {
  FTyped = false;
  EndStretch();
  Call([](vcl::TPropertyEditor& editor) { editor.Revert(); });
}

void TInspectorGrid::MenuPopup(vcl::TObject* /*sender*/) {
  const bool can = FSelected >= 0 && !Row(FSelected).Default && Row(FSelected).Editor->CanRevert();
  vcl::TMenuItem* revert = FMenu->Items()->Items(0);
  revert->SetEnabled(can);
  revert->SetCaption(can && Row(FSelected).Editor->Inherits() ? "&Revert to Inherited"
                                                              : "&Revert to Default");
}

// Its list and its button.

std::vector<std::string> TInspectorGrid::ListedValues() const {
  const auto editor = Row(FSelected).Editor;
  std::vector<std::string> values;
  editor->GetValues([&](const std::string& value) { values.push_back(value); });
  if (editor->Offers(vcl::paSortList)) {
    std::ranges::sort(values,
                      [](const auto& a, const auto& b) { return vcl::CompareText(a, b) < 0; });
  }
  return values;
}

void TInspectorGrid::DropDown() {
  if (ButtonKind() != bkList) return;
  const auto values = ListedValues();
  if (values.empty()) return;
  const TRect row = RowRect(FSelected);
  const vcl::TPoint from = ClientToScreen({Splitter() + 1, row.Top});
  const vcl::TPoint to = ClientToScreen({row.Right, row.Bottom});
  FList->SetFont(Font());
  FList->DropDown({from.X, from.Y, to.X, to.Y}, values, Row(FSelected).Value);
}

void TInspectorGrid::PressButton() {
  if (ButtonKind() == bkDialog) return EditValue();
  FList->DroppedDown() ? FList->CloseUp() : DropDown();
}

void TInspectorGrid::ListChosen(vcl::TObject* /*sender*/) {
  const std::string value = FList->Chosen();
  FList->CloseUp();
  FTyped = false;
  if (SetValue(value)) FocusEdit();
}

}  // namespace ide
