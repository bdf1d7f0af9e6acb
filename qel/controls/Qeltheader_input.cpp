// TQELHeader: the mouse and the keyboard click, size and move sections.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "qel/controls/Qeltheader.h"
#include "vcl/controls/accelerators.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

/// At 96 dots per inch.
constexpr int Reach = 4;    // From an edge.
constexpr int Drag = 6;     // From where the mouse went down, until a section is moved.
constexpr int KeyStep = 8;  // By which a key sizes.

}  // namespace

int TQELHeader::EdgeAt(int x) const {
  if (!FAllowResize || Designing()) return -1;
  const int edge = FSections->EdgeAt(x, ScaledPixels(Reach));
  // What sizes itself is not sized.
  return FSections->Has(edge) && !FSections->Items(edge)->AutoSize() ? edge : -1;
}

bool TQELHeader::ShowSizingCursor() {
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const int x = ScreenToClient(mouse).X;
  if (FPress.Kind != TMouse::Sizing && (FPress.Kind != TMouse::None || EdgeAt(x) < 0)) return false;
  ::SetCursor(vcl::Screen()->Cursors(vcl::crHSplit));
  return true;
}

void TQELHeader::SetHot(int index) {
  const int former = std::exchange(FHot, index);
  if (former == index) return;
  InvalidateSection(former);
  InvalidateSection(index);
}

// Pressing and dragging.

void TQELHeader::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (TabStop() && CanFocus() && !Designing()) SetFocus();
  if (watch.Gone()) return;
  if (button == vcl::mbLeft && !Designing()) {
    const int edge = EdgeAt(x);
    const int section = edge >= 0 ? edge : FSections->SectionAt(x);
    FPress = {};
    if (section >= 0) {
      FPress.Kind = edge >= 0 ? TMouse::Sizing : TMouse::Pressing;
      FPress.Section = section;
      FPress.At = x;
      FPress.Former = FSections->Items(section)->Width();
      FPress.Over = SectionEnabled(section);
      if (edge < 0) FocusSection(section);
      Invalidate();
    }
  }
  TQELCustomControl::MouseDown(button, shift, x, y);
}

void TQELHeader::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  switch (MouseCapture() ? FPress.Kind : TMouse::None) {
    case TMouse::Sizing: DragSize(x); break;
    case TMouse::Pressing:
    case TMouse::Moving: DragMove(x, y); break;
    case TMouse::None: SetHot(Enabled() && !Designing() ? FSections->SectionAt(x) : -1); break;
  }
  if (!watch.Gone()) TQELCustomControl::MouseMove(shift, x, y);
}

void TQELHeader::DragSize(int x) { TakeWidth(FPress.Section, FPress.Former + x - FPress.At); }

void TQELHeader::DragMove(int x, int y) {
  const bool inside = y >= 0 && y < ClientHeight();
  const bool far = std::abs(x - FPress.At) >= ScaledPixels(Drag);
  if (FAllowMove && (far || FPress.Kind == TMouse::Moving)) {
    FPress.Kind = TMouse::Moving;
    FPress.Target = FSections->TargetAt(x);
    return Invalidate();
  }
  const bool over =
      SectionEnabled(FPress.Section) && inside && FSections->SectionAt(x) == FPress.Section;
  if (std::exchange(FPress.Over, over) != over) InvalidateSection(FPress.Section);
}

void TQELHeader::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (button == vcl::mbLeft) EndPress(true);
  if (!watch.Gone()) TQELCustomControl::MouseUp(button, shift, x, y);
}

void TQELHeader::EndPress(bool apply) {
  if (FPress.Kind == TMouse::None) return;
  const TPress press = std::exchange(FPress, {});
  if (MouseCapture()) SetMouseCapture(false);
  Invalidate();
  if (!FSections->Has(press.Section)) return;
  if (apply) return ReleaseSection(press);
  if (press.Kind == TMouse::Sizing) FSections->Items(press.Section)->SetWidth(press.Former);
}

void TQELHeader::ReleaseSection(const TPress& press) {
  const TQELHeaderSection* section = FSections->Items(press.Section);
  if (press.Kind == TMouse::Moving) return MoveByUser(press.Section, press.Target);
  if (press.Kind == TMouse::Pressing && press.Over) return ClickSection(press.Section);
  if (press.Kind == TMouse::Sizing && section->Width() != press.Former) EndSizing(press.Section);
}

void TQELHeader::DblClick() {
  const TWatch watch(this);
  TQELCustomControl::DblClick();
  if (watch.Gone() || Designing()) return;
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const int edge = EdgeAt(ScreenToClient(mouse).X);
  if (edge < 0) return;
  EndPress(false);
  if (!watch.Gone() && TakeWidth(edge, ContentWidth(edge))) EndSizing(edge);
}

// What the user does with a section, by whatever means.

/// Asks for a width while the user sizes; false when a handler has freed the header or the section.
bool TQELHeader::TakeWidth(int index, int width) {
  if (!FSections->Has(index)) return false;
  TQELHeaderSection* section = FSections->Items(index);
  width = section->Limited(std::max(width, 0));
  if (width == section->Width()) return true;
  const TWatch watch(this);
  OnSectionTrack(this, section, width);
  if (watch.Gone() || !FSections->Has(index)) return false;
  FSections->Items(index)->SetWidth(width);
  return !watch.Gone();
}

void TQELHeader::EndSizing(int index) {
  const TWatch watch(this);
  SaveWidths();
  if (!watch.Gone() && FSections->Has(index)) SectionResized(FSections->Items(index));
}

void TQELHeader::ClickSection(int index) {
  if (SectionEnabled(index)) SectionClicked(FSections->Items(index));
}

void TQELHeader::MoveByUser(int from, int to) {
  if (from == to || !FSections->Has(to)) return;
  bool allow = true;
  const TWatch watch(this);
  OnSectionMove(this, from, to, allow);
  if (watch.Gone() || !allow || !FSections->Has(from) || !FSections->Has(to)) return;
  const TQELHeaderSection* sorted =
      FSections->Has(FSortColumn) ? FSections->Items(FSortColumn) : nullptr;
  FFocused = to;
  FSections->BeginUpdate();
  FSections->MoveSection(from, to);
  if (sorted) FSortColumn = sorted->Index();
  FSections->EndUpdate();
}

// Keys.

void TQELHeader::FocusSection(int index) {
  const int former = std::exchange(FFocused, index);
  InvalidateSection(former);
  InvalidateSection(index);
  if (Focused()) AccessibleChanged(vcl::acFocus, {index});
}

void TQELHeader::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone() || key == 0 || shift.Has(vcl::ssAlt) || FSections->Count() == 0) return;
  if (DoKey(key, shift) && !watch.Gone()) key = 0;
}

bool TQELHeader::DoKey(std::uint16_t key, TShiftState shift) {
  const TWatch watch(this);
  switch (key) {
    case VK_LEFT: return StepKey(-1, shift), true;
    case VK_RIGHT: return StepKey(1, shift), true;
    case VK_HOME: return FocusSection(FSections->Step(-1, 1)), true;
    case VK_END: return FocusSection(FSections->Step(FSections->Count(), -1)), true;
    case VK_SPACE: return ClickSection(FFocused), true;
    case VK_ADD:
      if (!shift.Has(vcl::ssCtrl) || !FAllowResize) return false;
      if (TakeWidth(FFocused, ContentWidth(FFocused))) EndSizing(FFocused);
      return true;
    default: return false;
  }
}

void TQELHeader::StepKey(int way, TShiftState shift) {
  if (!shift.Has(vcl::ssShift) && !shift.Has(vcl::ssCtrl)) {
    return FocusSection(FSections->Step(FFocused, way));
  }
  if (shift.Has(vcl::ssCtrl)) {
    if (FAllowMove) MoveByUser(FFocused, FSections->Step(FFocused, way));
    return;
  }
  const TQELHeaderSection* section = FSections->Items(FFocused);
  if (!FAllowResize || section->AutoSize()) return;
  if (TakeWidth(FFocused, section->Width() + way * ScaledPixels(KeyStep))) EndSizing(FFocused);
}

bool TQELHeader::ClickByAccel(WPARAM character) {
  for (int i = 0; CanFocus() && i < FSections->Count(); ++i) {
    if (!vcl::IsAccel(character, FSections->Items(i)->Text()) || !SectionEnabled(i)) continue;
    ClickSection(i);
    return true;
  }
  return false;
}

void TQELHeader::Dispatch(vcl::TMessage& message) {
  switch (message.Msg) {
    // Paint fills all. NOLINTNEXTLINE(bugprone-branch-clone): DLGC_WANTARROWS happens to be 1.
    case WM_ERASEBKGND: message.Result = 1; return;
    case WM_GETDLGCODE: message.Result = DLGC_WANTARROWS; return;
    case WM_SETCURSOR:
      if (LOWORD(message.LParam) != HTCLIENT || !ShowSizingCursor()) break;
      message.Result = 1;
      return;
    case vcl::CM_CAPTUREKEY:
      if (message.WParam != VK_ESCAPE || FPress.Kind == TMouse::None) break;
      message.Result = 1;
      return EndPress(false);
    case vcl::CM_DIALOGCHAR:
      if (!ClickByAccel(message.WParam)) break;
      message.Result = 1;
      return;
    default: break;
  }
  const TWatch watch(this);
  TQELCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_CANCELMODE: return EndPress(false);
    case vcl::CM_MOUSELEAVE: return SetHot(-1);
    case vcl::CM_FONTCHANGED:
    case vcl::CM_ENABLEDCHANGED:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE: return Invalidate();
    default: return;
  }
}

}  // namespace qel
