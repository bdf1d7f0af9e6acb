// TCustomMaskEdit: keys, the clipboard and the caret in the cells of a mask, and leaving it.
#include "vcl/stdctrls/maskedit.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/transfer/clipboard.h"

namespace vcl {

const TClass& TCustomMaskEdit::Class() {
  using T = TCustomMaskEdit;
  static const TClass info = Describe<T, TCustomEdit>(
      "vcl::TCustomMaskEdit", "vcl/stdctrls/stdctrls.h",
      {
          Property<&T::EditMask, &T::SetEditMask>("EditMask")
              .Default("")
              .Type("TEditMask")
              .Unpublished(),
          Property<&T::Text, &T::SetText>("Text").Default("").Unpublished(),
      });
  return info;
}

const TClass& TMaskEdit::Class() {
  static const TClass info = Describe<TMaskEdit, TCustomMaskEdit>(
      "vcl::TMaskEdit", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("AutoSelect"),     Inherit("AutoSize"),     Inherit("BorderStyle"),
          Inherit("CharCase"),       Inherit("Color"),        Inherit("Ctl3D"),
          Inherit("DragCursor"),     Inherit("DragMode"),     Inherit("Enabled"),
          Inherit("EditMask"),       Inherit("Font"),         Inherit("HideSelection"),
          Inherit("ImeMode"),        Inherit("ImeName"),      Inherit("MaxLength"),
          Inherit("ParentColor"),    Inherit("ParentCtl3D"),  Inherit("ParentFont"),
          Inherit("ParentShowHint"), Inherit("PasswordChar"), Inherit("PopupMenu"),
          Inherit("ReadOnly"),       Inherit("ShowHint"),     Inherit("TabOrder"),
          Inherit("TabStop"),        Inherit("Text"),         Inherit("Visible"),
          Inherit("OnChange"),       Inherit("OnClick"),      Inherit("OnDblClick"),
          Inherit(DragEvents),       Inherit(FocusEvents),    Inherit(KeyEvents),
          Inherit(MouseEvents),      Inherit(WheelEvents),    Inherit("OnStartDrag"),
      });
  return info;
}

void TCustomMaskEdit::SetEditMask(const std::string& mask) {
  if (mask == FEditMask) return;
  TMaskText cells = mask.empty() ? TMaskText() : TMaskText(mask);
  const std::string text = Text();
  FEditMask = mask;
  FMask = std::move(cells);
  FCells.clear();
  SendIfAllocated(*this, EM_LIMITTEXT, static_cast<WPARAM>(IsMasked() ? 0 : MaxLength()));
  SetTextBuf(text.c_str());
}

std::string TCustomMaskEdit::Text() const { return IsMasked() ? FMask.Text(FCells) : EditText(); }

/// A text that shows the same leaves the caret where it is.
void TCustomMaskEdit::SetText(const std::string& text) {
  if (IsMasked() && FMask.Edited(text) == FCells) {
    FEntered = EditText();
    return;
  }
  TCustomEdit::SetText(IsMasked() ? FromCells(FMask.Edited(text)) : text);
}

void TCustomMaskEdit::SetTextBuf(const char* text) {
  if (IsMasked()) FCells = FMask.Edited(text);
  const TWatch watch(this);
  TCustomEdit::SetTextBuf(IsMasked() ? FromCells(FCells).c_str() : text);
  // It is no change by the user.
  if (!watch.Gone()) FEntered = EditText();
}

void TCustomMaskEdit::ValidateEdit() {
  const int missing = IsMasked() ? FMask.FirstMissing(FCells) : -1;
  if (missing < 0) return;
  SetSelStart(missing);
  throw EMaskError(Concat("'", EditText(), "' is not complete: the mask ", FEditMask,
                          " requires a character at place ", std::to_string(missing + 1)));
}

void TCustomMaskEdit::Reset() {
  if (!Altered()) return;
  SetText(FEntered);
  SelectAll();
}

/// Shows the cells, as one change that can be undone.
void TCustomMaskEdit::Apply(const TEdited& edited, int caret) {
  const TEdited shown = Shown();
  FCells = edited;
  const auto [from, other] = std::ranges::mismatch(shown, edited);
  const auto start = static_cast<std::size_t>(from - shown.begin());
  std::size_t kept = 0;
  while (kept < std::min(shown.size(), edited.size()) - start &&
         shown[shown.size() - 1 - kept] == edited[edited.size() - 1 - kept]) {
    ++kept;
  }
  const TWatch watch(this);
  if (shown != edited) {
    const TSetFor applying(FApplying, true, this);
    Send(*this, EM_SETSEL, start, static_cast<LPARAM>(shown.size() - kept));
    SetSelText(FromCells(edited.substr(start, edited.size() - kept - start)));
  }
  if (!watch.Gone()) SetSelStart(caret);
}

/// What has come into the window by other ways than keys, such as an input method, goes into the
/// cells where it stands; the caret comes behind what has fitted.
TMaskText::TEdited TCustomMaskEdit::Mended(const TEdited& shown, int& caret) const {
  const auto [at, other] = std::ranges::mismatch(FCells, shown);
  const auto start = static_cast<std::size_t>(at - FCells.begin());
  std::size_t kept = 0;
  while (kept < std::min(shown.size(), FCells.size()) - start &&
         shown[shown.size() - 1 - kept] == FCells[FCells.size() - 1 - kept]) {
    ++kept;
  }
  TEdited mended = FCells;
  FMask.Clear(mended, static_cast<int>(start), static_cast<int>(FCells.size() - kept));
  caret = static_cast<int>(start);
  FMask.TypeAll(mended, caret, shown.substr(start, shown.size() - kept - start));
  return mended;
}

void TCustomMaskEdit::Change() {
  if (IsMasked() && !FApplying && HandleAllocated()) {
    const TEdited shown = Shown();
    if (!FMask.Fits(shown)) {
      int caret = 0;
      const TEdited mended = Mended(shown, caret);
      return Apply(mended, FMask.Next(caret));
    }
    FCells = shown;
  }
  TCustomEdit::Change();
}

void TCustomMaskEdit::CreateWnd() {
  TCustomEdit::CreateWnd();
  if (IsMasked()) Send(*this, EM_LIMITTEXT);
}

void TCustomMaskEdit::ClearCells(int from, int to) {
  TEdited edited = FCells;
  FMask.Clear(edited, from, to);
  Apply(edited, FMask.Next(from));
}

void TCustomMaskEdit::Backspace() {
  if (SelLength() > 0) return ClearSelected();
  const int cell = FMask.Previous(SelStart());
  if (cell < SelStart()) ClearCells(cell, cell + 1);
}

/// Types the characters in place of the selection, or nothing when none fits.
void TCustomMaskEdit::TypeOver(const TEdited& characters) {
  TEdited edited = FCells;
  int caret = SelStart();
  FMask.Clear(edited, caret, caret + SelLength());
  const int refused = FMask.TypeAll(edited, caret, characters);
  if (refused == static_cast<int>(characters.size())) {
    ::MessageBeep(0);
    return;
  }
  Apply(edited, FMask.Next(caret));
}

bool TCustomMaskEdit::MoveCaret(std::uint16_t key) {
  switch (key) {
    case VK_LEFT: SetSelStart(FMask.Previous(SelStart())); return true;
    case VK_RIGHT: SetSelStart(FMask.Next(SelStart() + std::max(SelLength(), 1))); return true;
    case VK_HOME: SetSelStart(FMask.Next(0)); return true;
    default: return false;
  }
}

void TCustomMaskEdit::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TCustomEdit::KeyDown(key, shift);
  if (watch.Gone() || !IsMasked()) return;
  const bool plain = !shift.Has(ssShift) && !shift.Has(ssCtrl);
  if (plain && MoveCaret(key)) {
    key = 0;
  } else if (key == VK_DELETE && !shift.Has(ssShift)) {
    key = 0;
    if (!EditCanModify() || watch.Gone()) return;
    const int cell = FMask.Next(SelStart());
    SelLength() > 0 ? ClearSelected() : ClearCells(cell, cell + 1);
  }
}

void TCustomMaskEdit::KeyPress(char32_t& key) {
  constexpr char32_t paste = 0x16;  // Ctrl+V and Ctrl+X.
  constexpr char32_t cut = 0x18;
  const TWatch watch(this);
  TCustomEdit::KeyPress(key);
  if (watch.Gone() || !IsMasked()) return;
  const char32_t pressed = key;
  const bool takes = pressed >= U' ' || pressed == VK_BACK || pressed == paste || pressed == cut ||
                     (pressed == VK_ESCAPE && Altered());
  if (!takes) return;
  key = 0;
  if (pressed == VK_ESCAPE) return Reset();
  if (!EditCanModify() || watch.Gone()) return;
  switch (pressed) {
    case VK_BACK: return Backspace();
    case paste: return PasteFromClipboard();
    case cut: return CutToClipboard();
    default: return TypeOver({pressed});
  }
}

void TCustomMaskEdit::DoEnter() {
  if (!std::exchange(FStays, false)) FEntered = EditText();
  TCustomEdit::DoEnter();
}

void TCustomMaskEdit::DoExit() {
  if (Altered()) {
    const auto stay = [this] {
      FStays = true;
      SetFocus();
      SetSelStart(FMask.FirstMissing(FCells));
    };
    const TOnFailure refused(stay, this);
    ValidateEdit();
  }
  TCustomEdit::DoExit();
}

/// What keys and the menu of the system's edit send; true when it has been done here.
bool TCustomMaskEdit::TakeCommand(UINT message) {
  switch (message) {
    case WM_PASTE: TypeOver(ToCells(Clipboard()->AsText())); return true;
    case WM_CUT:
      CopyToClipboard();
      ClearSelected();
      return true;
    case WM_CLEAR: ClearSelected(); return true;
    default: return false;
  }
}

void TCustomMaskEdit::Dispatch(TMessage& message) {
  if (message.Msg == CM_WANTSPECIALKEY && message.WParam == VK_ESCAPE && Altered()) {
    message.Result = 1;
    return;
  }
  if (IsMasked() && CanModify() && TakeCommand(message.Msg)) return;
  TCustomEdit::Dispatch(message);
}

}  // namespace vcl
