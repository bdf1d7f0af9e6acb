// TPrinter: the system's printers.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/graphics/handles.h"
#include "vcl/printing/printdocument.h"
#include "vcl/rtl/strings.h"

namespace vcl {

class TPrinterSystem;

/// What a printer can do itself.
enum TPrinterCapability { pcCopies, pcOrientation, pcCollation, pcDuplex, pcColor };
using TPrinterCapabilities = TSet<TPrinterCapability>;

/// A printer of the system, and the document that is being printed on it. Everything that needs a
/// printer raises EPrinter when none is installed. What is said of the document (printer,
/// orientation, copies, file) can be changed only while none is being printed; else EPrinter.
class VCL_API TPrinter : public TPrintDocument {
 public:
  TPrinter();
  /// With a system of one's own.
  explicit TPrinter(std::unique_ptr<TPrinterSystem> system);
  ~TPrinter() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The names of the printers that are installed; none when there is none.
  const std::vector<std::string>& Printers() const;
  /// Asks the system anew for its printers and for the settings of the one that is chosen.
  void Refresh();
  /// The printer that is chosen: the system's default at first; -1 when there is none.
  int PrinterIndex() const;
  /// Also takes the printer's own settings. -1 chooses the default. Raises EListError for an index
  /// outside.
  void SetPrinterIndex(int index);
  /// Its name. Raises EPrinter when there is no printer.
  const std::string& PrinterName() const;

  TPrinterOrientation Orientation() const;
  void SetOrientation(TPrinterOrientation orientation);
  int Copies() const;
  /// How often each page is printed, by a printer that has pcCopies. Raises
  /// EArgumentOutOfRangeException below 1 and above 9999.
  void SetCopies(int copies);
  const std::string& OutputFile() const { return FOutputFile; }
  /// The file that the document goes to instead of the printer, as the printer's driver writes it;
  /// empty for none.
  void SetOutputFile(const std::string& fileName);
  TPrinterCapabilities Capabilities() const;
  /// The names of the fonts that the printer has, in order.
  std::vector<std::string> Fonts() const;

  TPageMetrics Metrics() const override;
  /// The printer's context; while nothing is printed, one that can only be asked.
  HDC Handle() const;
  /// The printer's settings as the system has them (DEVMODEW); empty when it has none.
  const std::string& Settings() const;
  /// Chooses a printer by its name and takes its settings. Raises EPrinter for a name that no
  /// printer has.
  void SetSettings(const std::string& printer, const std::string& settings);

 protected:
  void StartDocument() override;
  HDC StartPage() override;
  void EndPage() override;
  void EndDocument() override;
  void AbortDocument() override;

 private:
  struct TChosen {
    std::string Name;
    std::string Settings;
    bool Known = false;
  };
  const TChosen& Chosen() const;
  void Choose(const std::string& name, const std::string& settings) const;
  template <class Change>
  void ChangeMode(Change change);
  [[noreturn]] void RaiseRefused(const char* what) const;

  std::unique_ptr<TPrinterSystem> FSystem;
  mutable std::vector<std::string> FPrinters;
  mutable bool FListed = false;
  mutable TChosen FChosen;
  mutable TOwnedDC FContext;  // Of the document, or to ask.
  std::string FOutputFile;
};

/// The program's printer; made at the first call.
VCL_API TPrinter* Printer();

}  // namespace vcl
