// TQELICQMarquee: its rounds, where its lines are, and painting them.
#include "qel/controls/Qelticqmarquee.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "qel/controls/private/focusmark.h"
#include "qel/core/private/multimedia.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;
using vcl::TWatch;

namespace {

/// Between two lines that follow each other on one row, at 96 dots per inch.
constexpr int Gap = 40;

}  // namespace

const vcl::TClass& TQELICQMarquee::Class() {
  using T = TQELICQMarquee;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELICQMarquee", "qel/controls/Qelticqmarquee.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Background"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Font3D, &T::SetFont3D>("Font3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Property<&T::Lines, &T::SetLines>("Lines"),
          Property<&T::Direction, &T::SetDirection>("Direction").Default(mdLeft),
          Property<&T::Speed, &T::SetSpeed>("Speed").Default(60),
          Property<&T::Delay, &T::SetDelay>("Delay").Default(0),
          Property<&T::Active, &T::SetActive>("Active").Default(false),
          Property<&T::Loop, &T::SetLoop>("Loop").Default(true),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::StopOnHover, &T::SetStopOnHover>("StopOnHover").Default(true),
          Event<&T::OnRound>("OnRound"),
          Event<&T::OnLineClick>("OnLineClick")
              .Type("TQELLineEvent", "vcl::TObject* sender, int line"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELICQMarquee::TQELICQMarquee(vcl::TComponent* owner)
    : TQELCustomControl(owner),
      FLines(std::make_unique<vcl::TStringList>()),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FMotion(*this, [this](double passed) { Tick(passed); }) {
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csOpaque});
  SetDoubleBuffered(true);
  SetBounds(0, 0, 200, 30);
  FLines->OnChange = {this, &TQELICQMarquee::LinesChanged};
  HearOnlyAsked<TQELICQMarquee>();
}

TQELICQMarquee::~TQELICQMarquee() {
  AnnounceEnd();
  FLines->OnChange.Clear();
}

void TQELICQMarquee::SetLines(const vcl::TStrings* lines) { FLines->Assign(lines); }

void TQELICQMarquee::LinesChanged(vcl::TObject* /*sender*/) {
  FMeasured = false;
  UpdateMotion();
  Invalidate();
}

void TQELICQMarquee::SetFont3D(const TQELFont3D* font3D) { FFont3D->Assign(font3D); }

void TQELICQMarquee::SetDirection(TQELMarqueeDirection direction) {
  FDirection = direction;
  Invalidate();
}

void TQELICQMarquee::SetSpeed(int speed) {
  if (speed > 0) FSpeed = speed;
}

void TQELICQMarquee::SetDelay(int milliseconds) {
  if (milliseconds >= 0) FDelay = milliseconds;
}

void TQELICQMarquee::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  if (active) FWait = 0;
  UpdateMotion();
  AccessibleChanged(vcl::acState);
  Invalidate();
}

void TQELICQMarquee::SetStopOnHover(bool stop) {
  FStopOnHover = stop;
  UpdateMotion();
}

void TQELICQMarquee::UpdateMotion() {
  FMotion.SetActive(FActive && Enabled() && FLines->Count() > 0 && !(FStopOnHover && FHovered));
}

// Rounds.

void TQELICQMarquee::Tick(double milliseconds) {
  if (FWait > 0) {
    FWait -= milliseconds;
    if (FWait > 0) return;
    BeginRound();
  }
  if (FMoved < 0) BeginRound();
  FMoved += milliseconds * FSpeed * CurrentPPI() / 96 / 1000;
  Invalidate();
  const int room = Upright() ? ClientHeight() : ClientWidth();
  if (FMoved >= room + Length()) EndRound();
}

void TQELICQMarquee::BeginRound() {
  FMoved = 0;
  FWait = 0;
  if (FFilename.empty()) return;
  const std::wstring name = vcl::SystemFileName(vcl::ExpandFileName(FFilename));
  ::PlaySoundW(name.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
}

void TQELICQMarquee::EndRound() {
  FWait = FDelay;
  if (!FLoop) {
    FMoved = -1;
    SetActive(false);
  } else if (FDelay == 0) {
    BeginRound();
  }
  OnRound(this);
}

bool TQELICQMarquee::Resting() const {
  return (FMoved < 0 && !FMotion.Running()) || Designing() || !QELAnimationWanted();
}

// Where the lines are.

void TQELICQMarquee::Measure() {
  if (FMeasured) return;
  const vcl::TMemoryDC dc;
  vcl::TCanvas canvas;
  canvas.SetHandle(dc.Get());
  canvas.SetFont(Font());
  const int more = FFont3D->ThreeDimensional() ? ScaledPixels(FFont3D->GetDrawingwidth()) : 0;
  FWidths.clear();
  for (int i = 0; i < FLines->Count(); ++i)
    FWidths.push_back(canvas.TextWidth(FLines->Strings(i)) + more);
  FLineHeight = canvas.TextHeight("Wg") + more;
  canvas.SetHandle(nullptr);
  FMeasured = true;
}

/// Of all lines in the direction in which they go.
int TQELICQMarquee::Length() {
  Measure();
  const auto count = static_cast<int>(FWidths.size());
  if (Upright() || count == 0) return count * FLineHeight;
  return std::accumulate(FWidths.begin(), FWidths.end(), (count - 1) * ScaledPixels(Gap));
}

/// Where the first line begins.
int TQELICQMarquee::Start() {
  if (Resting()) return 0;
  const auto moved = static_cast<int>(std::max(FMoved, 0.0));
  if (FDirection == mdRight || FDirection == mdDown) return moved - Length();
  return (Upright() ? ClientHeight() : ClientWidth()) - moved;
}

TRect TQELICQMarquee::LineRect(int line) {
  Measure();
  const auto index = static_cast<std::size_t>(line);
  if (Upright()) {
    const int top = Start() + line * FLineHeight;
    const int left = (ClientWidth() - FWidths[index]) / 2;
    return {left, top, left + FWidths[index], top + FLineHeight};
  }
  const int left =
      std::accumulate(FWidths.begin(), FWidths.begin() + line, Start() + line * ScaledPixels(Gap));
  const int top = (ClientHeight() - FLineHeight) / 2;
  return {left, top, left + FWidths[index], top + FLineHeight};
}

int TQELICQMarquee::LineAt(TPoint point) {
  for (int i = 0; i < FLines->Count(); ++i) {
    if (LineRect(i).Contains(point)) return i;
  }
  return -1;
}

int TQELICQMarquee::FirstSeen() {
  for (int i = 0; i < FLines->Count(); ++i) {
    if (!vcl::Intersection(LineRect(i), ClientRect()).Empty()) return i;
  }
  return -1;
}

void TQELICQMarquee::Paint() {
  FMotion.Wake();
  TQELCustomControl::Paint();
  Measure();
  TRect rect = FLines->Count() > 0 ? LineRect(0) : TRect();
  const TRect client = ClientRect();
  const int half = FFont3D->ThreeDimensional() ? ScaledPixels(FFont3D->Offset()) : 0;
  // One after the other, as a row of a million would take too long from the beginning each time.
  for (int i = 0; i < FLines->Count(); ++i) {
    const auto index = static_cast<std::size_t>(i);
    if (Upright()) rect.Left = (client.Width() - FWidths[index]) / 2;
    rect.Right = rect.Left + FWidths[index];
    if (!vcl::Intersection(rect, client).Empty()) {
      TRect text = rect;
      text.Offset(half, half);
      Canvas()->Brush()->SetStyle(vcl::bsClear);
      FFont3D->Write(Font(), Canvas()->Handle(), text, FLines->Strings(i),
                     DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP, Enabled());
    }
    Upright() ? rect.Offset(0, FLineHeight) : rect.Offset(FWidths[index] + ScaledPixels(Gap), 0);
  }
  DrawFocusMark(*this, *Canvas());
}

// Input.

void TQELICQMarquee::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  TQELCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case vcl::CM_MOUSEENTER:
    case vcl::CM_MOUSELEAVE: FHovered = message.Msg == vcl::CM_MOUSEENTER; return UpdateMotion();
    case vcl::CM_ENABLEDCHANGED: UpdateMotion(); return Invalidate();
    case vcl::CM_FONTCHANGED: FMeasured = false; return Invalidate();
    default:
      if (ChangesFocusMark(message.Msg)) Invalidate();
  }
}

void TQELICQMarquee::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  const TWatch watch(this);
  // The lines may move on before the button is released.
  if (button == vcl::mbLeft) FPressed = LineAt({x, y});
  if (button == vcl::mbLeft && TabStop() && CanFocus()) SetFocus();
  if (!watch.Gone()) TQELCustomControl::MouseDown(button, shift, x, y);
}

void TQELICQMarquee::Click() {
  const TWatch watch(this);
  const int line = std::exchange(FPressed, -1);
  TQELCustomControl::Click();
  if (!watch.Gone() && line >= 0 && line < FLines->Count()) OnLineClick(this, line);
}

void TQELICQMarquee::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone()) return;
  if (key == VK_SPACE) return SetActive(!FActive);
  if (key != VK_RETURN) return;
  if (const int line = FirstSeen(); line >= 0) OnLineClick(this, line);
}

// Screen readers.

void TQELICQMarquee::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arList;
}

std::vector<vcl::TAccessiblePart> TQELICQMarquee::AccessibleParts() {
  std::vector<vcl::TAccessiblePart> parts;
  for (int i = 0; i < FLines->Count(); ++i) {
    vcl::TAccessiblePart part;
    part.Role = vcl::arListItem;
    part.Name = FLines->Strings(i);
    part.DefaultAction = "Click";
    part.Bounds = LineRect(i);
    if (vcl::Intersection(part.Bounds, ClientRect()).Empty()) part.State.Include(vcl::asOffscreen);
    parts.push_back(part);
  }
  return parts;
}

void TQELICQMarquee::DoAccessiblePart(const vcl::TAccessiblePath& part) {
  if (!part.empty() && part[0] < FLines->Count()) OnLineClick(this, part[0]);
}

}  // namespace qel
