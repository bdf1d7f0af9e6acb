// TPalettePage: where its buttons stand, painting them, the mouse and the hints.
#include "ide/palettepage.h"

#include <algorithm>

#include "ide/paletteicons.h"
#include "vcl/designintf/sentences.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace ide {

using vcl::TRect;

namespace {

constexpr int HintWidth = 320;  // At 96 dots per inch.

/// What a class's hint says: its name and its unit, and what it is where that is known.
std::string HintOf(const vcl::TClass& aClass) {
  const std::string sentence = vcl::Sentences().Of(aClass);
  return vcl::Concat(aClass.Name(), "\r\n", aClass.Unit(), sentence.empty() ? "" : "\r\n",
                     sentence);
}

}  // namespace

TPalettePage::TPalettePage(vcl::TComponent* owner, const TPaletteTool& tool)
    : TCustomControl(owner), FTool(tool) {
  SetDoubleBuffered(true);
  SetParentShowHint(false);
  SetShowHint(true);
}

void TPalettePage::SetClasses(std::vector<const vcl::TClass*> classes) {
  if (classes == FClasses) return;
  FClasses = std::move(classes);
  FFirst = 0;
  FHot = NoPlace;
  Invalidate();
}

// Places.

TPalettePage::TMeasures TPalettePage::Measures() const {
  constexpr int margin = 2;      // Around a button's picture.
  constexpr int pointerGap = 6;  // Behind the pointer.
  constexpr int arrow = 14;
  const int around = ScaledPixels(margin);
  return {around, ScaledPixels(IconSize) + 2 * around, ScaledPixels(pointerGap),
          ScaledPixels(arrow)};
}

bool TPalettePage::Fits() const {
  const TMeasures measures = Measures();
  const int count = static_cast<int>(FClasses.size());
  return (1 + count) * measures.Button + measures.PointerGap <= ClientWidth();
}

/// How many classes are seen at once.
int TPalettePage::Visible() const {
  const TMeasures measures = Measures();
  const int arrows = Fits() ? 0 : 2 * measures.Arrow;
  return std::max(
      (ClientWidth() - measures.Button - measures.PointerGap - arrows) / measures.Button, 1);
}

TRect TPalettePage::PlaceRect(int place) const {
  const int shown = place - FFirst;
  if (place != 0 && (shown < 1 || shown > Visible())) return {};
  const TMeasures measures = Measures();
  const int left = place == 0 ? 0 : shown * measures.Button + measures.PointerGap;
  const int top = std::max((ClientHeight() - measures.Button) / 2, 0);
  return {left, top, left + measures.Button, top + measures.Button};
}

TRect TPalettePage::ButtonRect(const vcl::TClass* aClass) const {
  const auto found = std::ranges::find(FClasses, aClass);
  if (aClass && found == FClasses.end()) return {};
  return PlaceRect(aClass ? static_cast<int>(found - FClasses.begin()) + 1 : 0);
}

int TPalettePage::PlaceAt(vcl::TPoint point) const {
  for (int place = 0; place <= static_cast<int>(FClasses.size()); ++place) {
    if (PlaceRect(place).Contains(point)) return place;
  }
  return NoPlace;
}

const vcl::TClass* TPalettePage::ClassAt(int place) const {
  return place > 0 ? FClasses.at(static_cast<std::size_t>(place) - 1) : nullptr;
}

TRect TPalettePage::ArrowRect(int by) const {
  if (Fits()) return {};
  const int width = Measures().Arrow;
  const int left = ClientWidth() - (by < 0 ? 2 : 1) * width;
  const TRect pointer = PlaceRect(0);
  return {left, pointer.Top, left + width, pointer.Bottom};
}

bool TPalettePage::CanScroll(int by) const {
  return by < 0 ? FFirst > 0 : FFirst + Visible() < static_cast<int>(FClasses.size());
}

void TPalettePage::Scroll(int by) {
  const int last = std::max(static_cast<int>(FClasses.size()) - Visible(), 0);
  const int first = std::clamp(FFirst + by, 0, last);
  if (first == FFirst) return;
  FFirst = first;
  FHot = NoPlace;
  Invalidate();
}

void TPalettePage::Resize() {
  TCustomControl::Resize();
  Scroll(0);
  Invalidate();
}

// Painting.

void TPalettePage::Paint() {
  for (int place = 0; place <= static_cast<int>(FClasses.size()); ++place) PaintPlace(place);
  if (Fits()) return;
  PaintArrow(-1);
  PaintArrow(1);
}

void TPalettePage::PaintPlace(int place) {
  const TRect rect = PlaceRect(place);
  if (rect.Empty()) return;
  const vcl::TClass* aClass = ClassAt(place);
  const bool down = aClass == FTool.Class;
  RECT edge = rect;
  if (down) {
    Canvas()->Brush()->SetColor(vcl::clBtnHighlight);
    Canvas()->FillRect(rect);
    ::DrawEdge(Canvas()->Handle(), &edge, FTool.Keep ? EDGE_SUNKEN : BDR_SUNKENOUTER, BF_RECT);
  } else if (place == FHot) {
    ::DrawEdge(Canvas()->Handle(), &edge, BDR_RAISEDINNER, BF_RECT);
  }
  const vcl::TBitmap& icon = aClass ? ComponentIcon(*aClass) : ProgramIcon("POINTER");
  const int margin = Measures().Margin;
  DrawIcon(*Canvas(),
           {rect.Left + margin, rect.Top + margin, rect.Right - margin, rect.Bottom - margin},
           icon);
}

void TPalettePage::PaintArrow(int by) {
  RECT rect = ArrowRect(by);
  const UINT state = CanScroll(by) ? 0U : DFCS_INACTIVE;
  ::DrawFrameControl(Canvas()->Handle(), &rect, DFC_SCROLL,
                     (by < 0 ? DFCS_SCROLLLEFT : DFCS_SCROLLRIGHT) | state);
}

// The mouse.

void TPalettePage::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  TCustomControl::MouseDown(button, shift, x, y);
  if (button != vcl::mbLeft) return;
  for (int by : {-1, 1}) {
    if (ArrowRect(by).Contains({x, y})) return Scroll(by);
  }
  const int place = PlaceAt({x, y});
  if (place == NoPlace) return;
  const vcl::TClass* aClass = ClassAt(place);
  if (aClass && shift.Has(vcl::ssDouble)) {
    if (OnAdd) OnAdd(*aClass);
  } else if (OnPick) {
    OnPick(aClass, aClass && shift.Has(vcl::ssShift));
  }
}

void TPalettePage::MouseMove(vcl::TShiftState shift, int x, int y) {
  TCustomControl::MouseMove(shift, x, y);
  SetHot(PlaceAt({x, y}));
}

void TPalettePage::SetHot(int place) {
  if (place == FHot) return;
  FHot = place;
  Invalidate();
}

void TPalettePage::Dispatch(vcl::TMessage& message) {
  switch (message.Msg) {
    case vcl::CM_MOUSELEAVE: SetHot(NoPlace); break;
    case vcl::CM_HINTSHOW:
      message.Result = GiveHint(*reinterpret_cast<vcl::THintInfo*>(message.LParam)) ? 0 : 1;
      return;
    default: break;
  }
  TCustomControl::Dispatch(message);
}

bool TPalettePage::GiveHint(vcl::THintInfo& info) const {
  const int place = PlaceAt(info.CursorPos);
  if (place == NoPlace) return false;
  const vcl::TClass* aClass = ClassAt(place);
  info.HintStr = aClass ? HintOf(*aClass) : "Select";
  info.HintMaxWidth = ScaledPixels(HintWidth);
  info.CursorRect = PlaceRect(place);
  return true;
}

// Screen readers.

void TPalettePage::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = vcl::arToolBar;
}

std::vector<vcl::TAccessiblePart> TPalettePage::AccessibleParts() {
  std::vector<vcl::TAccessiblePart> parts;
  for (int place = 0; place <= static_cast<int>(FClasses.size()); ++place) {
    const vcl::TClass* aClass = ClassAt(place);
    vcl::TAccessiblePart& part = parts.emplace_back();
    part.Role = vcl::arPushButton;
    part.Name = aClass ? aClass->Name() : "Select";
    part.Description = aClass ? aClass->Unit() : "";
    part.DefaultAction = "Press";
    part.Bounds = PlaceRect(place);
    if (part.Bounds.Empty()) part.State.Include(vcl::asOffscreen);
    if (aClass == FTool.Class) part.State.Include(vcl::asPressed);
  }
  return parts;
}

void TPalettePage::DoAccessiblePart(const vcl::TAccessiblePath& part) {
  if (OnPick) OnPick(ClassAt(part.front()), false);
}

}  // namespace ide
