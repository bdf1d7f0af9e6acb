// TPrintDocument: what is drawn on page by page, paper or a preview.
#pragma once

#include <string>

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/exceptions.h"

namespace vcl {

/// No printer is there, the printer or the system refuses, or printing is under way, or is not.
class VCL_API EPrinter : public Exception {
 public:
  using Exception::Exception;
  ~EPrinter() override;
};

enum TPrinterOrientation { poPortrait, poLandscape };
template <>
inline constexpr TEnumText EnumText<TPrinterOrientation>{"TPrinterOrientation",
                                                         "poPortrait poLandscape"};

/// The measures of a page in the device's own pixels.
struct TPageMetrics {
  TSize Page;   ///< What can be printed on.
  TSize Paper;  ///< The whole sheet.
  TPoint Edge;  ///< Where on the sheet the page's upper left pixel is.
  TSize PixelsPerInch;

  friend bool operator==(const TPageMetrics&, const TPageMetrics&) = default;
};

/// A sheet of A4 (210 by 297 mm) of 600 dots per inch, with 5 mm at each edge that no printer
/// reaches: what is previewed where no printer is installed.
VCL_API TPageMetrics StandardPage(TPrinterOrientation orientation);

/// A document whose pages are drawn one after another:
///
///     document.BeginDoc();
///     document.Canvas()->TextOut(0, 0, "The first page");
///     document.NewPage();
///     document.Canvas()->TextOut(0, 0, "The second page");
///     document.EndDoc();
///
/// The canvas has the device's pixels, and its font the device's dots per inch: what is set as a
/// Size in points comes out in points. `Canvas()->Font()->Assign(…)` keeps another font's points;
/// SetFont would keep its pixels.
class VCL_API TPrintDocument : public TObject {
 public:
  TPrintDocument();
  ~TPrintDocument() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  virtual TPageMetrics Metrics() const = 0;
  /// What can be printed on, in the device's pixels.
  int PageWidth() const { return Metrics().Page.cx; }
  int PageHeight() const { return Metrics().Page.cy; }
  /// So many of the device's pixels are a tenth of a millimetre times `tenths`, across resp. down.
  int MillimetresX(int tenths) const;
  int MillimetresY(int tenths) const;
  const std::string& Title() const { return FTitle; }
  /// What the system calls the document while it waits for the printer.
  void SetTitle(const std::string& title) { FTitle = title; }

  /// Begins the document and its first page. Raises EPrinter when one is begun already.
  void BeginDoc();
  /// Ends the page and begins the next one. These raise EPrinter when none is begun, or when the
  /// device refuses; the document then is given up.
  void NewPage();
  void EndDoc();
  /// Gives the document up: nothing of it is printed that has not been yet.
  void Abort();
  bool Printing() const { return FPage > 0; }
  /// True after Abort, until the next BeginDoc.
  bool Aborted() const { return FAborted; }
  /// The page that is being drawn, from 1; 0 when none is.
  int PageNumber() const { return FPage; }
  /// The page to draw on. Raises EPrinter when no document is begun.
  TCanvas* Canvas();

 protected:
  // What a device does. The context of a page is the device's own. Destructors of devices call
  // AbortQuietly.
  virtual void StartDocument() = 0;
  virtual HDC StartPage() = 0;
  virtual void EndPage() = 0;
  virtual void EndDocument() = 0;
  virtual void AbortDocument() = 0;
  void AbortQuietly() noexcept;
  void CheckPrinting() const;
  void CheckNotPrinting() const;

 private:
  void OpenPage();
  void ClosePage();

  TCanvas FCanvas;
  std::string FTitle;
  int FPage = 0;
  bool FAborted = false;
};

}  // namespace vcl
