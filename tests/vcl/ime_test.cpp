// What a control with the focus asks of the keyboard's input method. The system's answers are made
// up: a test machine has no Far Eastern keyboard.
#include "tests/support/importpatch.h"
#include "tests/vcl/standardform.h"

// Needs the system's other headers.
#include <imm.h>

namespace vcl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> calls;
const HKL Latin = reinterpret_cast<HKL>(0x04070407);
const HKL Japanese = reinterpret_cast<HKL>(0xE0010411);

void Log(const char* call, std::uintptr_t value) {
  char text[40];
  std::snprintf(text, sizeof text, "%s %x", call, static_cast<unsigned>(value));
  calls.push_back(text);
}

class Ime : public TStandardForm {
 protected:
  Ime() {
    Edit = Make<TEdit>(10, 10);
    Other = Make<TEdit>(10, 50);
    ShowForm();
    Other->SetFocus();
    calls.clear();
  }
  /// The calls while the edit gets the focus, and loses it again.
  std::vector<std::string> Visit() {
    calls.clear();
    Edit->SetFocus();
    Other->SetFocus();
    return calls;
  }

  TEdit* Edit;
  TEdit* Other;
  TImportPatch Associate{
      "qelhost.dll", "ImmAssociateContextEx",
      +[](HWND, HIMC, DWORD flags) WINAPI -> BOOL { return Log("associate", flags), TRUE; }};
  TImportPatch Context{"qelhost.dll", "ImmGetContext",
                       +[](HWND) WINAPI -> HIMC { return reinterpret_cast<HIMC>(1); }};
  TImportPatch Release{"qelhost.dll", "ImmReleaseContext",
                       +[](HWND, HIMC) WINAPI -> BOOL { return TRUE; }};
  TImportPatch Open{"qelhost.dll", "ImmSetOpenStatus", +[](HIMC, BOOL open) WINAPI -> BOOL {
                      return Log("open", static_cast<std::uintptr_t>(open)), TRUE;
                    }};
  TImportPatch GetConversion{"qelhost.dll", "ImmGetConversionStatus",
                             +[](HIMC, DWORD* conversion, DWORD* sentence) WINAPI -> BOOL {
                               *conversion = IME_CMODE_ROMAN | IME_CMODE_KATAKANA;
                               *sentence = 0;
                               return TRUE;
                             }};
  TImportPatch SetConversion{"qelhost.dll", "ImmSetConversionStatus",
                             +[](HIMC, DWORD conversion, DWORD)
                                  WINAPI -> BOOL { return Log("convert", conversion), TRUE; }};
  TImportPatch List{"qelhost.dll", "GetKeyboardLayoutList", +[](int size, HKL* list) WINAPI -> int {
                      if (size == 2) list[0] = Latin, list[1] = Japanese;
                      return 2;
                    }};
  TImportPatch IsIme{"qelhost.dll", "ImmIsIME",
                     +[](HKL layout) WINAPI -> BOOL { return layout == Japanese; }};
  TImportPatch Describe{"qelhost.dll", "ImmGetDescriptionW",
                        +[](HKL, wchar_t* text, UINT size) WINAPI -> UINT {
                          if (size == 4) std::wcscpy(text, L"仮名1");
                          return 3;
                        }};
  TImportPatch Activate{"qelhost.dll", "ActivateKeyboardLayout",
                        +[](HKL layout, UINT) WINAPI -> HKL {
                          Log("keyboard", reinterpret_cast<std::uintptr_t>(layout));
                          return Latin;
                        }};
};

TEST_F(Ime, ItsStateFollowsTheModeOfTheFocusedControl) {
  EXPECT_THAT(Visit(), IsEmpty());
  const std::pair<TImeMode, std::vector<std::string>> cases[] = {
      {imClose, {"open 0"}},
      {imOpen, {"open 1"}},
      {imSAlpha, {"open 1", "convert 10"}},
      {imAlpha, {"open 1", "convert 18"}},
      {imHira, {"open 1", "convert 19"}},
      {imSKata, {"open 1", "convert 13"}},
      {imKata, {"open 1", "convert 1b"}},
      {imChinese, {"open 1", "convert 11"}},
      {imSHanguel, {"open 1", "convert 11"}},
      {imHanguel, {"open 1", "convert 19"}},
      {imDontCare, {}},
      {imDisable, {"associate 0"}},
  };
  for (const auto& [mode, expected] : cases) {
    Edit->SetImeMode(mode);
    EXPECT_EQ(Visit(), expected) << mode;
  }
  calls.clear();
  Edit->SetImeMode(imOpen);
  EXPECT_THAT(calls, ElementsAre("associate 10"));
}

TEST_F(Ime, TheKeyboardIsTheNamedOneWhileTheControlHasTheFocus) {
  Edit->SetImeName("none of these");
  EXPECT_THAT(Visit(), IsEmpty());
  Edit->SetImeName("仮名1");
  EXPECT_THAT(Visit(), ElementsAre("keyboard e0010411", "keyboard 4070407"));
  Edit->SetFocus();
  calls.clear();
  Edit->SetImeName("");
  EXPECT_THAT(calls, ElementsAre("keyboard 4070407"));
}

}  // namespace
}  // namespace vcl
