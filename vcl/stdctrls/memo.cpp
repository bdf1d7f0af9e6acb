// TCustomMemo: wrapping and scroll bars, and whether it takes Tab and Enter.
#include "vcl/stdctrls/memo.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/private/memolines.h"

namespace vcl {

const TClass& TCustomMemo::Class() {
  using T = TCustomMemo;
  static const TClass info = Describe<T, TCustomEdit>(
      "vcl::TCustomMemo", "vcl/stdctrls/stdctrls.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment")
              .Default(taLeftJustify)
              .Unpublished(),
          Property<&T::Lines, &T::SetLines>("Lines").Unpublished(),
          Property<&T::ScrollBars, &T::SetScrollBars>("ScrollBars").Default(ssNone).Unpublished(),
          Property<&T::WantReturns, &T::SetWantReturns>("WantReturns").Default(true).Unpublished(),
          Property<&T::WantTabs, &T::SetWantTabs>("WantTabs").Default(false).Unpublished(),
          Property<&T::WordWrap, &T::SetWordWrap>("WordWrap").Default(true).Unpublished(),
      });
  return info;
}

const TClass& TMemo::Class() {
  static const TClass info = Describe<TMemo, TCustomMemo>(
      "vcl::TMemo", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Align"),         Inherit("Alignment"),   Inherit("BorderStyle"),
          Inherit("Color"),         Inherit("Ctl3D"),       Inherit("DragCursor"),
          Inherit("DragMode"),      Inherit("Enabled"),     Inherit("Font"),
          Inherit("HideSelection"), Inherit("ImeMode"),     Inherit("ImeName"),
          Inherit("Lines"),         Inherit("MaxLength"),   Inherit("ParentColor"),
          Inherit("ParentCtl3D"),   Inherit("ParentFont"),  Inherit("ParentShowHint"),
          Inherit("PopupMenu"),     Inherit("ReadOnly"),    Inherit("ScrollBars"),
          Inherit("ShowHint"),      Inherit("TabOrder"),    Inherit("TabStop"),
          Inherit("Visible"),       Inherit("WantReturns"), Inherit("WantTabs"),
          Inherit("WordWrap"),      Inherit("OnChange"),    Inherit("OnClick"),
          Inherit("OnDblClick"),    Inherit(DragEvents),    Inherit(FocusEvents),
          Inherit(KeyEvents),       Inherit(MouseEvents),   Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TCustomMemo::TCustomMemo(TComponent* owner)
    : TCustomEdit(owner), FLines(std::make_unique<TMemoLines>(*this)) {
  SetAutoSize(false);
  SetBounds(0, 0, 185, 89);
}

TCustomMemo::~TCustomMemo() { AnnounceEnd(); }

TStrings* TCustomMemo::Lines() const { return FLines.get(); }
void TCustomMemo::SetLines(const TStrings* lines) { FLines->Assign(lines); }

void TCustomMemo::SetAlignment(TAlignment alignment) {
  if (alignment == FAlignment) return;
  FAlignment = alignment;
  RecreateWnd();
}

void TCustomMemo::SetScrollBars(TScrollStyle scrollBars) {
  if (scrollBars == FScrollBars) return;
  FScrollBars = scrollBars;
  RecreateWnd();
}

void TCustomMemo::SetWordWrap(bool wordWrap) {
  if (wordWrap == FWordWrap) return;
  FWordWrap = wordWrap;
  RecreateWnd();
}

DWORD TCustomMemo::WrapAndScrollStyle() const {
  static constexpr DWORD bars[] = {0, WS_HSCROLL, WS_VSCROLL, WS_HSCROLL | WS_VSCROLL};
  const bool wraps = FWordWrap && !(bars[FScrollBars] & WS_HSCROLL);
  return bars[FScrollBars] | (wraps ? 0 : ES_AUTOHSCROLL);
}

void TCustomMemo::CreateParams(TCreateParams& params) {
  static constexpr DWORD alignments[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
  TCustomEdit::CreateParams(params);
  params.Style &= ~static_cast<DWORD>(ES_AUTOHSCROLL);
  params.Style |= ES_MULTILINE | ES_WANTRETURN | alignments[FAlignment] | WrapAndScrollStyle();
}

void TCustomMemo::Change() {
  FLines->TextChanged();
  TCustomEdit::Change();
}

void TCustomMemo::WndProc(TMessage& message) {
  TWatch watch(this);
  TCustomEdit::WndProc(message);
  if (watch.Gone()) return;
  if (message.Msg == WM_SETTEXT) FLines->TextChanged();
  if (message.Msg != WM_GETDLGCODE) return;
  // The system's edit wants them always.
  message.Result &= ~(DLGC_WANTTAB | (FWantReturns ? 0 : DLGC_WANTALLKEYS));
  if (FWantTabs) message.Result |= DLGC_WANTTAB;
}

void TCustomMemo::KeyPress(char32_t& key) {
  TWatch watch(this);
  TCustomEdit::KeyPress(key);
  if (!watch.Gone() && key == U'\r' && !FWantReturns) key = 0;
}

}  // namespace vcl
