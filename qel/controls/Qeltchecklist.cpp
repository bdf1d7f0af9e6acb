// TQELCheckList: marks as a text, images for them, and columns.
#include "qel/controls/Qeltchecklist.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TCheckBoxState;
using vcl::TRect;

const vcl::TClass& TQELCheckList::Class() {
  using T = TQELCheckList;
  using namespace vcl;
  static const TClass info = Describe<T, TCheckListBox>(
      "qel::TQELCheckList", "qel/controls/Qeltchecklist.h",
      {
          ReadOnly<&T::About>("About"),
          Property<&T::Columns, &T::SetColumns>("Columns").Default(0),
          Property<&T::Glyph, &T::SetGlyph>("Glyph"),
          Property<&T::States, &T::SetStates>("States").StoredIf<&T::AreStatesStored>(),
      });
  return info;
}

TQELCheckList::TQELCheckList(vcl::TComponent* owner)
    : TCheckListBox(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FGlyph(std::make_unique<TQELGlyph>(this)) {
  FGlyph->OnChange = vcl::TNotifyEvent(this, &TQELCheckList::GlyphChanged);
  HearOnlyAsked<TQELCheckList>();
}

TQELCheckList::~TQELCheckList() { AnnounceEnd(); }

// States.

std::string TQELCheckList::States() const {
  std::string states;
  for (int i = 0; i < Items()->Count(); ++i) states += static_cast<char>('0' + State(i));
  return states;
}

void TQELCheckList::SetStates(const std::string& states) {
  if (states.find_first_not_of("012") != std::string::npos) return;
  if (Loading()) {
    FLoadedStates = states;
    return;
  }
  for (int i = 0; i < Items()->Count(); ++i) {
    const auto at = static_cast<std::size_t>(i);
    SetState(i,
             at < states.size() ? static_cast<TCheckBoxState>(states[at] - '0') : vcl::cbUnchecked);
  }
}

bool TQELCheckList::AreStatesStored() const {
  return States().find_first_not_of('0') != std::string::npos;
}

void TQELCheckList::Loaded() {
  TCheckListBox::Loaded();
  if (!FLoadedStates.empty()) SetStates(std::exchange(FLoadedStates, {}));
}

void TQELCheckList::Invert() {
  for (int i = 0; i < Items()->Count(); ++i) {
    if (ItemEnabled(i) && State(i) != vcl::cbGrayed) SetChecked(i, !Checked(i));
  }
}

int TQELCheckList::CheckedCount() const {
  int count = 0;
  for (int i = 0; i < Items()->Count(); ++i) count += Checked(i) ? 1 : 0;
  return count;
}

// Images.

bool TQELCheckList::HasImages() const {
  return FGlyph->Visible() && FGlyph->GetWidth() > 0 && FGlyph->GetHeight() > 0;
}

void TQELCheckList::GlyphChanged(vcl::TObject* /*sender*/) {
  FitItems();
  Invalidate();
}

int TQELCheckList::MarkSize() const {
  if (!HasImages()) return TCheckListBox::MarkSize();
  return std::max(FGlyph->GetWidth(), FGlyph->GetHeight());
}

void TQELCheckList::DrawMark(const TRect& rect, TCheckBoxState state, bool enabled) {
  if (!HasImages()) return TCheckListBox::DrawMark(rect, state, enabled);
  // By number: unchecked, disabled, checked, greyed.
  static constexpr int images[] = {1, 3, 4};
  const int number = enabled || state != vcl::cbUnchecked ? images[state] : 2;
  const bool looksDisabled = number == 2 && FGlyph->HasImage(number);
  FGlyph->DrawImage(Canvas(), rect.Left, rect.Top, number, !enabled && !looksDisabled);
}

// Columns.

void TQELCheckList::SetColumns(int columns) {
  if (columns < 0 || columns == FColumns) return;
  const bool other = (columns == 0) != (FColumns == 0);
  FColumns = columns;
  if (other) {
    RecreateWnd();
  } else {
    FitColumns();
  }
}

void TQELCheckList::CreateParams(vcl::TCreateParams& params) {
  TCheckListBox::CreateParams(params);
  if (FColumns == 0) return;
  params.Style = (params.Style & ~static_cast<DWORD>(WS_VSCROLL)) | WS_HSCROLL | LBS_MULTICOLUMN;
}

void TQELCheckList::CreateWnd() {
  const vcl::TWatch watch(this);
  TCheckListBox::CreateWnd();
  if (!watch.Gone()) FitColumns();
}

void TQELCheckList::Resize() {
  const vcl::TWatch watch(this);
  TCheckListBox::Resize();
  if (!watch.Gone()) FitColumns();
}

void TQELCheckList::FitColumns() {
  if (FColumns == 0 || !HandleAllocated()) return;
  vcl::Send(*this, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(std::max(ClientWidth() / FColumns, 1)));
}

}  // namespace qel
