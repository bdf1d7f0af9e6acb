// TNotesForm: editing, searching, and what the status bar says.
#include <algorithm>
#include <optional>

#include "demos/notes/notesform.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace notes {

using namespace vcl;

namespace {

enum TPanelIndex { HintPanel, CaretPanel, ModifiedPanel, CodingPanel, EndsPanel };
constexpr const char* EndNames[] = {"CR LF", "LF", "CR"};

std::wstring LowerCase(std::wstring text) {
  ::CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

/// The place of the text after a position, round the end.
std::optional<std::size_t> FindFrom(const std::wstring& text, const std::wstring& what,
                                    std::size_t from) {
  auto found = text.find(what, from);
  if (found == std::wstring::npos) found = text.find(what);
  return found == std::wstring::npos ? std::nullopt : std::optional(found);
}

}  // namespace

void TNotesForm::EditorChange(TObject*) { ++FChanges; }

// Searching.

void TNotesForm::FindClick(TObject*) { FFind->Ask(Editor->SelText()); }

void TNotesForm::FindNextClick(TObject* sender) {
  if (FFind->What().empty()) return FindClick(sender);
  std::wstring text = ToUtf16(Editor->Text()), what = ToUtf16(FFind->What());
  if (!FFind->MatchCase()) {
    text = LowerCase(std::move(text));
    what = LowerCase(std::move(what));
  }
  const auto from = static_cast<std::size_t>(Editor->SelStart() + Editor->SelLength());
  const auto found = FindFrom(text, what, from);
  if (!found) {
    ::MessageBeep(MB_ICONASTERISK);
    return Tell(Concat("\"", FFind->What(), "\" is nowhere in the text"));
  }
  Editor->SetSelStart(static_cast<int>(*found));
  Editor->SetSelLength(static_cast<int>(what.size()));
  ::SendMessageW(Editor->Handle(), EM_SCROLLCARET, 0, 0);
  Tell({});
}

// The status bar.

void TNotesForm::Tell(const std::string& message) { ShowPanel(HintPanel, message); }

void TNotesForm::ShowPanel(int panel, const std::string& text) {
  StatusBar->Panels()->Items(panel)->SetText(text);
}

// The first panel takes what the others leave.
void TNotesForm::FormResize(TObject*) {
  int others = 0;
  for (int i = 1; i < StatusBar->Panels()->Count(); ++i)
    others += StatusBar->Panels()->Items(i)->Width();
  StatusBar->Panels()->Items(HintPanel)->SetWidth(std::max(StatusBar->Width() - others, 0));
}

/// Rows that word wrap makes do not count.
std::string TNotesForm::CaretText() const {
  const std::wstring text = ToUtf16(Editor->Text());
  const auto caret = std::min<std::size_t>(
      static_cast<std::size_t>(Editor->SelStart() + Editor->SelLength()), text.size());
  const auto begin = text.begin(), end = begin + static_cast<std::ptrdiff_t>(caret);
  const auto line = std::count(begin, end, L'\n') + 1;
  const auto column = end - std::find(std::reverse_iterator(end), text.rend(), L'\n').base() + 1;
  return Concat("Line ", std::to_string(line), ", column ", std::to_string(column));
}

/// Called whenever the program has nothing else to do, so it asks little of the window.
void TNotesForm::UpdateStatus() {
  const bool modified = Editor->Modified();
  const std::string caption = Concat(modified ? "*" : "", DocumentName(), " - Notes");
  if (Caption() != caption) SetCaption(caption);
  ShowPanel(ModifiedPanel, modified ? "Modified" : "");
  ShowPanel(CodingPanel, FFormat.ByteOrderMark ? "UTF-8 BOM" : "UTF-8");
  ShowPanel(EndsPanel, EndNames[static_cast<int>(FFormat.LineEnds)]);
  const int caret = Editor->SelStart() + Editor->SelLength();
  if (caret == FShownCaret && FChanges == FShownChanges) return;
  FShownCaret = caret;
  FShownChanges = FChanges;
  ShowPanel(CaretPanel, CaretText());
}

}  // namespace notes
