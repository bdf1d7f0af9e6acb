// TQELPageSetupDialog: its table, and the printer's settings before and after the dialog.
#include "qel/dialogs/Qeltpagesetupdialog.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "qel/dialogs/private/systemhelp.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr int UsualMargin = 2500;
constexpr int WidestMargin = 1'000'000;
constexpr int LargestSheet = 300'000;  // What a DEVMODE's tenths of a millimetre hold.
constexpr int Tenth = 10;              // Of our hundredths.
constexpr int HundredthsPerInch = 2540;

bool IsMargin(int width) { return width >= 0 && width <= WidestMargin; }

/// The head of a printer's settings; zeros where it has none.
DEVMODEW ModeOf(const std::string& settings) {
  DEVMODEW mode{};
  std::memcpy(&mode, settings.data(), std::min(settings.size(), sizeof mode));
  return mode;
}

/// The sheet's size by the printer's context, in hundredths of a millimetre; 0 where that does not
/// tell.
vcl::TSize SheetOf(const vcl::TPrinter& printer, bool turned) {
  const vcl::TPageMetrics page = printer.Metrics();
  const int across = ::MulDiv(page.Paper.cx, HundredthsPerInch, page.PixelsPerInch.cx);
  const int down = ::MulDiv(page.Paper.cy, HundredthsPerInch, page.PixelsPerInch.cy);
  return turned ? vcl::TSize{down, across} : vcl::TSize{across, down};
}

}  // namespace

const vcl::TClass& TQELPageMargins::Class() {
  using T = TQELPageMargins;
  using namespace vcl;
  static const TClass info =
      Describe<T, TPersistent>("qel::TQELPageMargins", "qel/dialogs/Qeltpagesetupdialog.h",
                               {
                                   Property<&T::Bottom, &T::SetBottom>("Bottom").Default(0),
                                   Property<&T::Left, &T::SetLeft>("Left").Default(0),
                                   Property<&T::Right, &T::SetRight>("Right").Default(0),
                                   Property<&T::Top, &T::SetTop>("Top").Default(0),
                               });
  return info;
}

void TQELPageMargins::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELPageMargins*>(source);
  if (!other) return TPersistent::Assign(source);
  FWidths = other->FWidths;
}

void TQELPageMargins::Set(int& side, int width) {
  if (IsMargin(width)) side = width;
}

const vcl::TClass& TQELPageSetupDialog::Class() {
  using T = TQELPageSetupDialog;
  using namespace vcl;
  static const TClass info = Describe<T, TQELHelpDialog>(
      "qel::TQELPageSetupDialog", "qel/dialogs/Qeltpagesetupdialog.h",
      {
          Property<&T::MarginBottom, &T::SetMarginBottom>("MarginBottom").Default(UsualMargin),
          Property<&T::MarginLeft, &T::SetMarginLeft>("MarginLeft").Default(UsualMargin),
          Property<&T::MarginRight, &T::SetMarginRight>("MarginRight").Default(UsualMargin),
          Property<&T::MarginTop, &T::SetMarginTop>("MarginTop").Default(UsualMargin),
          ReadOnly<&T::MinMargins>("MinMargins"),
          Property<&T::Options, &T::SetOptions>("Options").Default(TPageSetupOptions()),
          Property<&T::Orientation, &T::SetOrientation>("Orientation").Default(poPortrait),
          Property<&T::PaperHeight, &T::SetPaperHeight>("PaperHeight").Default(0),
          Property<&T::PaperName, &T::SetPaperName>("PaperName").Default(""),
          Property<&T::PaperWidth, &T::SetPaperWidth>("PaperWidth").Default(0),
      });
  return info;
}

TQELPageSetupDialog::TQELPageSetupDialog(vcl::TComponent* owner)
    : TQELHelpDialog(owner),
      FDialog(std::make_unique<vcl::TPageSetupDialog>(nullptr)),
      FMinMargins(std::make_unique<TQELPageMargins>()) {
  SetMarginLeft(UsualMargin);
  SetMarginTop(UsualMargin);
  SetMarginRight(UsualMargin);
  SetMarginBottom(UsualMargin);
}

TQELPageSetupDialog::~TQELPageSetupDialog() { AnnounceEnd(); }

void TQELPageSetupDialog::SetMarginLeft(int margin) {
  if (IsMargin(margin)) FDialog->SetMarginLeft(margin);
}
void TQELPageSetupDialog::SetMarginTop(int margin) {
  if (IsMargin(margin)) FDialog->SetMarginTop(margin);
}
void TQELPageSetupDialog::SetMarginRight(int margin) {
  if (IsMargin(margin)) FDialog->SetMarginRight(margin);
}
void TQELPageSetupDialog::SetMarginBottom(int margin) {
  if (IsMargin(margin)) FDialog->SetMarginBottom(margin);
}

void TQELPageSetupDialog::SetPaperWidth(int width) {
  if (width >= 0 && width <= LargestSheet) FPaperWidth = width;
}
void TQELPageSetupDialog::SetPaperHeight(int height) {
  if (height >= 0 && height <= LargestSheet) FPaperHeight = height;
}

/// The printer's settings with ours in them; the same where it has none. See DEVMODE: what a field
/// says counts when its flag is set.
std::string TQELPageSetupDialog::Wanted(const std::string& settings) const {
  if (settings.size() < sizeof(DEVMODEW)) return settings;
  DEVMODEW mode = ModeOf(settings);
  mode.dmFields |= DM_ORIENTATION;
  mode.dmOrientation = FOrientation == vcl::poLandscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
  constexpr DWORD sizes = DM_PAPERSIZE | DM_PAPERWIDTH | DM_PAPERLENGTH | DM_FORMNAME;
  if (!FPaperName.empty()) {
    mode.dmFields = (mode.dmFields & ~sizes) | DM_FORMNAME;
    const std::wstring name = vcl::ToUtf16(FPaperName);
    const std::size_t length = std::min<std::size_t>(name.size(), CCHFORMNAME - 1);
    std::fill(std::copy_n(name.begin(), length, mode.dmFormName), std::end(mode.dmFormName), L'\0');
  } else if (FPaperWidth > 0 && FPaperHeight > 0) {
    mode.dmFields = (mode.dmFields & ~sizes) | DM_PAPERSIZE | DM_PAPERWIDTH | DM_PAPERLENGTH;
    mode.dmPaperSize = DMPAPER_USER;
    mode.dmPaperWidth = static_cast<short>(FPaperWidth / Tenth);
    mode.dmPaperLength = static_cast<short>(FPaperHeight / Tenth);
  }
  std::string wanted = settings;
  std::memcpy(wanted.data(), &mode, sizeof mode);
  return wanted;
}

/// A printer that names its sheet without a size tells that by its context.
void TQELPageSetupDialog::Take(const std::string& settings) {
  const DEVMODEW mode = ModeOf(settings);
  const bool turned = mode.dmFields & DM_ORIENTATION && mode.dmOrientation == DMORIENT_LANDSCAPE;
  const bool sized = mode.dmFields & DM_PAPERWIDTH && mode.dmFields & DM_PAPERLENGTH &&
                     mode.dmPaperWidth > 0 && mode.dmPaperLength > 0;
  const vcl::TSize sheet = sized ? vcl::TSize{mode.dmPaperWidth * Tenth, mode.dmPaperLength * Tenth}
                                 : SheetOf(*vcl::Printer(), turned);
  FOrientation = turned ? vcl::poLandscape : vcl::poPortrait;
  FPaperWidth = std::max(sheet.cx, 0);
  FPaperHeight = std::max(sheet.cy, 0);
  const auto* const end = std::find(std::begin(mode.dmFormName), std::end(mode.dmFormName), L'\0');
  const std::wstring name(std::begin(mode.dmFormName), end);
  FPaperName = mode.dmFields & DM_FORMNAME ? vcl::ToUtf8(name) : std::string();
}

bool TQELPageSetupDialog::Ask() {
  vcl::TPrinter& printer = *vcl::Printer();
  if (printer.Printing()) throw vcl::EPrinter("Printing is under way");
  const std::string name = printer.PrinterName();
  const std::string before = printer.Settings();
  const vcl::TWatch watch(this);
  TQELHelpDialog::Execute();
  bool keep = false;
  const vcl::TAtEnd back([&] {
    if (!keep) printer.SetSettings(name, before);
  });
  printer.SetSettings(name, Wanted(before));
  FDialog->SetMinMargins(FMinMargins->Widths());
  const TSystemHelp help(*this);
  if (!FDialog->Execute() || watch.Gone()) return false;
  Take(printer.Settings());
  keep = !Designing();
  return true;
}

bool TQELPageSetupDialog::Execute() {
  FLastError.clear();
  const vcl::TWatch watch(this);
  try {
    return Ask();
  } catch (const vcl::EPrinter& error) {
    if (!watch.Gone()) FLastError = error.what();
  } catch (const vcl::EOutOfResources& error) {
    if (!watch.Gone()) FLastError = error.what();
  }
  return false;
}

}  // namespace qel
