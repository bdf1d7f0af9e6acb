// TQELPageSetupDialog: what it asks of the system and takes from it, with a printer that is none.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <string>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

// Behind win32.h, on which it stands.
#include <winspool.h>

namespace qel {
namespace {

constexpr wchar_t PrinterName[] = L"Laser";

BOOL WINAPI OnePrinter(DWORD, LPWSTR, DWORD, LPBYTE buffer, DWORD size, LPDWORD needed,
                       LPDWORD count) {
  *needed = sizeof(PRINTER_INFO_4W);
  *count = 0;
  if (size < sizeof(PRINTER_INFO_4W)) return FALSE;
  PRINTER_INFO_4W info{const_cast<LPWSTR>(PrinterName), nullptr, 0};
  std::memcpy(buffer, &info, sizeof info);
  *count = 1;
  return TRUE;
}
BOOL WINAPI OpenIt(LPWSTR, LPHANDLE handle, LPPRINTER_DEFAULTSW) {
  *handle = handle;
  return TRUE;
}
BOOL WINAPI CloseIt(HANDLE) { return TRUE; }
LONG WINAPI Upright(HWND, HANDLE, LPWSTR, PDEVMODEW mode, PDEVMODEW, DWORD) {
  if (!mode) return sizeof(DEVMODEW);
  *mode = {};
  mode->dmSize = sizeof *mode;
  mode->dmFields = DM_PAPERSIZE;
  mode->dmPaperSize = DMPAPER_LETTER;
  return IDOK;
}
/// The screen stands for the printer's context, whose sheet is 8.5 inches wide and 11 high.
HDC WINAPI ScreenContext(LPCWSTR, LPCWSTR, LPCWSTR, const DEVMODEW*) {
  return ::CreateCompatibleDC(nullptr);
}
int WINAPI SheetOrScreen(HDC dc, int which) {
  if (which == PHYSICALWIDTH) return ::GetDeviceCaps(dc, LOGPIXELSX) * 85 / 10;
  if (which == PHYSICALHEIGHT) return ::GetDeviceCaps(dc, LOGPIXELSY) * 11;
  return ::GetDeviceCaps(dc, which);
}

/// Sheets of one size, from one bin.
DWORD WINAPI HasSheet(LPCWSTR, LPCWSTR, WORD which, LPWSTR out, const DEVMODEW*) {
  constexpr std::size_t paperName = 64, binName = 24;
  const auto put = [out](const auto& value) {
    if (out) std::memcpy(out, &value, sizeof value);
    return DWORD{1};
  };
  if (out && which == DC_PAPERNAMES) std::fill_n(out, paperName, L'\0');
  if (out && which == DC_BINNAMES) std::fill_n(out, binName, L'\0');
  switch (which) {
    case DC_PAPERS: return put(WORD{DMPAPER_LETTER});
    case DC_PAPERSIZE: return put(POINT{2159, 2794});
    case DC_PAPERNAMES: return put(L"Letter");
    case DC_BINS: return put(WORD{DMBIN_AUTO});
    case DC_BINNAMES: return put(L"Bin");
    default: return static_cast<DWORD>(-1);
  }
}

/// What the dialog was last asked with, and what the user does there.
struct TAsked {
  DWORD Flags = 0;
  RECT Margins{}, Least{};
  DEVMODEW Mode{};
  std::function<BOOL(PAGESETUPDLGW&, DEVMODEW&)> Answer;
};
TAsked Asked;

BOOL WINAPI AskPage(LPPAGESETUPDLGW data) {
  Asked.Flags = data->Flags;
  Asked.Margins = data->rtMargin;
  Asked.Least = data->rtMinMargin;
  auto* const mode = static_cast<DEVMODEW*>(::GlobalLock(data->hDevMode));
  Asked.Mode = *mode;
  const BOOL answer = Asked.Answer ? Asked.Answer(*data, *mode) : FALSE;
  ::GlobalUnlock(data->hDevMode);
  return answer;
}

class PageSetup : public testing::Test {
 protected:
  PageSetup() {
    Asked = {};
    vcl::Printer()->Refresh();
  }
  ~PageSetup() override {
    Asked = {};
    vcl::Printer()->Refresh();
  }
  static DEVMODEW PrintersMode() {
    DEVMODEW mode{};
    std::memcpy(&mode, vcl::Printer()->Settings().data(), sizeof mode);
    return mode;
  }
  std::unique_ptr<TQELPageSetupDialog> Dialog = std::make_unique<TQELPageSetupDialog>(nullptr);
};

TEST_F(PageSetup, WithoutAPrinterItSaysSo) {
  if (!vcl::Printer()->Printers().empty()) GTEST_SKIP() << "printers are installed";
  EXPECT_FALSE(Dialog->Execute());
  EXPECT_EQ(Dialog->LastError(), "No printer is installed");
}

/// One printer, which only the library sees.
class PageSetupOfOne : public PageSetup {
 private:
  const TImportPatch FPatches[6] = {{"qelhost.dll", "EnumPrintersW", &OnePrinter},
                                    {"qelhost.dll", "OpenPrinterW", &OpenIt},
                                    {"qelhost.dll", "ClosePrinter", &CloseIt},
                                    {"qelhost.dll", "DocumentPropertiesW", &Upright},
                                    {"qelhost.dll", "CreateICW", &ScreenContext},
                                    {"qelhost.dll", "GetDeviceCaps", &SheetOrScreen}};
};

/// And a user who is none.
class PageSetupOfUser : public PageSetupOfOne {
 private:
  const TImportPatch FPatch{"qelhost.dll", "PageSetupDlgW", &AskPage};
};

/// Where the system's dialog can be told of a sheet.
TEST_F(PageSetupOfOne, TheDialogIsTheSystems) {
  const HMODULE dialogs = ::GetModuleHandleA("comdlg32.dll");
  const bool asks = FindImport(dialogs, [](const std::string& name, std::uintptr_t*) {
    return name == "DeviceCapabilitiesW";
  });
  if (!asks) GTEST_SKIP() << "the system's dialog asks for sheets in another way";
  const TImportPatch patch("comdlg32.dll", "DeviceCapabilitiesW", &HasSheet);
  std::vector<int> asked;
  Dialog->SetHelpContext(5);
  Dialog->OnHelp = [&](vcl::TObject*, int context) { asked.push_back(context); };
  Dialog->SetMarginLeft(1200);
  const auto pressF1 = [pressed = false]() mutable {
    ::Sleep(100);
    if (!std::exchange(pressed, true)) {
      testinput::SendKey(VK_F1, true);
      testinput::SendKey(VK_F1, false);
      ::Sleep(200);
    }
    return true;
  };
  testinput::TBoxAnswer box(IDOK, 1, pressF1);
  EXPECT_TRUE(Dialog->Execute());
  EXPECT_TRUE(box.Wait());
  EXPECT_THAT(asked, testing::ElementsAre(5));
  EXPECT_EQ(Dialog->LastError(), "");
  EXPECT_EQ(Dialog->MarginLeft(), 1200);
  EXPECT_NEAR(Dialog->PaperWidth(), 21590, 20) << "the sheet of the printer";
}

TEST_F(PageSetupOfUser, AsksWithWhatIsSetAndTakesWhatIsChosen) {
  Dialog->SetMarginLeft(1000);
  Dialog->MinMargins()->SetTop(3000);
  Dialog->MinMargins()->SetTop(-1);
  Dialog->SetOrientation(vcl::poLandscape);
  Dialog->SetPaperWidth(10000);
  Dialog->SetPaperHeight(15000);
  Dialog->SetOptions({vcl::psDisablePrinter});
  Asked.Answer = [](PAGESETUPDLGW& data, DEVMODEW& mode) -> BOOL {
    data.rtMargin = {1, 2, 3, 4};
    mode.dmFields = DM_ORIENTATION | DM_PAPERWIDTH | DM_PAPERLENGTH | DM_FORMNAME;
    mode.dmOrientation = DMORIENT_PORTRAIT;
    mode.dmPaperWidth = 2100;
    mode.dmPaperLength = 2970;
    std::copy_n(L"A4", 3, mode.dmFormName);
    return TRUE;
  };
  EXPECT_TRUE(Dialog->Execute());
  EXPECT_EQ(vcl::TRect(Asked.Margins), vcl::TRect(1000, 3000, 2500, 2500)) << "not below the least";
  EXPECT_EQ(vcl::TRect(Asked.Least), vcl::TRect(0, 3000, 0, 0));
  constexpr DWORD flags = PSD_MINMARGINS | PSD_MARGINS | PSD_DISABLEPRINTER;
  EXPECT_EQ(Asked.Flags & flags, flags);
  EXPECT_EQ(Asked.Mode.dmOrientation, DMORIENT_LANDSCAPE);
  EXPECT_EQ(Asked.Mode.dmPaperWidth, 1000);
  EXPECT_EQ(Asked.Mode.dmPaperLength, 1500);
  EXPECT_EQ(Dialog->MarginBottom(), 4);
  EXPECT_EQ(Dialog->Orientation(), vcl::poPortrait);
  EXPECT_EQ(Dialog->PaperWidth(), 21000);
  EXPECT_EQ(Dialog->PaperHeight(), 29700);
  EXPECT_EQ(Dialog->PaperName(), "A4");
  EXPECT_EQ(PrintersMode().dmPaperWidth, 2100) << "the printer has it";
  Dialog->SetPaperWidth(1);
  Dialog->Execute();
  EXPECT_EQ(std::wstring(Asked.Mode.dmFormName), L"A4") << "a name counts more than a size";
  EXPECT_EQ(Asked.Mode.dmFields & (DM_PAPERWIDTH | DM_FORMNAME), DWORD{DM_FORMNAME});
}

TEST_F(PageSetupOfUser, ASheetWithoutASizeHasTheContexts) {
  Dialog->SetPaperName("A4");
  for (const short turned : {short{DMORIENT_PORTRAIT}, short{DMORIENT_LANDSCAPE}}) {
    Asked.Answer = [turned](PAGESETUPDLGW&, DEVMODEW& mode) -> BOOL {
      mode.dmFields = DM_ORIENTATION | DM_PAPERSIZE;
      mode.dmOrientation = turned;
      return TRUE;
    };
    EXPECT_TRUE(Dialog->Execute());
    const bool upright = turned == DMORIENT_PORTRAIT;
    EXPECT_NEAR(upright ? Dialog->PaperWidth() : Dialog->PaperHeight(), 21590, 20);
    EXPECT_NEAR(upright ? Dialog->PaperHeight() : Dialog->PaperWidth(), 27940, 20);
    EXPECT_EQ(Dialog->PaperName(), "");
  }
}

TEST_F(PageSetupOfUser, AfterACancelNothingHasChanged) {
  Dialog->SetOrientation(vcl::poLandscape);
  Asked.Answer = [](PAGESETUPDLGW& data, DEVMODEW& mode) -> BOOL {
    data.rtMargin.left = 1;
    mode.dmPaperWidth = 1;
    return FALSE;
  };
  EXPECT_FALSE(Dialog->Execute());
  EXPECT_EQ(Dialog->LastError(), "");
  EXPECT_EQ(Dialog->MarginLeft(), 2500);
  EXPECT_EQ(PrintersMode().dmFields, DWORD{DM_PAPERSIZE}) << "nor the printer's settings";
  Asked.Answer = [this](PAGESETUPDLGW&, DEVMODEW&) -> BOOL {
    Dialog.reset();
    return TRUE;
  };
  EXPECT_FALSE(Dialog.get()->Execute());
  EXPECT_EQ(PrintersMode().dmFields, DWORD{DM_PAPERSIZE});
}

TEST_F(PageSetup, IsKeptInFormFiles) {
  RegisterAll();
  vcl::TForm form(nullptr);
  auto* dialog = new TQELPageSetupDialog(&form);
  dialog->SetName("Page");
  EXPECT_THAT(FormText(&form), testing::Not(testing::HasSubstr("Margin")));
  for (const int refused : {-1, 1'000'001}) dialog->SetMarginTop(refused);
  for (const int refused : {-1, 300'001}) dialog->SetPaperWidth(refused);
  EXPECT_EQ(dialog->MarginTop() + dialog->PaperWidth(), 2500);
  dialog->SetMarginTop(0);
  dialog->MinMargins()->SetRight(7);
  dialog->SetPaperName("A5");
  const std::string text = FormText(&form);
  vcl::TForm read(nullptr);
  ReadForm(text, &read);
  EXPECT_EQ(FormText(&read), text);
  EXPECT_THAT(text, testing::HasSubstr("MinMargins.Right = 7"));
}

}  // namespace
}  // namespace qel
