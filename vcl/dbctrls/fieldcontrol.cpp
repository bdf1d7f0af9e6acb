// Which input changes a field.
#include "vcl/dbctrls/fieldcontrol.h"

#include "vcl/rtl/win32.h"

namespace vcl::detail {

void RefuseInput() { ::MessageBeep(0); }

bool ChangesText(char32_t character) { return character >= ' ' || character == VK_BACK; }

bool ChangesText(std::uint16_t key, TShiftState shift) {
  return key == VK_DELETE || (key == VK_INSERT && shift.Has(ssShift));
}

bool ChangesText(const TMessage& message) {
  return message.Msg == WM_CUT || message.Msg == WM_PASTE || message.Msg == WM_CLEAR;
}

}  // namespace vcl::detail
