// The dialogs about printers: their choices to the system and back.
#include "vcl/printing/printdialogs.h"

#include <algorithm>

#include "vcl/printing/private/devicesettings.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

constexpr DWORD PageFlags[] = {PSD_DISABLEMARGINS, PSD_DISABLEORIENTATION, PSD_DISABLEPAPER,
                               PSD_DISABLEPRINTER};

int Checked(int value, int least, int most, const char* what) {
  if (value >= least && value <= most) return value;
  throw EArgumentOutOfRangeException(Concat(what, ": ", std::to_string(value)));
}

int CheckedPage(int page) { return Checked(page, 0, 0xFFFE, "No number of a page"); }
int CheckedMargin(int margin) { return Checked(margin, 0, 1'000'000, "No margin"); }

}  // namespace

// Printing.

const TClass& TPrintDialog::Class() {
  using T = TPrintDialog;
  static const TClass info = Describe<T, TCommonDialog>(
      "vcl::TPrintDialog", "vcl/printing/printing.h",
      {
          Property<&T::Collate, &T::SetCollate>("Collate").Default(false),
          Property<&T::Copies, &T::SetCopies>("Copies").Default(1),
          Property<&T::FromPage, &T::SetFromPage>("FromPage").Default(0),
          Property<&T::MaxPage, &T::SetMaxPage>("MaxPage").Default(0),
          Property<&T::MinPage, &T::SetMinPage>("MinPage").Default(0),
          Property<&T::Options, &T::SetOptions>("Options").Default(TPrintDialogOptions{}),
          Property<&T::PrintRange, &T::SetPrintRange>("PrintRange").Default(prAllPages),
          Property<&T::PrintToFile, &T::SetPrintToFile>("PrintToFile").Default(false),
          Property<&T::ToPage, &T::SetToPage>("ToPage").Default(0),
      });
  return info;
}

void TPrintDialog::SetCopies(int copies) {
  FCopies = Checked(copies, 1, 9999, "No number of copies");
}
void TPrintDialog::SetFromPage(int page) { FFromPage = CheckedPage(page); }
void TPrintDialog::SetToPage(int page) { FToPage = CheckedPage(page); }
void TPrintDialog::SetMinPage(int page) { FMinPage = CheckedPage(page); }
void TPrintDialog::SetMaxPage(int page) { FMaxPage = CheckedPage(page); }

DWORD TPrintDialog::Flags() const {
  static constexpr DWORD ranges[] = {PD_ALLPAGES, PD_SELECTION, PD_PAGENUMS};
  DWORD flags =
      ranges[FPrintRange] | (FOptions.Has(pdDisablePrintToFile) ? PD_DISABLEPRINTTOFILE : 0);
  if (!FOptions.Has(pdPageNums)) flags |= PD_NOPAGENUMS;
  if (!FOptions.Has(pdSelection)) flags |= PD_NOSELECTION;
  if (!FOptions.Has(pdPrintToFile)) flags |= PD_HIDEPRINTTOFILE;
  if (FPrintToFile) flags |= PD_PRINTTOFILE;
  if (FCollate) flags |= PD_COLLATE;
  if (NeedsHook()) flags |= PD_ENABLEPRINTHOOK;
  return flags;
}

void TPrintDialog::Take(DWORD flags) {
  FCollate = (flags & PD_COLLATE) != 0;
  FPrintToFile = (flags & PD_PRINTTOFILE) != 0;
  FPrintRange = flags & PD_PAGENUMS ? prPageNums : flags & PD_SELECTION ? prSelection : prAllPages;
}

bool TPrintDialog::Execute() {
  TPrinter& printer = *Printer();
  if (printer.Printing()) throw EPrinter("Printing is under way");
  TDeviceBlocks blocks(printer);
  PRINTDLGW data{};
  data.lStructSize = sizeof data;
  data.hDevMode = blocks.Mode;
  data.hDevNames = blocks.Names;
  data.Flags = Flags();
  data.nCopies = static_cast<WORD>(FCopies);
  data.nFromPage = static_cast<WORD>(FFromPage);
  data.nToPage = static_cast<WORD>(FToPage);
  data.nMinPage = static_cast<WORD>(FMinPage);
  data.nMaxPage = static_cast<WORD>(FMaxPage);
  data.lpfnPrintHook = &Hook;
  const bool agreed = Run([&](HWND owner) {
    data.hwndOwner = owner;
    return ::PrintDlgW(&data);
  });
  blocks.Mode = data.hDevMode;
  blocks.Names = data.hDevNames;
  if (!agreed) return false;
  blocks.ApplyTo(printer);
  FCopies = std::max<int>(data.nCopies, 1);
  FFromPage = data.nFromPage;
  FToPage = data.nToPage;
  Take(data.Flags);
  return true;
}

// The printer's settings.

const TClass& TPrinterSetupDialog::Class() {
  static const TClass info = Describe<TPrinterSetupDialog, TCommonDialog>(
      "vcl::TPrinterSetupDialog", "vcl/printing/printing.h", {});
  return info;
}

bool TPrinterSetupDialog::Execute() {
  TPrinter& printer = *Printer();
  if (printer.Printing()) throw EPrinter("Printing is under way");
  TDeviceBlocks blocks(printer);
  PRINTDLGW data{};
  data.lStructSize = sizeof data;
  data.hDevMode = blocks.Mode;
  data.hDevNames = blocks.Names;
  data.Flags = PD_PRINTSETUP | (NeedsHook() ? PD_ENABLESETUPHOOK : 0);
  data.lpfnSetupHook = &Hook;
  const bool agreed = Run([&](HWND owner) {
    data.hwndOwner = owner;
    return ::PrintDlgW(&data);
  });
  blocks.Mode = data.hDevMode;
  blocks.Names = data.hDevNames;
  if (agreed) blocks.ApplyTo(printer);
  return agreed;
}

// The page.

const TClass& TPageSetupDialog::Class() {
  using T = TPageSetupDialog;
  static const TClass info = Describe<T, TCommonDialog>(
      "vcl::TPageSetupDialog", "vcl/printing/printing.h",
      {
          Property<&T::MarginBottom, &T::SetMarginBottom>("MarginBottom").Default(UsualMargin),
          Property<&T::MarginLeft, &T::SetMarginLeft>("MarginLeft").Default(UsualMargin),
          Property<&T::MarginRight, &T::SetMarginRight>("MarginRight").Default(UsualMargin),
          Property<&T::MarginTop, &T::SetMarginTop>("MarginTop").Default(UsualMargin),
          Property<&T::Options, &T::SetOptions>("Options").Default(TPageSetupOptions{}),
      });
  return info;
}

void TPageSetupDialog::SetMarginLeft(int margin) { FMargins.Left = CheckedMargin(margin); }
void TPageSetupDialog::SetMarginTop(int margin) { FMargins.Top = CheckedMargin(margin); }
void TPageSetupDialog::SetMarginRight(int margin) { FMargins.Right = CheckedMargin(margin); }
void TPageSetupDialog::SetMarginBottom(int margin) { FMargins.Bottom = CheckedMargin(margin); }

void TPageSetupDialog::SetMinMargins(const TRect& margins) {
  for (const int each : {margins.Left, margins.Top, margins.Right, margins.Bottom}) {
    CheckedMargin(each);
  }
  FMinMargins = margins;
}

TRect TPageSetupDialog::TextArea(const TPrintDocument& document) const {
  constexpr int hundredthsPerInch = 2540;  // Of a millimetre.
  const TPageMetrics page = document.Metrics();
  const auto across = [&](int margin) {
    return ::MulDiv(margin, page.PixelsPerInch.cx, hundredthsPerInch) - page.Edge.X;
  };
  const auto down = [&](int margin) {
    return ::MulDiv(margin, page.PixelsPerInch.cy, hundredthsPerInch) - page.Edge.Y;
  };
  const int restX = page.Paper.cx - page.Page.cx - 2 * page.Edge.X;
  const int restY = page.Paper.cy - page.Page.cy - 2 * page.Edge.Y;
  return {std::max(across(FMargins.Left), 0), std::max(down(FMargins.Top), 0),
          page.Page.cx - std::max(across(FMargins.Right) - restX, 0),
          page.Page.cy - std::max(down(FMargins.Bottom) - restY, 0)};
}

bool TPageSetupDialog::Execute() {
  TPrinter& printer = *Printer();
  if (printer.Printing()) throw EPrinter("Printing is under way");
  TDeviceBlocks blocks(printer);
  PAGESETUPDLGW data{};
  data.lStructSize = sizeof data;
  data.hDevMode = blocks.Mode;
  data.hDevNames = blocks.Names;
  data.Flags = PSD_MARGINS | PSD_INHUNDREDTHSOFMILLIMETERS | FlagsOf(FOptions, PageFlags);
  if (NeedsHook()) data.Flags |= PSD_ENABLEPAGESETUPHOOK;
  data.rtMinMargin = FMinMargins;
  if (FMinMargins != TRect()) data.Flags |= PSD_MINMARGINS;
  // The system refuses margins below the least ones.
  data.rtMargin = {
      std::max(FMargins.Left, FMinMargins.Left), std::max(FMargins.Top, FMinMargins.Top),
      std::max(FMargins.Right, FMinMargins.Right), std::max(FMargins.Bottom, FMinMargins.Bottom)};
  data.lpfnPageSetupHook = &Hook;
  const bool agreed = Run([&](HWND owner) {
    data.hwndOwner = owner;
    return ::PageSetupDlgW(&data);
  });
  blocks.Mode = data.hDevMode;
  blocks.Names = data.hDevNames;
  if (!agreed) return false;
  blocks.ApplyTo(printer);
  FMargins = data.rtMargin;
  return true;
}

}  // namespace vcl
