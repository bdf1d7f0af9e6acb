// TQELCustomCheck, which arranges and paints box and caption, and TQELCheckbox.
#include "qel/controls/Qeltcheckbox.h"

#include <algorithm>

#include "qel/controls/private/buttonproperties.h"
#include "qel/core/private/Qelownedsettings.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

namespace {

/// At 96 dots per inch.
constexpr int BoxSize = 13;
constexpr int BoxGap = 4;

/// The images of a glyph, by their number.
enum TCheckImage { ciUnchecked = 1, ciDisabled, ciChecked, ciGrayed };

TCheckImage ImageOf(vcl::TCheckBoxState state, bool enabled) {
  static constexpr TCheckImage images[] = {ciUnchecked, ciChecked, ciGrayed};
  return enabled ? images[state] : ciDisabled;
}

}  // namespace

const vcl::TClass& TQELCustomCheck::Class() {
  using T = TQELCustomCheck;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomButton>(
      "qel::TQELCustomCheck", "qel/controls/Qeltcheckbox.h",
      {
          Property<&T::Frame, &T::SetFrame>("Frame").Unpublished(),
          Property<&T::Alignment, &T::SetAlignment>("Alignment")
              .Default(taRightJustify)
              .Unpublished(),
          Property<&T::WordWrap, &T::SetWordWrap>("WordWrap").Default(false).Unpublished(),
          Inherit("TabStop").Default(true),
      });
  return info;
}

TQELCustomCheck::TQELCustomCheck(vcl::TComponent* owner)
    : TQELCustomButton(owner), FFrame(std::make_unique<TQELFrame>(this)) {
  SetBounds(Left(), Top(), 120, 20);
  FFrame->SetFrameStyle(frameNone);
  FFrame->SetInitialStyle(frameNone);
}

TQELCustomCheck::~TQELCustomCheck() { AnnounceEnd(); }

void TQELCustomCheck::SetFrame(const TQELFrame* frame) {
  FFrame->Assign(frame);
  Invalidate();
}

void TQELCustomCheck::SetAlignment(vcl::TAlignment alignment) {
  if (alignment != vcl::taLeftJustify && alignment != vcl::taRightJustify) return;
  if (Store(FAlignment, alignment)) Invalidate();
}

void TQELCustomCheck::SetWordWrap(bool wordWrap) {
  if (Store(FWordWrap, wordWrap)) Invalidate();
}

// The state.

void TQELCustomCheck::StateChanged() {
  const TWatch watch(this);
  AccessibleChanged(vcl::acState);
  if (watch.Gone()) return;
  Invalidate();
  if (!Loading()) TQELCustomButton::Click();
}

void TQELCustomCheck::AccelPressed() {
  const TWatch watch(this);
  SetFocus();
  if (!watch.Gone() && Focused()) Toggle();
}

// Painting.

struct TQELCustomCheck::TPlaces {
  TRect Box;
  TRect Text;
};

TQELCustomCheck::TPlaces TQELCustomCheck::Arrange() const {
  TRect area = ClientRect();
  const int border = FFrame->FrameStyle() == frameNone ? 1 : FFrame->BorderWidth();
  area.Inflate(-border, -border);
  const bool images = Glyph()->GetWidth() > 0 && Glyph()->Visible();
  const int width = images ? Glyph()->GetWidth() : ScaledPixels(BoxSize);
  const int height = images ? Glyph()->GetHeight() : width;
  const int gap = width + ScaledPixels(BoxGap);
  const bool textRight = FAlignment == vcl::taRightJustify;
  const int left = textRight ? area.Left : area.Right - width;
  TRect text = area;
  (textRight ? text.Left : text.Right) += textRight ? gap : -gap;
  return {vcl::Bounds(left, area.Top + (area.Height() - height) / 2, width, height), text};
}

void TQELCustomCheck::Paint() {
  TQELCustomButton::Paint();
  TRect edge = ClientRect();
  FFrame->Draw(Canvas()->Handle(), edge);
  const TPlaces places = Arrange();
  PaintBox(places.Box);
  if (!Caption().empty()) return PaintCaption(places.Text);
  TRect around = places.Box;
  around.Inflate(1, 1);
  PaintFocus(around);
}

void TQELCustomCheck::PaintBox(const TRect& box) {
  if (Glyph()->GetWidth() > 0 && Glyph()->Visible()) {
    const TCheckImage image = ImageOf(Shown(), Enabled());
    const bool looksDisabled = image == ciDisabled && Glyph()->HasImage(image);
    return Glyph()->DrawImage(Canvas(), box.Left, box.Top, image, !Enabled() && !looksDisabled);
  }
  RECT frame = box;
  unsigned look = BoxLook();
  if (!Enabled()) look |= DFCS_INACTIVE;
  if (Down()) look |= DFCS_PUSHED;
  if (Hot() && Enabled()) look |= DFCS_HOT;
  ::DrawFrameControl(Canvas()->Handle(), &frame, DFC_BUTTON, look);
}

void TQELCustomCheck::PaintCaption(const TRect& area) {
  const std::string caption = Caption();
  const unsigned flags =
      FWordWrap ? DT_LEFT | DT_WORDBREAK : DT_LEFT | DT_SINGLELINE | DT_END_ELLIPSIS;
  // The text is as high as its lines, in the middle of the room that there is.
  const vcl::TSelection selection(Canvas()->Handle(), Font()->Handle());
  RECT needed{0, 0, area.Width(), 0};
  std::wstring text = vcl::ToUtf16(caption);
  ::DrawTextW(Canvas()->Handle(), text.c_str(), -1, &needed, flags | DT_CALCRECT);
  TRect place = area;
  place.Top += std::max((area.Height() - static_cast<int>(needed.bottom)) / 2, 0);
  if (Enabled()) {
    Font3D()->Write(Font(), Canvas()->Handle(), place, caption, flags, true);
  } else {
    QELDrawDisabledText(Font(), Canvas(), place, flags, caption);
  }
  TRect around(place.Left - 1, place.Top - 1, place.Left + static_cast<int>(needed.right) + 1,
               place.Top + static_cast<int>(needed.bottom) + 1);
  around.Right = std::min(around.Right, area.Right + 1);
  around.Bottom = std::min(around.Bottom, area.Bottom + 1);
  PaintFocus(around);
}

// The check box.

const vcl::TClass& TQELCheckbox::Class() {
  using T = TQELCheckbox;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomCheck>(
      "qel::TQELCheckbox", "qel/controls/Qeltcheckbox.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Alignment"),
          Property<&T::AllowGrayed, &T::SetAllowGrayed>("AllowGrayed").Default(false),
          Inherit("Background"),
          Inherit("Caption"),
          Property<&T::Checked, &T::SetChecked>("Checked").Stored(false),
          Inherit("Font3D"),
          Inherit("Frame"),
          Inherit("Glyph"),
          Property<&T::State, &T::SetState>("State").Default(cbUnchecked),
          Inherit("WordWrap"),
          Inherit(ButtonProperties),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELCheckbox::TQELCheckbox(vcl::TComponent* owner) : TQELCustomCheck(owner) {
  HearOnlyAsked<TQELCheckbox>();
}

TQELCheckbox::~TQELCheckbox() { AnnounceEnd(); }

void TQELCheckbox::SetState(vcl::TCheckBoxState state) {
  if (Store(FState, state)) StateChanged();
}

void TQELCheckbox::Toggle() {
  const vcl::TCheckBoxState afterUnchecked = FAllowGrayed ? vcl::cbGrayed : vcl::cbChecked;
  const vcl::TCheckBoxState next[] = {afterUnchecked, vcl::cbUnchecked, vcl::cbChecked};
  SetState(next[FState]);
}

unsigned TQELCheckbox::BoxLook() const {
  static constexpr unsigned looks[] = {DFCS_BUTTONCHECK, DFCS_BUTTONCHECK | DFCS_CHECKED,
                                       DFCS_BUTTON3STATE | DFCS_CHECKED};
  return looks[FState];
}

void TQELCheckbox::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  static constexpr vcl::TAccessibleState states[] = {{}, {vcl::asChecked}, {vcl::asMixed}};
  TQELCustomCheck::DescribeAccessible(info);
  info.Role = vcl::arCheckBox;
  info.State += states[FState];
  info.DefaultAction = Checked() ? "Uncheck" : "Check";
}

}  // namespace qel
