// TCustomPanel: its bevels and caption, and the room inside.
#include "vcl/stdctrls/panel.h"

#include <algorithm>
#include <cstdint>

#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

void CheckWidth(int width, int least) {
  if (width >= least) return;
  throw EArgumentOutOfRangeException(
      Concat("A frame cannot be ", std::to_string(width), " pixels wide"));
}

}  // namespace

void Frame3D(TCanvas* canvas, TRect& rect, TColor topColor, TColor bottomColor, int width) {
  // Beyond the middle there is nothing to draw on.
  for (int i = 0; i < width && !rect.Empty(); ++i) {
    const int right = rect.Right - 1;
    const int bottom = rect.Bottom - 1;
    const TPoint top[] = {{rect.Left, bottom}, {rect.Left, rect.Top}, {right, rect.Top}};
    // A line leaves its last pixel out, so this one ends one pixel further.
    const TPoint end[] = {{right, rect.Top}, {right, bottom}, {rect.Left - 1, bottom}};
    canvas->Pen()->SetColor(topColor);
    canvas->Polyline(top);
    canvas->Pen()->SetColor(bottomColor);
    canvas->Polyline(end);
    rect.Inflate(-1, -1);
  }
}

const TClass& TCustomPanel::Class() {
  using T = TCustomPanel;
  static const TClass info = Describe<T, TCustomControl>(
      "vcl::TCustomPanel", "vcl/stdctrls/extctrls.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taCenter).Unpublished(),
          Property<&T::BevelInner, &T::SetBevelInner>("BevelInner").Default(bvNone).Unpublished(),
          Property<&T::BevelOuter, &T::SetBevelOuter>("BevelOuter").Default(bvRaised).Unpublished(),
          Property<&T::BevelWidth, &T::SetBevelWidth>("BevelWidth").Default(1).Unpublished(),
          Property<&T::BorderWidth, &T::SetBorderWidth>("BorderWidth").Default(0).Unpublished(),
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsNone)
              .Unpublished(),
          Inherit("Color").Default(clBtnFace).Unpublished(),
          Inherit("ParentColor").Default(false).Unpublished(),
      });
  return info;
}

const TClass& TPanel::Class() {
  static const TClass info =
      Describe<TPanel, TCustomPanel>("vcl::TPanel", "vcl/stdctrls/extctrls.h",
                                     {
                                         Inherit("Align"),
                                         Inherit("Alignment"),
                                         Inherit("AutoSize"),
                                         Inherit(PanelLook),
                                         Inherit(ContainerProperties),
                                         Inherit(ContainerEvents),
                                     });
  return info;
}

TCustomPanel::TCustomPanel(TComponent* owner) : TCustomControl(owner) {
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csOpaque,
                   csDoubleClicks, csReplicatable});
  SetBounds(0, 0, 185, 41);
  SetColor(clBtnFace);
}

void TCustomPanel::SetAlignment(TAlignment alignment) {
  if (alignment == FAlignment) return;
  FAlignment = alignment;
  Invalidate();
}

/// What the frame takes is no longer the controls' inside.
template <class T>
void TCustomPanel::ChangeFrame(T& field, T value) {
  if (value == field) return;
  field = value;
  Realign();
  Invalidate();
}

void TCustomPanel::SetBevelInner(TPanelBevel bevel) { ChangeFrame(FBevelInner, bevel); }
void TCustomPanel::SetBevelOuter(TPanelBevel bevel) { ChangeFrame(FBevelOuter, bevel); }

void TCustomPanel::SetBevelWidth(int width) {
  CheckWidth(width, 1);
  ChangeFrame(FBevelWidth, width);
}

void TCustomPanel::SetBorderWidth(int width) {
  CheckWidth(width, 0);
  ChangeFrame(FBorderWidth, width);
}

void TCustomPanel::ChangeScale(int m, int d) {
  TCustomControl::ChangeScale(m, d);
  SetBorderWidth(ScaleMeasure(FBorderWidth, m, d));
}

void TCustomPanel::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  RecreateWnd();
}

void TCustomPanel::CreateParams(TCreateParams& params) {
  TCustomControl::CreateParams(params);
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
}

void TCustomPanel::AdjustClientRect(TRect& rect) const {
  const std::int64_t bevels = (FBevelOuter != bvNone) + (FBevelInner != bvNone);
  const std::int64_t most = std::max({rect.Width(), rect.Height(), 0});
  const auto frame = static_cast<int>(std::min(FBorderWidth + bevels * FBevelWidth, most));
  rect.Inflate(-frame, -frame);
}

void TCustomPanel::DrawBevel(TRect& rect, TPanelBevel bevel) {
  if (bevel == bvNone) return;
  const bool raised = bevel == bvRaised;
  Frame3D(Canvas(), rect, raised ? clBtnHighlight : clBtnShadow,
          raised ? clBtnShadow : clBtnHighlight, FBevelWidth);
}

void TCustomPanel::DrawCaption(TRect rect) {
  static constexpr UINT alignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  TCanvas* canvas = Canvas();
  canvas->SetFont(Font());
  if (!Enabled()) canvas->Font()->SetColor(clGrayText);
  canvas->Brush()->SetStyle(bsClear);
  DrawTextOn(canvas, Caption(), rect,
             DT_EXPANDTABS | DT_SINGLELINE | DT_VCENTER | alignments[FAlignment]);
}

void TCustomPanel::Paint() {
  TRect rect = ClientRect();
  DrawBevel(rect, FBevelOuter);
  Frame3D(Canvas(), rect, Color(), Color(), FBorderWidth);
  DrawBevel(rect, FBevelInner);
  Canvas()->Brush()->SetColor(Color());
  Canvas()->FillRect(rect);
  DrawCaption(rect);
}

void TCustomPanel::Dispatch(TMessage& message) {
  const UINT msg = message.Msg;
  const TWatch watch(this);
  TCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  if (msg == CM_TEXTCHANGED || msg == CM_ENABLEDCHANGED || msg == CM_FONTCHANGED) Invalidate();
}

void TCustomPanel::Resize() {
  Invalidate();  // The bevels move with the edges.
  TCustomControl::Resize();
}

void TCustomPanel::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = arPane;
}

}  // namespace vcl
