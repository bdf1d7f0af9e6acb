// TPrinterSystem: what is asked of the system about its printers.
#pragma once

#include <string>
#include <vector>

#include "vcl/printing/printdocument.h"

namespace vcl {

/// The system's printers (winspool). A test puts one of its own in the place of it.
class VCL_API TPrinterSystem {
 public:
  virtual ~TPrinterSystem() = default;

  virtual std::vector<std::string> Printers() const;
  /// Empty when there is none.
  virtual std::string DefaultPrinter() const;
  /// The settings (DEVMODEW) that the printer begins with; empty when it has none.
  virtual std::string Settings(const std::string& printer) const;
  /// What the printer can (DeviceCapabilitiesW); -1 when it does not say.
  virtual int Capability(const std::string& printer, unsigned short which,
                         const std::string& settings) const;
  /// A context to draw on, or only to ask; null when the system refuses. The caller deletes it.
  virtual HDC Open(const std::string& printer, const std::string& settings, bool onlyToAsk) const;
  virtual TPageMetrics Metrics(HDC context) const;
  /// The document goes to the file, unless that is empty. These are false when the system refuses.
  virtual bool StartDocument(HDC context, const std::string& title, const std::string& file) const;
  virtual bool StartPage(HDC context) const;
  virtual bool EndPage(HDC context) const;
  virtual bool EndDocument(HDC context) const;
  virtual void Abort(HDC context) const;
};

}  // namespace vcl
