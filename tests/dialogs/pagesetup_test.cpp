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
/// The screen stands for the printer's context, whose sheet has its size.
HDC WINAPI ScreenContext(LPCWSTR, LPCWSTR, LPCWSTR, const DEVMODEW*) {
  return ::CreateCompatibleDC(nullptr);
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

class PageSetupOfOne : public PageSetup {
 private:
  const TImportPatch FPatches[6] = {{"qelhost.dll", "EnumPrintersW", &OnePrinter},
                                    {"qelhost.dll", "OpenPrinterW", &OpenIt},
                                    {"qelhost.dll", "ClosePrinter", &CloseIt},
                                    {"qelhost.dll", "DocumentPropertiesW", &Upright},
                                    {"qelhost.dll", "CreateICW", &ScreenContext},
                                    {"qelhost.dll", "PageSetupDlgW", &AskPage}};
};

TEST_F(PageSetupOfOne, AsksWithWhatIsSetAndTakesWhatIsChosen) {
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

TEST_F(PageSetupOfOne, ASheetWithoutASizeHasTheContexts) {
  Asked.Answer = [](PAGESETUPDLGW&, DEVMODEW& mode) -> BOOL {
    mode.dmFields = DM_ORIENTATION | DM_PAPERSIZE;
    mode.dmOrientation = DMORIENT_PORTRAIT;
    return TRUE;
  };
  EXPECT_TRUE(Dialog->Execute());
  const vcl::TPageMetrics page = vcl::Printer()->Metrics();
  EXPECT_EQ(Dialog->PaperWidth(), ::MulDiv(page.Paper.cx, 2540, page.PixelsPerInch.cx));
  EXPECT_EQ(Dialog->PaperName(), "");
}

TEST_F(PageSetupOfOne, AfterACancelNothingHasChanged) {
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
