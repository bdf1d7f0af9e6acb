// TPrinter: which printer, its settings, and its documents.
#include "vcl/printing/printer.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>

#include "vcl/printing/private/printersystem.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <winspool.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

namespace {

constexpr int MostCopies = 9999;

DEVMODEW* ModeOf(std::string& settings) {
  return settings.size() < sizeof(DEVMODEW) ? nullptr
                                            : reinterpret_cast<DEVMODEW*>(settings.data());
}

const DEVMODEW* ModeOf(const std::string& settings) {
  return settings.size() < sizeof(DEVMODEW) ? nullptr
                                            : reinterpret_cast<const DEVMODEW*>(settings.data());
}

int CALLBACK AddFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM faces) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how the system passes it.
  auto& names = *reinterpret_cast<std::set<std::string>*>(faces);
  // A face whose name begins so is turned for writing downwards.
  if (font->lfFaceName[0] != L'@') names.insert(ToUtf8(std::wstring_view(font->lfFaceName)));
  return 1;
}

}  // namespace

const TClass& TPrinter::Class() {
  static const TClass info =
      Describe<TPrinter, TPrintDocument>("vcl::TPrinter", "vcl/printing/printing.h", {});
  return info;
}

TPrinter* Printer() {
  static TPrinter printer;
  return &printer;
}

TPrinter::TPrinter() : TPrinter(std::make_unique<TPrinterSystem>()) {}
TPrinter::TPrinter(std::unique_ptr<TPrinterSystem> system) : FSystem(std::move(system)) {}

TPrinter::~TPrinter() {
  if (Printing()) AbortQuietly();
}

void TPrinter::RaiseRefused(const char* what) const {
  RaiseLastOSError<EPrinter>("The printer \"", FChosen.Name, "\" does not ", what);
}

// Which printer.

const std::vector<std::string>& TPrinter::Printers() const {
  if (!std::exchange(FListed, true)) FPrinters = FSystem->Printers();
  return FPrinters;
}

void TPrinter::Refresh() {
  CheckNotPrinting();
  FListed = false;
  FChosen = {};
  FContext.Reset();
}

void TPrinter::Choose(const std::string& name, const std::string& settings) const {
  FChosen = {name, settings, true};
  FContext.Reset();
}

const TPrinter::TChosen& TPrinter::Chosen() const {
  if (FChosen.Known) return FChosen;
  if (Printers().empty()) throw EPrinter("No printer is installed");
  const std::string usual = FSystem->DefaultPrinter();
  const bool there = std::ranges::find(FPrinters, usual) != FPrinters.end();
  const std::string& name = there ? usual : FPrinters.front();
  Choose(name, FSystem->Settings(name));
  return FChosen;
}

int TPrinter::PrinterIndex() const {
  if (Printers().empty()) return -1;
  const auto found = std::ranges::find(FPrinters, Chosen().Name);
  return static_cast<int>(found - FPrinters.begin());
}

void TPrinter::SetPrinterIndex(int index) {
  CheckNotPrinting();
  const int count = static_cast<int>(Printers().size());
  if (index < -1 || index >= count) {
    throw EListError(Concat("There is no printer of the index ", std::to_string(index), " among ",
                            std::to_string(count)));
  }
  FChosen = {};
  FContext.Reset();
  if (index < 0) return;
  const std::string& name = FPrinters[static_cast<std::size_t>(index)];
  Choose(name, FSystem->Settings(name));
}

const std::string& TPrinter::PrinterName() const { return Chosen().Name; }
const std::string& TPrinter::Settings() const { return Chosen().Settings; }

void TPrinter::SetSettings(const std::string& printer, const std::string& settings) {
  CheckNotPrinting();
  if (std::ranges::find(Printers(), printer) == FPrinters.end()) {
    throw EPrinter(Concat("No printer has the name \"", printer, "\""));
  }
  Choose(printer, settings);
}

// Its settings.

template <class Change>
void TPrinter::ChangeMode(Change change) {
  CheckNotPrinting();
  std::string settings = Chosen().Settings;
  DEVMODEW* const mode = ModeOf(settings);
  if (!mode) throw EPrinter(Concat("The printer \"", FChosen.Name, "\" has no settings"));
  change(*mode);
  Choose(FChosen.Name, settings);
}

TPrinterOrientation TPrinter::Orientation() const {
  const DEVMODEW* const mode = ModeOf(Chosen().Settings);
  const bool across =
      mode && (mode->dmFields & DM_ORIENTATION) && mode->dmOrientation == DMORIENT_LANDSCAPE;
  return across ? poLandscape : poPortrait;
}

void TPrinter::SetOrientation(TPrinterOrientation orientation) {
  ChangeMode([orientation](DEVMODEW& mode) {
    mode.dmOrientation = orientation == poLandscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    mode.dmFields |= DM_ORIENTATION;
  });
}

int TPrinter::Copies() const {
  const DEVMODEW* const mode = ModeOf(Chosen().Settings);
  return mode && (mode->dmFields & DM_COPIES) ? std::max<int>(mode->dmCopies, 1) : 1;
}

void TPrinter::SetCopies(int copies) {
  if (copies < 1 || copies > MostCopies) {
    throw EArgumentOutOfRangeException(Concat("No number of copies: ", std::to_string(copies)));
  }
  ChangeMode([copies](DEVMODEW& mode) {
    mode.dmCopies = static_cast<short>(copies);
    mode.dmFields |= DM_COPIES;
  });
}

void TPrinter::SetOutputFile(const std::string& fileName) {
  CheckNotPrinting();
  FOutputFile = fileName;
}

TPrinterCapabilities TPrinter::Capabilities() const {
  const auto ask = [this](WORD which) {
    return FSystem->Capability(Chosen().Name, which, Chosen().Settings);
  };
  TPrinterCapabilities can;
  if (ask(DC_COPIES) > 1) can.Include(pcCopies);
  if (ask(DC_ORIENTATION) > 0) can.Include(pcOrientation);
  if (ask(DC_COLLATE) > 0) can.Include(pcCollation);
  if (ask(DC_DUPLEX) > 0) can.Include(pcDuplex);
  if (ask(DC_COLORDEVICE) > 0) can.Include(pcColor);
  return can;
}

HDC TPrinter::Handle() const {
  if (FContext) return FContext.Get();
  const TChosen& chosen = Chosen();
  FContext.Reset(FSystem->Open(chosen.Name, chosen.Settings, true));
  if (!FContext) RaiseRefused("answer");
  return FContext.Get();
}

TPageMetrics TPrinter::Metrics() const { return FSystem->Metrics(Handle()); }

std::vector<std::string> TPrinter::Fonts() const {
  std::set<std::string> faces;
  LOGFONTW any{};
  any.lfCharSet = DEFAULT_CHARSET;
  ::EnumFontFamiliesExW(Handle(), &any, &AddFace, reinterpret_cast<LPARAM>(&faces), 0);
  return {faces.begin(), faces.end()};
}

// Documents.

void TPrinter::StartDocument() {
  const TChosen& chosen = Chosen();
  FContext.Reset(FSystem->Open(chosen.Name, chosen.Settings, false));
  if (!FContext) RaiseRefused("open a document");
  if (FSystem->StartDocument(FContext.Get(), Title(), FOutputFile)) return;
  const int error = LastSystemError();
  FContext.Reset();
  RaiseOSError<EPrinter>(error, "The printer \"", chosen.Name, "\" does not begin a document");
}

HDC TPrinter::StartPage() {
  if (!FSystem->StartPage(FContext.Get())) RaiseRefused("begin a page");
  return FContext.Get();
}

void TPrinter::EndPage() {
  if (!FSystem->EndPage(FContext.Get())) RaiseRefused("end a page");
}

void TPrinter::EndDocument() {
  if (!FSystem->EndDocument(FContext.Get())) RaiseRefused("end the document");
  FContext.Reset();
}

void TPrinter::AbortDocument() {
  FSystem->Abort(FContext.Get());
  FContext.Reset();
}

}  // namespace vcl
