// TCustomGroupBox: its frame with the caption, and the room inside.
#include "vcl/stdctrls/groupbox.h"

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TCustomGroupBox::Class() {
  static const TClass info = Describe<TCustomGroupBox, TCustomControl>(
      "vcl::TCustomGroupBox", "vcl/stdctrls/stdctrls.h", {});
  return info;
}

const TClass& TGroupBox::Class() {
  static const TClass info =
      Describe<TGroupBox, TCustomGroupBox>("vcl::TGroupBox", "vcl/stdctrls/stdctrls.h",
                                           {
                                               Inherit("Align"),
                                               Inherit("AutoSize"),
                                               Inherit("Caption"),
                                               Inherit("Color"),
                                               Inherit(ContainerProperties),
                                               Inherit(ContainerEvents),
                                           });
  return info;
}

TCustomGroupBox::TCustomGroupBox(TComponent* owner) : TCustomControl(owner) {
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks,
                   csReplicatable});
  SetBounds(0, 0, 185, 105);
}

void TCustomGroupBox::Paint() {
  TCanvas* canvas = Canvas();
  canvas->SetFont(Font());
  if (!Enabled()) canvas->Font()->SetColor(clGrayText);
  const int lineHeight = canvas->TextHeight("0");
  // An etched line: the light frame one pixel below and to the right of the dark one.
  TRect frame(1, lineHeight / 2, Width(), Height());
  canvas->Brush()->SetColor(clBtnHighlight);
  canvas->FrameRect(frame);
  frame.Offset(-1, -1);
  canvas->Brush()->SetColor(clBtnShadow);
  canvas->FrameRect(frame);
  const std::string caption = Caption();
  if (caption.empty()) return;
  TRect text(8, 0, Width() - 8, lineHeight);
  canvas->Brush()->SetColor(Color());
  DrawTextOn(canvas, caption, text, DT_LEFT | DT_SINGLELINE);
}

void TCustomGroupBox::AdjustClientRect(TRect& rect) const {
  rect.Top += FontHeight(*Font());
  rect.Inflate(-1, -1);
}

void TCustomGroupBox::Dispatch(TMessage& message) {
  if (message.Msg == CM_DIALOGCHAR && IsAccel(message.WParam, Caption()) && CanFocus()) {
    message.Result = 1;
    return SelectNext(nullptr, true, true);
  }
  TCustomControl::Dispatch(message);
  if (message.Msg == CM_TEXTCHANGED) Invalidate();
  if (message.Msg != CM_FONTCHANGED) return;
  Invalidate();
  Realign();
}

void TCustomGroupBox::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = arGrouping;
}

}  // namespace vcl
