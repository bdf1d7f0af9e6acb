// Choosing an input method, and putting it into the state that a control wants.
#include "vcl/controls/private/ime.h"

#include <utility>
#include <vector>

#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <imm.h>

namespace vcl {
namespace {

constexpr DWORD Full = IME_CMODE_FULLSHAPE;
constexpr DWORD Native = IME_CMODE_NATIVE;
constexpr DWORD Katakana = IME_CMODE_NATIVE | IME_CMODE_KATAKANA;
constexpr DWORD Conversion = Full | Katakana;

/// What of the state a mode sets.
enum class TSets { Nothing, Closed, Open, OpenAndConversion };
struct TImeState {
  TSets Sets;
  DWORD Conversion = 0;
};
constexpr TImeState States[] = {
    {TSets::Nothing},                             // imDisable
    {TSets::Closed},                              // imClose
    {TSets::Open},                                // imOpen
    {TSets::Nothing},                             // imDontCare
    {TSets::OpenAndConversion, 0},                // imSAlpha
    {TSets::OpenAndConversion, Full},             // imAlpha
    {TSets::OpenAndConversion, Native | Full},    // imHira
    {TSets::OpenAndConversion, Katakana},         // imSKata
    {TSets::OpenAndConversion, Katakana | Full},  // imKata
    {TSets::OpenAndConversion, Native},           // imChinese
    {TSets::OpenAndConversion, Native},           // imSHanguel
    {TSets::OpenAndConversion, Native | Full},    // imHanguel
};

void SetState(HIMC context, const TImeState& state) {
  ::ImmSetOpenStatus(context, state.Sets != TSets::Closed);
  if (state.Sets != TSets::OpenAndConversion) return;
  DWORD conversion = 0;
  DWORD sentence = 0;
  ::ImmGetConversionStatus(context, &conversion, &sentence);
  ::ImmSetConversionStatus(context, (conversion & ~Conversion) | state.Conversion, sentence);
}

std::string Description(HKL layout) {
  std::wstring text(::ImmGetDescriptionW(layout, nullptr, 0) + 1, L'\0');
  text.resize(::ImmGetDescriptionW(layout, text.data(), static_cast<UINT>(text.size())));
  return ToUtf8(text);
}

HKL FindIme(const std::string& name) {
  std::vector<HKL> layouts(static_cast<std::size_t>(::GetKeyboardLayoutList(0, nullptr)));
  ::GetKeyboardLayoutList(static_cast<int>(layouts.size()), layouts.data());
  for (HKL each : layouts) {
    if (::ImmIsIME(each) && SameText(Description(each), name)) return each;
  }
  return nullptr;
}

/// The keyboard that the focused control's input method took the place of.
HKL formerLayout = nullptr;

}  // namespace

void ApplyImeMode(HWND window, TImeMode mode) {
  if (mode == imDisable) {
    ::ImmAssociateContextEx(window, nullptr, 0);
    return;
  }
  const TImeState& state = States[mode];
  if (state.Sets == TSets::Nothing) return;
  const HIMC context = ::ImmGetContext(window);
  if (!context) return;
  SetState(context, state);
  ::ImmReleaseContext(window, context);
}

void EnableIme(HWND window) { ::ImmAssociateContextEx(window, nullptr, IACE_DEFAULT); }

void EnterIme(const std::string& name) {
  const HKL wanted = name.empty() ? nullptr : FindIme(name);
  if (wanted && !formerLayout) formerLayout = ::ActivateKeyboardLayout(wanted, 0);
}

void LeaveIme() {
  if (formerLayout) ::ActivateKeyboardLayout(std::exchange(formerLayout, nullptr), 0);
}

}  // namespace vcl
