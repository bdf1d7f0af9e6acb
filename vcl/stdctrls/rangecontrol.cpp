// TRangeControl: bounds, and the position between them.
#include "vcl/stdctrls/rangecontrol.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TRangeControl::Class() {
  using T = TRangeControl;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TRangeControl", "vcl/stdctrls/rangecontrol.h",
      {
          Property<&T::Max, &T::SetMax>("Max").Default(100).Unpublished(),
          Property<&T::Min, &T::SetMin>("Min").Default(0).Unpublished(),
          Property<&T::Position, &T::SetPosition>("Position").Default(0).Unpublished(),
      });
  return info;
}

TRangeControl::TRangeControl(TComponent* owner, int max) : TWinControl(owner), FMax(max) {}

void TRangeControl::CheckRange(int min, int max) const {
  // The system's controls count the way from one end to the other.
  if (min <= max && std::int64_t{max} - min <= std::numeric_limits<int>::max()) return;
  throw EArgumentOutOfRangeException(Concat("A ", ClassName(), " cannot go from ",
                                            std::to_string(min), " to ", std::to_string(max)));
}

void TRangeControl::SetRange(int min, int max) {
  if (!Loading()) CheckRange(min, max);
  FMin = min;
  FMax = max;
  if (Loading()) return;
  if (HandleAllocated()) SendRange();
  SetPosition(FPosition);
}

void TRangeControl::SetPosition(int position) {
  if (!Loading()) position = std::clamp(position, FMin, FMax);
  if (position == FPosition) return;
  FPosition = position;
  if (Loading()) return;
  if (HandleAllocated()) SendPosition();
  Change();
}

void TRangeControl::Loaded() {
  TWinControl::Loaded();
  CheckRange(FMin, FMax);
  FPosition = std::clamp(FPosition, FMin, FMax);
  if (!HandleAllocated()) return;
  SendRange();
  SendPosition();
}

void TRangeControl::TakePosition(int position) {
  if (position == FPosition) return;
  FPosition = position;
  Change();
}

void TRangeControl::Change() { AccessibleChanged(acValue); }

void TRangeControl::CreateWnd() {
  TWinControl::CreateWnd();
  SendRange();
  SendPosition();
}

void TRangeControl::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Value = std::to_string(FPosition);
}

}  // namespace vcl
