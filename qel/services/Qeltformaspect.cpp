// TQELFormAspect: the rectangle that the user drags, in the relation.
#include "qel/services/Qeltformaspect.h"

#include <algorithm>
#include <cstdint>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

struct TLimits {
  vcl::TSize Least, Largest;
};

/// Of the window's size: what it answers itself, and the form's constraints, 0 being none.
TLimits LimitsOf(vcl::TCustomForm* form) {
  MINMAXINFO info{};
  info.ptMinTrackSize = {::GetSystemMetrics(SM_CXMINTRACK), ::GetSystemMetrics(SM_CYMINTRACK)};
  info.ptMaxTrackSize = {::GetSystemMetrics(SM_CXMAXTRACK), ::GetSystemMetrics(SM_CYMAXTRACK)};
  ::SendMessageW(form->Handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  const vcl::TSizeConstraints& own = *form->Constraints();
  const auto largest = [](int answered, int most) {
    return most > 0 ? std::min(answered, most) : answered;
  };
  return {{std::max(static_cast<int>(info.ptMinTrackSize.x), own.MinWidth()),
           std::max(static_cast<int>(info.ptMinTrackSize.y), own.MinHeight())},
          {largest(info.ptMaxTrackSize.x, own.MaxWidth()),
           largest(info.ptMaxTrackSize.y, own.MaxHeight())}};
}

}  // namespace

const vcl::TClass& TQELFormAspect::Class() {
  using T = TQELFormAspect;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormComponent>(
      "qel::TQELFormAspect", "qel/services/Qeltformaspect.h",
      {
          Property<&T::AspectWidth, &T::SetAspectWidth>("AspectWidth").Default(4),
          Property<&T::AspectHeight, &T::SetAspectHeight>("AspectHeight").Default(3),
          Property<&T::ClientArea, &T::SetClientArea>("ClientArea").Default(true),
      });
  return info;
}

TQELFormAspect::TQELFormAspect(vcl::TComponent* owner) : TQELFormComponent(owner) { Attach(); }

TQELFormAspect::~TQELFormAspect() {
  AnnounceEnd();
  Detach();
}

void TQELFormAspect::SetAspectWidth(int width) {
  if (width >= 1) FAspectWidth = width;
}

void TQELFormAspect::SetAspectHeight(int height) {
  if (height >= 1) FAspectHeight = height;
}

void TQELFormAspect::AfterMessage(vcl::TMessage& message) {
  if (message.Msg != WM_SIZING) return;
  KeepAspect(*reinterpret_cast<RECT*>(message.LParam), message.WParam);
  message.Result = TRUE;
}

/// What of the window is outside the relation.
vcl::TSize TQELFormAspect::Around() const {
  if (!FClientArea) return {0, 0};
  RECT window, client;
  ::GetWindowRect(Form()->Handle(), &window);
  ::GetClientRect(Form()->Handle(), &client);
  return {static_cast<int>(window.right - window.left - client.right),
          static_cast<int>(window.bottom - window.top - client.bottom)};
}

/// A width whose height is inside the form's limits, too; a contradiction leaves it as it is.
int TQELFormAspect::WidthInLimits(int width, vcl::TSize around) const {
  const TLimits limits = LimitsOf(Form());
  const auto widthAt = [&](int height, int more) {
    const std::int64_t parts = std::int64_t{height - around.cy} * FAspectWidth + more;
    return static_cast<int>(parts / FAspectHeight);
  };
  const int least =
      std::max(limits.Least.cx - around.cx, widthAt(limits.Least.cy, FAspectHeight - 1));
  const int largest = std::min(limits.Largest.cx - around.cx, widthAt(limits.Largest.cy, 0));
  return least <= largest ? std::clamp(width, least, largest) : width;
}

/// The size in the relation that has the width resp. the height of the one that is wanted.
vcl::TSize TQELFormAspect::Kept(vcl::TSize wanted, bool byWidth) const {
  const vcl::TSize around = Around();
  const int inside = wanted.cy - around.cy;
  const int width = byWidth ? wanted.cx - around.cx : ::MulDiv(inside, FAspectWidth, FAspectHeight);
  const int kept = WidthInLimits(width, around);
  // A height that the user drags is not rounded twice.
  const int height =
      !byWidth && kept == width ? inside : ::MulDiv(kept, FAspectHeight, FAspectWidth);
  return {kept + around.cx, height + around.cy};
}

void TQELFormAspect::KeepAspect(RECT& bounds, WPARAM edge) const {
  const bool left = edge == WMSZ_LEFT || edge == WMSZ_TOPLEFT || edge == WMSZ_BOTTOMLEFT;
  const bool top = edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT;
  const bool upright = edge == WMSZ_TOP || edge == WMSZ_BOTTOM;
  const bool across = edge == WMSZ_LEFT || edge == WMSZ_RIGHT;
  const vcl::TSize wanted = vcl::TRect(bounds).Size();
  vcl::TSize kept = Kept(wanted, !upright);
  // At a corner the larger of the two sizes: the form follows the mouse as far as it has gone.
  if (!upright && !across && kept.cy < wanted.cy) kept = Kept(wanted, false);
  left ? bounds.left = bounds.right - kept.cx : bounds.right = bounds.left + kept.cx;
  top ? bounds.top = bounds.bottom - kept.cy : bounds.bottom = bounds.top + kept.cy;
}

}  // namespace qel
